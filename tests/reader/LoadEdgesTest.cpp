#include "document/IconStats.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What a whole load makes of sizes and numbers at the edge of what they can be.
class LoadEdges : public LoadFixture {
protected:
    static std::vector<std::string> LowFiles()
    {
        std::vector<std::string> files;
        for (const IconRow& row : IconTable)
            files.push_back(row.LowResFile);
        return files;
    }
};

/// The sum of a size and an offset is beyond what a resource may have, neither of them is.
TEST_F(LoadEdges, SmallResourcesBehindSixMegabytesOpenWithoutWords)
{
    const Resource large{ .type = "data", .id = 1, .data = Bytes(6'000'000, 0) };

    EXPECT_EQ(
        Open(Iconset{ .resources = { large, Icon(3500), Icon(3501) } }.File()), LoadResult::Opened);

    EXPECT_THAT(listener.messages, IsEmpty());
    EXPECT_THAT(LowFiles(), ElementsAre("tAIB3500.bmp", "tAIB3501.bmp"));
}

TEST_F(LoadEdges, ResourcesOfTheMostBytesAreReadAndOfOneMoreAreTold)
{
    const auto open = [&](std::size_t size) {
        Bytes data = LowRecord(8);
        data.resize(size);
        const Resource icon{ .type = "tAIB", .id = 3500, .data = data };
        const Resource other{ .type = "data", .id = 1, .data = Bytes(4, 0) };
        listener.messages.clear();
        EXPECT_EQ(Open(Iconset{ .resources = { icon, other } }.File()), LoadResult::Opened);
    };

    open(10'000'000);
    EXPECT_THAT(listener.messages, IsEmpty());
    EXPECT_THAT(LowFiles(), ElementsAre("tAIB3500.bmp"));

    open(10'000'001);
    EXPECT_THAT(listener.messages, ElementsAre("Error reading file."));
    EXPECT_THAT(LowFiles(), ElementsAre("NEW"));
}

/// The record leads to the resource's end, behind which the next resource's record stands.
TEST_F(LoadEdges, AResourceEndsWhereTheNextBegins)
{
    const Resource open{ .type = "tAIB", .id = 3500, .data = LowRecord(8, false) };

    EXPECT_EQ(Open(Iconset{ .resources = { open, Icon(3501) } }.File()), LoadResult::Opened);

    EXPECT_THAT(LowFiles(), ElementsAre("NEW", "tAIB3501.bmp"));
    EXPECT_FALSE(FileExists(WorkPath("tAIB3500.bmp")));
}

TEST_F(LoadEdges, TheLaunchersCatalogMayNameTheIdsFrom0To65535)
{
    VYTable = { {}, { "Lowest", "0", "" }, { "Highest", "65535", "" }, { "Below", "-1", "" },
        { "Above", "65536", "" }, { "None", "", "" }, { "Words", "x0", "" } };

    Open(Iconset{ .resources = { Icon(0), Icon(65535), Icon(1) } }.File());

    EXPECT_THAT(Labels(), ElementsAre("Lowest", "Highest", "tAIB1 () "));
    EXPECT_EQ(IconTable[0].IconKind, "VY");
    EXPECT_EQ(IconTable[1].IconKind, "VY");
}

TEST_F(LoadEdges, AnIndexNamesTheIdsFrom0To65535)
{
    AppTable = { {}, { "Alpha", "appl", "ALPH", "" } };

    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 65535, 0) }), Icon(65535),
                      Icon(0), Icon(1) } }
             .File());

    EXPECT_THAT(
        Labels(), ElementsAre("Alpha (Large Icon)", "Alpha (Small Icon)", "tAIB1 (Orphan) "));
}

/// Counted is the mark's group as well, and the maximum of the progress bar is what is counted.
TEST_F(LoadEdges, BitmapsOfAllDepthsAreCountedForTheProgressBar)
{
    const Bytes family = Join({ LowRecord(1, false), LowRecord(4, false), LowRecord(8, false),
        Separator(), HighRecord(8, false), HighRecord(16) });
    const Resource icon{ .type = "tAIB", .id = 3500, .data = family };

    Open(Iconset{ .resources = { icon, Icon(3501, "Tbmp"), Icon(3502, "abmp") } }.File());

    EXPECT_EQ(TimesOf(listener.steps, "maximum:7"), 2u);
    EXPECT_EQ(TimesOf(listener.steps, "progress:3"), 1u) << "two of the family and the Tbmp";
    EXPECT_EQ(TimesOf(listener.steps, "progress:4"), 0u);
}

/// Eleven bitmaps are what a family can have; the twelfth breaks the count and is told.
TEST_F(LoadEdges, AFamilyHasElevenBitmapsAtMost)
{
    const auto open = [&](int bitmaps) {
        Bytes data;
        for (int i = 1; i <= bitmaps; ++i)
            data = Join({ data, LowRecord(8, i == bitmaps) });
        listener.messages.clear();
        Open(Iconset{ .resources = { { .type = "tAIB", .id = 3500, .data = data }, Icon(3501) } }
                 .File());
        EXPECT_THAT(LowFiles(), ElementsAre("tAIB3500.bmp", "tAIB3501.bmp"));
    };

    open(11);
    EXPECT_THAT(listener.messages, IsEmpty());
    open(12);
    EXPECT_THAT(listener.messages, ElementsAre("Error parsing file following tAIB3500."));
}

