#include "companion/ScaleImg.h"

#include "support/Netpbm.h"
#include "support/Properties.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <random>

namespace vypx::test {

namespace {

Picture Greys(int width, int height, const std::vector<int>& values)
{
    Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int v = values[static_cast<std::size_t>(y * width + x)];
            picture.Set(x, y, { v, v, v });
        }
    return picture;
}

Picture Scaled(const Picture& source, int width, int height)
{
    Picture target(width, height);
    ScaleImg(source, target, source.Width(), source.Height(), width, height);
    return target;
}

std::vector<int> FirstRow(const Picture& picture)
{
    std::vector<int> values;
    for (int x = 0; x < picture.Width(); ++x)
        values.push_back(picture.At(x, 0).green);
    return values;
}

TEST(ScaleImg, HalvingAveragesFourPixels)
{
    const Picture source = Greys(4, 2, { 0, 100, 200, 200, 100, 200, 0, 40 });

    EXPECT_EQ(FirstRow(Scaled(source, 2, 1)), (std::vector<int>{ 100, 110 }));
}

TEST(ScaleImg, PixelsThatAreCoveredInPartCountInPart)
{
    // Three pixels into two: each takes one and a half.
    const Picture source = Greys(3, 1, { 0, 90, 180 });

    EXPECT_EQ(FirstRow(Scaled(source, 2, 1)), (std::vector<int>{ 30, 150 }));
}

TEST(ScaleImg, TheSameSizeIsTheSamePicture)
{
    const Picture source = Greys(3, 2, { 1, 2, 3, 253, 254, 255 });

    EXPECT_EQ(Scaled(source, 3, 2), source);
}

TEST(ScaleImg, GrowingIsSmoothAndHoldsTheEdges)
{
    const Picture source = Greys(2, 1, { 0, 200 });

    EXPECT_EQ(FirstRow(Scaled(source, 4, 1)), (std::vector<int>{ 0, 50, 150, 200 }));
}

TEST(ScaleImg, GrowingEndsInTheLastPixelOfEachRowAndColumn)
{
    // Centres of the source at -1/4, 1/4, 3/4, 5/4, 7/4 and 9/4 along both axes.
    const Picture source = Greys(3, 3, { 0, 40, 200, 0, 40, 200, 100, 140, 240 });

    const Picture target = Scaled(source, 6, 6);

    EXPECT_EQ(FirstRow(target), (std::vector<int>{ 0, 10, 30, 80, 160, 200 }));
    const int lastColumn[] = { 200, 200, 200, 210, 230, 240 };
    for (int y = 0; y < 6; ++y)
        EXPECT_EQ(target.At(5, y).red, lastColumn[y]) << y;
}

/// What lies right of the part and below it is another picture's.
TEST(ScaleImg, APartIsScaledWithoutItsSurroundings)
{
    const Picture source = Greys(3, 3, { 10, 30, 255, 10, 30, 255, 255, 255, 255 });
    Picture grown(4, 4), shrunk(1, 1), wider(4, 1);

    ScaleImg(source, grown, 2, 2, 4, 4);
    ScaleImg(source, shrunk, 2, 2, 1, 1);
    ScaleImg(source, wider, 2, 2, 4, 1);

    for (int y = 0; y < 4; ++y) {
        const int row[] = { 10, 15, 25, 30 };
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(grown.At(x, y).green, row[x]) << x << ' ' << y;
    }
    EXPECT_EQ(shrunk.At(0, 0).green, 20);
    EXPECT_EQ(FirstRow(wider), (std::vector<int>{ 10, 15, 25, 30 }));
}

TEST(ScaleImg, OnlyThePartOfTheTargetIsWritten)
{
    const Picture source = Greys(1, 1, { 9 });
    Picture target = Greys(3, 3, { 1, 1, 1, 1, 1, 1, 1, 1, 1 });

    ScaleImg(source, target, 1, 1, 2, 2);

    EXPECT_EQ(target, Greys(3, 3, { 9, 9, 1, 9, 9, 1, 1, 1, 1 }));
}

/// Five pixels into two: each takes two and a half, the middle one goes to both by halves.
TEST(ScaleImg, ShrinkingWeighsAllPixelsBetweenTheOuterOnes)
{
    const Picture row = Greys(5, 1, { 10, 20, 40, 60, 80 });
    const Picture column = Greys(1, 5, { 10, 20, 40, 60, 80 });

    EXPECT_EQ(FirstRow(Scaled(row, 2, 1)), (std::vector<int>{ 20, 64 }));
    EXPECT_EQ(Scaled(column, 1, 2).At(0, 0).blue, 20);
    EXPECT_EQ(Scaled(column, 1, 2).At(0, 1).blue, 64);
}

TEST(ScaleImg, HalvesAreRoundedUp)
{
    EXPECT_EQ(FirstRow(Scaled(Greys(2, 1, { 4, 5 }), 1, 1)), (std::vector<int>{ 5 }));
    EXPECT_EQ(FirstRow(Scaled(Greys(4, 1, { 4, 4, 4, 5 }), 1, 1)), (std::vector<int>{ 4 }));
}

TEST(ScaleImg, OnePixelFillsEverything)
{
    Picture source(1, 1);
    source.Set(0, 0, { 10, 20, 30 });

    const Picture target = Scaled(source, 7, 5);

    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x)
            EXPECT_EQ(target.At(x, y), (Rgb{ 10, 20, 30 }));
}

