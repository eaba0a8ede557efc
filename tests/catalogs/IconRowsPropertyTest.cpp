#include "support/RowsFixture.h"

#include <rapidcheck/gtest.h>
#include <set>

namespace vypx::test {

namespace {

/// One thing that a user does, as numbers; each is taken modulo what there is to choose from.
struct Step {
    unsigned what, icon, name, size, slot;
};

/// Every picture has one colour, which is its transparent one, so that a picture that was lost,
/// mixed up or given another's transparent colour is seen.
class IconRowsProperty : public RowsFixture {
protected:
    const std::vector<std::string> names{ "Alpha", "Gamma", "Start", "Palm Clock", "Nobody", "" };
    const Entries launcher{
        { "Start (Large Icon)", "2000" },
        { "Start (Small Icon)", "2001" },
        { "Begin (Large Icon)", "2000" },
        { "Near (Large Icon)", "3500" },
        { "Top (Large Icon)", "10000" },
        { "Blank (Large Icon)", "" },
        { "Away (Large Icon)", "../away" },
    };

    /// A document as a load leaves one, `top` with the range of IDs used up.
    void Begin(bool top)
    {
        SetLauncher(launcher);
        IconTable.clear();
        BitmapTable.assign(1, {});
        Tree.Clear();
        Tree.SetRoot(Root);
        DeleteWorkingFiles({ ".bmp" });
        painted = 0;
        AddRow("Beta Panel (Large Icon)", top ? "tAIB9998" : "tAIB3500");
        AddRow("Palm Prefs (Small Icon)", "tAIB3501", KindPalm);
        AddRow("tAIB3510 (Orphan) ", "tAIB3510", KindDelete, 0);
        AddRow("Tbmp3600 (Orphan) ", "Tbmp3600", KindDelete, 0);
        AddRow("tAIB3601 (ABCD - Large) ", "tAIB3601", KindUnknown);
        AddRow("Files (Large Icon)", "tAIB2002", KindVY);
        for (const Slot* slot : { &SlotLG, &SlotSM })
            for (const char* label : { "Beta Panel (Large Icon)", "tAIB3510 (Orphan) ",
                     "Tbmp3600 (Orphan) ", "Files (Large Icon)" })
                Fill(*slot, label, NextColour());
        outside = OutsideFiles();
    }
    Rgb NextColour()
    {
        ++painted;
        return { painted % 256, painted / 256 % 256, 77 };
    }
    std::map<std::string, Bytes> OutsideFiles() const
    {
        std::map<std::string, Bytes> files = FilesBelow(folder.Path());
        std::erase_if(files, [](const auto& file) { return file.first.starts_with(WorkFolder()); });
        return files;
    }

    std::string LabelOfStep(const Step& step) const
    {
        const std::size_t all = names.size() + launcher.size();
        const std::size_t name = step.name % all;
        return name < names.size() ? LabelOf(names[name], SizeOf(step))
                                   : launcher[name - names.size()].first;
    }
    static SizeClass SizeOf(const Step& step)
    {
        return step.size % 2 ? SizeClass::Large : SizeClass::Small;
    }
    AssignRequest RequestOf(const Step& step, const std::string& selected) const
    {
        const std::size_t name = step.name % (names.size() + launcher.size());
        if (name >= names.size())
            return Request(selected, Catalog::Launcher, launcher[name - names.size()].first);
        const Catalog catalog = names[name].starts_with("Palm") ? Catalog::Palm : Catalog::Apps;
        return Request(selected, catalog, names[name], SizeOf(step));
    }
    /// Sets the cells of all rows with the icon's key, as imports and deletions do.
    static void SetCells(const Slot& slot, std::size_t row, const std::string& cell)
    {
        const std::string key = IconTable[row].ResourceKey;
        for (IconRow& other : IconTable)
            if (other.ResourceKey == key)
                other.*slot.fileCell = cell;
    }

    /// The pictures of a row, and what is told of their transparent colours.
    struct Pictures {
        std::vector<Bytes> files;
        std::vector<std::optional<Rgb>> colours;

        friend bool operator==(const Pictures&, const Pictures&) = default;
    };
    static Pictures PicturesOf(const IconRow& row)
    {
        Pictures pictures;
        for (const Slot* slot : { &SlotLG, &SlotSM }) {
            const std::string& cell = row.*slot->fileCell;
            const bool has = ImageFileValid(cell);
            pictures.files.push_back(has ? ReadBytes(WorkPath(cell)) : Bytes());
            pictures.colours.push_back(has ? TransparentIn(cell) : std::nullopt);
        }
        return pictures;
    }
    static std::map<std::string, Pictures> AllPictures()
    {
        std::map<std::string, Pictures> all;
        for (const IconRow& row : IconTable)
            if (!row.IconLabel.empty())
                all[row.IconLabel] = PicturesOf(row);
        return all;
    }

