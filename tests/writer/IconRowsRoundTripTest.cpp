#include "catalogs/IconRows.h"
#include "companion/Numbers.h"
#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

#include <random>
#include <rapidcheck/gtest.h>

namespace vypx::test {

namespace {

/// A document that a user works on at random, each command with the selection that the window makes
/// of it.
class RandomWork : public Pictures {
protected:
    void Begin(unsigned seed)
    {
        random.seed(seed);
        MakeCatalogs();
        Itbl.assign(1, {});
        Itbl.push_back({ "appl", "ABCD", 3700, 0 });
        BitmapTable.assign(1, {});
        BitmapRow = 0;
        IconTable.assign(1, {});
        Tree.Clear();
        Tree.SetRoot(DatabaseName);
        ForgetUndo();
        DeleteWorkingFiles({ ".bmp", ".bak" });
        AutoCreateLowRes = random() % 2 == 0;
        AddIcon("tAIB3600 (Orphan) ", "tAIB3600", "DELETE");
        Fill(SlotSM, "tAIB3600 (Orphan) ", Plain(10, 10, { 255, 0, 0 }));
        AddIcon("tAIB3700 (ABCD - Large) ", "tAIB3700", "UNKNOWN");
        Row("tAIB3700 (ABCD - Large) ").owner = { "appl", "ABCD" };
        Fill(SlotLG, "tAIB3700 (ABCD - Large) ", Plain(20, 10, { 0, 255, 0 }));
        Click(DatabaseName);
    }

    void Step()
    {
        const Slot& slot = random() % 2 == 0 ? SlotLG : SlotSM;
        switch (random() % 9) {
        case 0:
            return Apply(ApplyAddIcons(SomeLabels()));
        case 1:
            return Apply(ApplyShareIcon(Request()));
        case 2:
            return Apply(ApplyAssignIcon(Request()));
        case 3:
            if (host.IsOn(Command::RemoveIcon))
                ToggleRemoval();
            return;
        case 4:
            return ClearSometimes();
        case 5:
            if (host.IsOn(slot.ofImport[1]))
                Import(slot, Plain(Upto(15), Upto(11), AnyColour()));
            return;
        case 6:
            if (host.IsOn(slot.ofStored.back()))
                DeleteImage(slot, host);
            return;
        case 7:
            if (host.IsOn(slot.ofUndo[0]))
                UndoChange(slot, host);
            return;
        default:
            return Click(AnyRow());
        }
    }

    void CheckCells() const
    {
        std::set<std::string> labels;
        for (const IconRow& row : IconTable) {
            if (row.IconLabel.empty())
                continue;
            RC_ASSERT(labels.insert(row.IconLabel).second);
            RC_ASSERT(Tree.Find(row.IconLabel) != nullptr);
            for (const std::string* cell : { &row.LowResFile, &row.HighResFile })
                RC_ASSERT(!ImageFileValid(*cell) || NamedFileExists(WorkPath(*cell)));
        }
        RC_ASSERT(Tree.Nodes().size() == labels.size());
    }

    /// What the next load must show of an icon.
    struct Shown {
        std::string kind;
        int id = 0;
        Owner owner;
        std::map<std::string_view, Picture> pictures; // by the letters of the slot
        std::map<std::string_view, Rgb> masks;        // of those with a transparent colour

