#include "writer/IconIndex.h"
#include "support/CompileFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class IconIndexes : public Compiling {
protected:
    /// "type creator large small" of each record, in the file's order.
    std::vector<std::string> Index()
    {
        std::vector<std::string> records;
        BuildIconTableResource();
        if (!FileExists(WorkPath("iTbl1000.bin")))
            return records;
        const Bytes body = ReadBytes(WorkPath("iTbl1000.bin"));
        const ByteView view(body);
        for (std::size_t at = 0; at < body.size(); at += 16)
            records.push_back(view.Text(at, 4) + " " + view.Text(at + 4, 4) + " "
                + std::to_string(view.U16(at + 8)) + " " + std::to_string(view.U16(at + 10)));
        return records;
    }
};

TEST_F(IconIndexes, OneResourceForBothSizesIsOneRowAndOneRecord)
{
    Add("Alpha (Large Icon)", 3500, true, true);
    Add("Alpha (Small Icon)", 3500, true, true);

    EXPECT_THAT(Keys(), ElementsAre("tAIB3500"));
    EXPECT_THAT(Index(), ElementsAre("appl ALPH 3500 3500"));
}

TEST_F(IconIndexes, LargeAndSmallMeetInOneRecord)
{
    Add("Alpha (Small Icon)", 3501, true, false);
    Add("Beta (Large Icon)", 3502, true, false);
    Add("Alpha (Large Icon)", 3500, true, false);
    Add("Palm Clock (Small Icon)", 3503, true, false, "PALM");

    EXPECT_THAT(
        Index(), ElementsAre("appl ALPH 3500 3501", "appl clck 0 3503", "panl B    3502 0"));
}

TEST_F(IconIndexes, OnlyKeptPicturesOfTheRangeTakePartInTheIndex)
{
    Add("Alpha (Large Icon)", 3499, true, false);
    Add("Alpha (Large Icon)", 10000, true, false);
    Add("Alpha (Large Icon)", 3501, false, false);
    Add("Alpha (Large Icon)", 3502, true, false, "APP", 0);
    Add("Alpha (Large Icon)", 3503, true, false, "APP", 1, "Tbmp");
    Add("Nobody (Large Icon)", 3504, true, false);
    Add("tAIB3505 (Orphan) ", 3505, true, false, "DELETE");

    EXPECT_THAT(Index(), IsEmpty());
}

TEST_F(IconIndexes, UnknownIconsAreNamedByTheIndexThatWasRead)
{
    Itbl = { {}, { "appl", "FRST", 3500, 0 }, { "appl", "LAST", 3500, 3501 } };
    Add("tAIB3500 (LAST - Large) ", 3500, true, false, "UNKNOWN");
    Add("tAIB3501 (LAST - Small) ", 3501, true, false, "UNKNOWN");

    EXPECT_THAT(Index(), ElementsAre("appl LAST 3500 3501")) << "the last row wins";
    KeepUnknown = false;
    EXPECT_THAT(CollectIconIndex().values, IsEmpty());
}

TEST_F(IconIndexes, OnPurposeAnotherTypeKeepsTheClassOfTheRecordBefore)
{
    Add("Gamma (Large Icon)", 3500, true, false);
    EXPECT_THAT(Index(), IsEmpty()) << "the class is 0 at first";

    Add("Beta (Large Icon)", 3501, true, false);
    Add("Gamma (Small Icon)", 3502, true, false);
    EXPECT_THAT(Index(), ElementsAre("panl B    3501 0"));

    IconTable.erase(IconTable.begin());
    EXPECT_THAT(Index(), ElementsAre("panl B    3501 0", "data GAMM 0 3502"));
}

TEST_F(IconIndexes, BothEndsOfTheRangeTakePart)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    Add("Alpha (Small Icon)", 9999, false, true);

    EXPECT_THAT(Index(), ElementsAre("appl ALPH 3500 9999"));
}

TEST_F(IconIndexes, RowsWithoutAKeyOrALabelTakeNoPart)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    Add("", 3501, true, false);
    IconTable[0].ResourceKey.clear();

    EXPECT_THAT(Index(), IsEmpty());
}

TEST_F(IconIndexes, LargeAloneCountsOnlyWhileUnknownIconsAreKept)
{
    Add("Alpha (Any  Large)", 3500, true, false);

    EXPECT_THAT(Index(), ElementsAre("appl ALPH 3500 0"));
    KeepUnknown = false;
    EXPECT_THAT(Index(), ElementsAre("appl ALPH 0 3500"));
}

TEST_F(IconIndexes, AppListWithoutBothTypeAndCreatorGivesWayToPalmApp)
{
    WriteText(folder.File("AppList.dat"), "[One]\nType=appl\n[Two]\nCreator={TWOO}\n");
    WriteText(folder.File("PalmApp.dat"),
        "[One]\nType=appl\nCreator={Palm}\n[Two]\nType=panl\nCreator={Palm}\n");
    Add("One (Large Icon)", 3500, true, false);
    Add("Two (Large Icon)", 3501, true, false);

    EXPECT_THAT(Index(), ElementsAre("appl Palm 3500 0", "panl Palm 3501 0"));
}

