#include "CropFixture.h"

#include <QScreen>

namespace vypx::test {

namespace {

class CropWindow : public CropFixture { };

} // namespace

TEST_F(CropWindow, ATooLargePictureOpensItAndWaitsInTheWorkingFolder)
{
    for (const QSize size : { QSize(65, 44), QSize(64, 45) }) {
        OpenCrop(size.width(), size.height());

        ASSERT_TRUE(IsOpen());
        EXPECT_TRUE(Crop().isVisible());
        EXPECT_TRUE(Crop().isEnabled());
        EXPECT_FALSE(Crop().isModal());
        EXPECT_EQ(SizeOf(WorkPicture("temp.bmp")), size);
        EXPECT_TRUE(IsUntouched(StoredLG()));
        EXPECT_EQ(Note(), "");
        Cancel();
    }
}

TEST_F(CropWindow, APictureOfTheSlotsSizeDoesNot)
{
    OpenCrop(64, 44);

    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(frame->isEnabled());
    EXPECT_EQ(SizeOf(StoredLG()), QSize(64, 44));
}

TEST_F(CropWindow, ASmallIconHasASmallerLimit)
{
    Click("Alpha (Small Icon)");

    OpenCrop(31, 22);

    ASSERT_TRUE(IsOpen());
    Ok();
    EXPECT_EQ(SizeOf(WorkPicture("tAIB3501-d144.bmp")), QSize(30, 22));
}

TEST_F(CropWindow, TextsStandLetterForLetter)
{
    OpenCrop(200, 100);

    EXPECT_EQ(Crop().windowTitle(), "Resize Image");
    EXPECT_EQ(Control<QAbstractButton>("optMaintainAspect").text(), "Crop  ");
    EXPECT_EQ(Control("optMaintainAspect").toolTip(), "Resize your image by cropping.");
    EXPECT_EQ(Control<QAbstractButton>("optStretch").text(), "Stretch");
    EXPECT_EQ(Control("optStretch").toolTip(), "Stretch image to fit the size you selected.");
    EXPECT_EQ(Control<QAbstractButton>("optAspectIcon").text(), "Icon ");
    EXPECT_EQ(Control<QAbstractButton>("cmdChangeBackColor").text(), "Change Border Color");
    EXPECT_EQ(Control("cmdChangeBackColor").toolTip(),
        "If you include part of the border, you can change its color.");
    EXPECT_EQ(Control<QLabel>("Label1").text(), "Left Click to Reposition Crop Area.");
    EXPECT_EQ(
        Control<QLabel>("Label2").text(), "Right Click, Drag Up or Down, to Resize Crop Area.");
    EXPECT_EQ(Control<QLabel>("lblStretch").text(), "Stretch To Fit Target Size");
    EXPECT_EQ(Control<QLabel>("lblWorking").text(), "Resampling Image.......");
    for (const char* name : { "optAspectSquare", "cmdOK", "cmdCancel" })
        EXPECT_FALSE(Control<QAbstractButton>(name).text().isEmpty()) << name;
    EXPECT_FALSE(Control<QLabel>("lblAspect").text().isEmpty());
}

TEST_F(CropWindow, BeginsWithCroppingToTheIconsAspectOnWhite)
{
    OpenCrop(200, 100);

    EXPECT_TRUE(IsChosen("optMaintainAspect") && IsChosen("optAspectIcon"));
    for (const char* name :
        { "CropRec", "Label1", "Label2", "cmdChangeBackColor", "picBackColor", "lblRegion" })
        EXPECT_TRUE(IsSeen(name)) << name;
    EXPECT_FALSE(IsSeen("lblStretch") || IsSeen("lblWorking"));
    EXPECT_EQ(BorderColour(), QColor(Qt::white));
    EXPECT_EQ(Seen({ 2, 2 }), QColor(Qt::white)) << "above the picture";
}

TEST_F(CropWindow, IsInAColourOfItsOwn)
{
    OpenCrop(200, 100);

    const QImage window = Crop().grab().toImage();
    EXPECT_EQ(window.pixelColor(1, 1), QColor(214, 219, 191));
    for (const char* name : { "optAspectIcon", "optAspectSquare" }) {
        QWidget& option = Control(name);
        const QPoint corner = option.mapTo(&Crop(), QPoint(option.width() - 1, 0));
        EXPECT_EQ(window.pixelColor(corner), QColor(214, 219, 191)) << name;
    }
}

TEST_F(CropWindow, TheViewIsASquareAtTheScaleOfTheLongerSide)
{
    const struct {
        QSize picture;
        int side;
    } views[] = {
        { { 65, 44 }, 260 }, // four times as large
        { { 70, 50 }, 70 },  // as it is
        { { 150, 150 }, 150 },
        { { 151, 60 }, 302 }, // twice as large
        { { 60, 151 }, 302 },
        { { 600, 600 }, 1200 },
        { { 601, 10 }, 300 },  // halves to the even number
        { { 10, 902 }, 301 },  // a third: 300.67
        { { 1202, 10 }, 300 }, // a quarter: 300.5
        { { 1804, 8 }, 361 },  // a fifth: 360.8
        { { 2400, 6 }, 480 },
    };
    for (const auto& [picture, side] : views) {
        OpenCrop(picture.width(), picture.height());

        EXPECT_EQ(View().size(), QSize(side, side)) << picture.width() << " x " << picture.height();
        Cancel();
    }
}

TEST_F(CropWindow, ThePictureStandsInTheMiddleOfTheBorder)
{
    Import("cmdImportLG", PictureFile(700, 500, { 30, 60, 90 })); // the view is half of that
    QImage view = View().grab().toImage();
    EXPECT_EQ(view.pixelColor(10, 48), QColor(Qt::white));
    EXPECT_EQ(view.pixelColor(10, 52), QColor(30, 60, 90));
    EXPECT_EQ(view.pixelColor(340, 297), QColor(30, 60, 90));
    EXPECT_EQ(view.pixelColor(340, 302), QColor(Qt::white));
    Cancel();

    Import("cmdImportLG", PictureFile(100, 200, { 30, 60, 90 })); // and this one's twice
    view = View().grab().toImage();
    EXPECT_EQ(view.pixelColor(98, 10), QColor(Qt::white));
    EXPECT_EQ(view.pixelColor(103, 10), QColor(30, 60, 90));
    EXPECT_EQ(view.pixelColor(297, 390), QColor(30, 60, 90));
    EXPECT_EQ(view.pixelColor(302, 390), QColor(Qt::white));
}

TEST_F(CropWindow, ASquarePictureHasNoBorderToChoose)
{
    OpenCrop(300, 300);

    EXPECT_FALSE(IsSeen("cmdChangeBackColor") || IsSeen("picBackColor"));
    EXPECT_TRUE(IsSeen("Label1") && IsSeen("CropRec"));
}

TEST_F(CropWindow, IsNeverSmallerThanItsContentsOrItsLeastSize)
{
    OpenCrop(65, 44);

    EXPECT_GE(Crop().width(), 316) << "4750 twips";
    EXPECT_GE(Crop().height(), 316);
    for (const char* name : { "cmdOK", "cmdCancel", "cmdChangeBackColor", "optStretch" }) {
        QWidget& control = Control(name);
        const QRect place(control.mapTo(&Crop(), QPoint()), control.size());
        EXPECT_TRUE(Crop().rect().contains(place)) << name;
        EXPECT_GE(control.width(), control.minimumSizeHint().width()) << name;
    }
}

TEST_F(CropWindow, AViewBeyondTheScreenScrollsAndTheButtonsStayInSight)
{
    OpenCrop(600, 580);

    ASSERT_EQ(View().size(), QSize(1200, 1200));
    const QSize free = Crop().screen()->availableSize();
    EXPECT_LE(Crop().frameGeometry().width(), free.width());
    EXPECT_LE(Crop().frameGeometry().height(), free.height());
    for (const char* name : { "cmdOK", "cmdCancel" }) {
        QWidget& control = Control(name);
        const QRect place(control.mapTo(&Crop(), QPoint()), control.size());
        EXPECT_TRUE(Crop().rect().contains(place)) << name;
        EXPECT_FALSE(control.visibleRegion().isEmpty()) << name;
    }
    EXPECT_LT(View().visibleRegion().boundingRect().width(), 1200) << "the rest is scrolled to";
}

/// Messages of its opening, and what is left to the user after them.
class CropSizes : public CropFixture {
protected:
    /// Opens it on a picture of that size, which it refuses; the message.
    QString Refusal(int width, int height)
    {
        bool stood = false;
        ask.Answer(QMessageBox::Ok, [&] { stood = Crop().isVisible() && !frame->isEnabled(); });
        OpenCrop(width, height);
        EXPECT_TRUE(stood) << "the window stands before the message comes";
        const Box box = ask.shown.empty() ? Box{} : ask.shown.back();
        EXPECT_EQ(box.title, Box{}.title);
        EXPECT_EQ(box.buttons, QMessageBox::Ok);
        return box.text;
    }
};

TEST_F(CropSizes, AboveFourThousandPixelsAfterTheHalvingIsTooLarge)
{
    EXPECT_EQ(Refusal(8002, 10), "Image is to large to process!");
    ASSERT_TRUE(IsOpen());
    Cancel();
    EXPECT_EQ(Refusal(10, 8002), "Image is to large to process!");
    Cancel();
    EXPECT_TRUE(IsUntouched(StoredLG()));

    OpenCrop(8001, 10); // 4000 x 5

    EXPECT_EQ(View().width(), 667) << "a sixth: 666.67";
    Cancel();
}

TEST_F(CropSizes, BelowFivePixelsIsTooSmall)
{
    for (const QSize size : { QSize(100, 4), QSize(4, 100), QSize(2402, 9) }) {
        EXPECT_EQ(Refusal(size.width(), size.height()), "Image is to small to process!");
        ASSERT_TRUE(IsOpen()) << size.width();
        Cancel();
    }
    for (const QSize size : { QSize(100, 5), QSize(5, 100), QSize(2402, 10) }) {
        OpenCrop(size.width(), size.height());
        EXPECT_FALSE(View().size().isEmpty()) << size.width();
        Cancel();
    }
    EXPECT_EQ(ask.shown.size(), 3u);
}

TEST_F(CropSizes, WithoutAPictureNothingIsCutAndTheWindowStays)
{
    Refusal(100, 4);
    ask.Answer(QMessageBox::Ok);

    Ok();

    EXPECT_EQ(ask.shown.back().text, "Error Processing Image!");
    EXPECT_EQ(ask.shown.back().title, Box{}.title);
    EXPECT_EQ(ask.shown.back().buttons, QMessageBox::Ok);
    ASSERT_TRUE(IsOpen());
    EXPECT_FALSE(IsSeen("lblWorking"));
    EXPECT_TRUE(IsUntouched(StoredLG()));
    Cancel();
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(CropSizes, WithoutAPictureDragsAndKeysDoNothing)
{
    Refusal(100, 4);

    DragLeft({ 5, 5 }, { 15, 15 });
    DragRight(20);
    QTest::keyClick(&View(), Qt::Key_Right);
    QTest::keyClick(&View(), Qt::Key_Plus);
    Push("optAspectSquare");
    Push("optAspectIcon");

    ask.Answer(QMessageBox::Ok);
    Ok();
    EXPECT_EQ(ask.shown.back().text, "Error Processing Image!");
}

TEST_F(CropSizes, WhatCroppingRefusesCanBeStretched)
{
    Refusal(8002, 44); // each column of the slot is 125 of these

    Push("optStretch");
    EXPECT_EQ(View().size(), QSize(64, 44));
    Ok();

    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(SizeOf(StoredLG()), QSize(64, 44));
    EXPECT_NEAR(StoredLG().At(0, 0).red, 31, 1) << "the mean of the first 62 blocks";
    EXPECT_EQ(ask.shown.size(), 1u);
}

TEST_F(CropSizes, BackFromStretchingARefusedPictureIsRefusedOnceMore)
{
    Refusal(8002, 10);
    Push("optStretch");
    ask.Answer(QMessageBox::Ok);

    Push("optMaintainAspect");

    EXPECT_EQ(ask.shown.back().text, "Image is to large to process!");
    EXPECT_EQ(ask.shown.size(), 2u);
    EXPECT_TRUE(IsOpen());
}

} // namespace vypx::test
