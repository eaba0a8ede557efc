#include "document/Selection.h"

#include "document/IconKinds.h"
#include "document/IconStats.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

constexpr const char* Root = "My Icons";

/// An open document with rows of every kind; pictures are named but not there.
class Selection : public LoadFixture {
protected:
    Selection()
    {
        FileLoaded = true;
        Parent = DatabaseName = Root;
        Tree.SetRoot(Root);
        IconTable.clear();
    }

    void Add(const std::string& label, const std::string& key, const std::string& low,
        const std::string& high, const std::string& kind = "APP", int state = 1)
    {
        IconTable.push_back({ label, key, low, high, state, kind });
        Tree.Add({ .key = label, .image = state ? ImageOfKind(kind) : int(ImageDelete) });
    }
    SelectionEffects Select(const std::string& text) { return SelectNode(text, Root); }

    static bool IsOn(const SelectionEffects& effects, Command command)
    {
        const auto found = effects.enabled.find(command);
        EXPECT_NE(found, effects.enabled.end()) << int(command) << " is left as it is";
        return found != effects.enabled.end() && found->second;
    }
    static void ExpectAll(
        const SelectionEffects& effects, std::initializer_list<Command> commands, bool on)
    {
        for (const Command command : commands)
            EXPECT_EQ(IsOn(effects, command), on) << int(command);
    }
};

TEST_F(Selection, TheRootDisablesEverySlotCommandAndCanBeRenamed)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "a-d144.bmp");
    Select("A (Large Icon)");

    const SelectionEffects effects = Select(Root);

    ExpectAll(effects,
        { Command::RemoveIcon, Command::AssignApp, Command::ImportLG, Command::ImportSM,
            Command::ExportLG, Command::ExportSM, Command::CopyLG, Command::CopySM,
            Command::PasteLG, Command::PasteSM, Command::DeleteLG, Command::DeleteSM,
            Command::ChangeColourLG, Command::ChangeColourSM, Command::CreateLowRes,
            Command::MenuPasteLG, Command::MenuPasteSM },
        false);
    EXPECT_TRUE(IsOn(effects, Command::ChangeDatabaseName));
    EXPECT_EQ(effects.removal, Removal::Remove);
    EXPECT_FALSE(effects.lg.draw || effects.sm.draw);
    EXPECT_TRUE(effects.lg.hidesColour && effects.sm.hidesColour);
    EXPECT_EQ(effects.assignment, std::nullopt);
    EXPECT_EQ(SelectedNode, "A (Large Icon)") << "the root is no icon";
    EXPECT_EQ(HighResPath + LowResPath, "");
}

TEST_F(Selection, AFullRowOffersEverything)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "a-d144.bmp");

    const SelectionEffects effects = Select("A (Large Icon)");

    ExpectAll(effects,
        { Command::RemoveIcon, Command::AssignApp, Command::ImportLG, Command::ImportSM,
            Command::ExportLG, Command::ExportSM, Command::CopyLG, Command::CopySM,
            Command::PasteLG, Command::PasteSM, Command::DeleteLG, Command::DeleteSM,
            Command::ChangeColourLG, Command::ChangeColourSM, Command::CreateLowRes,
            Command::MenuPasteLG, Command::MenuPasteSM },
        true);
    EXPECT_FALSE(IsOn(effects, Command::ChangeDatabaseName));
    EXPECT_TRUE(effects.lg.draw && effects.sm.draw);
    EXPECT_EQ(HighResPath, WorkPath("a-d144.bmp"));
    EXPECT_EQ(LowResPath, WorkPath("a.bmp"));
    EXPECT_TRUE(LGloaded && SMloaded);
    EXPECT_EQ(effects.lg.sizeLimit, "Max 64 x 44");
    EXPECT_EQ(effects.sm.sizeLimit, "Max 32 x 22");
    EXPECT_EQ(effects.assignment, Assignment::ChangeOrShare);
    EXPECT_EQ(SelectedNode, "A (Large Icon)");
}

