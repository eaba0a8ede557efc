#include "support/CroppingFixture.h"

namespace vypx::test {

namespace {

TEST_F(Cropping, ASmallerPictureStaysWhatItIsOnDisk)
{
    CropTask task = Waiting(2400, 300);

    EXPECT_EQ(task.CropFrmLoad(), "");

    EXPECT_FALSE(task.Geometry().CropPrescaled());
    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 2400, 300 }));
    EXPECT_FALSE(NamedFileExists(WorkPath("lgtemp.bmp")));
    EXPECT_EQ(task.Shown().pixels.Width(), 480); // 5 of its pixels to one of the view
    EXPECT_EQ(task.Shown().pixels.Height(), 60);
    EXPECT_EQ(task.SourceSize(), (PixelSize{ 2400, 300 }));
}

TEST_F(Cropping, ALargePictureGivesItsPlaceToItsHalf)
{
    CropTask task = Waiting(2401, 301);

    EXPECT_EQ(task.CropFrmLoad(), "");

    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 1200, 150 }));
    EXPECT_EQ(SizeOf("lgtemp.bmp"), (PixelSize{ 1200, 150 }));
    EXPECT_EQ(task.SourceSize(), (PixelSize{ 1200, 150 }));
}

TEST_F(Cropping, NothingIsHalvedTwice)
{
    CropTask task = Waiting(6000, 100);
    task.CropFrmLoad();
    task.Geometry().MoveBy(-150, 30);
    const CropRectangle before = task.Geometry().Rectangle();
    task.Geometry().SaveRectangle();

    EXPECT_EQ(task.CropFrmLoad(), ""); // the border has another colour

    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 3000, 50 }));
    EXPECT_EQ(SizeOf("lgtemp.bmp"), (PixelSize{ 3000, 50 }));
    EXPECT_EQ(task.Geometry().Rectangle(), before);
}

TEST_F(Cropping, AHalfThatIsStillToLargeIsTold)
{
    CropTask task = Waiting(8002, 20);

    EXPECT_EQ(task.CropFrmLoad(), "Image is to large to process!");

    EXPECT_TRUE(task.Shown().pixels.IsNull());
    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 8002, 20 })); // for stretching
    EXPECT_EQ(task.Crop(), "Error Processing Image!");
    EXPECT_EQ(task.CropFrmLoad(), "Image is to large to process!");
}

TEST_F(Cropping, AHalfThatHasBecomeToSmallIsTold)
{
    CropTask task = Waiting(2402, 9);

    EXPECT_EQ(task.CropFrmLoad(), "Image is to small to process!");
    EXPECT_EQ(task.PicFit(), "Image is to small to process!");
    EXPECT_TRUE(task.Shown().pixels.IsNull());
}

TEST_F(Cropping, APictureOfOneRowHasNoHalf)
{
    CropTask task = Waiting(2402, 1);

    EXPECT_EQ(task.CropFrmLoad(), "Image is to small to process!");
    EXPECT_EQ(task.StretchPreview(), "");
    EXPECT_EQ(task.PicFit(), "Image is to small to process!");
    EXPECT_EQ(task.CropFrmLoad(), "Image is to small to process!");
    EXPECT_EQ(task.Stretch(), "");
    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 64, 44 }));
}

TEST_F(Cropping, WhatIsToLargeToCropCanBeStretched)
{
    CropTask task = Waiting(8002, 20);
    task.CropFrmLoad();

    EXPECT_EQ(task.StretchPreview(), "");
    EXPECT_EQ(task.Shown().pixels.Width(), 64);
    EXPECT_EQ(task.SourceSize(), (PixelSize{ 8002, 20 }));
    EXPECT_EQ(task.Stretch(), "");

    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 64, 44 }));
    EXPECT_EQ(Stored("temp.bmp").At(63, 43), Grey);
}

TEST_F(Cropping, ATargetOfLessThanFivePixelsIsNotShown)
{
    CropTask task = Waiting(100, 100);
    task.CropFrmLoad();
    TargetHeight = 4;

    EXPECT_EQ(task.StretchPreview(), "Image is to small to process!");
    EXPECT_TRUE(task.Shown().pixels.IsNull());
}

