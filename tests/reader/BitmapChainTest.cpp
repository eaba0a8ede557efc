#include "reader/BitmapChain.h"

#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

/// A family as the open file, its first record at FileCashe's index 1.
class BitmapChain : public LoadFixture {
protected:
    void Walk(const Bytes& family)
    {
        FileCashe.assign(1, 0);
        FileCashe.insert(FileCashe.end(), family.begin(), family.end());
        FileCashe.push_back(0);
        walk.ResourceName = "tAIB1005";
        WalkBitmapChain(walk, listener);
    }

    /// Depth and density of what was noted.
    std::vector<std::pair<int, int>> Family() const
    {
        std::vector<std::pair<int, int>> members;
        for (std::size_t i = 0; i < walk.BitmapFamilyCount; ++i)
            members.emplace_back(walk.BitmapFamily[i].depth, walk.BitmapFamily[i].density);
        return members;
    }

    WalkState walk;
};

TEST_F(BitmapChain, CountsASingleRecord)
{
    Walk(LowRecord(8));

    EXPECT_THAT(Family(), ElementsAre(Pair(8, 1)));
    EXPECT_EQ(walk.BmpTotalNum, 1);
    EXPECT_EQ(walk.BitmapStem, "tAIB1005");
}

TEST_F(BitmapChain, GoesOnFromLowToHighDensityAtTheMark)
{
    Bytes last = LowRecord(4);
    PutU16(last, 10, static_cast<unsigned>(last.size() / 4)); // leads to the mark

    Walk(Join({ LowRecord(1, false), last, Separator(), HighRecord(4, false), HighRecord(8) }));

    EXPECT_THAT(Family(), ElementsAre(Pair(1, 1), Pair(4, 1), Pair(4, 2), Pair(8, 2)));
    EXPECT_EQ(walk.BmpTotalNum, 4);
    EXPECT_EQ(walk.BitmapStem, "tAIB1005-d144");
}

TEST_F(BitmapChain, MayBeginWithTheMark)
{
    Walk(Join({ Separator(), HighRecord(8) }));

    EXPECT_THAT(Family(), ElementsAre(Pair(8, 2)));
}

TEST_F(BitmapChain, LowDensityLinksCountInFours)
{
    Bytes first = LowRecord(1);
    PutU16(first, 10, 0x0105); // 261 * 4 = 1044 bytes
    first.resize(1044);

    Walk(Join({ first, LowRecord(2) }));

    EXPECT_THAT(Family(), ElementsAre(Pair(1, 1), Pair(2, 1)));
}

TEST_F(BitmapChain, HighDensityLinksCountInBytesWithoutTheirHighestByte)
{
    Bytes first = HighRecord(4, false);
    first[20] = 0x7F; // would lead far out

    Walk(Join({ Separator(), first, HighRecord(8) }));

    EXPECT_THAT(Family(), ElementsAre(Pair(4, 2), Pair(8, 2)));
}

TEST_F(BitmapChain, ALinkOutOfTheFileTakesOneFromTheCountAndIsTold)
{
    Bytes first = LowRecord(8);
    PutU16(first, 10, 0x4000);

    Walk(Join({ LowRecord(1, false), first }));

    EXPECT_THAT(listener.messages, ElementsAre("Error parsing file following tAIB1005."));
    EXPECT_EQ(walk.BmpTotalNum, 1) << "two were found, one is taken back";
}

TEST_F(BitmapChain, ABrokenFirstRecordIsToldWithTheStemOfTheResourceBefore)
{
    walk.BitmapStem = "tAIB1004-d144";

    Walk(Bytes(5, 0));

    EXPECT_THAT(listener.messages, ElementsAre("Error parsing file following tAIB1004-d144."));
    EXPECT_EQ(walk.BmpTotalNum, -1);
}

TEST_F(BitmapChain, ATwelfthBitmapBreaksTheFamily)
{
    Bytes family;
    for (int i = 0; i < 12; ++i)
        family = Join({ family, LowRecord(1, i == 11) });

    Walk(family);

    EXPECT_THAT(listener.messages, ElementsAre("Error parsing file following tAIB1005."));
    EXPECT_EQ(walk.BitmapFamilyCount, 11u);
    EXPECT_EQ(walk.BmpTotalNum, 10);
}

TEST_F(BitmapChain, ElevenBitmapsAreAFamily)
{
    Bytes family;
    for (int i = 0; i < 11; ++i)
        family = Join({ family, LowRecord(1, i == 10) });

    Walk(family);

    EXPECT_THAT(listener.messages, IsEmpty());
    EXPECT_EQ(walk.BmpTotalNum, 11);
}

TEST_F(BitmapChain, IsSilentInATemplate)
{
    walk.asTemplate = true;

    Walk(Bytes(5, 0));

    EXPECT_THAT(listener.messages, IsEmpty());
    EXPECT_EQ(walk.BmpTotalNum, -1);
}

TEST_F(BitmapChain, OneThatMarksItselfAsMarkForEverEnds)
{
    // A mark, and a high-density record that leads to another mark, and so on to the file's end.
    Bytes marks;
    for (int i = 0; i < 100; ++i) {
        Bytes mark = Separator();
        mark[23 - 16] = 16; // read as the record's link once 16 bytes are passed over
        marks = Join({ marks, mark });
    }

    Walk(marks);

    EXPECT_EQ(listener.messages.size(), 1u);
}

} // namespace
} // namespace vypx::test