TEST_F(Selection, AnySelectionLetsIconsBeAddedWhileADocumentIsOpen)
{
    Add("A (Large Icon)", "tAIB1", "NEW", "NEW");
    for (const std::string& node : { std::string(Root), std::string("A (Large Icon)") }) {
        FileLoaded = false;
        EXPECT_FALSE(Select(node).enabled.contains(Command::AddIcon)) << node;
        FileLoaded = true;
        EXPECT_TRUE(IsOn(Select(node), Command::AddIcon)) << node;
    }
}

TEST_F(Selection, ASmallIconHasSmallLimits)
{
    Add("A (Small Icon)", "tAIB1", "NEW", "NEW");

    const SelectionEffects effects = Select("A (Small Icon)");

    EXPECT_EQ(effects.lg.sizeLimit, "Max 30 x 22");
    EXPECT_EQ(effects.sm.sizeLimit, "Max 15 x 11");
}

TEST_F(Selection, SmallWinsWhereALabelHoldsBothWords)
{
    Add("Large Print (Small Icon)", "tAIB1", "NEW", "NEW");

    EXPECT_EQ(Select("Large Print (Small Icon)").lg.sizeLimit, "Max 30 x 22");
}

TEST_F(Selection, AnEmptyRowOffersImportAndPasteOnly)
{
    Add("A (Large Icon)", "tAIB1", "NEW", "NEW");

    const SelectionEffects effects = Select("A (Large Icon)");

    ExpectAll(effects,
        { Command::ImportLG, Command::ImportSM, Command::PasteLG, Command::PasteSM,
            Command::MenuPasteLG, Command::MenuPasteSM },
        true);
    ExpectAll(effects,
        { Command::ExportLG, Command::ExportSM, Command::DeleteLG, Command::DeleteSM,
            Command::CreateLowRes, Command::ChangeColourLG },
        false);
}

TEST_F(Selection, APictureInOneSlotOnlyShowsThatSlot)
{
    Add("A (Large Icon)", "tAIB1", "NEW", "a-d144.bmp");

    const SelectionEffects effects = Select("A (Large Icon)");

    EXPECT_TRUE(effects.lg.draw);
    EXPECT_FALSE(effects.sm.draw);
    EXPECT_TRUE(effects.sm.hidesColour) << "nor do the words say that there is no colour";
    EXPECT_FALSE(effects.lg.hidesColour);
}

TEST_F(Selection, ALauncherIconWithoutASizeInItsNameOffersNoImport)
{
    Add("Start", "tAIB2000", "a.bmp", "NEW", "VY");

    const SelectionEffects effects = Select("Start");

    ExpectAll(effects,
        { Command::ImportLG, Command::ImportSM, Command::PasteLG, Command::PasteSM,
            Command::MenuPasteLG, Command::MenuPasteSM },
        false);
    EXPECT_TRUE(IsOn(effects, Command::ExportSM));
    EXPECT_EQ(effects.lg.sizeLimit + effects.sm.sizeLimit, "");
}

TEST_F(Selection, AnOrphanIsAssigned)
{
    Add("tAIB1 (Orphan) ", "tAIB1", "NEW", "NEW", "DELETE", 0);

    const SelectionEffects effects = Select("tAIB1 (Orphan) ");

    EXPECT_EQ(effects.assignment, Assignment::AssignOrphan);
    EXPECT_TRUE(IsOn(effects, Command::AssignApp));
    EXPECT_EQ(effects.removal, Removal::Restore);
}

TEST_F(Selection, OnPurposeOnlyALowResPictureKeepsAnOrphanFromBeingRestored)
{
    Add("tAIB1 (Orphan) ", "tAIB1", "low.bmp", "NEW", "DELETE", 0);
    Add("tAIB2 (Orphan) ", "tAIB2", "NEW", "high.bmp", "DELETE", 0);
    BitmapTable = { { .file = "low.bmp", .hasTransparent = 0 },
        { .file = "high.bmp", .hasTransparent = 0 } };

    EXPECT_FALSE(IsOn(Select("tAIB1 (Orphan) "), Command::RemoveIcon));
    EXPECT_TRUE(IsOn(Select("tAIB2 (Orphan) "), Command::RemoveIcon));
}