TEST_F(Cropping, TheBorderIsWhiteAtEachOpeningAndWhenStretchingEnds)
{
    CropBackR = 1;
    CropTask task = Waiting(100, 60);
    task.CropFrmLoad();
    EXPECT_EQ((Rgb{ CropBackR, CropBackG, CropBackB }), (Rgb{ 255, 255, 255 }));

    CropBackG = 2;
    task.Geometry().SaveRectangle();
    task.CropFrmLoad();
    EXPECT_EQ(CropBackG, 2);

    task.StretchPreview();
    EXPECT_EQ(CropBackG, 2);
    task.PicFit();
    EXPECT_EQ(CropBackG, 255);
}

TEST_F(Cropping, WhatLiesOnTheBorderHasItsColour)
{
    CropTask task = Waiting(100, 60);
    task.CropFrmLoad();
    task.Geometry().MoveBy(0, -task.Geometry().View().side);
    CropBackR = 10;
    CropBackG = 20;
    CropBackB = 30;

    EXPECT_EQ(task.Crop(), "");

    // The view shows the picture between 20 rows of border on each side.
    const Picture cut = Stored("temp.bmp");
    EXPECT_EQ(cut.At(32, 10), (Rgb{ 10, 20, 30 }));
    EXPECT_EQ(cut.At(32, 43), Grey);
}

TEST_F(Cropping, TransparentPixelsComeThroughTheHalf)
{
    Picture picture = Plain(3000, 600, Grey);
    for (int y = 0; y < 600; ++y)
        for (int x = 0; x < 1500; ++x)
            picture.Set(x, y, Pink);
    CropTask task = Waiting({ .pixels = picture, .transparent = Pink });

    EXPECT_EQ(task.CropFrmLoad(), "");
    EXPECT_EQ(task.Shown().transparent, Pink);
    EXPECT_EQ(task.StretchPreview(), "");
    EXPECT_EQ(task.Stretch(), "");

    const Picture stretched = Stored("temp.bmp");
    EXPECT_EQ(stretched.At(31, 20), Pink);
    EXPECT_EQ(stretched.At(32, 20), Grey);
    EXPECT_EQ(ScratchTransparent, Pink);
}

TEST_F(Cropping, TheResultIsHandedToTheImportThatWaits)
{
    CropTask task = Waiting(100, 60);
    task.CropFrmLoad();
    task.Crop();

    EXPECT_TRUE(task.HandOver());
    EXPECT_TRUE(CropResultReady);
    EXPECT_FALSE(CropForLG);
    EXPECT_EQ(Again(SlotLG), ImportResult::Stored);
    EXPECT_EQ(SizeOf(NameFor(SlotLG, Large)), (PixelSize{ 64, 44 }));
    EXPECT_FALSE(task.HandOver()); // once
}

TEST_F(Cropping, NothingIsHandedToAnotherIconOrDocument)
{
    CropTask task = Waiting(100, 60);
    task.CropFrmLoad();
    task.Crop();
    Select(Sharing);
    EXPECT_FALSE(task.HandOver());
    EXPECT_FALSE(CropResultReady);

    CropTask next = Waiting(100, 60);
    ForgetUndo(); // another document begins
    EXPECT_FALSE(next.HandOver());
}

TEST_F(Cropping, TheOtherSlotsWindowIsForgotten)
{
    Waiting(100, 60); // given up
    EXPECT_EQ(Import(SlotSM, Plain(100, 60, Grey)), ImportResult::Cropping);

    EXPECT_FALSE(CropForLG);
    EXPECT_TRUE(CropForSM);
    EXPECT_TRUE(CropTask(SlotSM, ColorDepth::Bits16).HandOver());
    EXPECT_FALSE(CropForSM);
}

TEST_F(Cropping, ASquareTargetIsOfTheShorterSide)
{
    CropTask task = Waiting(100, 60);
    task.CropFrmLoad();

    task.ChooseAspect(true);
    EXPECT_EQ(TargetWidth, 44);
    EXPECT_EQ(TargetHeight, 44);
    task.ChooseAspect(false);
    EXPECT_EQ(TargetWidth, 64);
}

} // namespace

} // namespace vypx::test
