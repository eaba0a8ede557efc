#include "CropFixture.h"
#include "support/Netpbm.h"

#include <random>

namespace vypx::test {

namespace {

const Rgb White{ 255, 255, 255 };

class CropResultWindow : public CropFixture {
protected:
    /// Of 700 x 500 pixels that look like noise.
    static vypx::Picture Noise()
    {
        std::mt19937 random(15);
        vypx::Picture picture(700, 500);
        for (int y = 0; y < 500; ++y)
            for (int x = 0; x < 700 * 3; ++x)
                picture.Row(y)[x] = static_cast<std::uint8_t>(random());
        return picture;
    }
    /// What netpbm makes of that region; `margin` rows of white stand above the picture.
    vypx::Picture Witness(
        const vypx::Picture& picture, const QRect& region, const QSize& target, int margin = 0)
    {
        const std::string path = program.File("witness.ppm");
        WritePpm(path, picture);
        const auto option = [](const char* name, int number) {
            return std::string(" -") + name + "=" + std::to_string(number);
        };
        return PictureFrom("pnmpad -white" + option("top", margin) + " '" + path + "' | pamcut"
            + option("left", region.left()) + option("top", region.top() + margin)
            + option("width", region.width()) + option("height", region.height())
            + " | pamscale -linear" + option("xsize", target.width())
            + option("ysize", target.height()));
    }
    static void ExpectBlocksFrom(int column, int row, const vypx::Picture& stored)
    {
        ASSERT_EQ(SizeOf(stored), QSize(64, 44));
        for (int y = 0; y < 44; ++y)
            for (int x = 0; x < 64; ++x)
                ASSERT_EQ(stored.At(x, y), BlockColour(column + x, row + y)) << x << ", " << y;
    }
};

} // namespace

TEST_F(CropResultWindow, WhatIsUnderTheRectangleIsStoredShownAndToldOf)
{
    OpenCrop(700, 500); // 2 x 2 pixels to one of the view and of the slot

    Ok(); // the rectangle begins at column 143 and at row 153 - 50

    ExpectBlocksFrom(143, 103, StoredLG());
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Text("lbl_LGsize"), "64 x 44 pixels");
    EXPECT_EQ(Text("lblC_RGB_LG"), "143, 103, 40");
    EXPECT_EQ(Pixel("picLG", { 63, 43 }), QColor(206, 146, 40));
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(0, 0, 255)) << "the corner is transparent";
    EXPECT_TRUE(IsOn("cmdUndoLG"));
    EXPECT_EQ(Note(), "");
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_FALSE(CropForLG || CropForSM || CropResultReady);
}

TEST_F(CropResultWindow, ADraggedRectangleCutsWhereItLies)
{
    OpenCrop(700, 500);
    DragLeft({ 175, 175 }, { 60, 210 });

    Ok();

    ExpectBlocksFrom(28, 138, StoredLG());
}

TEST_F(CropResultWindow, AResizedRectangleIsAveragedAsNetpbmDoes)
{
    SKIP_WITHOUT_NETPBM();
    OpenCrop(Noise());
    DragLeft({ 175, 175 }, { 111, 119 }); // to column 79, row 97
    DragRight(33);                        // 112 x 77 pixels of the view

    Ok();

    EXPECT_EQ(StoredLG(), Witness(Noise(), { 158, 94, 224, 154 }, { 64, 44 }));
}

TEST_F(CropResultWindow, APictureInItsOwnSizeIsCutPixelByPixel)
{
    vypx::Picture picture = Blocks(100, 80);
    picture.Set(18, 18, { 1, 2, 3 });
    OpenCrop(picture); // rows 10 to 89 of the view; the rectangle is at 18, 28

    Ok();

    const vypx::Picture stored = StoredLG();
    ASSERT_EQ(SizeOf(stored), QSize(64, 44));
    for (int y = 0; y < 44; ++y)
        for (int x = 0; x < 64; ++x)
            ASSERT_EQ(stored.At(x, y), picture.At(18 + x, 18 + y)) << x << ", " << y;
}

