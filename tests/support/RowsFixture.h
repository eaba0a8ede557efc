#pragma once

#include "catalogs/IconRows.h"
#include "companion/BmpFile.h"
#include "document/IconKinds.h"
#include "document/Selection.h"
#include "document/Slot.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>
#include <map>
#include <tuple>

namespace vypx::test {

/// An open document without icons, and catalogs of every sort to take some from.
class RowsFixture : public LoadFixture {
protected:
    static constexpr const char* Root = "My Icons";

    RowsFixture()
    {
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta Panel", "panl", "BETA", "" },
            { "Gamma", "appl", "GAMM", "" } };
        PalmTable = { {}, { "Palm Clock", "appl", "clck", "" },
            { "Palm Prefs", "panl", "pref", "" } };
        SetLauncher({ { "Start (Large Icon)", "2000" }, { "Start (Small Icon)", "2001" },
            { "Files (Large Icon)", "2002" }, { "Files (Small Icon)", "2003" } });
        FileLoaded = true;
        Parent = DatabaseName = Root;
        Tree.SetRoot(Root);
        IconTable.clear();
        BitmapTable.assign(1, {});
        IconsetChanged = false;
    }

    using Entries = std::vector<std::pair<std::string, std::string>>; // name and ID
    /// The launcher's catalog, in memory and as a file.
    void SetLauncher(const Entries& entries)
    {
        VYTable.assign(1, {});
        for (const auto& [name, id] : entries)
            VYTable.push_back({ name, id, "" });
        WriteLauncherFile(entries);
    }
    void WriteLauncherFile(const Entries& entries)
    {
        std::string text;
        for (const auto& [name, id] : entries)
            text += "[" + name + "]\nID=" + id + "\n";
        WriteText(folder.File("VY_Icons.dat"), text);
    }

    void AddRow(const std::string& label, const std::string& key, std::string_view kind = KindApp,
        int state = 1)
    {
        IconTable.push_back({ label, key, "NEW", "NEW", state, std::string(kind) });
        Tree.Add({ .key = label, .image = state ? ImageOfKind(kind) : int(ImageDelete) });
    }
    static IconRow& Row(const std::string& label) { return IconTable.at(*FindIconRow(label)); }
    static bool Has(const std::string& label) { return FindIconRow(label).has_value(); }

    static Picture Coloured(Rgb colour)
    {
        Picture picture(4, 3);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 4; ++x)
                picture.Set(x, y, colour);
        return picture;
    }
    /// A working file, and what BitmapTable says of it as an import does.
    static void WritePicture(const std::string& name, Rgb colour)
    {
        WriteBytes(WorkPath(name), EncodeBmp24(Coloured(colour)));
        SetTransparent(name, colour);
    }
    static void SetTransparent(const std::string& name, Rgb colour)
    {
        std::size_t free = BitmapTable.size();
        while (free > 0 && BitmapTable[free - 1] == BitmapEntry{})
            --free;
        BitmapTable.resize(free + 2);
        BitmapTable[free] = { .file = name,
            .hasTransparent = 1,
            .red = colour.red,
            .green = colour.green,
            .blue = colour.blue };
        BitmapRow = static_cast<int>(free) + 1;
    }
    static std::string NameFor(const Slot& slot, const std::string& key)
    {
        return key + std::string(slot.fileSuffix);
    }
    /// Gives the icon, and all with its resource, a picture of one colour, which is transparent.
    static void Fill(const Slot& slot, const std::string& label, Rgb colour)
    {
        const std::string key = Row(label).ResourceKey;
        WritePicture(NameFor(slot, key), colour);
        for (IconRow& row : IconTable)
            if (row.ResourceKey == key)
                row.*slot.fileCell = NameFor(slot, key);
    }

    static bool IsThere(const std::string& name) { return NamedFileExists(WorkPath(name)); }
    /// The picture that the icon shows in the slot; empty where it has none.
    static Bytes Seen(const Slot& slot, const std::string& label)
    {
        const std::string& cell = Row(label).*slot.fileCell;
        return ImageFileValid(cell) ? ReadBytes(WorkPath(cell)) : Bytes();
    }
    static Bytes BytesOf(Rgb colour) { return EncodeBmp24(Coloured(colour)); }
    /// What the panel takes for transparent in the working file.
    static std::optional<Rgb> TransparentIn(const std::string& name)
    {
        const BitmapEntry* entry = BitmapAt(WorkPath(name));
        return entry && entry->hasTransparent == 1 ? TransparentColour(*entry) : std::nullopt;
    }

    static std::map<std::string, Bytes> FilesBelow(const std::string& path)
    {
        std::map<std::string, Bytes> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
            if (entry.is_regular_file())
                files[platform::Utf8Path(entry.path())] =
                    ReadBytes(platform::Utf8Path(entry.path()));
        return files;
    }
    static std::vector<std::pair<std::string, int>> Nodes()
    {
        std::vector<std::pair<std::string, int>> nodes;
        for (const IconNode& node : Tree.Nodes())
            nodes.emplace_back(node.key, node.image);
        return nodes;
    }
    /// All that one of the routines may change.
    auto State() const
    {
        return std::tuple(IconTable, BitmapTable, Nodes(), FilesBelow(folder.Path()));
    }

    static RowsOutcome Add(const std::vector<std::string>& labels) { return ApplyAddIcons(labels); }
    static AssignRequest Request(const std::string& selected, Catalog catalog,
        const std::string& entry, SizeClass size = SizeClass::Large)
    {
        return { .selected = selected, .catalog = catalog, .size = size, .entry = entry };
    }

    /// It stopped with that box, and the dialog stays.
    static void ExpectStopped(const RowsOutcome& outcome, const std::string& message)
    {
        EXPECT_EQ(outcome.message, message);
        EXPECT_FALSE(outcome.isDone);
    }
    /// It came to its end, with that icon to be selected.
    static void ExpectDone(const RowsOutcome& outcome, const std::string& node)
    {
        EXPECT_EQ(outcome.message, "");
        EXPECT_TRUE(outcome.isDone);
        EXPECT_EQ(outcome.node, node);
        EXPECT_TRUE(IconsetChanged);
    }
};

} // namespace vypx::test