TEST(ScaleImg, OneAxisMayShrinkWhileTheOtherGrows)
{
    const Picture source = Greys(2, 2, { 0, 100, 200, 100 });

    const Picture target = Scaled(source, 1, 4);

    EXPECT_EQ(target.At(0, 0).red, 50);
    EXPECT_EQ(target.At(0, 3).red, 150);
    EXPECT_EQ(target.At(0, 1).red, 75);
}

TEST(ScaleImg, ComponentsDoNotMix)
{
    Picture source(2, 2);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x)
            source.Set(x, y, { 255, 0, 128 });

    EXPECT_EQ(Scaled(source, 1, 1).At(0, 0), (Rgb{ 255, 0, 128 }));
}

TEST(ScaleImg, SizesThatThePicturesDoNotHaveDoNothing)
{
    const Picture source = Greys(2, 1, { 50, 50 });
    Picture target(2, 2);

    ScaleImg(source, target, 3, 1, 1, 1);
    ScaleImg(source, target, 2, 2, 1, 1);
    ScaleImg(source, target, 2, 1, 3, 1);
    ScaleImg(source, target, 2, 1, 1, 3);
    ScaleImg(source, target, 0, 1, 1, 1);
    ScaleImg(source, target, 2, 0, 1, 1);
    ScaleImg(source, target, 2, 1, 0, 1);
    ScaleImg(source, target, 2, 1, 1, 0);
    ScaleImg(source, target, 2, 1, 1, -1);

    EXPECT_EQ(target, Picture(2, 2));
}

TEST(ScaleImg, ShrinksAsNetpbmDoes)
{
    SKIP_WITHOUT_NETPBM();
    const TempFolder folder;
    const std::string path = folder.File("source.ppm");
    std::mt19937 random(7);
    const struct {
        int width, height, newWidth, newHeight;
    } sizes[] = { { 64, 44, 32, 22 }, { 63, 43, 31, 21 }, { 30, 22, 15, 11 }, { 29, 17, 28, 5 },
        { 200, 131, 64, 44 }, { 97, 89, 97, 13 }, { 7, 300, 1, 44 } };

    for (const auto& size : sizes) {
        Picture source(size.width, size.height);
        for (int y = 0; y < size.height; ++y)
            for (int i = 0; i < size.width * 3; ++i)
                source.Row(y)[i] = static_cast<std::uint8_t>(random());
        WritePpm(path, source);

        EXPECT_EQ(Scaled(source, size.newWidth, size.newHeight),
            PictureFrom("pamscale -linear -xsize=" + std::to_string(size.newWidth)
                + " -ysize=" + std::to_string(size.newHeight) + " '" + path + "'"))
            << size.width << " x " << size.height;
    }
}

#ifdef RC_GTEST_PROP
RC_GTEST_PROP(ScaleImg, AFlatPictureStaysFlatAtAnySize, ())
{
    const int value = *rc::gen::inRange(0, 256);
    const int width = *rc::gen::inRange(1, 40), height = *rc::gen::inRange(1, 40);
    const Picture source =
        Greys(width, height, std::vector<int>(static_cast<std::size_t>(width * height), value));

    const Picture target = Scaled(source, *rc::gen::inRange(1, 60), *rc::gen::inRange(1, 60));

    for (int y = 0; y < target.Height(); ++y)
        for (int x = 0; x < target.Width(); ++x)
            RC_ASSERT(target.At(x, y).blue == value);
}

RC_GTEST_PROP(ScaleImg, AShrunkPictureHasTheSourcesMean, ())
{
    const int factor = *rc::gen::inRange(2, 6);
    const auto values = *rc::gen::container<std::vector<int>>(
        static_cast<std::size_t>(16 * factor * factor), rc::gen::inRange(0, 256));
    const Picture source = Greys(4 * factor, 4 * factor, values);

    const Picture target = Scaled(source, 4, 4);

    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x) {
            int sum = 0;
            for (int i = 0; i < factor * factor; ++i)
                sum += source.At(x * factor + i % factor, y * factor + i / factor).red;
            const double mean = static_cast<double>(sum) / (factor * factor);
            RC_ASSERT(std::abs(target.At(x, y).red - mean) <= 0.51);
        }
}
#endif

} // namespace
} // namespace vypx::test
