#include "companion/Reduction.h"
#include "companion/ScaleImg.h"
#include "support/Pixels.h"
#include "support/Properties.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// The transparent colour of most tests, and opaque ones.
constexpr Rgb T{ 255, 0, 255 }, A{ 0, 40, 80 }, B{ 100, 80, 40 }, AandB{ 50, 60, 60 };

Picture Scaled(
    const Picture& source, int width, int height, const ScaleMask& mask = { .transparent = T })
{
    Picture target(width, height);
    ScaleImg(source, target, source.Width(), source.Height(), width, height, mask);
    return target;
}

TEST(ScaleImgMasked, MoreThanHalfTransparentIsTransparentAndHalfIsNot)
{
    // Four blocks side by side with none to three transparent pixels, and a fifth with four.
    const Picture source = Of(10,
        { A, A, A, T, A, T, A, T, T, T, //
            B, B, A, A, B, T, T, T, T, T });

    EXPECT_EQ(Scaled(source, 5, 1), Of(5, { AandB, A, AandB, T, T }));
}

TEST(ScaleImgMasked, PixelsThatAreCoveredInPartCountInPart)
{
    // Each takes one pixel and half of the next.
    EXPECT_EQ(Scaled(Of(3, { A, T, B }), 2, 1), Of(2, { A, B }));
    EXPECT_EQ(Scaled(Of(3, { A, B, T }), 2, 1), Of(2, { { 33, 53, 67 }, T }));
    EXPECT_EQ(Scaled(Of(1, { A, B, T }), 1, 2), Of(1, { { 33, 53, 67 }, T }));
}

/// Ten into seven: the fourth takes half of its area from each of two pixels.
TEST(ScaleImgMasked, AHalfIsAHalfAtAnySize)
{
    const auto fourth = [](Rgb left, Rgb right) {
        std::vector<Rgb> row(10, A);
        row[4] = left;
        row[5] = right;
        return Scaled(Of(10, row), 7, 1).At(3, 0);
    };

    EXPECT_EQ(fourth(T, B), B);
    EXPECT_EQ(fourth(B, T), B);
    EXPECT_EQ(fourth(T, T), T);
}

TEST(ScaleImgMasked, WhereAnAxisGrowsTheWeightsDecide)
{
    // Weights of the left pixel: 1, 3/4, 1/4, 0, and 1, 1/2, 0.
    EXPECT_EQ(Scaled(Of(2, { T, A }), 4, 1), Of(4, { T, T, A, A }));
    EXPECT_EQ(Scaled(Of(2, { B, A }), 4, 1), Of(4, { B, { 75, 70, 50 }, { 25, 50, 70 }, A }));
    EXPECT_EQ(Scaled(Of(2, { T, A }), 3, 1), Of(3, { T, A, A }));
    EXPECT_EQ(Scaled(Of(1, { A, T }), 1, 3), Of(1, { A, A, T }));
}

TEST(ScaleImgMasked, TheTopLeftPixelIsTransparentIfItWasBefore)
{
    const Picture corner = Of(4, { T, A, T, A, A, A, A, A });

    EXPECT_EQ(Scaled(corner, 2, 1), Of(2, { T, A }));
    EXPECT_EQ(Scaled(Of(2, { A, T, A, A }), 1, 1), Of(1, { A })) << "another pixel is not it";
}

TEST(ScaleImgMasked, OnlyThatVeryColourIsTransparent)
{
    const Rgb almost{ 255, 1, 255 }; // the same at 16 bits
    const Picture row = Of(2, { almost, { 1, 1, 1 } });

    EXPECT_EQ(Scaled(row, 1, 1), Of(1, { { 128, 1, 128 } }));
}

TEST(ScaleImgMasked, AnAverageThatReducesToTheMaskTakesTheNearestOtherColour)
{
    const Rgb close{ 254, 2, 254 };
    const Picture row = Of(2, { close, close });

    EXPECT_EQ(Scaled(row, 1, 1, { T, 8 }), Of(1, { { 255, 51, 255 } }));
    EXPECT_EQ(Scaled(row, 1, 1, { T, 16 }), Of(1, { { 255, 4, 255 } }));
    const Rgb grey{ 170, 170, 170 }, lighter{ 187, 187, 187 }, darker{ 153, 153, 153 };
    EXPECT_EQ(Scaled(Of(2, { darker, lighter }), 1, 1, { grey, 4 }), Of(1, { lighter }));
    EXPECT_EQ(Scaled(Of(2, { T, grey }), 2, 1, { T, 4 }), Of(2, { T, lighter }))
        << "at its own size as well";
}

TEST(ScaleImgMasked, OnlyTheNamedPartsAreReadAndWritten)
{
    const Picture source = Of(3, { A, B, T, B, A, T, T, T, T });
    Picture target = Of(2, { T, B, B, B });

    ScaleImg(source, target, 2, 2, 1, 1, { .transparent = T });
    ScaleImg(source, target, 4, 1, 1, 1, { .transparent = T });
    ScaleImg(source, target, 1, 1, 3, 1, { .transparent = T });
    ScaleImg(source, target, 1, 1, 1, 0, { .transparent = T });

    EXPECT_EQ(target, Of(2, { AandB, B, B, B }));
}

