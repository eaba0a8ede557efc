#include "support/RowsFixture.h"

/// Where an icon of the launcher becomes an application's or a system item's.
namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Pair;

using Routine = RowsOutcome (*)(const AssignRequest&);

/// By the routine itself and by the one that goes there for such an icon.
class ReassignIcon : public RowsFixture, public ::testing::WithParamInterface<Routine> {
protected:
    static constexpr const char* Icon = "Start (Large Icon)";

    ReassignIcon()
    {
        AddRow(Icon, "tAIB2000", KindVY);
        Fill(SlotLG, Icon, Red);
        Fill(SlotSM, Icon, Blue);
        IconsetChanged = false;
    }

    static RowsOutcome Reassign(Catalog catalog, const std::string& entry,
        SizeClass size = SizeClass::Large, const std::string& selected = Icon)
    {
        return GetParam()(Request(selected, catalog, entry, size));
    }
    void ExpectRefused(const AssignRequest& request, const std::string& message)
    {
        const auto before = State();
        ExpectStopped(GetParam()(request), message);
        EXPECT_EQ(State(), before);
        EXPECT_FALSE(IconsetChanged);
    }
};

INSTANTIATE_TEST_SUITE_P(Rows, ReassignIcon, ::testing::Values(&ReassignVYIcon, &ApplyAssignIcon),
    [](const auto& test) { return test.index == 0 ? "ByItself" : "ByAssign"; });

TEST_P(ReassignIcon, GivesAnIdOfItsOwnAndMovesThePictures)
{
    const RowsOutcome outcome = Reassign(Catalog::Apps, "Alpha");

    ExpectDone(outcome, "Alpha (Large Icon)");
    EXPECT_EQ(outcome.note, "");
    EXPECT_THAT(IconTable,
        ElementsAre(IconRow{ "Alpha (Large Icon)", "tAIB3500", "tAIB3500.bmp", "tAIB3500-d144.bmp",
            1, "APP", { "appl", "ALPH" } }));
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Alpha (Large Icon)", 2)));
    EXPECT_EQ(Seen(SlotLG, "Alpha (Large Icon)"), BytesOf(Red));
    EXPECT_EQ(Seen(SlotSM, "Alpha (Large Icon)"), BytesOf(Blue));
    EXPECT_FALSE(IsThere("tAIB2000.bmp") || IsThere("tAIB2000-d144.bmp"));
    EXPECT_EQ(TransparentIn("tAIB3500-d144.bmp"), Red);
    EXPECT_EQ(TransparentIn("tAIB3500.bmp"), Blue);
}

TEST_P(ReassignIcon, MovesThePicturesForASystemItemAlike)
{
    ExpectDone(Reassign(Catalog::Palm, "Palm Prefs", SizeClass::Small), "Palm Prefs (Small Icon)");

    EXPECT_THAT(IconTable,
        ElementsAre(IconRow{ "Palm Prefs (Small Icon)", "tAIB3501", "tAIB3501.bmp",
            "tAIB3501-d144.bmp", 1, "PALM", { "panl", "pref" } }));
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Palm Prefs (Small Icon)", 3)));
    EXPECT_EQ(Seen(SlotLG, "Palm Prefs (Small Icon)"), BytesOf(Red));
}

TEST_P(ReassignIcon, TakesTheNextIdBehindAllOthers)
{
    AddRow("Gamma (Large Icon)", "tAIB3600");

    Reassign(Catalog::Apps, "Alpha", SizeClass::Small);

    EXPECT_EQ(Row("Alpha (Small Icon)").ResourceKey, "tAIB3603");
}

TEST_P(ReassignIcon, KeepsAMarkedIcon)
{
    IconTable[0].IconState = 0;
    Tree.Find(Icon)->image = ImageDelete;

    Reassign(Catalog::Apps, "Alpha");

    EXPECT_EQ(IconTable[0].IconState, 1);
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Alpha (Large Icon)", 2)));
}

TEST_P(ReassignIcon, WithoutPicturesMovesNone)
{
    IconTable[0].LowResFile = IconTable[0].HighResFile = "NEW";
    const auto files = FilesBelow(folder.Path());

    ExpectDone(Reassign(Catalog::Apps, "Alpha"), "Alpha (Large Icon)");

    EXPECT_EQ(IconTable[0].LowResFile + IconTable[0].HighResFile, "NEWNEW");
    EXPECT_EQ(FilesBelow(folder.Path()), files);
}

