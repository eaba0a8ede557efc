#pragma once

#include "document/IconKinds.h"
#include "document/IconStats.h"
#include "document/PictureState.h"
#include "document/Selection.h"
#include "imaging/Import.h"
#include "imaging/Paste.h"
#include "support/CompileFixture.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>
#include <tuple>

namespace vypx::test {

/// A document with icons of every sort, none of which has a picture yet, that can be saved.
class Pictures : public Compiling {
protected:
    static constexpr const char* Large = "Alpha (Large Icon)"; // the first row
    static constexpr const char* Small = "Alpha (Small Icon)";
    static constexpr const char* Sharing = "Palm Clock (Large Icon)"; // the pictures of Large
    static constexpr const char* Unknown = "tAIB3601 (ABCD - Large) ";
    static constexpr const char* UnknownSmall = "tAIB3602 (ABCD - Small) ";
    static constexpr const char* Launcher = "Category";
    static constexpr const char* Missing = "Beta (Large Icon)"; // has neither a name nor the mark

    Pictures()
    {
        AutoCreateLowRes = false;
        Parent = DatabaseName;
        Tree.SetRoot(Parent);
        BitmapTable.assign(1, {});
        AddIcon(Large, "tAIB3500");
        AddIcon(Small, "tAIB3501");
        AddIcon(Sharing, "tAIB3500", "PALM");
        AddIcon(Unknown, "tAIB3601", "UNKNOWN");
        AddIcon(UnknownSmall, "tAIB3602", "UNKNOWN");
        AddIcon(Launcher, "Tbmp11000", "VY");
        AddIcon(Missing, "tAIB3504");
        Row(Missing).LowResFile.clear();
        Row(Missing).HighResFile.clear();
    }

    void AddIcon(const std::string& label, const std::string& key, const std::string& kind = "APP")
    {
        IconTable.push_back({ label, key, "NEW", "NEW", 1, kind });
        Tree.Add({ .key = label, .image = ImageOfKind(kind) });
    }
    static IconRow& Row(const std::string& label) { return IconTable.at(*FindIconRow(label)); }
    static std::string& Cell(const Slot& slot, const std::string& label)
    {
        return Row(label).*slot.fileCell;
    }
    static std::string NameFor(const Slot& slot, const std::string& label)
    {
        return Row(label).ResourceKey + std::string(slot.fileSuffix);
    }

    /// Gives the icon, and all that share its resource, a picture as a load does.
    void Fill(const Slot& slot, const std::string& label, const Picture& picture,
        std::optional<Rgb> transparent = std::nullopt)
    {
        const std::string name = NameFor(slot, label), key = Row(label).ResourceKey;
        WriteBytes(WorkPath(name), EncodeBmp24(picture));
        for (IconRow& row : IconTable)
            if (row.ResourceKey == key)
                row.*slot.fileCell = name;
        BitmapEntry entry{ .file = name, .hasTransparent = transparent ? 1 : 0 };
        if (transparent) {
            entry.red = transparent->red;
            entry.green = transparent->green;
            entry.blue = transparent->blue;
        }
        BitmapTable.insert(BitmapTable.begin() + BitmapRow++, entry);
    }
    static const BitmapEntry& BitmapOf(const std::string& file)
    {
        for (const BitmapEntry& entry : BitmapTable)
            if (entry.file == file)
                return entry;
        ADD_FAILURE() << "no row of BitmapTable for " << file;
        return BitmapTable.back();
    }

