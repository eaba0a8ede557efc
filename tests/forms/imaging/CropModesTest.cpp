#include "CropFixture.h"

namespace vypx::test {

namespace {

/// Of a picture that the view shows at half its size.
class CropModes : public CropFixture {
protected:
    CropModes() { OpenCrop(700, 500); }

    void ExpectCropping()
    {
        EXPECT_TRUE(IsChosen("optMaintainAspect"));
        for (const char* name :
            { "CropRec", "Label1", "Label2", "cmdChangeBackColor", "picBackColor" })
            EXPECT_TRUE(IsSeen(name)) << name;
        EXPECT_FALSE(IsSeen("lblStretch"));
        EXPECT_EQ(View().size(), QSize(350, 350));
    }
    void ExpectStretching(const QSize& target)
    {
        EXPECT_TRUE(IsChosen("optStretch"));
        for (const char* name :
            { "CropRec", "Label1", "Label2", "cmdChangeBackColor", "picBackColor" })
            EXPECT_FALSE(IsSeen(name)) << name;
        EXPECT_TRUE(IsSeen("lblStretch"));
        EXPECT_EQ(View().size(), target);
    }
};

const QRect First(143, 153, 64, 44), FirstSquare(153, 153, 44, 44);

} // namespace

TEST_F(CropModes, StretchingShowsTheWholePictureAtTheTargetsSize)
{
    Push("optStretch");

    ExpectStretching({ 64, 44 });
}

TEST_F(CropModes, TheStretchedViewShowsTheCornersOfThePicture)
{
    Cancel();
    vypx::Picture picture(128, 88); // of four colours
    for (int y = 0; y < 88; ++y)
        for (int x = 0; x < 128; ++x)
            picture.Set(x, y, { x < 64 ? 0 : 250, y < 44 ? 0 : 250, 90 });
    OpenCrop(picture);

    Push("optStretch");

    EXPECT_EQ(Seen({ 0, 0 }), QColor(0, 0, 90));
    EXPECT_EQ(Seen({ 63, 0 }), QColor(250, 0, 90));
    EXPECT_EQ(Seen({ 0, 43 }), QColor(0, 250, 90));
    EXPECT_EQ(Seen({ 63, 43 }), QColor(250, 250, 90));
    EXPECT_EQ(Seen({ 31, 21 }), QColor(0, 0, 90)) << "and no rectangle";
}

TEST_F(CropModes, BackToCroppingTheRectangleIsAFirstOne)
{
    DragLeft({ 175, 175 }, { 185, 185 });
    DragRight(22);

    Push("optStretch");
    Push("optMaintainAspect");

    ExpectCropping();
    EXPECT_EQ(Rectangle(), First);
    EXPECT_EQ(RegionText(), "128 x 88 to 64 x 44 pixels");
    EXPECT_EQ(Seen({ 2, 2 }), QColor(Qt::white));
}

TEST_F(CropModes, TheSquareAspectMakesTheRectangleAnew)
{
    DragLeft({ 175, 175 }, { 185, 185 });

    Push("optAspectSquare");

    EXPECT_EQ(Rectangle(), FirstSquare);
    EXPECT_EQ(RegionText(), "88 x 88 to 44 x 44 pixels");
    DragRight(10);
    EXPECT_EQ(Rectangle(), QRect(153, 153, 54, 54));

    Push("optAspectIcon");

    EXPECT_EQ(Rectangle(), First);
    EXPECT_EQ(RegionText(), "128 x 88 to 64 x 44 pixels");
}

TEST_F(CropModes, BothAspectsCanBeStretched)
{
    Push("optStretch");
    Push("optAspectSquare");
    ExpectStretching({ 44, 44 });

    Push("optAspectIcon");
    ExpectStretching({ 64, 44 });
}

TEST_F(CropModes, TheAspectChosenWhileStretchingIsTheRectangles)
{
    Push("optStretch");
    Push("optAspectSquare");
    Push("optMaintainAspect");

    ExpectCropping();
    EXPECT_TRUE(IsChosen("optAspectSquare"));
    EXPECT_EQ(Rectangle(), FirstSquare);
}

TEST_F(CropModes, TheAspectStaysThroughStretching)
{
    Push("optAspectSquare");

    Push("optStretch");
    ExpectStretching({ 44, 44 });
    EXPECT_TRUE(IsChosen("optAspectSquare"));
    Push("optMaintainAspect");

    EXPECT_TRUE(IsChosen("optAspectSquare"));
    EXPECT_EQ(Rectangle(), FirstSquare);
}

TEST_F(CropModes, KeysAndDragsDoNothingWhileStretching)
{
    Push("optStretch");

    DragLeft({ 20, 20 }, { 40, 40 });
    QTest::keyClick(&View(), Qt::Key_Plus);
    ExpectStretching({ 64, 44 });
    Ok();

    EXPECT_EQ(SizeOf(StoredLG()), QSize(64, 44));
    EXPECT_NEAR(StoredLG().At(63, 0).red, (349 + 345) / 2 % 256, 2) << "the whole width";
}

TEST_F(CropModes, ASquarePictureStaysWithoutBorderAfterStretching)
{
    Cancel();
    OpenCrop(300, 300);

    Push("optStretch");
    Push("optMaintainAspect");

    EXPECT_FALSE(IsSeen("cmdChangeBackColor") || IsSeen("picBackColor"));
    EXPECT_TRUE(IsSeen("CropRec") && IsSeen("Label1") && IsSeen("Label2"));
}

TEST_F(CropModes, ChoosingTheSameAgainKeepsTheRectangleWithinTheView)
{
    Push("optMaintainAspect");
    Push("optAspectIcon");

    ExpectCropping();
    EXPECT_EQ(Rectangle(), First);
}

TEST_F(CropModes, EachOpeningBeginsAnew)
{
    Push("optAspectSquare");
    Push("optStretch");
    Cancel();

    OpenCrop(700, 500);

    ExpectCropping();
    EXPECT_TRUE(IsChosen("optAspectIcon"));
    EXPECT_EQ(Rectangle(), First);
    EXPECT_EQ(RegionText(), "128 x 88 to 64 x 44 pixels");
}

TEST_F(CropModes, ASquareTargetIsStoredAsASquare)
{
    for (const bool stretched : { false, true }) {
        Push("optAspectSquare");
        if (stretched)
            Push("optStretch");
        Ok();

        EXPECT_EQ(SizeOf(StoredLG()), QSize(44, 44));
        EXPECT_EQ(Text("lbl_LGsize"), "44 x 44 pixels");
        OpenCrop(700, 500);
    }
}

TEST_F(CropModes, TheNextPictureForTheIconMayHaveItsFullSizeAgain)
{
    Push("optAspectSquare");
    Ok();

    OpenCrop(64, 44);

    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(SizeOf(StoredLG()), QSize(64, 44));
}

TEST_F(CropModes, OnPurposeAnIconWithoutASizeKeepsTheSquareTarget)
{
    Push("optAspectSquare");
    Ok();
    IconsetChanged = false;
    Open(Written(Iconset{ .name = "Unknown",
                     .resources = { { "iTbl", 1000, IndexRecord("appl", "ABCD", 3601, 0) },
                         vypx::test::Picture(3601) } }
                     .File(),
        "unknown.prc"));
    Click("tAIB3601 (ABCD - Large) ");

    OpenCrop(45, 44);

    ASSERT_TRUE(IsOpen());
    EXPECT_TRUE(RegionText().endsWith("to 44 x 44 pixels")) << RegionText().toStdString();
}

TEST_F(CropModes, EachSlotHasItsOwnTarget)
{
    Cancel();
    OpenCrop(700, 500, "cmdImportSM");
    EXPECT_EQ(RegionText(), "64 x 44 to 32 x 22 pixels");
    Push("optAspectSquare");
    EXPECT_EQ(RegionText(), "44 x 44 to 22 x 22 pixels");
    Ok();
    EXPECT_EQ(SizeOf(StoredSM()), QSize(22, 22));
    EXPECT_TRUE(IsUntouched(StoredLG()));

    Click("Alpha (Small Icon)");
    OpenCrop(700, 500, "cmdImportSM");
    EXPECT_EQ(RegionText(), "30 x 22 to 15 x 11 pixels");
    Ok();
    EXPECT_EQ(SizeOf(WorkPicture("tAIB3501.bmp")), QSize(15, 11));
}

} // namespace vypx::test
