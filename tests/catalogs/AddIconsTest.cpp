#include "support/RowsFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::Pair;

class AddIcons : public RowsFixture {
protected:
    static std::vector<std::string> Keys()
    {
        std::vector<std::string> keys;
        for (const IconRow& row : IconTable)
            keys.push_back(row.ResourceKey);
        return keys;
    }
};

const std::string NoIdLeft = "Error, maximum resource ID number exceeded.\nCan't add new icon.";

TEST_F(AddIcons, AnApplicationsIconIsARowWithoutPicturesAndANode)
{
    const RowsOutcome outcome = Add({ "Alpha (Large Icon)" });

    ExpectDone(outcome, "Alpha (Large Icon)");
    EXPECT_EQ(outcome.note, "");
    EXPECT_THAT(IconTable,
        ElementsAre(IconRow{
            "Alpha (Large Icon)", "tAIB3500", "NEW", "NEW", 1, "APP", { "appl", "ALPH" } }));
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Alpha (Large Icon)", 2)));
    EXPECT_THAT(FilesBelow(WorkFolder()), IsEmpty());
}

TEST_F(AddIcons, ALargeAndThenASmallIconGet3500And3503)
{
    Add({ "Alpha (Large Icon)", "Alpha (Small Icon)" });

    EXPECT_THAT(Keys(), ElementsAre("tAIB3500", "tAIB3503"));
}

TEST_F(AddIcons, OneAfterTheOtherTheyGetTheSameNumbersAsInOneGo)
{
    Add({ "Alpha (Large Icon)" });
    Add({ "Alpha (Small Icon)" });
    Add({ "Palm Clock (Small Icon)", "Gamma (Large Icon)" });

    EXPECT_THAT(Keys(), ElementsAre("tAIB3500", "tAIB3503", "tAIB3505", "tAIB3506"));
}

TEST_F(AddIcons, EachLabelsOwnSizeDecidesOnItsId)
{
    Add({ "Alpha (Small Icon)", "Beta Panel (Large Icon)", "Palm Clock (Small Icon)" });

    EXPECT_THAT(Keys(), ElementsAre("tAIB3501", "tAIB3502", "tAIB3505"));
}

TEST_F(AddIcons, ASystemItemIsOfKindPalm)
{
    ExpectDone(Add({ "Palm Prefs (Small Icon)" }), "Palm Prefs (Small Icon)");

    EXPECT_THAT(IconTable,
        ElementsAre(IconRow{
            "Palm Prefs (Small Icon)", "tAIB3501", "NEW", "NEW", 1, "PALM", { "panl", "pref" } }));
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Palm Prefs (Small Icon)", 3)));
}

TEST_F(AddIcons, OneOfTheLauncherHasItsOwnIdAndNoOwner)
{
    ExpectDone(Add({ "Start (Small Icon)", "Alpha (Large Icon)" }), "Alpha (Large Icon)");

    ASSERT_EQ(IconTable.size(), 2u);
    EXPECT_EQ(
        IconTable[0], (IconRow{ "Start (Small Icon)", "tAIB2001", "NEW", "NEW", 1, "VY", {} }));
    EXPECT_EQ(IconTable[1].ResourceKey, "tAIB3500") << "the launcher's IDs are not handed out";
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Start (Small Icon)", 1), Pair("Alpha (Large Icon)", 2)));
}

TEST_F(AddIcons, ANameOfAllCatalogsIsAnApplications)
{
    AppTable.push_back({ "Start", "appl", "STRT", "" });
    PalmTable.push_back({ "Start", "appl", "PSTR", "" });

    Add({ "Start (Large Icon)" });

    EXPECT_EQ(IconTable.at(0).IconKind, "APP");
    EXPECT_EQ(IconTable.at(0).ResourceKey, "tAIB3500");
    EXPECT_EQ(IconTable.at(0).owner, (Owner{ "appl", "STRT" }));
}

TEST_F(AddIcons, ANameOfTheLauncherAndTheSystemIsTheLaunchers)
{
    PalmTable.push_back({ "Start", "appl", "PSTR", "" });

    Add({ "Start (Large Icon)" });

    EXPECT_EQ(IconTable.at(0).IconKind, "VY");
    EXPECT_EQ(IconTable.at(0).ResourceKey, "tAIB2000");
    EXPECT_EQ(IconTable.at(0).owner, Owner());
}

TEST_F(AddIcons, ALabelOfLessThan14CharactersStopsEverything)
{
    const RowsOutcome outcome =
        Add({ "Alpha (Large Icon)", " (Large Icon)", "Gamma (Large Icon)" });

    ExpectStopped(outcome, "Error adding icon.");
    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)")) << "what was added before stays";
    EXPECT_THAT(NodeKeys(), ElementsAre("Alpha (Large Icon)"));
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(AddIcons, ANameOfOneLetterIsLongEnough)
{
    AppTable.push_back({ "A", "appl", "AAAA", "" });

    ExpectDone(Add({ "A (Large Icon)" }), "A (Large Icon)");
}

