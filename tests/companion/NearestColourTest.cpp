#include "companion/NearestColour.h"

#include "support/Files.h"
#include "support/Properties.h"

#include <gtest/gtest.h>
#include <sstream>

namespace vypx::test {

namespace {

/// The rule itself.
int SearchNearest(Palette palette, Rgb colour)
{
    int nearest = -1, least = INT32_MAX;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        const int r = palette[i].red - colour.red, g = palette[i].green - colour.green,
                  b = palette[i].blue - colour.blue;
        if (r * r + g * g + b * b < least) {
            least = r * r + g * g + b * b;
            nearest = static_cast<int>(i);
        }
    }
    return nearest;
}

#ifdef RC_GTEST_PROP
rc::Gen<int> Component() { return rc::gen::inRange(0, 256); }

RC_GTEST_PROP(NearestColour, IsTheNearestOfTheSystemPalettes, ())
{
    const Rgb colour{ *Component(), *Component(), *Component() };

    for (const Palette palette : { Palette(Palette8), Palette(Palette4), Palette(Palette1) })
        RC_ASSERT(NearestIn(palette).IndexOf(colour.red, colour.green, colour.blue)
            == SearchNearest(palette, colour));
}

RC_GTEST_PROP(NearestColour, IsTheNearestOfAnyPalette, ())
{
    std::vector<Rgb> palette;
    const int count = *rc::gen::inRange(1, 257);
    for (int i = 0; i < count; ++i)
        palette.push_back({ *Component(), *Component(), *Component() });
    NearestColour nearest(palette);

    for (int i = 0; i < 50; ++i) {
        const Rgb colour{ *Component(), *Component(), *Component() };
        RC_ASSERT(nearest.IndexOf(colour.red, colour.green, colour.blue)
            == SearchNearest(palette, colour));
    }
}
#endif

TEST(NearestColour, OfRecentColoursIsTheSameBeforeAndAfterOthers)
{
    NearestColour nearest(Palette8);
    // More colours than are kept, so that they take each other's places; black and white too.
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 20000; ++i) {
            const int step = i * 839 % 0x1000000;
            const Rgb colour =
                i == 0 ? Rgb{ 255, 255, 255 } : Rgb{ step >> 16, step >> 8 & 255, step & 255 };
            ASSERT_EQ(nearest.IndexOfRecent(colour.red, colour.green, colour.blue),
                SearchNearest(Palette8, colour));
            if (i % 64 == 0) {
                ASSERT_EQ(nearest.IndexOfRecent(0, 0, 0), SearchNearest(Palette8, Black));
            }
        }
}

TEST(NearestColour, IsExactOnAGridThroughAllColours)
{
    NearestColour& nearest = NearestIn(Palette8);
    for (int red = 0; red < 256; red += 5)
        for (int green = 0; green < 256; green += 5)
            for (int blue = 0; blue < 256; blue += 5)
                ASSERT_EQ(nearest.IndexOf(red, green, blue),
                    SearchNearest(Palette8, { red, green, blue }))
                    << red << ' ' << green << ' ' << blue;
}

TEST(NearestColour, ATieGoesToTheLowerIndex)
{
    const std::vector<Rgb> palette{ { 20, 0, 0 }, { 10, 0, 0 }, { 0, 0, 0 }, { 0, 0, 0 } };
    NearestColour nearest(palette);

    EXPECT_EQ(nearest.IndexOf(15, 0, 0), 0);
    EXPECT_EQ(nearest.IndexOf(5, 0, 0), 1);
    EXPECT_EQ(nearest.IndexOf(0, 0, 0), 2);
}

TEST(NearestColour, APalettesColourIsItsOwn)
{
    for (const Palette palette : { Palette(Palette8), Palette(Palette4) })
        for (const Rgb& colour : palette) {
            const int index = NearestIn(palette).IndexOf(colour.red, colour.green, colour.blue);
            EXPECT_EQ(palette[static_cast<std::size_t>(index)], colour);
        }
}

TEST(NearestColour, KnowsEvery565ColourByItsWidenedOne)
{
    NearestColour& nearest = NearestIn(Palette8);
    for (int value = 0; value < 65536; ++value)
        ASSERT_EQ(nearest.IndexOf565(static_cast<std::uint16_t>(value)),
            SearchNearest(Palette8, From565(value)))
            << value;
}

