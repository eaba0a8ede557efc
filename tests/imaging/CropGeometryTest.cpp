#include "imaging/CropGeometry.h"
#include "support/CropSizes.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// The crop window with a picture in it.
CropGeometry Opened(PixelSize picture, PixelSize slot = LargeSlot)
{
    CropGeometry crop(slot);
    crop.CropFrmLoad(picture);
    return crop;
}

} // namespace

TEST(CropGeometry, OpensWithTheViewAndTheFirstRectangle)
{
    CropGeometry crop(LargeSlot);
    EXPECT_FALSE(crop.HasView());

    EXPECT_EQ(crop.CropFrmLoad({ 65, 44 }), CropSize::Fits);

    EXPECT_TRUE(crop.HasView());
    EXPECT_EQ(crop.View().Pscale, 0.25);
    EXPECT_EQ(crop.Rectangle(), (CropRectangle{ 1470, 1620, 960, 660 }));
    EXPECT_FALSE(crop.CropPrescaled());
}

TEST(CropGeometry, OnlyASquarePictureHasNoBorder)
{
    EXPECT_TRUE(Opened({ 300, 299 }).HasBorder());
    EXPECT_FALSE(Opened({ 300, 300 }).HasBorder());
    EXPECT_FALSE(Opened({ 2401, 2400 }).HasBorder()); // its half is square
}

TEST(CropGeometry, AbovePictures2400TheHalfIsShown)
{
    const CropGeometry crop = Opened({ 8000, 6001 });

    EXPECT_TRUE(crop.CropPrescaled());
    EXPECT_EQ(crop.View().source, (PixelSize{ 4000, 3000 }));
    EXPECT_EQ(crop.View().Pscale, 6);
    EXPECT_EQ(Opened({ 3000, 3000 }).View().Pscale, 4); // by the half
}

TEST(CropGeometry, PicturesAreTestedAfterTheHalving)
{
    EXPECT_EQ(CropGeometry(LargeSlot).CropFrmLoad({ 8001, 8001 }), CropSize::Fits);
    EXPECT_EQ(CropGeometry(LargeSlot).CropFrmLoad({ 8002, 8002 }), CropSize::ToLarge);
    EXPECT_EQ(CropGeometry(LargeSlot).CropFrmLoad({ 5000, 9 }), CropSize::ToSmall);
    EXPECT_EQ(CropGeometry(LargeSlot).CropFrmLoad({ 65, 4 }), CropSize::ToSmall);
}

TEST(CropGeometry, ARefusedPictureShowsNothing)
{
    CropGeometry crop = Opened({ 65, 4 });

    crop.Press(0, 0);
    crop.LeftDrag(30, 30);
    crop.RightDrag(60);
    crop.RebuildRectangle();

    EXPECT_FALSE(crop.HasView());
    EXPECT_EQ(crop.Rectangle(), CropRectangle{});
}

TEST(CropGeometry, NothingIsHalvedTwice)
{
    CropGeometry crop = Opened({ 8000, 8000 });
    const int side = crop.View().side;

    EXPECT_EQ(crop.CropFrmLoad({ 4000, 4000 }), CropSize::Fits);

    EXPECT_TRUE(crop.CropPrescaled());
    EXPECT_EQ(crop.View().source, (PixelSize{ 4000, 4000 }));
    EXPECT_EQ(crop.View().side, side);
}

TEST(CropGeometry, AnotherBorderKeepsTheRectangle)
{
    CropGeometry crop = Opened({ 8000, 6000 });
    crop.Press(0, 0);
    crop.LeftDrag(7 * Pixel, 11 * Pixel);
    crop.RightDrag(24 * Pixel);
    const CropRectangle before = crop.Rectangle();
    const PixelRegion region = crop.Region();

    crop.SaveRectangle();
    crop.CropFrmLoad({ 4000, 3000 });

    EXPECT_EQ(crop.Rectangle(), before);
    EXPECT_EQ(crop.Region(), region);
}

TEST(CropGeometry, ASavedRectangleIsPutBackOnce)
{
    CropGeometry crop = Opened({ 300, 200 });
    const CropRectangle first = crop.Rectangle();
    crop.MoveBy(Pixel, Pixel);
    crop.SaveRectangle();
    crop.PicFit({ 300, 200 });
    EXPECT_NE(crop.Rectangle(), first);

    crop.PicFit({ 300, 200 });

    EXPECT_EQ(crop.Rectangle(), first);
}

