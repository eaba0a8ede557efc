#include "reader/WalkResources.h"

#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* Duplicate = "Warning, file contains a duplicate resource!";

class WalkResources : public LoadFixture {
protected:
    WalkResources()
    {
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "appl", "BETA", "" } };
        PalmTable = { {}, { "Palm Clock", "appl", "CLCK", "" } };
        VYTable = { {}, { "Launcher (Large Icon)", "2000", "" },
            { "Launcher (Small Icon)", "2001", "" } };
    }
};

TEST_F(WalkResources, WithoutAnIndexEveryBitmapIsUnknownWithAnEmptyNote)
{
    Open(Iconset{ .resources = { Icon(3500), Icon(3501, "Tbmp"), Icon(3502, "abmp") } }.File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 () ", "Tbmp3501 () ", "abmp3502 () "));
    for (const IconRow& row : IconTable) {
        EXPECT_EQ(row.IconKind, "UNKNOWN");
        EXPECT_EQ(row.IconState, 1);
        EXPECT_EQ(Tree.Find(row.IconLabel)->image, ImageUnknown);
    }
}

TEST_F(WalkResources, OtherTypesGetNoRow)
{
    Open(Iconset{ .resources = { { "tver", 1000, { '1', 0 } }, Icon(3500), { "TBMP", 1, {} } } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 () "));
}

TEST_F(WalkResources, AnApplicationKnowsItsLargeAndItsSmallIcon)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 3501) }), Icon(3500),
                      Icon(3501) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)", "Alpha (Small Icon)"));
    EXPECT_EQ(IconTable[0].IconKind, "APP");
    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB3500");
    EXPECT_EQ(IconTable[1].ResourceKey, "tAIB3501");
    EXPECT_EQ(Tree.Find("Alpha (Large Icon)")->image, ImageApp);
}

TEST_F(WalkResources, ASystemItemIsPalm)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "CLCK", 3500, 0) }), Icon(3500) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("Palm Clock (Large Icon)"));
    EXPECT_EQ(IconTable[0].IconKind, "PALM");
    EXPECT_EQ(Tree.Find("Palm Clock (Large Icon)")->image, ImagePalm);
}

TEST_F(WalkResources, TypeAndCreatorBothCount)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("panl", "ALPH", 3500, 0),
                                     IndexRecord("appl", "alph", 3501, 0) }),
                      Icon(3500), Icon(3501) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 (ALPH - Large) ", "tAIB3501 (alph - Large) "));
}

TEST_F(WalkResources, ALauncherIconNeverAsksTheIndex)
{
    Open(Iconset{
        .resources = { Index({ IndexRecord("appl", "ALPH", 2000, 0) }), Icon(2000), Icon(2001) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("Launcher (Large Icon)", "Launcher (Small Icon)"));
    EXPECT_EQ(IconTable[0].IconKind, "VY");
    EXPECT_EQ(Tree.Find("Launcher (Large Icon)")->image, ImageVY);
}

TEST_F(WalkResources, LauncherIdsAreComparedAsNumbers)
{
    VYTable = { {}, { "Zeros", "02000", "" }, { "Blank", " 2001", "" }, { "Words", "x", "" } };

    Open(Iconset{ .resources = { Icon(2000), Icon(2001), Icon(0) } }.File());

    EXPECT_THAT(Labels(), ElementsAre("Zeros", "Blank", "tAIB0 () "));
}

TEST_F(WalkResources, EveryLauncherEntryWithTheIdGetsARow)
{
    VYTable = { {}, { "One", "2000", "" }, { "Two", "2000", "" } };

    Open(Iconset{ .resources = { Icon(2000) } }.File());

    EXPECT_THAT(Labels(), ElementsAre("One", "Two"));
}

TEST_F(WalkResources, TwoApplicationsWithOneIdShareOneResource)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0),
                                     IndexRecord("appl", "BETA", 3500, 0) }),
                      Icon(3500) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)", "Beta (Large Icon)"));
    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB3500");
    EXPECT_EQ(IconTable[1].ResourceKey, "tAIB3500");
    EXPECT_EQ(IconTable[0].LowResFile, IconTable[1].LowResFile);
}

TEST_F(WalkResources, OneResourceCanBeLargeAndSmall)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "BETA", 3500, 3500),
                                     IndexRecord("appl", "ALPH", 3500, 0),
                                     IndexRecord("appl", "CLCK", 3500, 3500) }),
                      Icon(3500) } }
             .File());

    EXPECT_THAT(Labels(),
        ElementsAre("Beta (Large Icon)", "Alpha (Large Icon)", "Beta (Small Icon)",
            "Palm Clock (Large Icon)", "Palm Clock (Small Icon)"));
}