TEST_F(Selection, TheTransparentColourComesFromTheBitmapsTable)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "a-d144.bmp");
    BitmapTable = { { "a.bmp", 1, 5, 255, 0, 255, 8 },
        { .file = "a-d144.bmp", .hasTransparent = 0 } };
    MaskR_LG = 9;

    const SelectionEffects effects = Select("A (Large Icon)");

    EXPECT_EQ(effects.sm.colourText, "255, 0, 255");
    EXPECT_EQ(effects.sm.swatch, (Rgb{ 255, 0, 255 }));
    EXPECT_EQ(effects.sm.showsColour, true);
    EXPECT_EQ(SlotSM.Mask(), (Rgb{ 255, 0, 255 }));
    EXPECT_TRUE(SMhasTransparent);
    EXPECT_EQ(effects.lg.showsColour, false);
    EXPECT_EQ(effects.lg.swatch, std::nullopt);
    EXPECT_FALSE(LGhasTransparent);
    EXPECT_EQ(MaskR_LG, 9) << "empty cells leave the mask as it was";
}

TEST_F(Selection, AFlaggedPictureOfFewBitsTakesTheColourOfItsIndex)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "a-d144.bmp");
    BitmapTable = {
        { .file = "a.bmp", .hasTransparent = 1, .index = 1, .depth = 1 },
        { .file = "a-d144.bmp", .hasTransparent = 1, .index = 2, .depth = 2 },
    };

    const SelectionEffects effects = Select("A (Large Icon)");

    EXPECT_EQ(effects.sm.colourText, "0, 0, 0");
    EXPECT_EQ(effects.lg.colourText, "85, 85, 85");
    EXPECT_EQ(SlotLG.Mask(), (Rgb{ 85, 85, 85 }));
}

TEST_F(Selection, ALaterRowOfTheTableOfBitmapsCounts)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "NEW");
    BitmapTable = { { "a.bmp", 1, 5, 1, 1, 1, 8 }, { "a.bmp", 1, 5, 2, 2, 2, 8 } };

    Select("A (Large Icon)");

    EXPECT_EQ(SlotSM.Mask(), (Rgb{ 2, 2, 2 }));
}

TEST_F(Selection, RowsOfOneLabelGiveOnePictureEach)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "NEW");
    Add("A (Large Icon)", "tAIB2", "NEW", "b-d144.bmp");
    Add("A (Large Icon)", "tAIB3", "c.bmp", "c-d144.bmp");

    Select("A (Large Icon)");

    EXPECT_EQ(LowResPath, WorkPath("a.bmp"));
    EXPECT_EQ(HighResPath, WorkPath("b-d144.bmp"));
}

TEST_F(Selection, WithNothingSelectedNoRowIsMarked)
{
    IconTable.assign(3, {});
    for (IconRow& row : IconTable)
        row.IconState = 1;
    SelectedNode.clear();

    EXPECT_EQ(ToggleRemoval(), std::nullopt);

    EXPECT_EQ(IconTable[0].IconState, 1);
}

TEST_F(Selection, SharersAreListedInRowOrder)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "NEW");
    Add("B (Large Icon)", "tAIB1", "a.bmp", "NEW");
    Add("C (Large Icon)", "tAIB2", "c.bmp", "NEW");
    Add("D (Large Icon)", "tAIB1", "a.bmp", "NEW");

    const SelectionEffects effects = Select("B (Large Icon)");

    EXPECT_TRUE(effects.listsShares);
    EXPECT_EQ(ShareNames[1], "A (Large Icon)");
    EXPECT_EQ(ShareNames[2], "D (Large Icon)");
    EXPECT_EQ(ShareNames[3], "");
}

TEST_F(Selection, UndoEndsWithAnotherIconOnly)
{
    Add("A (Large Icon)", "tAIB1", "NEW", "NEW");
    Add("B (Large Icon)", "tAIB2", "NEW", "NEW");

    EXPECT_TRUE(Select("A (Large Icon)").endsUndo);
    EXPECT_FALSE(Select("A (Large Icon)").endsUndo);
    EXPECT_TRUE(Select("B (Large Icon)").endsUndo);
}

