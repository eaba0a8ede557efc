#include "imaging/CropView.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

constexpr double Before = 1;

double Scale(int width, int height) { return CropScale({ width, height }, Before); }

CropView View(int width, int height)
{
    return BuildCropView({ width, height }, Scale(width, height));
}

} // namespace

TEST(CropScale, EachRungBeginsAboveItsNumber)
{
    EXPECT_EQ(Scale(2401, 5), 6);
    EXPECT_EQ(Scale(2400, 5), 5);
    EXPECT_EQ(Scale(1801, 5), 5);
    EXPECT_EQ(Scale(1800, 5), 4);
    EXPECT_EQ(Scale(1201, 5), 4);
    EXPECT_EQ(Scale(1200, 5), 3);
    EXPECT_EQ(Scale(901, 5), 3);
    EXPECT_EQ(Scale(900, 5), 2);
    EXPECT_EQ(Scale(601, 10), 2);
    EXPECT_EQ(Scale(600, 600), 0.5);
    EXPECT_EQ(Scale(151, 60), 0.5);
}

TEST(CropScale, HeightCountsLikeWidth)
{
    EXPECT_EQ(Scale(5, 2401), 6);
    EXPECT_EQ(Scale(10, 601), 2);
    EXPECT_EQ(Scale(100, 151), 0.5);
}

TEST(CropScale, SmallPicturesAreShownFourTimesAsLarge)
{
    EXPECT_EQ(Scale(65, 44), 0.25);
    EXPECT_EQ(Scale(44, 65), 0.25);
    EXPECT_EQ(Scale(150, 49), 0.25);
}

TEST(CropScale, BetweenTheRungsItStaysAsItWas)
{
    EXPECT_EQ(Scale(150, 50), Before);
    EXPECT_EQ(CropScale({ 50, 50 }, 3), 3);
}

TEST(CropSize, PicturesOf5To4000PixelsFit)
{
    EXPECT_EQ(TestCropSize({ 5, 4000 }), CropSize::Fits);
    EXPECT_EQ(TestCropSize({ 4000, 5 }), CropSize::Fits);
    EXPECT_EQ(TestCropSize({ 4001, 100 }), CropSize::ToLarge);
    EXPECT_EQ(TestCropSize({ 100, 4001 }), CropSize::ToLarge);
    EXPECT_EQ(TestCropSize({ 4, 100 }), CropSize::ToSmall);
    EXPECT_EQ(TestCropSize({ 100, 4 }), CropSize::ToSmall);
}

TEST(CropSize, TooLargeIsTestedBeforeTooSmall)
{
    EXPECT_EQ(TestCropSize({ 4001, 4 }), CropSize::ToLarge);
}

TEST(Halving, BeginsAbove2400PixelsInEitherSide)
{
    EXPECT_FALSE(IsHalvedFirst({ 2400, 2400 }));
    EXPECT_TRUE(IsHalvedFirst({ 2401, 5 }));
    EXPECT_TRUE(IsHalvedFirst({ 5, 2401 }));
}

TEST(Halving, DropsAnOddPixel) { EXPECT_EQ(Halved({ 2401, 9 }), (PixelSize{ 1200, 4 })); }

TEST(CropView, SmallPictureIsEnlargedInASquareOfItsLongerSide)
{
    const CropView view = View(65, 44);

    EXPECT_EQ(view.side, 3900); // 260 pixels
    EXPECT_EQ(view.shown, (PixelSize{ 260, 176 }));
    EXPECT_EQ(view.Xpos, 0);
    EXPECT_EQ(view.Ypos, 628); // (975 div 2 - 660 div 2) / 0.25
    EXPECT_EQ(view.PictureTop(), 42);
}

TEST(CropView, TallPictureStandsInTheMiddleOfTheWidth)
{
    const CropView view = View(60, 151);

    EXPECT_EQ(view.side, 4530);
    EXPECT_EQ(view.Xpos, 1364); // (2265 div 2 - 900 div 2) / 0.5
    EXPECT_EQ(view.Ypos, 0);
    EXPECT_EQ(view.PictureLeft(), 91);
    EXPECT_EQ(view.PictureTop(), 0);
}

TEST(CropView, HalvesOfTwipsAreDroppedOneByOne)
{
    EXPECT_EQ(View(101, 60).Ypos, 307);  // 1515 div 2 = 757, 900 div 2 = 450
    EXPECT_EQ(View(101, 100).Ypos, 7);   // 757 - 750
    EXPECT_EQ(View(100, 99).Ypos, 8);    // 750 - 742
    EXPECT_EQ(View(101, 60).side, 1515); // at its own size
}

TEST(CropView, SquarePictureFillsIt)
{
    const CropView view = View(300, 300);

    EXPECT_EQ(view.side, 9000);
    EXPECT_EQ(view.Xpos, 0);
    EXPECT_EQ(view.Ypos, 0);
    EXPECT_EQ(view.shown, (PixelSize{ 600, 600 }));
}

TEST(CropView, LargePictureIsShownInWholePixels)
{
    const CropView view = View(4000, 1000); // 666.67 and 166.67 pixels

    EXPECT_EQ(view.shown, (PixelSize{ 667, 167 }));
    EXPECT_EQ(view.side, 10005);
    EXPECT_EQ(view.Ypos, 3750); // 10005 div 2 - 2505 div 2
}

TEST(CropView, HalfPixelsOfALargePictureGoToTheEvenNumber)
{
    EXPECT_EQ(View(601, 300).shown, (PixelSize{ 300, 150 }));
    EXPECT_EQ(View(603, 605).shown, (PixelSize{ 302, 302 }));
}

TEST(CropView, PictureOf600PixelsIsLargeAndShownTwiceAsLarge)
{
    const CropView view = View(600, 400);

    EXPECT_EQ(view.side, 18000);
    EXPECT_EQ(view.shown, (PixelSize{ 1200, 800 }));
    EXPECT_EQ(view.Ypos, 3000);
}

TEST(CropFormSize, IsTheViewWithMarginsAndAtLeast4750)
{
    const CropView view = View(65, 44);

    EXPECT_EQ(CropFormSize(view, 120, 960), (FormSize{ 4750, 5460 }));
    EXPECT_EQ(CropFormSize(view, 900, 100), (FormSize{ 4975, 4750 }));
    EXPECT_EQ(PicFitFormSize(view, 900, 960), (FormSize{ 4975, 5460 }));
    EXPECT_EQ(PicFitFormSize(View(5, 5), 0, 0), (FormSize{ 4750, 4750 }));
}

TEST(StretchFormSize, HeightFrom4500To4749Stays)
{
    EXPECT_EQ(StretchFormSize({ 64, 44 }, 120, 960), (FormSize{ 4750, 4750 }));
    EXPECT_EQ(StretchFormSize({ 64, 44 }, 120, 2839), (FormSize{ 4750, 4750 }));
    EXPECT_EQ(StretchFormSize({ 64, 44 }, 120, 2840), (FormSize{ 4750, 4500 }));
    EXPECT_EQ(StretchFormSize({ 64, 44 }, 120, 3100), (FormSize{ 4750, 4760 }));
    EXPECT_EQ(StretchFormSize({ 64, 44 }, 4000, 960), (FormSize{ 5135, 4750 }));
}

} // namespace vypx::test