TEST_F(AddIcons, ANameOfNoCatalogStopsEverything)
{
    const RowsOutcome outcome =
        Add({ "Alpha (Large Icon)", "Nobody (Large Icon)", "Gamma (Large Icon)" });

    ExpectStopped(outcome, "Error assigning icon to tree!");
    EXPECT_EQ(outcome.node, "Alpha (Large Icon)") << "it was selected as it was added";
    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)"));
    EXPECT_THAT(NodeKeys(), ElementsAre("Alpha (Large Icon)"));
}

TEST_F(AddIcons, WithoutADocumentNothingIsAdded)
{
    FileLoaded = false;
    const auto before = State();

    ExpectStopped(Add({ "Alpha (Large Icon)" }), "Error assigning icon to tree!");

    EXPECT_EQ(State(), before);
    EXPECT_FALSE(IconsetChanged);
}

TEST_F(AddIcons, ALabelThatTheTreeHasAlreadyIsPassedOver)
{
    AddRow("Alpha (Large Icon)", "tAIB3600", KindApp, 0);

    const RowsOutcome outcome =
        Add({ "Alpha (Large Icon)", "Gamma (Large Icon)", "Gamma (Large Icon)" });

    ExpectDone(outcome, "Gamma (Large Icon)");
    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)", "Gamma (Large Icon)"));
    EXPECT_THAT(Keys(), ElementsAre("tAIB3600", "tAIB3602"));
    EXPECT_EQ(IconTable[0].IconState, 0) << "it is not touched";
}

TEST_F(AddIcons, ALabelThatTheRootHasIsPassedOver)
{
    Tree.SetRoot("Alpha (Large Icon)");

    Add({ "Alpha (Large Icon)", "Gamma (Large Icon)" });

    EXPECT_THAT(Labels(), ElementsAre("Gamma (Large Icon)"));
    EXPECT_THAT(NodeKeys(), ElementsAre("Gamma (Large Icon)"));
}

TEST_F(AddIcons, OtherRowsAndFilesStay)
{
    AddRow("Beta Panel (Large Icon)", "tAIB3500");
    Fill(SlotLG, "Beta Panel (Large Icon)", Red);
    const IconRow before = IconTable[0];
    const auto files = FilesBelow(folder.Path());
    const auto bitmaps = BitmapTable;

    Add({ "Alpha (Large Icon)", "Start (Large Icon)" });

    EXPECT_EQ(IconTable[0], before);
    EXPECT_EQ(FilesBelow(folder.Path()), files);
    EXPECT_EQ(BitmapTable, bitmaps);
}

TEST_F(AddIcons, WhereNoIdIsLeftTheRowThatWasBegunStaysEmpty)
{
    AddRow("Beta Panel (Large Icon)", "tAIB9997");

    const RowsOutcome outcome =
        Add({ "Alpha (Small Icon)", "Alpha (Large Icon)", "Gamma (Large Icon)" });

    ExpectStopped(outcome, NoIdLeft);
    ASSERT_EQ(IconTable.size(), 4u);
    EXPECT_EQ(IconTable[1].ResourceKey, "tAIB9999");
    EXPECT_EQ(IconTable[2].ResourceKey, "tAIB10000");
    EXPECT_EQ(IconTable[3].IconLabel, "");
    EXPECT_EQ(IconTable[3].ResourceKey, "");
    EXPECT_FALSE(ImageFileValid(IconTable[3].LowResFile));
    EXPECT_FALSE(ImageFileValid(IconTable[3].HighResFile));
    EXPECT_THAT(NodeKeys(),
        ElementsAre("Beta Panel (Large Icon)", "Alpha (Small Icon)", "Alpha (Large Icon)"));
}

TEST_F(AddIcons, AtTheTopOfTheRangeTheNoteNamesTheIconsThatShareAKey)
{
    AddRow("Beta Panel (Large Icon)", "tAIB9999");
    AddRow("Gamma (Large Icon)", "tAIB10000");

    const RowsOutcome outcome = Add({ "Alpha (Large Icon)" });

    ExpectDone(outcome, "Alpha (Large Icon)");
    EXPECT_EQ(Row("Alpha (Large Icon)").ResourceKey, "tAIB10000");
    EXPECT_THAT(outcome.note, HasSubstr("Alpha (Large Icon)"));
    EXPECT_THAT(outcome.note, HasSubstr("Gamma (Large Icon)"));
    EXPECT_THAT(outcome.note, Not(HasSubstr("Beta Panel")));
}

