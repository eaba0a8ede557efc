#include "imaging/CropRectangle.h"
#include "support/CropSizes.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

constexpr int Side = 3000; // a view of 200 x 200 pixels

CropRectangle Moved(CropRectangle rectangle, double motionX, double motionY)
{
    MoveCropRectangle(rectangle, motionX, motionY, Side);
    return rectangle;
}

CropRectangle Resized(CropRectangle rectangle, double motion, double aspect = 1)
{
    ResizeCropRectangle(rectangle, motion, aspect, Side);
    return rectangle;
}

} // namespace

TEST(FirstCropRectangle, IsOfTheTargetsSizeInAViewMoreThanTwiceAsLarge)
{
    EXPECT_EQ(FirstCropRectangle(LargeSlot, 3900), (CropRectangle{ 1470, 1620, 960, 660 }));
}

TEST(FirstCropRectangle, IsHalfOfItInASmallerView)
{
    EXPECT_EQ(FirstCropRectangle(LargeSlot, 960), (CropRectangle{ 240, 315, 480, 330 }));
    EXPECT_EQ(FirstCropRectangle({ 15, 11 }, 224), (CropRectangle{ 56, 71, 112, 82 }));
}

TEST(FirstCropRectangle, BothSidesMustBeBelowHalfTheViewToBeWhole)
{
    const CropRectangle tall = FirstCropRectangle({ 10, 60 }, 900); // 75 x 450

    EXPECT_EQ(tall.width, 75);
    EXPECT_EQ(tall.height, 450);
}

TEST(FirstCropRectangle, IsAQuarterWhereHalfIsWiderThanTheView)
{
    EXPECT_EQ(FirstCropRectangle(LargeSlot, 420), (CropRectangle{ 90, 128, 240, 165 }));
    EXPECT_EQ(FirstCropRectangle(LargeSlot, 480).width, 480);
}

TEST(MoveCropRectangle, FollowsTheMotion)
{
    EXPECT_EQ(Moved({ 300, 600, 960, 660 }, 45, -30), (CropRectangle{ 345, 570, 960, 660 }));
}

TEST(MoveCropRectangle, IsPutToTheLeftAndUpperEdge)
{
    EXPECT_EQ(Moved({ 30, 15, 960, 660 }, -45, -150), (CropRectangle{ 0, 0, 960, 660 }));
}

TEST(MoveCropRectangle, AMotionBeyondTheRightOrLowerEdgeIsTakenBack)
{
    EXPECT_EQ(Moved({ 2010, 2310, 960, 660 }, 45, 45), (CropRectangle{ 2010, 2310, 960, 660 }));
    EXPECT_EQ(Moved({ 2010, 2310, 960, 660 }, 30, 30), (CropRectangle{ 2040, 2340, 960, 660 }));
}

TEST(MoveCropRectangle, EdgesOfOneAxisLeaveTheOtherAlone)
{
    EXPECT_EQ(Moved({ 0, 300, 960, 660 }, -15, 15), (CropRectangle{ 0, 315, 960, 660 }));
}

TEST(MoveCropRectangle, ComesBackFromBeyondTheRightEdge)
{
    EXPECT_EQ(Moved({ 2100, 0, 960, 660 }, -15, 0), (CropRectangle{ 2085, 0, 960, 660 }));
}

TEST(ResizeCropRectangle, KeepsTheCornerAndTheAspect)
{
    const CropRectangle larger = Resized({ 300, 600, 960, 660 }, 165, CropAspect(LargeSlot));

    EXPECT_EQ(larger, (CropRectangle{ 300, 600, 1200, 825 }));
}

TEST(ResizeCropRectangle, Below20PixelsOfHeightItShrinksNoMore)
{
    EXPECT_EQ(Resized({ 0, 0, 600, 300 }, -15).height, 285);
    EXPECT_EQ(Resized({ 0, 0, 600, 285 }, -15).height, 285);
    EXPECT_EQ(Resized({ 0, 0, 600, 285 }, 15).height, 300);
}

TEST(ResizeCropRectangle, Below20PixelsOfWidthItShrinksNoMore)
{
    EXPECT_EQ(Resized({ 0, 0, 300, 600 }, -15).width, 285);
    EXPECT_EQ(Resized({ 0, 0, 285, 600 }, -15).width, 285);
    EXPECT_EQ(Resized({ 0, 0, 285, 600 }, 15).width, 300);
}

