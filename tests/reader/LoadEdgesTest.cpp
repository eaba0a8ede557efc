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
}

} // namespace
} // namespace vypx::test