/// How much of each source position a target position takes, counted: one that shrinks unit by
/// unit, each source position being cut into `target` of them; one that grows by how near the
/// centres are.
std::vector<std::uint64_t> Weights(int source, int target, int at)
{
    std::vector<std::uint64_t> weights(static_cast<std::size_t>(source));
    if (target <= source) {
        for (int unit = at * source; unit < (at + 1) * source; ++unit)
            ++weights[static_cast<std::size_t>(unit / target)];
        return weights;
    }
    const int centre = std::clamp((2 * at + 1) * source - target, 0, (source - 1) * 2 * target);
    for (int i = 0; i < source; ++i)
        weights[static_cast<std::size_t>(i)] =
            static_cast<std::uint64_t>(std::max(0, 2 * target - std::abs(centre - 2 * target * i)));
    return weights;
}

Rgb SlowPixel(const Picture& source, const std::vector<std::uint64_t>& across,
    const std::vector<std::uint64_t>& down, const ScaleMask& mask)
{
    std::uint64_t all = 0, opaque = 0, red = 0, green = 0, blue = 0;
    for (int y = 0; y < source.Height(); ++y)
        for (int x = 0; x < source.Width(); ++x) {
            const std::uint64_t weight =
                across[static_cast<std::size_t>(x)] * down[static_cast<std::size_t>(y)];
            const Rgb colour = source.At(x, y);
            all += weight;
            if (colour == mask.transparent)
                continue;
            opaque += weight;
            red += weight * static_cast<std::uint64_t>(colour.red);
            green += weight * static_cast<std::uint64_t>(colour.green);
            blue += weight * static_cast<std::uint64_t>(colour.blue);
        }
    if (all - opaque > opaque)
        return mask.transparent;
    const auto rounded = [&](std::uint64_t sum) {
        return static_cast<int>(sum / opaque + (sum % opaque * 2 >= opaque ? 1 : 0));
    };
    const Rgb colour{ rounded(red), rounded(green), rounded(blue) };
    return Reduced(colour, mask.depth) == Reduced(mask.transparent, mask.depth)
        ? NearestOther(colour, mask.transparent, mask.depth)
        : colour;
}

#ifdef RC_GTEST_PROP
/// A picture of few colours, near each other, one of them transparent.
Picture FewColours(int width, int height, Rgb transparent, int spread)
{
    const auto part = [&](int component) {
        return std::clamp(component + *rc::gen::inRange(-spread, spread + 1), 0, 255);
    };
    std::vector<Rgb> colours{ transparent, transparent };
    for (int i = 0; i < 4; ++i)
        colours.push_back(
            { part(transparent.red), part(transparent.green), part(transparent.blue) });
    return Of(width,
        *rc::gen::container<std::vector<Rgb>>(
            static_cast<std::size_t>(width * height), rc::gen::elementOf(colours)));
}

RC_GTEST_PROP(ScaleImgMasked, IsWhatCountingUnitByUnitGives, ())
{
    const auto side = rc::gen::inRange(1, 16);
    const auto component = rc::gen::inRange(0, 256);
    const ScaleMask mask{ .transparent = { *component, *component, *component },
        .depth = *rc::gen::element(4, 8, 16) };
    const Picture source =
        FewColours(*side, *side, mask.transparent, *rc::gen::element(2, 30, 255));
    const int width = *side, height = *side;

    const Picture target = Scaled(source, width, height, mask);

    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const bool isCorner = x == 0 && y == 0 && source.At(0, 0) == mask.transparent;
            RC_ASSERT(target.At(x, y)
                == (isCorner ? mask.transparent
                             : SlowPixel(source, Weights(source.Width(), width, x),
                                 Weights(source.Height(), height, y), mask)));
        }
}

RC_GTEST_PROP(ScaleImgMasked, WithoutTransparentPixelsIsThePictureScaledWithoutAMask, ())
{
    // Greys, which are far from the mask at 16 bits.
    const int width = *rc::gen::inRange(1, 40), height = *rc::gen::inRange(1, 40);
    Picture source(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int grey = *rc::gen::inRange(0, 256);
            source.Set(x, y, { grey, grey, grey });
        }
    Picture target(*rc::gen::inRange(1, 60), *rc::gen::inRange(1, 60));
    ScaleImg(source, target, width, height, target.Width(), target.Height());

    const Picture masked = Scaled(source, target.Width(), target.Height());

    // The one without a mask works in floating point, and may round a half down.
    for (int y = 0; y < target.Height(); ++y)
        for (int x = 0; x < target.Width(); ++x)
            RC_ASSERT(std::abs(target.At(x, y).green - masked.At(x, y).green) <= 1);
}
#endif

/// The sums of the longest rows and columns still fit their types.
TEST(ScaleImgMasked, LongSidesDoNotOverflow)
{
    const Rgb white{ 255, 255, 255 };
    const Picture line = Of(65535, std::vector<Rgb>(65535, white));
    const Picture column = Of(1, std::vector<Rgb>(65535, white));

    EXPECT_EQ(Scaled(line, 1, 1), Of(1, { white }));
    EXPECT_EQ(Scaled(column, 1, 1), Of(1, { white }));
    EXPECT_EQ(Scaled(line, 65534, 1), Of(65534, std::vector<Rgb>(65534, white)));
    EXPECT_EQ(Scaled(Of(65534, std::vector<Rgb>(65534, white)), 65535, 1), line);
    Picture large(65535, 2);
    ScaleImg(Of(2, { white, white }), large, 2, 1, 65535, 2, { .transparent = T });
    EXPECT_EQ(large.At(32767, 1), white);
}

} // namespace
} // namespace vypx::test
