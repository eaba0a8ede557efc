#include "companion/Lookups.h"

#include <gtest/gtest.h>

namespace vypx {
namespace {

using Names = std::vector<std::string>;

const std::vector<IconRow> Rows{
    { .IconLabel = "Acorn (Large Icon)", .ResourceKey = "tAIB3500" },
    { .IconLabel = "Bird (Large Icon)", .ResourceKey = "tAIB3501" },
    { .IconLabel = "Fern (Large Icon)", .ResourceKey = "tAIB3500" },
    { .IconLabel = "Moss (Large Icon)", .ResourceKey = "tAIB3500" },
    { .IconLabel = "Bare one" },
    { .IconLabel = "Bare two" },
};

TEST(ChkDup, FindsAKeyThatARowCarries)
{
    std::int32_t result = 0;
    ChkDup({ "tAIB3500", "Tbmp1" }, "Tbmp1", result);

    EXPECT_EQ(result, 1);
}

TEST(ChkDup, LeavesTheResultForAKeyThatNoRowCarries)
{
    std::int32_t result = 0;
    ChkDup({ "tAIB3500" }, "tAIB350", result);

    EXPECT_EQ(result, 0);
}

TEST(ChkShared, ListsTheOtherRowsOfTheResourceFromEntryOne)
{
    Names names(6, "stale");
    ChkShared(Rows, names, "Fern (Large Icon)");

    EXPECT_EQ(names, (Names{ "", "Acorn (Large Icon)", "Moss (Large Icon)", "", "", "" }));
}

TEST(ChkShared, ListsNothingForARowThatSharesWithNone)
{
    Names names(6, "stale");
    ChkShared(Rows, names, "Bird (Large Icon)");

    EXPECT_EQ(names, Names(6));
}

TEST(ChkShared, RowsWithoutAResourceShareNothing)
{
    Names names(6);
    ChkShared(Rows, names, "Bare one");

    EXPECT_EQ(names, Names(6));
}

TEST(ChkShared, ListsNothingForALabelThatNoRowHas)
{
    Names names(6, "stale");
    ChkShared(Rows, names, "Parent");

    EXPECT_EQ(names, Names(6));
}

TEST(ChkShared, ListsAllThatShareWhateverTheTableOfNamesHadRoomFor)
{
    for (const std::size_t room : { 0u, 2u }) {
        Names names(room);
        ChkShared(Rows, names, "Acorn (Large Icon)");

        EXPECT_EQ(names, (Names{ "", "Fern (Large Icon)", "Moss (Large Icon)" }));
    }
}

TEST(ChkShared, OfNothingOrOfARowThatIsNotThereIsEmpty)
{
    for (const char* label : { "", "Nobody", "Bare one" }) {
        Names names(3, "stale");
        ChkShared(Rows, names, label);
        EXPECT_EQ(names, Names(3)) << label;
    }
    const std::vector<IconRow> unnamed{ { .ResourceKey = "tAIB1" }, { "A", "tAIB1" } };
    Names names(3, "stale");
    ChkShared(unnamed, names, "");
    EXPECT_EQ(names, Names(3));
}

} // namespace
} // namespace vypx
