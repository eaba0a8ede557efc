#include "companion/Reduction.h"

#include "companion/BmpFile.h"
#include "companion/PixelLibrary.h"
#include "support/Files.h"
#include "support/Pixels.h"
#include "support/Properties.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace vypx::test {

namespace {

constexpr Rgb Magenta{ 255, 0, 255 }, NoOpaque{ 1, 2, 3 };

/// All colours of a depth, in the order of their indexes or values.
std::vector<Rgb> ColoursAt(int depth)
{
    if (depth == 4)
        return { Palette4.begin(), Palette4.end() };
    if (depth == 8)
        return { Palette8.begin(), Palette8.end() };
    std::vector<Rgb> colours;
    const auto wide = [](int v, int most) { return static_cast<int>(v * 255.0 / most + 0.5); };
    for (int red = 0; red < 32; ++red)
        for (int green = 0; green < 64; ++green)
            for (int blue = 0; blue < 32; ++blue)
                colours.push_back({ wide(red, 31), wide(green, 63), wide(blue, 31) });
    return colours;
}

int Squares(Rgb a, Rgb b)
{
    return (a.red - b.red) * (a.red - b.red) + (a.green - b.green) * (a.green - b.green)
        + (a.blue - b.blue) * (a.blue - b.blue);
}

/// The first of the nearest.
Rgb Search(const std::vector<Rgb>& colours, Rgb colour, const std::set<std::uint32_t>& without = {})
{
    const Rgb* nearest = nullptr;
    for (const Rgb& one : colours)
        if (!without.contains(PackedColour(one))
            && (!nearest || Squares(one, colour) < Squares(*nearest, colour)))
            nearest = &one;
    return *nearest;
}

Picture Row(const std::vector<Rgb>& colours)
{
    Picture row(static_cast<int>(colours.size()), 1);
    for (int x = 0; x < row.Width(); ++x)
        row.Set(x, 0, colours[static_cast<std::size_t>(x)]);
    return row;
}

std::vector<Rgb> Pixels(const Picture& picture)
{
    std::vector<Rgb> pixels;
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            pixels.push_back(picture.At(x, y));
    return pixels;
}

/// A row with `NoOpaque` for its transparent pixels, made ready.
std::vector<Rgb> Ready(const std::vector<Rgb>& row, int depth)
{
    return Pixels(ReadyToStore({ .pixels = Row(row), .transparent = NoOpaque }, depth));
}

TEST(Reduced, IsTheNearestGreyTheNearestSystemColourOr565)
{
    EXPECT_EQ(Reduced(GreyOf(100), 4), GreyOf(102));
    EXPECT_EQ(Reduced(Red, 4), GreyOf(85)) << "their mean";
    EXPECT_EQ(Reduced({ 250, 210, 20 }, 8), (Rgb{ 255, 204, 0 }));
    EXPECT_EQ(Reduced({ 5, 3, 4 }, 16), (Rgb{ 8, 4, 0 })) << "a step is 255/31, 255/63";
}

#ifdef RC_GTEST_PROP
rc::Gen<Rgb> AnyColour()
{
    const auto component = rc::gen::inRange(0, 256);
    return rc::gen::map(rc::gen::tuple(component, component, component), [](const auto& parts) {
        return Rgb{ std::get<0>(parts), std::get<1>(parts), std::get<2>(parts) };
    });
}
#endif

int Near(int component, int by) { return std::clamp(component + by, 0, 255); }

TEST(NearestOther, IsTheReductionWhereThatIsAnotherOne)
{
    EXPECT_EQ(NearestOther(GreyOf(100), GreyOf(120), 4), GreyOf(102));
    EXPECT_EQ(NearestOther(Red, { 255, 9, 0 }, 16), Red);
}

TEST(NearestOther, OfTwoAsNearTakesTheLowerIndexOrValue)
{
    EXPECT_EQ(NearestOther(GreyOf(102), GreyOf(100), 4), GreyOf(119));
    EXPECT_EQ(NearestOther(Magenta, Magenta, 8), (Rgb{ 255, 51, 255 }));
    // Green goes by fours there, so black and 0, 8, 0 are nearest.
    EXPECT_EQ(NearestOther({ 0, 4, 0 }, { 0, 4, 0 }, 16), Black);
    // Each component is as far from the level below as from the one above: eight colours are as
    // near.
    EXPECT_EQ(NearestOther({ 29, 47, 29 }, { 33, 49, 33 }, 16), (Rgb{ 25, 45, 25 }));
}

/// Black ends the 8-bit palette many times over.
TEST(NearestOther, OfARepeatedEntryIsAnotherColour)
{
    EXPECT_EQ(NearestOther(Black, Black, 8), GreyOf(17));
}

#ifdef RC_GTEST_PROP
RC_GTEST_PROP(NearestOther, IsFoundByASearchOfAllColours, ())
{
    const int depth = *rc::gen::element(4, 8, 16), by = depth == 16 ? 5 : 30;
    const Rgb other = *AnyColour();
    const auto change = rc::gen::inRange(-by, by + 1);
    const Rgb colour{ Near(other.red, *change), Near(other.green, *change),
        Near(other.blue, *change) };
    const std::vector<Rgb> colours = ColoursAt(depth);

    const Rgb own = Reduced(colour, depth), taken = Reduced(other, depth);
    RC_ASSERT(Squares(own, colour) == Squares(Search(colours, colour), colour));
    RC_ASSERT(NearestOther(colour, other, depth)
        == (own != taken ? own : Search(colours, colour, { PackedColour(taken) })));
}
#endif

TEST(ReadyToStore, APictureWithoutTransparentPixelsIsUnchanged)
{
    const Picture picture = Row({ GreyOf(100), GreyOf(7), Magenta });

    EXPECT_EQ(ReadyToStore({ .pixels = picture }, 4), picture);
    EXPECT_EQ(ReadyToStore({ .pixels = picture, .transparent = NoOpaque }, 4), picture);
}

TEST(ReadyToStore, At4BitsTransparentPixelsGetTheFreeGreyNearestToMagenta)
{
    EXPECT_EQ(Ready({ NoOpaque, GreyOf(100) }, 4), (std::vector{ GreyOf(170), GreyOf(102) }));
    // 170 is taken; 187 and 153 are as near.
    EXPECT_EQ(Ready({ GreyOf(168), NoOpaque }, 4), (std::vector{ GreyOf(170), GreyOf(187) }));
    EXPECT_EQ(Ready({ GreyOf(168), GreyOf(190), NoOpaque }, 4),
        (std::vector{ GreyOf(170), GreyOf(187), GreyOf(153) }));
}

TEST(ReadyToStore, At8BitsOpaquePixelsThatReduceToMagentaTakeIt)
{
    EXPECT_EQ(
        Ready({ { 250, 210, 20 }, NoOpaque }, 8), (std::vector{ Rgb{ 255, 204, 0 }, Magenta }));
    EXPECT_EQ(Ready({ { 254, 1, 250 }, NoOpaque }, 8), (std::vector{ Magenta, { 255, 51, 255 } }));
}

TEST(ReadyToStore, At16BitsOpaquePixelsKeepTheir24Bits)
{
    EXPECT_EQ(
        Ready({ { 250, 210, 20 }, NoOpaque }, 16), (std::vector{ Rgb{ 250, 210, 20 }, Magenta }));
    // 254, 1, 253 has magenta's 5-6-5 value; a step of green is the shortest.
    EXPECT_EQ(Ready({ { 254, 1, 253 }, NoOpaque }, 16),
        (std::vector{ Rgb{ 254, 1, 253 }, { 255, 4, 255 } }));
}

TEST(ReadyToStore, MagentaMayBeTheTransparentColourItself)
{
    const MaskedPicture picture{ .pixels = Row({ Magenta, GreyOf(9) }), .transparent = Magenta };

    EXPECT_EQ(ReadyToStore(picture, 16), picture.pixels);
    EXPECT_EQ(Pixels(ReadyToStore(picture, 8)), (std::vector{ Magenta, GreyOf(17) }));
}

TEST(ReadyToStore, APictureOfTransparentPixelsAloneIsMagenta)
{
    EXPECT_EQ(Ready({ NoOpaque, NoOpaque }, 4), (std::vector{ GreyOf(170), GreyOf(170) }));
    EXPECT_EQ(Ready({ NoOpaque, NoOpaque }, 16), (std::vector{ Magenta, Magenta }));
}

/// Every grey twice but for one.
std::vector<Rgb> AllGreysTwiceBut(int once)
{
    std::vector<Rgb> row(Palette4.begin(), Palette4.end());
    for (const Rgb& grey : Palette4)
        if (grey != GreyOf(once))
            row.push_back(grey);
    return row;
}

TEST(ReadyToStore, WithoutAFreeColourTheRarestMovesToItsNeighbour)
{
    std::vector<Rgb> row = AllGreysTwiceBut(51);
    row.push_back(NoOpaque);

    std::vector<Rgb> expected = row;
    expected[12] = GreyOf(68); // the grey 51; 34 is as near
    expected.back() = GreyOf(51);
    EXPECT_EQ(Ready(row, 4), expected);
}

TEST(ReadyToStore, TheColourOfTheTopLeftPixelIsNeverFreed)
{
    std::vector<Rgb> row = AllGreysTwiceBut(51);
    row.push_back(NoOpaque);
    std::swap(row[0], row[12]); // the only 51 comes first, a white one in its place

    std::vector<Rgb> expected = row;
    for (Rgb& pixel : expected)
        if (pixel == GreyOf(255)) // the first of all that come twice
            pixel = GreyOf(238);
    expected.back() = GreyOf(255);
    EXPECT_EQ(Ready(row, 4), expected);
}

TEST(ReadyToStore, ATransparentTopLeftPixelExemptsNoColour)
{
    std::vector<Rgb> row = AllGreysTwiceBut(51);
    row.insert(row.begin(), NoOpaque);

    std::vector<Rgb> expected = row;
    expected[13] = GreyOf(68);
    expected[0] = GreyOf(51);
    EXPECT_EQ(Ready(row, 4), expected);
}

TEST(ReadyToStore, RepeatedBlackOfThePaletteIsNotFree)
{
    std::vector<Rgb> row(Palette8.begin(), Palette8.end());
    row.push_back(NoOpaque);

    // Of all but black, which comes often, each is there once; the first is the top-left pixel's.
    std::vector<Rgb> expected = row;
    expected[1] = GreyOf(238); // nearer to 255, 204, 255 than a step of the cube
    expected.back() = { 255, 204, 255 };
    EXPECT_EQ(Ready(row, 8), expected);
}

TEST(ReadyToStore, At16BitsAValueIsFreedWhenAllAreTaken)
{
    std::vector<Rgb> row = ColoursAt(16);
    Picture all(256, 257);
    for (std::size_t i = 0; i < row.size(); ++i)
        all.Set(static_cast<int>(i % 256), static_cast<int>(i / 256), row[i]);
    for (int x = 0; x < 256; ++x)
        all.Set(x, 256, NoOpaque);

    const Picture ready = ReadyToStore({ .pixels = all, .transparent = NoOpaque }, 16);

    // Black is the top-left pixel's; the value 1 is 0, 0, 8, and a step of green the shortest.
    Picture expected = all;
    expected.Set(1, 0, { 0, 4, 8 });
    for (int x = 0; x < 256; ++x)
        expected.Set(x, 256, { 0, 0, 8 });
    EXPECT_EQ(ready, expected);
}

void Write(const Picture& picture, int depth, const std::string& path)
{
    if (depth == 4)
        WriteBmp4(picture, Palette4, picture.Width(), picture.Height(), path);
    else if (depth == 8)
        WriteBmp8(picture, Palette8, picture.Width(), picture.Height(), path);
    else
        WriteBmp24(picture, picture.Width(), picture.Height(), path);
}

#ifdef RC_GTEST_PROP
/// Of few colours or of many, so that there are pictures with and without a free one.
RC_GTEST_PROP(ReadyToStore, TransparentPixelsAreToldFromAllOthersInTheFile, ())
{
    const int depth = *rc::gen::element(4, 8, 16);
    const auto pixels =
        *rc::gen::container<std::vector<Rgb>>(*rc::gen::inRange<std::size_t>(1, 400), AnyColour());
    const Rgb transparent = *rc::gen::elementOf(pixels);
    const TempFolder folder;
    const std::string path = folder.File("ready.bmp");

    const MaskedPicture picture{ .pixels = Row(pixels), .transparent = transparent };
    Write(ReadyToStore(picture, depth), depth, path);
    const std::vector<Rgb> stored = Pixels(DecodeBmp(ReadBytes(path)).value());

    std::set<std::uint32_t> masks, opaque, before;
    int moved = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::uint32_t colour = PackedColour(Reduced(stored[i], depth));
        (pixels[i] == transparent ? masks : opaque).insert(colour);
        if (pixels[i] == transparent)
            continue;
        before.insert(PackedColour(Reduced(pixels[i], depth)));
        moved += colour != PackedColour(Reduced(pixels[i], depth)) ? 1 : 0;
    }
    RC_ASSERT(masks.size() == 1u);
    RC_ASSERT(!opaque.contains(*masks.begin()));
    RC_ASSERT((moved > 0) == (depth == 4 && before.size() == 16u));
}
#endif

} // namespace
} // namespace vypx::test