/// A file's own table of rows has twice its resources and one.
TEST_F(WalkResources, EveryIconOfAPairOfPicturesThatManyApplicationsShareIsRead)
{
    AppTable.assign(1, {});
    Bytes index;
    std::vector<std::string> large, small;
    for (const char letter : std::string("ABCDEFGHIJ")) {
        const std::string creator = std::string("APP") + letter, name = std::string(1, letter);
        AppTable.push_back({ name, "appl", creator, "" });
        index = Join({ index, IndexRecord("appl", creator, 3500, 3501) });
        large.push_back(name + " (Large Icon)");
        small.push_back(name + " (Small Icon)");
    }

    EXPECT_EQ(
        Open(Iconset{ .resources = { { "iTbl", 1000, index }, Icon(3500), Icon(3501) } }.File()),
        LoadResult::Opened);

    std::vector<std::string> all = large;
    all.insert(all.end(), small.begin(), small.end());
    EXPECT_EQ(Labels(), all);
    for (const IconRow& row : IconTable) {
        EXPECT_EQ(row.IconState, 1);
        EXPECT_EQ(row.LowResFile, row.ResourceKey + ".bmp");
    }
    EXPECT_GE(ShareNames.size(), IconTable.size());
}

TEST_F(WalkResources, ARowKeepsTheOwnerThatItsLabelTells)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0),
                                     IndexRecord("appl", "CLCK", 0, 3501),
                                     IndexRecord("appl", "FRST", 3502, 3502),
                                     IndexRecord("panl", "LAST", 3502, 3600) }),
                      Icon(3500), Icon(3501), Icon(3502), Icon(3503), Icon(2000) } }
             .File());

    std::vector<std::string> owners;
    for (const IconRow& row : IconTable)
        owners.push_back(row.IconLabel + "|" + row.owner.type + row.owner.creator);
    EXPECT_THAT(owners,
        ElementsAre("Alpha (Large Icon)|applALPH", "Palm Clock (Small Icon)|applCLCK",
            "tAIB3502 (FRST - Small) |applFRST", "tAIB3503 (Orphan) |", "Launcher (Large Icon)|"));
}

TEST_F(WalkResources, TheLauncherMayHaveAnIconWithTheId0)
{
    VYTable = { {}, { "Nought", "0", "" } };

    Open(Iconset{ .resources = { Icon(0) } }.File());

    EXPECT_THAT(Labels(), ElementsAre("Nought"));
}

/// The size that is judged before the first picture is what the walk left.
TEST_F(WalkResources, ALastResourceThatBeginsBehindTheFileKeepsAllPicturesOut)
{
    Bytes file = Iconset{ .resources = { Icon(3500), Icon(3501) } }.File();
    PutU32(file, 78 + 10 + 6, static_cast<unsigned>(file.size()) + 100);

    Open(file);

    EXPECT_EQ(TimesOf(listener.messages, "Error Number 0. Problem reading file."), 1u);
    EXPECT_FALSE(FileExists(WorkPath("tAIB3500.bmp")));
}

TEST_F(WalkResources, AWalkThatBreaksOffBehindAResourceOfNegativeSizeKeepsAllPicturesOut)
{
    constexpr std::size_t OffsetOfThird = 78 + 20 + 6;
    Bytes file =
        Iconset{ .resources = { { "iTbl", 1000, Bytes(17, 0) }, Icon(2000), Icon(3500) } }.File();
    PutU32(file, OffsetOfThird, 80);

    Open(file);

    EXPECT_THAT(Labels(), ElementsAre("Launcher (Large Icon)"));
    EXPECT_THAT(listener.messages,
        ElementsAre("Error reading iTbl", "Error Number 0. Problem reading file."));
}

TEST_F(WalkResources, AnUnlistedOwnerIsUnknownWithCreatorAndSize)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "QQQQ", 3500, 3501),
                                     IndexRecord("appl", "RRRR", 3502, 3502) }),
                      Icon(3500), Icon(3501), Icon(3502) } }
             .File());

    EXPECT_THAT(Labels(),
        ElementsAre(
            "tAIB3500 (QQQQ - Large) ", "tAIB3501 (QQQQ - Small) ", "tAIB3502 (RRRR - Small) "));
    EXPECT_EQ(IconTable[0].IconKind, "UNKNOWN");
}

TEST_F(WalkResources, TheLastUnlistedOwnerGivesTheNote)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "QQQQ", 3500, 3500),
                                     IndexRecord("appl", "RRRR", 3500, 0) }),
                      Icon(3500) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 (QQQQ - Small) "));
}

TEST_F(WalkResources, ABitmapThatNoRecordNamesIsAnOrphan)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 1, 2) }), Icon(3500) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 (Orphan) "));
    EXPECT_EQ(IconTable[0].IconKind, "DELETE");
    EXPECT_EQ(IconTable[0].IconState, 0);
    EXPECT_EQ(Tree.Nodes()[0].image, ImageDelete);
    EXPECT_EQ(Tree.Nodes()[0].colour, Red);
}

TEST_F(WalkResources, AnIdOf0MatchesNothingEmpty)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 3501) }), Icon(0) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB0 (Orphan) "));
}