        friend bool operator==(const Shown&, const Shown&) = default;
        friend std::ostream& operator<<(std::ostream& out, const Shown& shown)
        {
            out << shown.kind << " " << shown.id << " " << shown.owner.type << shown.owner.creator;
            for (const auto& [letters, picture] : shown.pictures)
                out << " " << letters << " " << picture.Width() << "x" << picture.Height();
            return out;
        }
    };
    static Shown LookAt(const IconRow& row)
    {
        Shown shown{ row.IconKind, ResourceId(row.ResourceKey), row.owner, {}, {} };
        for (const Slot* slot : { &SlotLG, &SlotSM })
            if (const std::string& file = row.*slot->fileCell; ImageFileValid(file)) {
                shown.pictures[slot->letters] = Stored(file);
                const BitmapEntry* const bitmap = BitmapAt(WorkPath(file));
                if (bitmap && bitmap->hasTransparent == 1)
                    shown.masks[slot->letters] = TransparentColour(*bitmap).value();
            }
        return shown;
    }
    /// The icons that a saved file can tell: with a picture, and of the launcher or in the index.
    static std::map<std::string, Shown> IconsOfAFile()
    {
        std::map<std::string, Shown> icons;
        for (const IconRow& row : IconTable) {
            const Shown shown = LookAt(row);
            const bool isIndexed = (row.IconKind == KindApp || row.IconKind == KindPalm)
                && row.ResourceKey.starts_with("tAIB") && shown.id >= 3500 && shown.id <= 9999;
            if (row.IconState == 1 && !shown.pictures.empty()
                && (isIndexed || row.IconKind == KindVY))
                icons[row.IconLabel] = shown;
        }
        return icons;
    }

private:
    void MakeCatalogs()
    {
        std::string apps, palm, launcher;
        AppTable.assign(1, {});
        PalmTable.assign(1, {});
        VYTable.assign(1, {});
        for (char c = 'A'; c <= 'F'; ++c) {
            const std::string name = std::string("App ") + c, creator = std::string("CRE") + c;
            const std::string type = c == 'C' ? "panl" : "appl";
            (c < 'E' ? AppTable : PalmTable).push_back({ name, type, creator, "" });
            (c < 'E' ? apps : palm) +=
                "[" + name + "]\nType=" + type + "\nCreator={" + creator + "}\n";
        }
        for (int id = 2000; id < 2004; ++id) {
            const std::string label = LabelOf(
                id < 2002 ? "Beam" : "Copy", id % 2 == 0 ? SizeClass::Large : SizeClass::Small);
            VYTable.push_back({ label, std::to_string(id), "" });
            launcher += "[" + label + "]\nID=" + std::to_string(id) + "\n";
        }
        WriteText(folder.File("AppList.dat"), apps);
        WriteText(folder.File("PalmApp.dat"), palm);
        WriteText(folder.File("VY_Icons.dat"), launcher);
    }

    int Upto(int most) { return 1 + static_cast<int>(random() % static_cast<unsigned>(most)); }
    /// One that 16 bits keep as it is.
    Rgb AnyColour() { return { 255 * (Upto(2) - 1), 85 * (Upto(4) - 1), 255 * (Upto(2) - 1) }; }
    SizeClass AnySize() { return random() % 2 == 0 ? SizeClass::Large : SizeClass::Small; }
    std::string AnyEntry(Catalog catalog)
    {
        if (catalog == Catalog::Launcher)
            return VYTable[random() % 4 + 1].name;
        const auto& table = catalog == Catalog::Apps ? AppTable : PalmTable;
        return table[random() % (table.size() - 1) + 1].name;
    }
    Catalog AnyCatalog()
    {
        return std::array{ Catalog::Apps, Catalog::Palm, Catalog::Launcher }[random() % 3];
    }
    std::vector<std::string> SomeLabels()
    {
        std::vector<std::string> labels;
        for (int i = Upto(3); i > 0; --i) {
            const Catalog catalog = AnyCatalog();
            const std::string entry = AnyEntry(catalog);
            labels.push_back(catalog == Catalog::Launcher ? entry : LabelOf(entry, AnySize()));
        }
        return labels;
    }
    AssignRequest Request()
    {
        const Catalog catalog = AnyCatalog();
        return { .selected = selected == DatabaseName ? "" : selected,
            .catalog = catalog,
            .size = AnySize(),
            .entry = AnyEntry(catalog) };
    }
    std::string AnyRow()
    {
        const std::string& label = IconTable[random() % IconTable.size()].IconLabel;
        return label.empty() ? DatabaseName : label;
    }

    void Click(const std::string& label)
    {
        selected = label;
        Select(label);
    }
    void Apply(const RowsOutcome& outcome)
    {
        if (!outcome.node.empty())
            Click(outcome.node);
    }
    void ClearSometimes()
    {
        if (random() % 3 != 0)
            return;
        DropMarkedRows();
        RebuildIconTree();
        host.enabled.clear();
        Click(DatabaseName);
    }

    std::mt19937 random;
    std::string selected;
};

RC_GTEST_FIXTURE_PROP(RandomWork, EveryCellNamesAFileAndASaveKeepsWhatItCanTell, ())
{
    Begin(*rc::gen::arbitrary<unsigned>());
    for (int step = 0; step < 40; ++step) {
        Step();
        CheckCells();
    }
    const std::map<std::string, Shown> before = IconsOfAFile();

    RC_ASSERT(WhyNot() == "");
    RC_ASSERT(Load(FileName) == LoadResult::Opened);

    const std::map<std::string, Shown> now = IconsOfAFile();
    for (const auto& [label, shown] : before) {
        RC_ASSERT(now.contains(label));
        RC_ASSERT(now.at(label) == shown);
    }
    for (const auto& [label, shown] : now)
        RC_ASSERT(before.contains(label) || shown.kind == KindVY); // shared with an application
}

} // namespace
} // namespace vypx::test