TEST(ResizeCropRectangle, BeyondTheRightEdgeItGrowsNoMore)
{
    const CropRectangle atTheEdge{ 2400, 0, 600, 600 };

    const CropRectangle beyond = Resized(atTheEdge, 15); // a step from the edge itself still counts

    EXPECT_EQ(beyond.width, 615);
    EXPECT_EQ(Resized(beyond, 15).width, 615);
    EXPECT_EQ(Resized(beyond, -15).width, 600);
}

TEST(ResizeCropRectangle, BeyondTheLowerEdgeItGrowsNoMore)
{
    const CropRectangle atTheEdge{ 0, 2400, 600, 600 };

    const CropRectangle beyond = Resized(atTheEdge, 15);

    EXPECT_EQ(beyond.height, 615);
    EXPECT_EQ(Resized(beyond, 15).height, 615);
    EXPECT_EQ(Resized(beyond, -15).height, 600);
}

TEST(ResizeCropRectangle, AFastDragDoesNotTurnItInsideOut)
{
    EXPECT_EQ(Resized({ 0, 0, 960, 660 }, -9000), (CropRectangle{ 0, 0, 325, 25 }));
    EXPECT_EQ(Resized({ 0, 0, 660, 960 }, -9000), (CropRectangle{ 0, 0, 25, 325 }));
}

TEST(ViewPixels, CornerRoundsDownSizeToTheNearest)
{
    EXPECT_EQ(ViewPixels({ 29, 30, 112, 82 }), (PixelRegion{ 1, 2, 7, 5 }));
    EXPECT_EQ(ViewPixels({ 0, 0, 6, 6 }), (PixelRegion{ 0, 0, 1, 1 }));
}

TEST(RegionUnder, IsTheWholePixelsTimesPscale)
{
    const CropView view = BuildCropView({ 4000, 4000 }, 6);

    EXPECT_EQ(RegionUnder({ 29, 45, 960, 660 }, view), (PixelRegion{ 6, 18, 384, 264 }));
}

TEST(RegionUnder, CountsFromThePicturesCorner)
{
    const CropView view = BuildCropView({ 1000, 500 }, 2); // the picture is 125 pixels down

    EXPECT_EQ(RegionUnder({ 0, 125 * 15, 960, 660 }, view), (PixelRegion{ 0, 0, 128, 88 }));
    EXPECT_EQ(RegionUnder({ 15, 0, 960, 660 }, view), (PixelRegion{ 2, -250, 128, 88 }));
}

TEST(RegionUnder, OfAnEnlargedPictureTheCornerRoundsDown)
{
    const CropView view = BuildCropView({ 40, 40 }, 0.25);

    EXPECT_EQ(RegionUnder({ 7 * 15, 3 * 15, 960, 660 }, view), (PixelRegion{ 1, 0, 16, 11 }));
}

TEST(RegionUnder, OfAnEnlargedPictureTheBorderRoundsDownToo)
{
    const CropView view = BuildCropView({ 41, 20 }, 0.25); // the picture is 42 pixels down

    EXPECT_EQ(RegionUnder({ 0, 41 * 15, 960, 660 }, view).top, -1);
}

TEST(RegionUnder, SizesGoToTheNearestPixelAndAreAtLeast1)
{
    const CropView view = BuildCropView({ 40, 40 }, 0.25);

    EXPECT_EQ(RegionUnder({ 0, 0, 15 * 6.9, 15 * 5.9 }, view), (PixelRegion{ 0, 0, 2, 1 }));
    EXPECT_EQ(RegionUnder({ 0, 0, 15, 15 }, view), (PixelRegion{ 0, 0, 1, 1 }));
}

TEST(RegionUnder, NoBorderComesInAtTheEdgeOfAPictureShownTooLong)
{
    const CropView view = BuildCropView({ 603, 603 }, 2); // shown 302 pixels long: 604 of 603

    EXPECT_EQ(
        RegionUnder({ 202 * 15, 202 * 15, 1500, 1500 }, view), (PixelRegion{ 404, 404, 199, 199 }));
}

TEST(RegionUnder, BeyondTheViewIsBorder)
{
    const CropView view = BuildCropView({ 603, 603 }, 2);

    EXPECT_EQ(RegionUnder({ 203 * 15, 0, 1500, 1500 }, view), (PixelRegion{ 406, 0, 200, 200 }));
}

} // namespace vypx::test