    /// The labels whose pictures the step may change.
    std::set<std::string> Do(const Step& step)
    {
        std::vector<std::size_t> rows;
        for (std::size_t row = 0; row < IconTable.size(); ++row)
            if (!IconTable[row].IconLabel.empty())
                rows.push_back(row);
        if (step.what % 8 == 0 || rows.empty()) {
            CheckEnd(Add({ LabelOfStep(step), LabelOfStep({ 0, 0, step.icon, step.slot, 0 }) }));
            return {};
        }
        const std::size_t row = rows[step.icon % rows.size()];
        const Slot& slot = step.slot % 2 ? SlotLG : SlotSM;
        switch (step.what % 8) {
        case 1:
            Share(RequestOf(step, IconTable[row].IconLabel), row);
            return {};
        case 2:
        case 3:
            Assign(RequestOf(step, IconTable[row].IconLabel), row);
            return {};
        case 4:
            SelectedNode = IconTable[row].IconLabel;
            ToggleRemoval();
            return {};
        case 5:
            if (step.icon % 3 == 0) {
                DropMarkedRows();
                RebuildIconTree();
            }
            return {};
        case 6:
            Fill(slot, IconTable[row].IconLabel, NextColour());
            break;
        default:
            // Both slots can come to show one file, by an undo.
            SetCells(slot, row, step.name % 3 ? "NEW" : IconTable[row].HighResFile);
        }
        std::set<std::string> changed;
        for (const IconRow& other : IconTable)
            if (other.ResourceKey == IconTable[row].ResourceKey)
                changed.insert(other.IconLabel);
        return changed;
    }
    static void CheckEnd(const RowsOutcome& outcome)
    {
        RC_ASSERT(outcome.message.empty() || !outcome.isDone);
        RC_ASSERT(outcome.node.empty() || (Has(outcome.node) && Tree.Find(outcome.node)));
    }
    static void Share(const AssignRequest& request, std::size_t row)
    {
        const std::size_t before = IconTable.size();
        const Pictures pictures = PicturesOf(IconTable[row]);

        CheckEnd(ApplyShareIcon(request));

        if (IconTable.size() == before)
            return;
        RC_ASSERT(IconTable.size() == before + 1);
        RC_ASSERT(IconTable.back().ResourceKey == IconTable[row].ResourceKey);
        RC_ASSERT(IconTable.back().owner.IsKnown());
        RC_ASSERT(PicturesOf(IconTable.back()) == pictures);
    }
    static void Assign(const AssignRequest& request, std::size_t row)
    {
        const std::size_t before = IconTable.size();
        const Pictures pictures = PicturesOf(IconTable[row]);

        const RowsOutcome outcome = ApplyAssignIcon(request);

        CheckEnd(outcome);
        RC_ASSERT(IconTable.size() == before);
        RC_ASSERT(PicturesOf(IconTable[row]) == pictures);
        if (outcome.isDone && outcome.node == IconTable[row].IconLabel)
            RC_ASSERT(IconTable[row].owner.IsKnown() == (request.catalog != Catalog::Launcher)
                || request.entry == "Nobody" || request.entry == "Start");
    }

    static void CheckRows()
    {
        std::map<std::string, int> images; // of the nodes that there should be
        for (const IconRow& row : IconTable) {
            for (const std::string& cell : { row.LowResFile, row.HighResFile }) {
                if (!ImageFileValid(cell))
                    continue;
                RC_ASSERT(cell.find('/') == std::string::npos && IsThere(cell));
                const Picture picture = *DecodeBmp(ReadBytes(WorkPath(cell)));
                RC_ASSERT(TransparentIn(cell) == picture.At(0, 0));
            }
            if (row.IconLabel.empty())
                continue;
            RC_ASSERT(!row.ResourceKey.empty());
            const int ofKind = ImageOfKind(row.IconKind);
            const bool isDrawnAnew =
                row.IconState == 1 && ofKind == 0; // a kept orphan has no image
            const IconNode* node = Tree.Find(row.IconLabel);
            RC_ASSERT(node != nullptr);
            const int image = isDrawnAnew ? node->image
                : row.IconState == 1      ? ofKind
                                          : int(ImageDelete);
            RC_ASSERT(images.emplace(row.IconLabel, image).second);
        }
        std::map<std::string, int> nodes;
        for (const auto& [key, image] : Nodes())
            RC_ASSERT(nodes.emplace(key, image).second);
        RC_ASSERT(nodes == images);
    }

    int painted = 0;
    std::map<std::string, Bytes> outside;
};

Step AnyStep()
{
    const auto number = [] { return *rc::gen::inRange<unsigned>(0, 240); };
    return { number(), number(), number(), number(), number() };
}

RC_GTEST_FIXTURE_PROP(IconRowsProperty, NoSequenceLosesAPictureOrANode, (bool top))
{
    Begin(top);

    for (int left = *rc::gen::inRange(1, 30); left > 0; --left) {
        const std::map<std::string, Pictures> before = AllPictures();
        const std::set<std::string> changed = Do(AnyStep());

        CheckRows();
        const std::map<std::string, Pictures> after = AllPictures();
        for (const auto& [label, pictures] : before)
            if (const auto now = after.find(label); now != after.end() && !changed.contains(label))
                RC_ASSERT(now->second == pictures);
        RC_ASSERT(OutsideFiles() == outside);
    }
}

} // namespace
} // namespace vypx::test