#ifdef RC_GTEST_PROP
RC_GTEST_PROP(NearestColour, KnowsThe565ColoursOfAnyPalette, ())
{
    // Of few different colours, so that there are ties.
    std::vector<Rgb> palette;
    const int count = *rc::gen::inRange(1, 257);
    for (int i = 0; i < count; ++i)
        palette.push_back({ *Component() & 0xE0, *Component() & 0xC0, *Component() & 0x80 });
    NearestColour nearest(palette);

    for (int value = 0; value < 65536; value += 331)
        RC_ASSERT(nearest.IndexOf565(static_cast<std::uint16_t>(value))
            == SearchNearest(palette, From565(value)));
}
#endif

TEST(NearestColour, Of565ColoursATieGoesToTheLowerIndex)
{
    // Green 130 lies between 126 and 134; the last entry is farther away than both.
    const std::vector<Rgb> palette{ { 0, 134, 0 }, { 0, 126, 0 }, { 0, 126, 0 }, { 255, 0, 0 } };
    NearestColour nearest(palette);

    EXPECT_EQ(nearest.IndexOf565(To565({ 0, 130, 0 })), 0);
    EXPECT_EQ(nearest.IndexOf565(To565({ 0, 125, 0 })), 1);
    EXPECT_EQ(nearest.IndexOf565(To565({ 255, 0, 0 })), 3);
}

TEST(NearestColour, APaletteHas1To256Colours)
{
    EXPECT_THROW(NearestColour{ Palette() }, std::invalid_argument);
    EXPECT_THROW(NearestColour{ std::vector<Rgb>(257) }, std::invalid_argument);
    EXPECT_EQ(NearestColour(std::vector<Rgb>(256)).IndexOf(1, 2, 3), 0);
}

TEST(Widening, IsRoundedAndNarrowingGoesBack)
{
    for (int v = 0; v < 32; ++v) {
        EXPECT_EQ(Widened5(v), static_cast<int>(v * 255.0 / 31 + 0.5)) << v;
        EXPECT_EQ(Narrowed5(Widened5(v)), v);
    }
    for (int v = 0; v < 64; ++v) {
        EXPECT_EQ(Widened6(v), static_cast<int>(v * 255.0 / 63 + 0.5)) << v;
        EXPECT_EQ(Narrowed6(Widened6(v)), v);
    }
}

TEST(Widening, NarrowingTakesTheNearest)
{
    // In 31sts and 63rds of a step, so that nothing is rounded; ties may go either way.
    for (int component = 0; component < 256; ++component) {
        const auto distance5 = [&](int v) { return std::abs(v * 255 - component * 31); };
        for (int v = 0; v < 32; ++v)
            EXPECT_LE(distance5(Narrowed5(component)), distance5(v)) << component;
        const auto distance6 = [&](int v) { return std::abs(v * 255 - component * 63); };
        for (int v = 0; v < 64; ++v)
            EXPECT_LE(distance6(Narrowed6(component)), distance6(v)) << component;
    }
    for (int v = 0; v < 32; ++v)
        EXPECT_EQ(Narrowed5(Widened5(v)), v);
    for (int v = 0; v < 64; ++v)
        EXPECT_EQ(Narrowed6(Widened6(v)), v);
}

TEST(Palettes, Palette8IsTheOneThatNetpbmKnows)
{
    std::istringstream map(ReadText(TestData("palmcolor8.map")));
    std::string kind;
    int width = 0, height = 0, highest = 0;
    map >> kind >> width >> height >> highest;
    ASSERT_EQ(kind, "P3");
    ASSERT_EQ(width * height, 256);

    for (std::size_t i = 0; i < 256; ++i) {
        Rgb colour;
        map >> colour.red >> colour.green >> colour.blue;
        EXPECT_EQ(Palette8[i], colour) << i;
    }
}

TEST(Palettes, BeginAsTheyShould)
{
    const Rgb first[] = { { 255, 255, 255 }, { 255, 204, 255 }, { 255, 153, 255 },
        { 255, 102, 255 }, { 255, 51, 255 }, { 255, 0, 255 }, { 255, 255, 204 } };
    for (std::size_t i = 0; i < std::size(first); ++i)
        EXPECT_EQ(Palette8[i], first[i]) << i;
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(Palette4[static_cast<std::size_t>(i)].green, 255 - 17 * i);
    EXPECT_EQ(Palette2[1], (Rgb{ 170, 170, 170 }));
    EXPECT_EQ(Palette2[2], (Rgb{ 85, 85, 85 }));
    EXPECT_EQ(Palette1[0], (Rgb{ 255, 255, 255 }));
    EXPECT_EQ(Palette1[1], Black);
}

} // namespace
} // namespace vypx::test
