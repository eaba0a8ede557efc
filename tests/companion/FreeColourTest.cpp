#include "companion/FreeColour.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

Picture RowOf(const std::vector<Rgb>& colours)
{
    Picture picture(static_cast<int>(colours.size()), 1);
    for (int x = 0; x < picture.Width(); ++x)
        picture.Set(x, 0, colours[static_cast<std::size_t>(x)]);
    return picture;
}

constexpr Rgb Magenta{ 255, 0, 255 };

TEST(WithFreeColour, TransparentPixelsBecomeMagenta)
{
    const MaskedPicture masked =
        WithFreeColour(RowOf({ Red, Blue, Blue, Black }), { false, true, false, true });

    EXPECT_EQ(masked.transparent, Magenta);
    EXPECT_EQ(masked.pixels, RowOf({ Red, Magenta, Blue, Magenta }));
}

TEST(WithFreeColour, WithoutTransparentOrOpaquePixelsNothingChanges)
{
    for (const std::vector<bool>& isTransparent :
        { std::vector<bool>{ false, false }, std::vector<bool>{ true, true } }) {
        const MaskedPicture masked = WithFreeColour(RowOf({ Red, Magenta }), isTransparent);

        EXPECT_EQ(masked.transparent, std::nullopt);
        EXPECT_EQ(masked.pixels, RowOf({ Red, Magenta }));
    }
}

TEST(WithFreeColour, AColourOfAnOpaquePixelIsPassedOver)
{
    const Rgb next{ 255, 0, 254 }, third{ 255, 0, 253 };

    const MaskedPicture masked =
        WithFreeColour(RowOf({ next, Magenta, third, Red }), { false, false, true, false });

    EXPECT_EQ(masked.transparent, third) << "which only a transparent pixel had";
    EXPECT_EQ(masked.pixels, RowOf({ next, Magenta, third, Red }));
}

/// A picture with every colour, and those from 255, 0, 255 down to 255, 0, 1 twice. What is left of
/// its last row is transparent.
class WithFreeColourOfAll : public ::testing::Test {
protected:
    static constexpr int Side = 4096;

    WithFreeColourOfAll()
    {
        for (int y = 0; y < Side; ++y)
            for (int x = 0; x < Side; ++x)
                picture.Set(x, y, { y / 16, y % 16 * 16 + x / 256, x % 256 });
        for (int x = 0; x < 255; ++x)
            picture.Set(x, Side, { 255, 0, 255 - x });
        std::fill(isTransparent.end() - Side + 255, isTransparent.end(), true);
    }

    /// What stands where that colour was once.
    static Rgb InPlaceOf(Rgb colour, const Picture& pixels)
    {
        return pixels.At(
            colour.green % 16 * 256 + colour.blue, colour.red * 16 + colour.green / 16);
    }

    Picture picture{ Side, Side + 1 };
    std::vector<bool> isTransparent = std::vector<bool>(Side * (Side + 1));
};

TEST_F(WithFreeColourOfAll, TheRarestColourGivesWay)
{
    const MaskedPicture masked = WithFreeColour(std::move(picture), isTransparent);

    EXPECT_EQ(masked.transparent, Red) << "the first that was there once";
    EXPECT_EQ(InPlaceOf(Red, masked.pixels), (Rgb{ 255, 0, 1 }));
    EXPECT_EQ(InPlaceOf({ 255, 0, 2 }, masked.pixels), (Rgb{ 255, 0, 2 }));
    EXPECT_EQ(masked.pixels.At(Side - 1, Side), Red);
}

TEST_F(WithFreeColourOfAll, TheColourOfTheTopLeftPixelNeverGivesWay)
{
    const Rgb next{ 254, 255, 255 };
    picture.Set(0, 0, Red);
    picture.Set(0, 255 * 16, Black); // where red was

    const MaskedPicture masked = WithFreeColour(std::move(picture), isTransparent);

    EXPECT_EQ(masked.transparent, next);
    EXPECT_EQ(masked.pixels.At(0, 0), Red);
    EXPECT_EQ(InPlaceOf(next, masked.pixels), (Rgb{ 254, 255, 254 }));
}

} // namespace

} // namespace vypx::test
