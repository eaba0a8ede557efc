#include "catalogs/CatalogFiles.h"
#include "catalogs/IconRows.h"
#include "companion/Numbers.h"
#include "document/Catalogs.h"
#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

#include <rapidcheck/gtest.h>

/// What a user builds by adding, sharing and assigning icons, by importing pictures and taking them
/// away again, is in the file that is saved.
namespace vypx::test {

namespace {

struct Step {
    unsigned what, icon, name, size, slot;
};

class NewIcons : public Pictures {
protected:
    const std::vector<std::string> apps{ "Alpha", "Beta Panel", "Gamma" };
    const std::vector<std::string> items{ "Palm Clock", "Palm Prefs" };
    const std::vector<std::string> launcher{ "Start (Large Icon)", "Start (Small Icon)",
        "Files (Large Icon)" };

    /// An iconset from nothing, with two orphans that wait for an owner.
    void Begin()
    {
        DefaultColorDepth = ColorDepth::Bits8;
        WriteText(folder.File("AppList.dat"),
            "[Alpha]\nType=appl\nCreator={ALPH}\n[Beta Panel]\nType=panl\nCreator={B   }\n"
            "[Gamma]\nType=appl\nCreator={GAMM}\n");
        WriteText(folder.File("PalmApp.dat"),
            "[Palm Clock]\nType=appl\nCreator={clck}\n[Palm Prefs]\nType=panl\nCreator={pref}\n");
        WriteText(folder.File("VY_Icons.dat"),
            "[Start (Large Icon)]\nID=2000\n[Start (Small Icon)]\nID=2001\n"
            "[Files (Large Icon)]\nID=2002\n");
        ReadCatalogs([](std::string_view text) { RC_FAIL(std::string(text)); });
        IconTable.clear();
        Tree.Clear();
        Tree.SetRoot(DatabaseName);
        AddIcon("tAIB3520 (Orphan) ", "tAIB3520", "DELETE");
        AddIcon("Tbmp3700 (Orphan) ", "Tbmp3700", "DELETE");
        for (const Slot* slot : { &SlotLG, &SlotSM }) {
            Fill(*slot, "tAIB3520 (Orphan) ", NextPicture());
            Fill(*slot, "Tbmp3700 (Orphan) ", NextPicture());
        }
    }
    /// In a colour that all depths of 8 bits and more have; 216 follow before one comes again.
    Picture NextPicture()
    {
        ++painted;
        return Plain(8, 6, { painted / 6 % 6 * 51, painted % 6 * 51, 51 * (painted / 36 % 6) });
    }

    AssignRequest RequestOf(const Step& step) const
    {
        const std::size_t name = step.name % (apps.size() + items.size() + launcher.size());
        const SizeClass size = step.size % 2 ? SizeClass::Large : SizeClass::Small;
        if (name < apps.size())
            return { selected, Catalog::Apps, size, apps[name] };
        if (name < apps.size() + items.size())
            return { selected, Catalog::Palm, size, items[name - apps.size()] };
        return { selected, Catalog::Launcher, size, launcher[name - apps.size() - items.size()] };
    }
    void Click(const std::string& label)
    {
        selected = label;
        Select(label);
    }
    /// What the window does when a routine ends.
    void Follow(const RowsOutcome& outcome)
    {
        if (!outcome.node.empty())
            Click(outcome.node);
    }
    void Clear()
    {
        DropMarkedRows();
        RebuildIconTree();
        host.enabled.clear();
        if (!FindIconRow(selected))
            selected.clear();
    }