TEST_F(AddIcons, OnPurposeTheTopOfTheRangeIsGivenAgainByEachRun)
{
    AddRow("Beta Panel (Large Icon)", "tAIB9998");
    Add({ "Alpha (Small Icon)" });

    const RowsOutcome outcome = Add({ "Gamma (Small Icon)" });

    EXPECT_EQ(Row("Alpha (Small Icon)").ResourceKey, "tAIB10001");
    EXPECT_EQ(Row("Gamma (Small Icon)").ResourceKey, "tAIB10001");
    EXPECT_THAT(outcome.note, HasSubstr("Alpha (Small Icon)"));
    EXPECT_THAT(outcome.note, HasSubstr("Gamma (Small Icon)"));
}

TEST_F(AddIcons, AStopKeepsWhatIsToBeNotedOfTheIconsBeforeIt)
{
    AddRow("Beta Panel (Large Icon)", "tAIB9998");

    const RowsOutcome outcome = Add({ "Alpha (Large Icon)", "Gamma (Large Icon)" });

    EXPECT_EQ(Row("Alpha (Large Icon)").ResourceKey, "tAIB10000");
    EXPECT_THAT(outcome.note, HasSubstr("tAIB10000 to \"Alpha\""));
    EXPECT_THAT(outcome.note, HasSubstr("\"Gamma (Large Icon)\" could not be added."));
}

TEST_F(AddIcons, BelowTheTopOfTheRangeThereIsNothingToNote)
{
    AddRow("Beta Panel (Large Icon)", "tAIB3500");
    AddRow("Palm Prefs (Large Icon)", "tAIB3500", KindPalm);

    EXPECT_EQ(Add({ "Alpha (Large Icon)", "Palm Clock (Small Icon)" }).note, "");
    EXPECT_EQ(Add({ "Start (Large Icon)" }).note, "") << "nor for one of the launcher";
}

TEST_F(AddIcons, TwoEntriesOfTheLauncherWithOneIdCanNotBothBeAdded)
{
    SetLauncher({ { "Start (Large Icon)", "2000" }, { "Begin (Large Icon)", "2000" } });
    Add({ "Start (Large Icon)" });
    const auto before = State();

    ExpectStopped(Add({ "Begin (Large Icon)" }), "Error assigning VY icon.");

    EXPECT_EQ(State(), before);
}

TEST_F(AddIcons, TwoEntriesOfTheLauncherWithOneIdStopARunAtTheSecond)
{
    SetLauncher({ { "Start (Large Icon)", "2000" }, { "Begin (Large Icon)", "2000" } });

    ExpectStopped(Add({ "Start (Large Icon)", "Begin (Large Icon)", "Alpha (Large Icon)" }),
        "Error assigning VY icon.");

    EXPECT_THAT(NodeKeys(), ElementsAre("Start (Large Icon)"));
    EXPECT_FALSE(Has("Begin (Large Icon)") || Has("Alpha (Large Icon)"));
}

class NoIds : public AddIcons, public ::testing::WithParamInterface<const char*> { };

TEST_P(NoIds, OfTheLauncherAreToldAndMakeNoIcon)
{
    SetLauncher({ { "Bad (Large Icon)", GetParam() } });

    ExpectStopped(Add({ "Alpha (Large Icon)", "Bad (Large Icon)" }), "Error assigning VY icon.");

    EXPECT_THAT(NodeKeys(), ElementsAre("Alpha (Large Icon)"));
    EXPECT_FALSE(Has("Bad (Large Icon)"));
    for (const std::string& key : Keys())
        EXPECT_TRUE(key.empty() || key == "tAIB3500") << key;
}

INSTANTIATE_TEST_SUITE_P(
    AddIcons, NoIds, ::testing::Values("", "abc", "../outside", "/2000", "\\2000", "-1", "70000"));

TEST_F(AddIcons, OnlyTheNumberOfAnIdGetsIntoAKey)
{
    SetLauncher(
        { { "Start (Large Icon)", "2000/../../outside" }, { "Start (Small Icon)", "2001\\x" } });

    Add({ "Start (Large Icon)", "Start (Small Icon)" });

    EXPECT_THAT(Keys(), ElementsAre("tAIB2000", "tAIB2001"));
}

TEST_F(AddIcons, ASizeThatTheLauncherDoesNotListIsNeverARow)
{
    SetLauncher({ { "Start (Large Icon)", "2000" } });

    const RowsOutcome outcome = Add({ "Start (Small Icon)" });

    EXPECT_NE(outcome.message, "");
    EXPECT_FALSE(Has("Start (Small Icon)"));
    EXPECT_THAT(NodeKeys(), IsEmpty());
}

} // namespace
} // namespace vypx::test