TEST_F(CropResultWindow, AnEnlargedRegionHasItsCornersInTheCorners)
{
    vypx::Picture picture = Blocks(200, 100); // a region of 32 x 22 at 84, 39
    picture.Set(84, 39, { 1, 2, 3 });
    picture.Set(115, 39, { 4, 5, 6 });
    picture.Set(84, 60, { 7, 8, 9 });
    picture.Set(115, 60, { 10, 11, 12 });
    OpenCrop(picture);

    Ok();

    const vypx::Picture stored = StoredLG();
    ASSERT_EQ(SizeOf(stored), QSize(64, 44));
    EXPECT_EQ(stored.At(0, 0), (Rgb{ 1, 2, 3 }));
    EXPECT_EQ(stored.At(63, 0), (Rgb{ 4, 5, 6 }));
    EXPECT_EQ(stored.At(0, 43), (Rgb{ 7, 8, 9 }));
    EXPECT_EQ(stored.At(63, 43), (Rgb{ 10, 11, 12 }));
}

TEST_F(CropResultWindow, TheBorderIsCutAlong)
{
    OpenCrop(700, 500);
    DragLeft({ 175, 175 }, { 175, 52 }); // row 30 of the view, 20 above the picture

    Ok();

    const vypx::Picture stored = StoredLG();
    ASSERT_EQ(SizeOf(stored), QSize(64, 44));
    for (int y = 0; y < 44; ++y)
        for (int x = 0; x < 64; ++x)
            ASSERT_EQ(stored.At(x, y), y < 20 ? White : BlockColour(143 + x, y - 20))
                << x << ", " << y;
    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 255, 255");
}

TEST_F(CropResultWindow, BorderAndPictureAreAveragedAsNetpbmDoes)
{
    SKIP_WITHOUT_NETPBM();
    OpenCrop(Noise());
    DragLeft({ 175, 175 }, { 175, 52 });
    DragRight(11); // 80 x 55 pixels of the view

    Ok();

    EXPECT_EQ(StoredLG(), Witness(Noise(), { 286, -40, 160, 110 }, { 64, 44 }, 40));
}

TEST_F(CropResultWindow, WhatLiesBeyondTheViewIsBorderToo)
{
    OpenCrop(700, 500);
    DragLeft({ 200, 200 }, { 0, 200 });
    DragLeft({ 0, 0 }, { 0, 137 });
    DragRight(100); // one row beyond the lower edge; the picture ends at 300

    Ok();

    ASSERT_EQ(SizeOf(StoredLG()), QSize(64, 44));
    EXPECT_EQ(StoredLG().At(0, 43), White);
    EXPECT_EQ(StoredLG().At(63, 43), White);
    EXPECT_NE(StoredLG().At(10, 0), White);
}

TEST_F(CropResultWindow, TheWholePictureIsStretched)
{
    OpenCrop(128, 88);
    DragLeft({ 50, 50 }, { 40, 40 });
    Push("optStretch");

    Ok();

    ExpectBlocksFrom(0, 0, StoredLG());
    EXPECT_EQ(Text("lblC_RGB_LG"), "0, 0, 40");
}

TEST_F(CropResultWindow, AStretchedPictureIsAveragedAsNetpbmDoes)
{
    SKIP_WITHOUT_NETPBM();
    OpenCrop(Noise());
    Push("optStretch");
    Push("optAspectSquare");

    Ok();

    EXPECT_EQ(StoredLG(), Witness(Noise(), { 0, 0, 700, 500 }, { 44, 44 }));
}

TEST_F(CropResultWindow, BackFromStretchingItIsCutAgain)
{
    OpenCrop(700, 500);
    Push("optStretch");
    Push("optMaintainAspect");
    DragLeft({ 50, 50 }, { 51, 50 });

    Ok();

    ExpectBlocksFrom(144, 103, StoredLG());
}