TEST_P(ReassignIcon, CopiesPicturesThatOthersShow)
{
    IconTable.push_back({ "Gamma (Large Icon)", "tAIB2000", "tAIB2000.bmp", "tAIB2000-d144.bmp", 1,
        "APP", { "appl", "GAMM" } });
    const IconRow other = IconTable[1];

    ExpectDone(Reassign(Catalog::Apps, "Alpha"), "Alpha (Large Icon)");

    EXPECT_EQ(IconTable[1], other);
    EXPECT_EQ(Seen(SlotLG, "Gamma (Large Icon)"), BytesOf(Red));
    EXPECT_EQ(Seen(SlotSM, "Gamma (Large Icon)"), BytesOf(Blue));
    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB3500");
    EXPECT_EQ(Seen(SlotLG, "Alpha (Large Icon)"), BytesOf(Red));
    EXPECT_EQ(Seen(SlotSM, "Alpha (Large Icon)"), BytesOf(Blue));
    for (const char* name : { "tAIB2000.bmp", "tAIB3500.bmp" })
        EXPECT_EQ(TransparentIn(name), Blue) << name;
}

TEST_P(ReassignIcon, ReplacesAnOldFileThatNobodyShows)
{
    WritePicture("tAIB3500.bmp", { 9, 9, 9 });

    ExpectDone(Reassign(Catalog::Apps, "Alpha"), "Alpha (Large Icon)");

    EXPECT_EQ(Seen(SlotSM, "Alpha (Large Icon)"), BytesOf(Blue));
    EXPECT_EQ(TransparentIn("tAIB3500.bmp"), Blue);
}

TEST_P(ReassignIcon, AtTheTopOfTheRangeTheNoteNamesTheIconThatHasTheKey)
{
    AddRow("Gamma (Large Icon)", "tAIB9999");
    AddRow("Beta Panel (Large Icon)", "tAIB10000");
    const std::vector<IconRow> rows = IconTable;

    const RowsOutcome outcome = Reassign(Catalog::Apps, "Alpha");

    ExpectStopped(outcome, "Error assigning VY icon.");
    EXPECT_THAT(outcome.note, HasSubstr("Beta Panel (Large Icon)"));
    EXPECT_EQ(IconTable, rows);
}

TEST_P(ReassignIcon, AtTheTopOfTheRangeAnothersPictureIsNeverLost)
{
    AddRow("Gamma (Large Icon)", "tAIB9999");
    AddRow("Beta Panel (Large Icon)", "tAIB10000");
    Fill(SlotLG, "Beta Panel (Large Icon)", { 9, 9, 9 });
    const IconRow other = IconTable[2];

    Reassign(Catalog::Apps, "Alpha");

    EXPECT_EQ(IconTable[2], other);
    EXPECT_EQ(Seen(SlotLG, "Beta Panel (Large Icon)"), BytesOf({ 9, 9, 9 }));
    EXPECT_EQ(Seen(SlotLG, IconTable[0].IconLabel), BytesOf(Red));
    EXPECT_EQ(Seen(SlotSM, IconTable[0].IconLabel), BytesOf(Blue));
}

TEST_P(ReassignIcon, WhereAPictureHasVanishedNothingChanges)
{
    std::filesystem::remove(WorkPath("tAIB2000.bmp"));
    const auto before = State();

    const RowsOutcome outcome = Reassign(Catalog::Apps, "Alpha");

    EXPECT_NE(outcome.message + outcome.note, "");
    EXPECT_FALSE(outcome.isDone);
    EXPECT_EQ(State(), before);
    EXPECT_FALSE(IconsetChanged);
}

TEST_P(ReassignIcon, RefusesWhatAssignRefuses)
{
    ExpectRefused(Request(Icon, Catalog::Apps, ""), "Error adding icon.");
    ExpectRefused(Request("", Catalog::Apps, "Alpha"), "Error assigning icon to tree!");
    FileLoaded = false;
    ExpectRefused(Request(Icon, Catalog::Palm, "Palm Clock"), "Error assigning icon to tree!");
}

TEST_P(ReassignIcon, ALabelThatTheTreeHasMeanwhileChangesNothing)
{
    AddRow("Alpha (Large Icon)", "tAIB3502");
    const auto before = State();

    Reassign(Catalog::Apps, "Alpha");

    EXPECT_EQ(State(), before);
}

TEST_P(ReassignIcon, ThereAndBackAgainKeepsThePictures)
{
    Reassign(Catalog::Apps, "Alpha");

    ExpectDone(ApplyAssignIcon(Request("Alpha (Large Icon)", Catalog::Launcher, Icon)), Icon);

    EXPECT_THAT(IconTable,
        ElementsAre(IconRow{ Icon, "tAIB2000", "tAIB2000.bmp", "tAIB2000-d144.bmp", 1, "VY", {} }));
    EXPECT_EQ(Seen(SlotLG, Icon), BytesOf(Red));
    EXPECT_EQ(Seen(SlotSM, Icon), BytesOf(Blue));
    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), Blue);
}

} // namespace
} // namespace vypx::test