TEST_F(IconIndexes, ACreatorIsWhatStandsFromTheSecondToTheFifthCharacter)
{
    WriteText(folder.File("AppList.dat"), "[Long]\nType=appl\nCreator={LONGER}\n");
    WriteText(folder.File("PalmApp.dat"), "[Short]\nType=appl\nCreator={SH\n");
    Add("Long (Large Icon)", 3500, true, false);
    Add("Short (Large Icon)", 3501, true, false);

    EXPECT_THAT(Index(), ElementsAre("appl LONG 3500 0", "appl SH   3501 0"));
}

TEST_F(IconIndexes, OnPurposeAnItemOfPalmOSWithoutACreatorHasFourBlanks)
{
    WriteText(folder.File("PalmApp.dat"), "[Blank]\nType=appl\n[Typeless]\nCreator={TYPE}\n");
    Add("Blank (Large Icon)", 3500, true, false);
    Add("Typeless (Large Icon)", 3501, true, false);

    EXPECT_THAT(Index(), ElementsAre("appl      3500 0"));
}

TEST_F(IconIndexes, ARowThatTheCatalogFileNamesNoMoreKeepsItsOwner)
{
    Add("Gone (Large Icon)", 3500, true, false);
    Add("Alpha (Large Icon)", 3501, true, false);
    Add("Gone Too (Small Icon)", 3502, true, false, "PALM");
    IconTable[0].owner = { "appl", "GONE" };
    IconTable[1].owner = { "appl", "OLDA" };
    IconTable[2].owner = { "panl", "TOO " };

    EXPECT_THAT(Index(), ElementsAre("appl ALPH 3501 0", "appl GONE 3500 0", "panl TOO  0 3502"))
        << "the file counts where it names the row";
}

TEST_F(IconIndexes, AnOrphanOrAnUnknownIconThatIsDroppedHasNoOwner)
{
    Add("Start (Large Icon)", 3500, true, false, "VY");
    Add("tAIB3501 (QQQQ - Large) ", 3501, true, false, "UNKNOWN");
    IconTable[1].owner = { "appl", "QQQQ" };
    KeepUnknown = false;

    EXPECT_THAT(Index(), IsEmpty());
}

/// Two resources of one application: the second one's label is taken, so it is unknown.
TEST_F(IconIndexes, AnUnknownIconNeverTakesAKnownOnesPlaceWhateverTheirOrder)
{
    Itbl = { {}, { "appl", "ALPH", 3500, 3502 }, { "appl", "ALPH", 3501, 0 } };
    for (const bool unknownFirst : { false, true }) {
        IconTable.clear();
        if (unknownFirst)
            Add("tAIB3501 (ALPH - Large) ", 3501, true, false, "UNKNOWN");
        Add("Alpha (Large Icon)", 3500, true, false);
        if (!unknownFirst)
            Add("tAIB3501 (ALPH - Large) ", 3501, true, false, "UNKNOWN");
        Add("tAIB3502 (ALPH - Small) ", 3502, true, false, "UNKNOWN");

        EXPECT_THAT(Index(), ElementsAre("appl ALPH 3500 3502")) << unknownFirst;
    }
}

TEST_F(IconIndexes, StandsInTheOrderOfTheCreatorsCharacters)
{
    const std::vector<std::string> ordered{ "    ", "A   ", "A...", "AAAY", "AAAZ", "AABA", "ABAA",
        "BAAA", "aaaa", "z~~~" };
    std::string catalog;
    std::vector<std::string> expected;
    int id = 3500;
    for (auto creator = ordered.rbegin(); creator != ordered.rend(); ++creator) {
        const std::string name = "App" + std::to_string(id);
        catalog += "[" + name + "]\nType=appl\nCreator={" + *creator + "}\n";
        expected.insert(expected.begin(), "appl " + *creator + " " + std::to_string(id) + " 0");
        Add(name + " (Large Icon)", id++, true, false);
    }
    WriteText(folder.File("AppList.dat"), catalog);

    EXPECT_EQ(Index(), expected);
}

TEST_F(IconIndexes, KeysCountFromTheFullStop)
{
    WriteText(folder.File("AppList.dat"),
        "[Dots]\nType=appl\nCreator={....}\n[Weights]\nType=panl\nCreator={/012}\n");
    Add("Dots (Large Icon)", 3500, true, false);
    Add("Weights (Large Icon)", 3501, true, false);

    const IconIndex index = CollectIconIndex();

    ASSERT_EQ(index.keys.size(), 2u);
    EXPECT_EQ(index.keys[0].entryClass, 1e13);
    EXPECT_EQ(index.keys[0].creator, 0);
    EXPECT_EQ(index.keys[1].entryClass, 2e13);
    EXPECT_EQ(index.keys[1].creator, 1e10 + 2e7 + 3e4 + 4);
}

TEST_F(IconIndexes, AreMadeOfAnOpenDocumentOnlyAndTakeTheOldScratchFileAway)
{
    WriteText(WorkPath("iTbl.bin"), "old");
    Add("Alpha (Large Icon)", 3500, true, false);

    FileLoaded = false;
    EXPECT_THAT(Index(), IsEmpty());
    EXPECT_TRUE(FileExists(WorkPath("iTbl.bin")));

    FileLoaded = true;
    EXPECT_THAT(Index(), ElementsAre("appl ALPH 3500 0"));
    EXPECT_FALSE(FileExists(WorkPath("iTbl.bin")));
}

} // namespace
} // namespace vypx::test