TEST_F(CropResultWindow, TheResultIsReducedToTheDepth)
{
    DefaultColorDepth = ColorDepth::Bits8;
    Import("cmdImportLG", PictureFile(200, 100, { 255, 0, 3 }));
    Ok();
    EXPECT_EQ(StoredLG().At(20, 20), (Rgb{ 255, 0, 0 }));

    DefaultColorDepth = ColorDepth::Bits4;
    Import("cmdImportLG", PictureFile(200, 100, { 250, 251, 252 }));
    Ok();
    EXPECT_EQ(StoredLG().At(20, 20), White);
}

TEST_F(CropResultWindow, AnotherPictureComesAfterTheFirst)
{
    OpenCrop(700, 500);
    Ok();

    OpenCrop(128, 88); // 128 of the view: the rectangle begins at 32, 42, and the picture at row 20
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(View().size(), QSize(128, 128));
    Ok();

    EXPECT_EQ(StoredLG().At(0, 0), BlockColour(16, 11));
    EXPECT_EQ(StoredLG().At(63, 43), BlockColour(47, 32));
}

TEST_F(CropResultWindow, TheDialogOfTheNextImportStartsInTheDefaultFolder)
{
    UseLastDirs = true;
    Import("cmdImportLG", PictureFile(4, 4, { 1, 2, 3 }));
    ASSERT_EQ(LastDirImageLoad, program.Path());
    OpenCrop(700, 500);
    EXPECT_EQ(LastDirImageLoad, program.Path()) << "nothing came in yet";

    Ok();

    EXPECT_EQ(LastDirImageLoad, "");
    ask.CancelDialog();
    Press("cmdImportLG");
    EXPECT_EQ(ask.opened.back().folder, "");
}

TEST_F(CropResultWindow, ACutPictureMakesTheLowResOneWhereThereIsNone)
{
    AutoCreateLowRes = true;
    OpenCrop(700, 500);
    Ok();
    EXPECT_TRUE(IsUntouched(StoredSM())) << "there was one";
    Press("cmdDelLG");
    Press("cmdDelSM");

    OpenCrop(700, 500);
    Ok();

    ExpectBlocksFrom(143, 103, StoredLG());
    EXPECT_EQ(Text("lbl_LGsize"), "64 x 44 pixels");
    EXPECT_EQ(Text("lbl_SMsize"), "32 x 22 pixels");
    EXPECT_EQ(SizeOf(StoredSM()), QSize(32, 22));
    EXPECT_TRUE(IsOn("cmdUndoLG") && IsOn("cmdUndoSM") && IsOn("cmdDelSM"));
}

TEST_F(CropResultWindow, ACutPictureFillsAnEmptySlotAndUndoEmptiesItAgain)
{
    Click("Beta (Large Icon)");
    OpenCrop(700, 500);
    Ok();
    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "tAIB3502-d144.bmp");
    EXPECT_EQ(Text("lbl_LGsize"), "64 x 44 pixels");

    Press("cmdUndoLG");

    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "NEW");
}

TEST_F(CropResultWindow, UndoBringsThePictureBackThatACutOneReplaced)
{
    OpenCrop(700, 500);
    Ok();

    Press("cmdUndoLG");

    EXPECT_TRUE(IsUntouched(StoredLG()));
    EXPECT_FALSE(IsOn("cmdUndoLG"));
}

TEST_F(CropResultWindow, ACutPictureIsSavedAndOpenedAgain)
{
    Click("Beta (Large Icon)");
    OpenCrop(700, 500);
    Ok();
    WarnOverwrite = false;

    Entry("mnuSave").trigger();
    Open(QString::fromStdString(FileName));
    Click("Beta (Large Icon)");

    EXPECT_EQ(Text("lbl_LGsize"), "64 x 44 pixels");
}

} // namespace vypx::test
