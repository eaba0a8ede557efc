#include "BorderFixture.h"

namespace vypx::test {

namespace {

/// What meets while the border's colour is being chosen.
class BorderMeetings : public BorderFixture { };

} // namespace

TEST_F(BorderMeetings, ClosesWithTheCropWindow)
{
    Choose(10, 120, 30);

    Crop().close();

    EXPECT_FALSE(IsBorderOpen() || IsOpen());
    EXPECT_TRUE(frame->isEnabled());
    OpenCrop(700, 500);
    ExpectBorder(Qt::white);
    EXPECT_FALSE(IsBorderOpen());
}

TEST_F(BorderMeetings, StandsOnceHoweverOftenItIsAskedFor)
{
    Control<QAbstractButton>("cmdChangeBackColor").click();
    Control<QAbstractButton>("cmdChangeBackColor").click();
    Settle();

    EXPECT_EQ(frame->findChildren<QDialog*>("frmChangeBackColor").size(), 1);
    BorderOk();
    EXPECT_FALSE(IsBorderOpen());
}

TEST_F(BorderMeetings, AnEnterThatIsHeldDoesNotCutTheNextMoment)
{
    Choose(10, 120, 30);
    QPointer<QDialog> border = &Border();
    QTest::keyPress(border, Qt::Key_Return);
    Settle();
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&Crop(), &repeat);

    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(IsUntouched(StoredLG()));
}

TEST_F(BorderMeetings, OfEnterAndEscapeInAHurryTheFirstCounts)
{
    for (const bool accepted : { true, false }) {
        Choose(10, 120, 30);
        const QPointer<QDialog> border = &Border();
        for (const Qt::Key key : { accepted ? Qt::Key_Return : Qt::Key_Escape,
                 accepted ? Qt::Key_Escape : Qt::Key_Return })
            if (border)
                QTest::keyClick(border.data(), key);
        EXPECT_FALSE(IsBorderOpen());
        ExpectBorder(accepted ? QColor(10, 120, 30) : QColor(Qt::white));
        Cancel();
        OpenCrop(700, 500);
        Push("cmdChangeBackColor");
    }
}

TEST_F(BorderMeetings, WhatIsSeenIsCutWhileItStands)
{
    DragLeft({ 175, 175 }, { 175, 0 }); // to the upper edge: all border
    Choose(10, 120, 30);
    const Rgb seen = BorderColour() == QColor(Qt::white) ? Rgb{ 255, 255, 255 } : Chosen();

    Ok();

    EXPECT_FALSE(IsBorderOpen() || IsOpen());
    EXPECT_EQ(StoredLG().At(5, 5), seen);
}

TEST_F(BorderMeetings, StretchingTakesItAlongWithItsColour)
{
    Choose(10, 120, 30);

    Control<QAbstractButton>("optStretch").click();
    Settle();

    EXPECT_FALSE(IsBorderOpen());
    EXPECT_TRUE(IsSeen("lblStretch"));
    EXPECT_EQ(Chosen(), (Rgb{ 255, 255, 255 }));
}

} // namespace vypx::test