TEST_F(Selection, RemovingAndRestoringTwiceLeavesTheKindsImage)
{
    Add("A (Large Icon)", "tAIB1", "NEW", "NEW", "PALM");
    Select("A (Large Icon)");

    EXPECT_EQ(ToggleRemoval(), Removal::Restore);
    EXPECT_EQ(IconTable[0].IconState, 0);
    EXPECT_EQ(Tree.Find("A (Large Icon)")->image, ImageDelete);
    EXPECT_EQ(ToggleRemoval(), Removal::Remove);
    ToggleRemoval();
    ToggleRemoval();

    EXPECT_EQ(IconTable[0].IconState, 1);
    EXPECT_EQ(Tree.Find("A (Large Icon)")->image, ImagePalm);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(IconTable[0].LowResFile, "NEW");
}

TEST_F(Selection, ARestoredOrphanKeepsItsKindAndImage)
{
    Add("tAIB1 (Orphan) ", "tAIB1", "NEW", "high.bmp", "DELETE", 0);
    Select("tAIB1 (Orphan) ");

    EXPECT_EQ(ToggleRemoval(), Removal::Remove);

    EXPECT_EQ(IconTable[0].IconState, 1);
    EXPECT_EQ(IconTable[0].IconKind, "DELETE");
    EXPECT_EQ(Tree.Find("tAIB1 (Orphan) ")->image, ImageDelete);
}

TEST_F(Selection, ClearingDropsMarkedRowsAndTheirNodes)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "NEW");
    Add("B (Large Icon)", "tAIB2", "b.bmp", "NEW", "APP", 0);
    EXPECT_TRUE(HasMarkedRows());

    DropMarkedRows();
    RebuildIconTree();

    EXPECT_THAT(Labels(), ElementsAre("A (Large Icon)"));
    EXPECT_THAT(NodeKeys(), ElementsAre("A (Large Icon)"));
    EXPECT_EQ(Tree.Root(), Root);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_FALSE(HasMarkedRows());
}

TEST_F(Selection, ARowWithoutAStateStaysInTheTree)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "NEW");
    IconTable[0].IconState.reset();

    RebuildIconTree();

    EXPECT_THAT(NodeKeys(), ElementsAre("A (Large Icon)"));
}

TEST_F(Selection, ClearingEverythingLeavesTheRootAndOneEmptyRow)
{
    Add("A (Large Icon)", "tAIB1", "a.bmp", "NEW", "APP", 0);

    DropMarkedRows();
    RebuildIconTree();

    EXPECT_EQ(IconTable, std::vector<IconRow>(1));
    EXPECT_TRUE(Tree.Nodes().empty());
    EXPECT_EQ(Tree.Root(), Root);
}

/// Rows without a label stand in the table between a load's steps; they are nobody's.
TEST_F(Selection, RowsWithoutALabelAreNeverMeant)
{
    Add("Alpha (Large Icon)", "tAIB3500", "a.bmp", "NEW");
    IconTable.push_back({ "", "tAIB3501", "b.bmp", "b-d144.bmp", 0, "APP" });

    const SelectionEffects effects = Select("");

    EXPECT_NE(effects.removal, Removal::Restore);
    EXPECT_FALSE(effects.lg.draw || effects.sm.draw);
    EXPECT_FALSE(HasMarkedRows());
    RebuildIconTree();
    EXPECT_THAT(NodeKeys(), ElementsAre("Alpha (Large Icon)"));
}

TEST_F(Selection, ARowWithoutANodeCanBeMarkedAllTheSame)
{
    IconTable.push_back({ "Alpha (Large Icon)", "tAIB3500", "a.bmp", "NEW", 1, "APP" });
    SelectedNode = "Alpha (Large Icon)";

    EXPECT_EQ(ToggleRemoval(), Removal::Restore);

    EXPECT_EQ(IconTable.back().IconState, 0);
    EXPECT_TRUE(HasMarkedRows());
    RebuildIconTree();
    EXPECT_THAT(NodeKeys(), ElementsAre());
}

} // namespace
} // namespace vypx::test