TEST_F(WalkResources, AnIdOf0InARecordNamesAResourceWithTheId0)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0) }), Icon(0) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("Alpha (Small Icon)"));
}

TEST_F(WalkResources, CatalogRowsWithoutANameNeverMatch)
{
    AppTable = { {}, { "", "appl", "ALPH", "" } };
    VYTable = { {}, { "", "2000", "" } };

    Open(Iconset{
        .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0) }), Icon(3500), Icon(2000) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 (ALPH - Large) ", "tAIB2000 (Orphan) "));
}

TEST_F(WalkResources, AnIndexAtTheEndIsFoundBeforeAnyRowIsMade)
{
    Open(Iconset{ .resources = { Icon(3500), Icon(3501),
                      Index({ IndexRecord("appl", "ALPH", 3500, 3501) }) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)", "Alpha (Small Icon)"));
    EXPECT_THAT(NodeKeys(), ElementsAre("Alpha (Large Icon)", "Alpha (Small Icon)"));
    EXPECT_EQ(TimesOf(listener.steps, "maximum:2"), 2u) << "the first pass counts nothing";
}

TEST_F(WalkResources, ABrokenIndexAfterAFileWithoutOneEndsTheWalk)
{
    Open(Iconset{ .resources = { Icon(3500) } }.File());
    ASSERT_THAT(Labels(), ElementsAre("tAIB3500 () "));

    Open(Iconset{ .resources = { { "iTbl", 1000, Bytes(17, 0) }, Icon(3500) } }.File());

    EXPECT_THAT(listener.messages, ElementsAre("Error reading iTbl"));
    EXPECT_THAT(Labels(), ::testing::IsEmpty()) << "no orphans, which a save would leave out";
}

TEST_F(WalkResources, ASecondIndexIsNotRead)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0) }),
                      { "iTbl", 1001, IndexRecord("appl", "BETA", 3500, 0) }, Icon(3500) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)"));
    EXPECT_EQ(Itbl.size(), 2u);
}

TEST_F(WalkResources, TheSameResourceTwiceHasOneRowButItsBitmapsCountAgain)
{
    Open(Iconset{ .resources = { Icon(3500), Icon(3500) } }.File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 () "));
    EXPECT_EQ(TimesOf(listener.steps, "maximum:2"), 2u);
    EXPECT_THAT(listener.messages, IsEmpty());
}

TEST_F(WalkResources, ANodeWithTheRootsNameIsRetriedAsADuplicate)
{
    Open(Iconset{ .name = "tAIB3500 () ", .resources = { Icon(3500) } }.File());

    EXPECT_THAT(listener.messages, ElementsAre(Duplicate));
    EXPECT_THAT(Labels(), ElementsAre("tAIB3500(Dup) () "));
    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB3500(Dup)");
}

TEST_F(WalkResources, ACatalogLabelThatIsTakenIsToldOnceAndPassedOver)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0),
                                     IndexRecord("appl", "ALPH", 3501, 0) }),
                      Icon(3500), Icon(3501), Icon(3502) } }
             .File());

    EXPECT_THAT(listener.messages, ElementsAre(Duplicate));
    EXPECT_THAT(Labels(),
        ElementsAre("Alpha (Large Icon)", "tAIB3501 (ALPH - Large) ", "tAIB3502 (Orphan) "));
}

TEST_F(WalkResources, ALauncherLabelThatIsTakenIsToldOnceAndPassedOver)
{
    VYTable = { {}, { "Same", "2000", "" }, { "Same", "2001", "" } };

    Open(Iconset{ .resources = { Icon(2000), Icon(2001) } }.File());

    EXPECT_THAT(listener.messages, ElementsAre(Duplicate));
    EXPECT_THAT(Labels(), ElementsAre("Same", "tAIB2001 () "));
}

TEST_F(WalkResources, AListThatEndsTooEarlyKeepsWhatWasFound)
{
    constexpr std::size_t ListStart = 78, Entry = 10, Offset = 6, End = ListStart + 2 * Entry;
    Bytes file = Iconset{ .resources = { Index({}), Icon(3500) } }.File();
    PutU16(file, 76, 60);
    PutU32(file, ListStart + Offset, End); // an index without records
    PutU32(file, ListStart + Entry + Offset, End);
    file.resize(End);

    std::vector<std::string> found;
    listener.during = [&](const std::string& step) {
        if (step.starts_with("busy:"))
            found = NodeKeys();
    };

    EXPECT_EQ(Open(file), LoadResult::Failed) << "the pictures can't be read either";

    EXPECT_THAT(listener.messages, IsEmpty());
    EXPECT_THAT(found, ElementsAre("tAIB3500 (Orphan) "));
}

TEST_F(WalkResources, TheNumberIsReadWithoutASign)
{
    Open(Iconset{ .resources = { Icon(65535), Icon(32768) } }.File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB65535 () ", "tAIB32768 () "));
}

} // namespace
} // namespace vypx::test