TEST(CropGeometry, AForgottenRectangleIsNotPutBack)
{
    CropGeometry crop = Opened({ 300, 200 });
    const CropRectangle first = crop.Rectangle();
    crop.MoveBy(Pixel, Pixel);
    crop.SaveRectangle();
    crop.ForgetSavedRectangle();

    crop.CropFrmLoad({ 300, 200 });

    EXPECT_EQ(crop.Rectangle(), first);
}

TEST(CropGeometry, TheReturnFromStretchingShowsTheSameView)
{
    CropGeometry crop = Opened({ 3000, 2600 });
    const CropView before = crop.View();

    EXPECT_EQ(crop.PicFit({ 1500, 1300 }), CropSize::Fits);

    EXPECT_EQ(crop.View().side, before.side);
    EXPECT_EQ(crop.View().Ypos, before.Ypos);
    EXPECT_EQ(crop.View().Pscale, before.Pscale);
    EXPECT_EQ(crop.PicFit({ 4001, 5 }), CropSize::ToLarge);
    EXPECT_EQ(crop.View().side, before.side); // what was shown stays
}

TEST(CropGeometry, OnTheReturnTheBorderIsSettledBeforeTheSize)
{
    CropGeometry onReturn = Opened({ 300, 200 }), onLoad = Opened({ 300, 200 });

    onReturn.PicFit({ 4, 4 });
    onLoad.CropFrmLoad({ 4, 4 });

    EXPECT_FALSE(onReturn.HasBorder());
    EXPECT_TRUE(onLoad.HasBorder());
}

TEST(CropGeometry, TheSquareAspectHasTheSlotsShorterSide)
{
    CropGeometry crop = Opened({ 300, 300 });

    crop.ChooseAspect(true);
    crop.RebuildRectangle();

    EXPECT_EQ(crop.Target(), (PixelSize{ 44, 44 }));
    EXPECT_EQ(crop.Rectangle(), (CropRectangle{ 4170, 4170, 660, 660 }));
    crop.ResizeBy(Pixel);
    EXPECT_EQ(crop.Rectangle().width, 675);

    crop.ChooseAspect(false);
    crop.RebuildRectangle();

    EXPECT_EQ(crop.Target(), LargeSlot);
    EXPECT_EQ(crop.Rectangle(), (CropRectangle{ 4020, 4170, 960, 660 }));
}

TEST(CropGeometry, WhileStretchingOnlyTheTargetChanges)
{
    CropGeometry crop = Opened({ 300, 300 });
    const CropRectangle before = crop.Rectangle();

    crop.ChooseAspect(true);

    EXPECT_EQ(crop.Target(), (PixelSize{ 44, 44 }));
    EXPECT_EQ(crop.Rectangle(), before);
}

TEST(CropGeometry, ALeftDragMovesByEachMotionOfTheMouse)
{
    CropGeometry crop = Opened({ 300, 300 });
    const CropRectangle first = crop.Rectangle();

    crop.Press(100, 100);
    crop.LeftDrag(115, 130);
    crop.LeftDrag(130, 70);

    EXPECT_EQ(crop.Rectangle().left, first.left + 30);
    EXPECT_EQ(crop.Rectangle().top, first.top - 30);
}

TEST(CropGeometry, ARightDragResizesByTheVerticalMotionAlone)
{
    CropGeometry crop = Opened({ 300, 300 });

    crop.Press(100, 100);
    crop.RightDrag(210);
    crop.RightDrag(265);

    EXPECT_EQ(crop.Rectangle().height, 660 + 165);
    EXPECT_NEAR(crop.Rectangle().width, 960 + 240, 1e-9);
}

TEST(CropGeometry, AStoppedRightDragGoesOnFromWhereTheMouseIs)
{
    CropGeometry crop = Opened({ 300, 300 });
    crop.Press(0, 1000);
    crop.RightDrag(1000 - 375); // 19 pixels high
    crop.RightDrag(400);        // stopped
    ASSERT_EQ(crop.Rectangle().height, 285);

    crop.RightDrag(415);

    EXPECT_EQ(crop.Rectangle().height, 300);
}

TEST(CropGeometry, ALeftMotionAfterARightDragCountsFromTheLeftEdge)
{
    CropGeometry crop = Opened({ 300, 300 });
    const double left = crop.Rectangle().left;
    crop.Press(90, 90);
    crop.RightDrag(90);

    crop.LeftDrag(90, 90);

    EXPECT_EQ(crop.Rectangle().left, left + 90);
}

} // namespace vypx::test
