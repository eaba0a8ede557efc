#include "imaging/CropResult.h"

#include "companion/Reduction.h"
#include "support/Netpbm.h"
#include "support/Pixels.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

namespace vypx::test {

namespace {

/// The transparent colour of most tests, opaque ones and a border.
constexpr Rgb T{ 255, 0, 255 }, A{ 0, 40, 80 }, B{ 100, 80, 40 }, White{ 255, 255, 255 };

int LargestDifference(const Picture& one, const Picture& other)
{
    int largest = 0;
    for (int y = 0; y < one.Height(); ++y)
        for (int i = 0; i < one.Width() * 3; ++i)
            largest = std::max(largest, std::abs(one.Row(y)[i] - other.Row(y)[i]));
    return largest;
}

std::string PamcutOptions(const PixelRegion& region)
{
    return "-left=" + std::to_string(region.left) + " -top=" + std::to_string(region.top)
        + " -width=" + std::to_string(region.width) + " -height=" + std::to_string(region.height);
}

/// Beside what netpbm makes of the same file.
class CropBesideNetpbm : public ::testing::Test {
protected:
    CropBesideNetpbm() { WritePpm(path, source); }

    const TempFolder folder;
    const std::string path = folder.File("source.ppm");
    const Picture source = Noise(300, 230);
};

/// A picture of 3 x 2 pixels: six colours of which no two are equal.
class CutRegionOfSix : public ::testing::Test {
protected:
    static constexpr Rgb a{ 1, 0, 0 }, b{ 2, 0, 0 }, c{ 3, 0, 0 }, d{ 4, 0, 0 }, e{ 5, 0, 0 },
        f{ 6, 0, 0 }, o{ 7, 8, 9 };
    const MaskedPicture six{ Of(3, { a, b, c, d, e, f }) };

