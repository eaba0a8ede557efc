#include "settings/Arrangement.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

constexpr int Preview = 3000, Stats = 2000, Shares = 4000;
constexpr std::nullopt_t None = std::nullopt;

struct Case {
    SideWidths sides;
    int width;
};

TEST(Arrangement, TheColumnIsAsWideAsOneOfItsWindows)
{
    const Case cases[] = {
        { { Preview, Stats, Shares }, Stats },
        { { None, Stats, Shares }, Stats },
        { { Preview, Stats, None }, Preview },
        { { Preview, None, Shares }, Preview },
        { { Preview, None, None }, Preview },
        { { None, Stats, None }, Stats },
        { { None, None, Shares }, Shares },
        { { None, None, None }, 0 },
    };
    for (const Case& row : cases)
        EXPECT_EQ(ColumnWidth(row.sides), row.width);
}

TEST(Arrangement, TheFrameHasRoomForFormAndColumn)
{
    const ArrangedFrame frame = ArrangeFrame(11640, 9000, { Preview, None, Shares });

    EXPECT_EQ(frame.width, 11640 + 3000 + 300);
    EXPECT_EQ(frame.height, 9000 + 1000);
}

TEST(Arrangement, WithoutSideWindowsTheFrameIsALittleWiderThanTheForm)
{
    EXPECT_EQ(ArrangeFrame(11640, 9000, {}).width, 11940);
}

} // namespace
} // namespace vypx::test