    void Do(const Step& step)
    {
        const Slot& slot = step.slot % 2 ? SlotLG : SlotSM;
        const AssignRequest request = RequestOf(step);
        const IconRow& any = IconTable[step.icon % IconTable.size()];
        switch (step.what % 12) {
        case 0:
            return Follow(ApplyAddIcons(std::vector<std::string>{
                request.catalog == Catalog::Launcher ? request.entry
                                                     : LabelOf(request.entry, request.size) }));
        case 1:
            return Follow(ApplyShareIcon(request));
        case 2:
        case 3:
            return Follow(ApplyAssignIcon(request));
        case 4:
            if (FindIconRow(selected) && host.IsOn(Command::RemoveIcon))
                ToggleRemoval();
            return;
        case 5:
            if (step.icon % 3 == 0)
                Clear();
            return;
        case 6:
            if (host.IsOn(slot.letters == "LG" ? Command::DeleteLG : Command::DeleteSM))
                DeleteImage(slot, host);
            return;
        case 7:
            if (host.IsOn(slot.ofUndo[0]))
                UndoChange(slot, host);
            return;
        case 8:
        case 9:
            if (host.IsOn(slot.letters == "LG" ? Command::ImportLG : Command::ImportSM))
                Import(slot, NextPicture());
            return;
        default:
            if (!any.IconLabel.empty())
                Click(any.IconLabel);
        }
    }
    static void CheckCells()
    {
        for (const IconRow& row : IconTable)
            for (const std::string& cell : { row.LowResFile, row.HighResFile })
                if (ImageFileValid(cell))
                    RC_ASSERT(!Stored(cell).IsNull());
    }

    /// Whether a save keeps the icon under its label.
    static bool IsKept(const IconRow& row)
    {
        if (row.IconState != 1
            || !(ImageFileValid(row.LowResFile) || ImageFileValid(row.HighResFile)))
            return false;
        const int id = ResourceId(row.ResourceKey);
        const bool isOwned = row.IconKind == "APP" || row.IconKind == "PALM";
        return row.ResourceKey.starts_with("tAIB")
            && (isOwned ? id >= 3500 && id <= 9999 : row.IconKind == "VY");
    }
    /// What is compared of an icon.
    struct Content {
        std::string kind, key;
        Owner owner;
        Picture low, high;
        std::optional<Rgb> lowMask, highMask; // transparent colours
    };
    static std::optional<Rgb> MaskOf(const std::string& cell)
    {
        const BitmapEntry* const bitmap = BitmapAt(WorkPath(cell));
        return bitmap && bitmap->hasTransparent == 1 ? TransparentColour(*bitmap) : std::nullopt;
    }
    static std::map<std::string, Content> KeptIcons()
    {
        const auto picture = [](const std::string& cell) {
            return ImageFileValid(cell) ? Stored(cell) : Picture();
        };
        std::map<std::string, Content> icons;
        for (const IconRow& row : IconTable)
            if (IsKept(row))
                icons[row.IconLabel] = { row.IconKind, row.ResourceKey, row.owner,
                    picture(row.LowResFile), picture(row.HighResFile), MaskOf(row.LowResFile),
                    MaskOf(row.HighResFile) };
        return icons;
    }

    std::string selected;
    int painted = 0;
};

RC_GTEST_FIXTURE_PROP(NewIcons, AreTheSameInTheFileThatIsSaved, ())
{
    Begin();
    for (int left = *rc::gen::inRange(60, 200); left > 0; --left) {
        const auto number = [] { return *rc::gen::inRange<unsigned>(0, 240); };
        Do({ number(), number(), number(), number(), number() });
        CheckCells();
    }
    const std::map<std::string, Content> icons = KeptIcons();
    CountIcons();
    RC_CLASSIFY(icons.size() > 3, "more than three icons");
    if (icons.empty())
        return;

    RC_ASSERT(WhyNot() == "");
    RC_ASSERT(Load(FileName) == LoadResult::Opened);

    const std::map<std::string, Content> loaded = KeptIcons();
    for (const auto& [label, icon] : loaded) // the launcher's IDs are its own, whoever has them
        RC_ASSERT(icon.kind == "VY" || icons.contains(label));
    for (const auto& [label, icon] : icons) {
        RC_ASSERT(loaded.contains(label));
        const Content& now = loaded.at(label);
        RC_ASSERT(now.kind == icon.kind);
        RC_ASSERT(now.key == icon.key);
        RC_ASSERT(now.owner == icon.owner);
        RC_ASSERT(now.low == icon.low);
        RC_ASSERT(now.high == icon.high);
        RC_ASSERT(now.lowMask == icon.lowMask);
        RC_ASSERT(now.highMask == icon.highMask);
    }
}

} // namespace
} // namespace vypx::test