    Picture Cut(const PixelRegion& region) const { return CutRegion(six, region, o).pixels; }
};

} // namespace

TEST_F(CutRegionOfSix, InsideItIsThatPartOfThePicture)
{
    EXPECT_EQ(Cut({ 0, 0, 3, 2 }), six.pixels);
    EXPECT_EQ(Cut({ 1, 0, 2, 1 }), Of(2, { b, c }));
    EXPECT_EQ(Cut({ 0, 1, 2, 1 }), Of(2, { d, e }));
    EXPECT_EQ(Cut({ 2, 1, 1, 1 }), Of(1, { f }));
}

TEST_F(CutRegionOfSix, OverAnEdgeTheRestIsBorder)
{
    EXPECT_EQ(Cut({ -1, 0, 2, 2 }), Of(2, { o, a, o, d }));
    EXPECT_EQ(Cut({ 2, 0, 2, 2 }), Of(2, { c, o, f, o }));
    EXPECT_EQ(Cut({ 1, -1, 1, 2 }), Of(1, { o, b }));
    EXPECT_EQ(Cut({ 1, 1, 1, 3 }), Of(1, { e, o, o }));
}

TEST_F(CutRegionOfSix, OverACornerTheRestIsBorder)
{
    EXPECT_EQ(Cut({ -1, -1, 2, 2 }), Of(2, { o, o, o, a }));
    EXPECT_EQ(Cut({ 2, -1, 2, 2 }), Of(2, { o, o, c, o }));
    EXPECT_EQ(Cut({ -1, 1, 2, 2 }), Of(2, { o, d, o, o }));
    EXPECT_EQ(Cut({ 2, 1, 2, 2 }), Of(2, { f, o, o, o }));
}

TEST_F(CutRegionOfSix, OverAllEdgesThePictureIsWhole)
{
    EXPECT_EQ(Cut({ -1, -1, 5, 4 }),
        Of(5, { o, o, o, o, o, o, a, b, c, o, o, d, e, f, o, o, o, o, o, o }));
}

TEST_F(CutRegionOfSix, OutsideAllIsBorder)
{
    for (const PixelRegion& region :
        { PixelRegion{ -2, 0, 2, 1 }, { 3, 0, 2, 1 }, { 0, -1, 2, 1 }, { 0, 2, 2, 1 },
            { -9, -9, 2, 1 }, { 99, 99, 2, 1 }, { INT_MIN, 0, 2, 1 }, { 0, INT_MAX, 2, 1 } })
        EXPECT_EQ(Cut(region), Of(2, { o, o })) << region.left << ' ' << region.top;
}

TEST_F(CutRegionOfSix, WithoutASizeOrBeyondAPicturesSidesItIsNone)
{
    for (const PixelRegion& region : { PixelRegion{ 0, 0, 0, 1 }, { 0, 0, 1, 0 }, { 0, 0, -1, 1 },
             { 0, 0, Picture::MaxSide + 1, 1 }, { 0, 0, 1, Picture::MaxSide + 1 } })
        EXPECT_THROW(Cut(region), std::length_error);
}

TEST_F(CropBesideNetpbm, RegionsAreTheSame)
{
    SKIP_WITHOUT_NETPBM();
    // Inside, over each edge and corner, over all, outside; pamcut takes no place left of a
    // picture, so it cuts from one with a border all round.
    constexpr int padded = 150;
    for (const PixelRegion& region : { PixelRegion{ 0, 0, 300, 230 }, { 13, 7, 64, 44 },
             { 299, 229, 1, 1 }, { -5, 8, 30, 22 }, { 280, 8, 30, 22 }, { 20, -3, 30, 22 },
             { 20, 220, 30, 22 }, { -5, -3, 30, 22 }, { 280, -3, 30, 22 }, { -5, 220, 30, 22 },
             { 280, 220, 30, 22 }, { -10, -20, 350, 350 }, { 300, 5, 30, 22 } }) {
        const PixelRegion inPadded{ region.left + padded, region.top + padded, region.width,
            region.height };
        EXPECT_EQ(CutRegion({ source }, region, Black).pixels,
            PictureFrom("pnmpad -black -left=150 -right=150 -top=150 -bottom=150 '" + path
                + "' | pamcut " + PamcutOptions(inPadded)))
            << PamcutOptions(region);
    }
}

TEST(CutRegion, TransparentPixelsKeepTheirColour)
{
    const MaskedPicture source{ Of(3, { A, T, B, T, B, A }), T };

    const MaskedPicture cut = CutRegion(source, { 1, 0, 3, 2 }, White);

    EXPECT_EQ(cut.pixels, Of(3, { T, B, White, B, A, White }));
    EXPECT_EQ(cut.transparent, T);
}

TEST(CutRegion, ABorderOfTheTransparentColourIsOpaque)
{
    const MaskedPicture source{ Of(2, { T, A, B, T }), T };

    const MaskedPicture cut = CutRegion(source, { -1, 0, 4, 2 }, T);

    ASSERT_TRUE(cut.transparent);
    const Rgb other = *cut.transparent;
    EXPECT_NE(other, T);
    EXPECT_EQ(cut.pixels, Of(4, { T, other, A, T, T, B, other, T }));
}

TEST(CutRegion, WithoutTransparentPixelsItIsOpaque)
{
    const MaskedPicture source{ Of(3, { A, B, T }), T };

    for (const Rgb border : { White, T }) {
        const MaskedPicture cut = CutRegion(source, { -1, 0, 3, 1 }, border);

        EXPECT_EQ(cut.pixels, Of(3, { border, A, B }));
        EXPECT_EQ(cut.transparent, std::nullopt);
    }
    EXPECT_EQ(CutRegion(source, { 0, 0, 2, 1 }, T).transparent, std::nullopt);
    EXPECT_EQ(CutRegion(source, { 9, 9, 2, 1 }, T).transparent, std::nullopt) << "outside";
    EXPECT_EQ(CutRegion(source, { 2, 0, 1, 1 }, White).transparent, T);
}

/// Almost the transparent colour and the same at every depth, but not of it.
TEST(CutRegion, AnOpaqueOneKeepsColoursThatThePicturesMaskWouldMove)
{
    const Rgb almost{ 254, 2, 254 };
    const MaskedPicture source{ Of(3, { almost, almost, T }), T };

    const MaskedPicture cut = CutRegion(source, { 0, 0, 2, 1 }, White);

    EXPECT_EQ(ScaleCropResult(cut, { 1, 1 }, ColorDepth::Bits8).pixels, Of(1, { almost }));
}

TEST(ScaleCropResult, HasExactlyTheTargetsSize)
{
    for (const PixelSize target : { PixelSize{ 64, 44 }, { 30, 22 }, { 32, 22 }, { 15, 11 },
             { 44, 44 }, { 22, 22 }, { 11, 11 } })
        for (const PixelSize source :
            { PixelSize{ 1, 1 }, { 500, 1 }, { 1, 500 }, { 65, 44 }, { 64, 44 }, { 400, 300 } })
            for (const auto& transparent : { std::optional<Rgb>(), std::optional(Black) }) {
                const Picture scaled =
                    ScaleCropResult({ Picture(source.width, source.height), transparent }, target,
                        ColorDepth::Bits16)
                        .pixels;

                EXPECT_EQ(scaled, Picture(target.width, target.height)) << "black all over";
            }
}

TEST(ScaleCropResult, OfTheTargetsSizeIsTheSamePicture)
{
    const Picture source = Noise(30, 22);

    EXPECT_EQ(ScaleCropResult({ source }, { 30, 22 }, ColorDepth::Bits4).pixels, source);
}

/// One level of 255: both add up broken weights in their own order and round at the end.
TEST_F(CropBesideNetpbm, AreaAveragesAreTheSameWithinALevel)
{
    SKIP_WITHOUT_NETPBM();
    const struct {
        PixelRegion region;
        PixelSize target;
    } cases[] = { { { 0, 0, 300, 230 }, { 64, 44 } }, { { 17, 31, 128, 88 }, { 64, 44 } },
        { { 200, 130, 97, 67 }, { 30, 22 } }, { { 3, 5, 33, 23 }, { 32, 22 } },
        { { 100, 0, 16, 230 }, { 15, 11 } }, { { 250, 200, 50, 30 }, { 11, 11 } } };

    for (const auto& [region, target] : cases) {
        const Picture scaled =
            ScaleCropResult(CutRegion({ source }, region, White), target, ColorDepth::Bits16)
                .pixels;

        const Picture witness = PictureFrom("pamcut " + PamcutOptions(region) + " '" + path
            + "' | pamscale -linear -xsize=" + std::to_string(target.width)
            + " -ysize=" + std::to_string(target.height));
        ASSERT_EQ(scaled.Width(), witness.Width());
        ASSERT_EQ(scaled.Height(), witness.Height());
        EXPECT_LE(LargestDifference(scaled, witness), 1) << PamcutOptions(region);
    }
}

TEST(ScaleCropResult, NeverMixesTransparentPixelsWithOthers)
{
    const MaskedPicture source{ Of(6, { A, T, A, A, T, T, A, A, T, T, T, A }), T };

    const MaskedPicture scaled = ScaleCropResult(source, { 3, 1 }, ColorDepth::Bits16);

    EXPECT_EQ(scaled.pixels, Of(3, { A, A, T }));
    EXPECT_EQ(scaled.transparent, T);
}

TEST(ScaleCropResult, ATransparentCornerOfTheRegionStaysOne)
{
    const MaskedPicture source{ Of(4, { A, A, A, A, A, T, A, A, A, A, A, A }), T };
    const auto corner = [&](const PixelRegion& region) {
        return ScaleCropResult(CutRegion(source, region, White), { 1, 1 }, ColorDepth::Bits16)
            .pixels.At(0, 0);
    };

    EXPECT_EQ(corner({ 1, 1, 3, 2 }), T) << "though most of it is opaque";
    EXPECT_EQ(corner({ 0, 0, 3, 2 }), A) << "the picture's own corner";
    EXPECT_EQ(corner({ 1, 0, 3, 3 }), A);
}

/// As it is stored: whatever the border's colour becomes at a depth, no pixel of it is of the
/// mask's.
TEST(ScaleCropResult, TheBorderIsOpaqueAtEveryDepth)
{
    const Rgb almostWhite{ 255, 255, 254 };
    for (const Rgb transparent : { T, White, almostWhite })
        for (const Rgb border : { White, T, almostWhite })
            for (const ColorDepth depth :
                { ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16 }) {
                // Transparent on the left, A on the right; two columns of border behind that.
                const MaskedPicture source{ Of(2, { transparent, A, transparent, A }),
                    transparent };

                const Picture stored = ReadyToStore(
                    ScaleCropResult(CutRegion(source, { 0, 0, 4, 2 }, border), { 8, 2 }, depth),
                    BitsOf(depth));

                const Rgb mask = Reduced(stored.At(0, 0), BitsOf(depth));
                for (int x = 0; x < 8; ++x)
                    for (int y = 0; y < 2; ++y)
                        EXPECT_EQ(Reduced(stored.At(x, y), BitsOf(depth)) == mask, x < 2)
                            << x << " of " << static_cast<int>(depth);
            }
}

} // namespace vypx::test