TEST_F(LoadEdges, AnIndexOfBrokenLengthIsToldAndNamesNobody)
{
    AppTable = { {}, { "Alpha", "appl", "ALPH", "" } };
    Bytes index = IndexRecord("appl", "ALPH", 3500, 0);
    index.push_back(0);

    EXPECT_EQ(Open(Iconset{ .resources = { Icon(3500),
                                { .type = "iTbl", .id = 1000, .data = index }, Icon(3501) } }
                       .File()),
        LoadResult::Opened);

    EXPECT_THAT(listener.messages, ElementsAre("Error reading iTbl"));
    for (const IconRow& row : IconTable)
        EXPECT_EQ(row.IconLabel.find("Alpha"), std::string::npos) << row.IconLabel;
    EXPECT_TRUE(Tree.Nodes().empty()) << "without any index the walk ends at the first use of it";
}

/// A record's rows end where the buffer ends: five columns behind the padded row.
TEST_F(LoadEdges, PixelsThatOverrunTheirRowFailTheLoad)
{
    const auto open = [&](const std::string& record) {
        return Open(
            Iconset{ .resources = { { .type = "Tbmp", .id = 1, .data = Hex(record) } } }.File());
    };
    // width height rowBytes flags size version next index form, then the size field
    const std::string eight = "0004 0001 0004 8000 08 01 0000 00",
                      sixteen = "0002 0001 0004 8000 10 01 0000 00", more = " 05060500 00000000";

    EXPECT_EQ(open(eight + "02 0000 0000 03 01020304 00"), LoadResult::Opened);
    EXPECT_EQ(open(eight + "02 0000 0000 0A 0102030405060708090A0B"), LoadResult::Failed);
    EXPECT_EQ(open(eight + "02 0000 0000 F6 01 0000"), LoadResult::Failed);
    EXPECT_EQ(open(eight + "01 0000 0000 0A 01 0000"), LoadResult::Failed) << "a run of 10";
    EXPECT_EQ(open(eight + "01 0000 0000 09 01 0000"), LoadResult::Opened) << "a run of 9";
    EXPECT_EQ(open(sixteen + "02 0000" + more + "0000 FF 0102 0000"), LoadResult::Opened);
    EXPECT_EQ(open(sixteen + "02 0000" + more + "0000 FC 0102 0000"), LoadResult::Failed);
    EXPECT_EQ(
        open(sixteen + "02 0000" + more + "0000 04 01020304050607080910 00"), LoadResult::Failed);
    EXPECT_FALSE(FileLoaded);
}

/// Of 32,768 records, as many as a number of 16 bits with a sign does not tell.
TEST_F(LoadEdges, AnIndexOfTooManyRecordsEndsTheWalkWithoutWords)
{
    const auto open = [&](std::size_t records) {
        const Resource index{ .type = "iTbl", .id = 1000, .data = Bytes(records * 16, 'x') };
        EXPECT_EQ(Open(Iconset{ .resources = { index, Icon(3500) } }.File()), LoadResult::Opened);
        EXPECT_THAT(listener.messages, IsEmpty());
    };

    open(32767);
    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 (Orphan) "));
    open(32768);
    EXPECT_THAT(Labels(), IsEmpty());
}

/// Type and creator have four characters each in the index, so shorter ones are nobody's.
TEST_F(LoadEdges, ACatalogEntryOfAnotherLengthOwnsNothing)
{
    AppTable = { {}, { "Short", "appl", "ALP", "" }, { "Long", "appl", "ALPHA", "" },
        { "Type", "app", "lALPH", "" }, { "", "appl", "ALPH", "" } };

    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0) }), Icon(3500) } }
             .File());

    EXPECT_THAT(Labels(), ElementsAre("tAIB3500 (ALPH - Large) "));
}

TEST_F(LoadEdges, APathWithoutRoomForAnEndingIsOfTheWrongType)
{
    WriteText(folder.File("p"), "");
    EXPECT_EQ(Open({}, "p"), LoadResult::WrongFileType);
    EXPECT_THAT(listener.messages, ElementsAre("Incorrect file type."));
}

/// Behind the last low-density record the walk of the resource ends, whatever stands there.
TEST_F(LoadEdges, OnlyTheMarkLeadsBeyondTheLowDensityRecords)
{
    // The first leads to the second, which is the last one; a third stands behind it all the same.
    const Bytes family = Join({ LowRecord(1, false), LowRecord(8), LowRecord(4) });
    const Bytes marks =
        Join({ LowRecord(8, false), Separator(), HighRecord(8), Separator(), HighRecord(4) });

    EXPECT_EQ(Open(Iconset{ .resources = { { .type = "tAIB", .id = 3500, .data = family },
                                { .type = "tAIB", .id = 3501, .data = marks }, Icon(3502) } }
                       .File()),
        LoadResult::Opened);

    EXPECT_THAT(LowFiles(), ElementsAre("tAIB3500.bmp", "tAIB3501.bmp", "tAIB3502.bmp"));
    EXPECT_EQ(IconTable[0].HighResFile, "NEW");
    EXPECT_EQ(IconTable[1].HighResFile, "tAIB3501-d144.bmp");
    EXPECT_EQ(BitmapTable[0].depth, 8);
    EXPECT_EQ(BitmapTable[2].depth, 8) << "the first behind the first mark";
}

} // namespace
} // namespace vypx::test