    /// Clicks the icon: what the window does with its commands is done to the host's.
    SelectionEffects Select(const std::string& label)
    {
        SelectionEffects effects = SelectNode(label, DatabaseName);
        for (const auto& [command, on] : effects.enabled)
            host.enabled[command] = on;
        if (effects.endsUndo)
            for (const Slot* slot : { &SlotLG, &SlotSM })
                host.Enable(slot->ofUndo, false);
        host.steps.clear();
        return effects;
    }
    /// The user chooses a file with that picture.
    ImportResult Import(const Slot& slot, const MaskedPicture& picture)
    {
        host.choice = folder.File("in.bmp");
        host.prepared[host.choice] = picture;
        return Again(slot);
    }
    ImportResult Import(const Slot& slot, const Picture& picture)
    {
        return Import(slot, MaskedPicture{ .pixels = picture });
    }
    /// The command of that slot, whatever its picture comes from.
    ImportResult Again(const Slot& slot)
    {
        return slot.letters == "LG" ? ImportLG(host) : ImportSM(host);
    }
    /// The clipboard holds that picture, and it is pasted.
    ImportResult Paste(const Slot& slot, const MaskedPicture& picture)
    {
        host.clipboard = LoadedPicture{ .picture = picture };
        return PasteAgain(slot);
    }
    ImportResult Paste(const Slot& slot, const Picture& picture)
    {
        return Paste(slot, MaskedPicture{ .pixels = picture });
    }
    ImportResult PasteAgain(const Slot& slot)
    {
        return slot.letters == "LG" ? PasteImageLG(host) : PasteImageSM(host);
    }
    bool UndoIsOn(const Slot& slot) const
    {
        const bool button = host.IsOn(slot.ofUndo[0]), entry = host.IsOn(slot.ofUndo[1]);
        EXPECT_EQ(button, entry) << "button and menu entry differ";
        return button;
    }

    static Picture Plain(int width, int height, Rgb colour)
    {
        Picture picture(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture.Set(x, y, colour);
        return picture;
    }
    /// Every pixel has another colour; the one at the top left is `corner`.
    static Picture Many(int width, int height, Rgb corner = { 12, 34, 56 })
    {
        Picture picture(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture.Set(x, y, { x * 3, y * 5, (x * 7 + y * 11) % 256 });
        picture.Set(0, 0, corner);
        return picture;
    }
    /// The pixels of a working file; a null picture when there is none.
    static Picture Stored(const std::string& name)
    {
        if (!NamedFileExists(WorkPath(name)))
            return {};
        return DecodeBmp(ReadBytes(WorkPath(name))).value_or(Picture());
    }
    static std::map<std::string, Bytes> WorkFiles()
    {
        std::map<std::string, Bytes> files;
        for (const auto& entry : std::filesystem::directory_iterator(WorkFolder()))
            if (entry.is_regular_file())
                files[platform::Utf8Path(entry.path().filename())] =
                    ReadBytes(platform::Utf8Path(entry.path()));
        return files;
    }
    /// All that a change of a picture may change in the document and its panels.
    static auto State()
    {
        return std::tuple(IconTable, BitmapTable, HighResPath, LowResPath, LGloaded, SMloaded,
            std::array{ MaskR_LG, MaskG_LG, MaskB_LG, MaskR_SM, MaskG_SM, MaskB_SM }, CropForLG,
            CropForSM);
    }

    RecordingHost host;
};

/// What holds for both slots.
class EachSlot : public Pictures, public ::testing::WithParamInterface<const Slot*> {
protected:
    const Slot& slot = *GetParam();
    const Slot& other = &slot == &SlotLG ? SlotSM : SlotLG;
    const bool isLG = &slot == &SlotLG;

    std::string Letters() const { return std::string(slot.letters); }
    /// What a picture that came in enables, and nothing else was told.
    void ExpectCommandsOfANewPicture() const
    {
        EXPECT_EQ(host.Told(true),
            isLG ? (std::set{ Command::ChangeColourLG, Command::ExportLG, Command::CopyLG,
                Command::CreateLowRes, Command::DeleteLG, Command::UndoLG, Command::MenuUndoLG })
                 : (std::set{ Command::ChangeColourSM, Command::ExportSM, Command::CopySM,
                     Command::DeleteSM, Command::UndoSM, Command::MenuUndoSM }));
        EXPECT_EQ(host.Told(false), std::set<Command>());
    }
    /// What the host is told of an import from a dialog that came to its end.
    std::vector<std::string> StepsOfAnImport() const
    {
        return { "choose", "load in.bmp", "folder", "colour " + Letters(), "draw " + Letters(),
            "stats" };
    }
};

inline std::string SlotName(const ::testing::TestParamInfo<const Slot*>& info)
{
    return std::string(info.param->letters);
}

} // namespace vypx::test
