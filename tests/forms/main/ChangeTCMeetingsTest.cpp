#include "ChangeTCFixture.h"

#include <QKeyEvent>

namespace vypx::test {

namespace {

/// Keys in a hurry, choices one after the other, and the low-res panel.
class ChangeTCMeetings : public ChangeTCFixture {
protected:
    static constexpr const char* WithoutColour = "Alpha (Small Icon)";

    void OpenForLowRes()
    {
        AutoCreateLowRes = false;
        Click("Alpha (Large Icon)");
        OpenEditor("Alpha (Large Icon)", "SM");
    }
    static QString LowResCells() { return Cells(LowResPath); }
};

} // namespace

TEST_F(ChangeTCMeetings, AnEscapeAfterApplyTakesNothingBack)
{
    OpenEditor();
    Pick(1, 0);
    const QPointer<QWidget> window = Window();

    Part<QPushButton>("cmdApplyTC").click();
    if (window)
        QTest::keyClick(window.data(), Qt::Key_Escape);

    EXPECT_EQ(Cells(), "1 255 255 255");
}

TEST_F(ChangeTCMeetings, ALateEscapeOfOneWindowFreesNotTheFrameOfTheNext)
{
    OpenEditor();
    const QPointer<QDialog> window = Window();
    Part<QPushButton>("cmdApplyTC").click();
    Find<QPushButton>("cmdChangeTC_LG").click(); // before the first is deleted
    ASSERT_FALSE(frame->isEnabled());

    if (window)
        window->reject();

    EXPECT_FALSE(frame->isEnabled());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(IsOpen());
    PressIn("cmdCancelTC");
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(ChangeTCMeetings, EnterUsesTheButtonThatHasTheFocus)
{
    OpenEditor();
    Pick(1, 0);
    Part<QPushButton>("cmdCancelTC").setFocus();

    QTest::keyClick(&Part<QPushButton>("cmdCancelTC"), Qt::Key_Return);

    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Cells(), "1 255 0 255");
}

TEST_F(ChangeTCMeetings, AHeldEnterOrEscapeEndsNothing)
{
    OpenEditor();
    Part<QPushButton>("cmdApplyTC").setFocus();
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Escape }) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
        QApplication::sendEvent(&Part<QPushButton>("cmdApplyTC"), &held);
    }

    EXPECT_TRUE(IsOpen());
}

TEST_F(ChangeTCMeetings, ATypedColourIsUsedWhenTheOptionIsChosenOnceMore)
{
    OpenEditor(WithoutColour);
    Choose("optManualColor");
    TypeAndEnter("txtTC_Red", "255");
    EXPECT_EQ(Cells().left(1), "0");

    Choose("optUseTransparent");

    EXPECT_EQ(Cells(), "1 255 0 0");
}

TEST_F(ChangeTCMeetings, OnPurposeApplyWithNeitherOptionLeavesWhatTheFileSays)
{
    OpenEditor(WithoutColour);
    Choose("optManualColor");
    TypeAndEnter("txtTC_Red", "255");
    PressIn("cmdZoom4X");
    EXPECT_FALSE(IsChosen("optUseTransparent") || IsChosen("optNoTransparent"));

    PressIn("cmdApplyTC");

    EXPECT_EQ(Cells(), "0 255 0 0");
}

TEST_F(ChangeTCMeetings, ManualAfterNoneUsesTheColourOnHandAgain)
{
    OpenEditor();
    Choose("optNoTransparent");
    EXPECT_EQ(Cells().left(1), "0");

    Choose("optManualColor");

    EXPECT_EQ(Cells(), "1 255 0 255");
}

TEST_F(ChangeTCMeetings, ATypedColourStaysUnusedWhereNoneIsChosenAtLast)
{
    OpenEditor();
    Choose("optManualColor");
    TypeAndEnter("txtTC_Grn", "9");
    Choose("optNoTransparent");

    PressIn("cmdApplyTC");

    EXPECT_EQ(Cells(), "0 255 9 255");
}

TEST_F(ChangeTCMeetings, TheLowResPanelHasAllThatTheOtherHas)
{
    Click("Alpha (Large Icon)");
    Import("cmdImportSM", PictureFile(4, 4, { 40, 80, 120 }));
    EXPECT_TRUE(IsOn("cmdUndoSM"));
    OpenForLowRes();
    EXPECT_EQ(Cells(), "1 255 0 255");
    Pick(2, 2);
    EXPECT_EQ(LowResCells(), "1 40 80 120");
    EXPECT_EQ(Text("lblC_RGB_SM"), "40, 80, 120");
    PressIn("cmdCancelTC");
    EXPECT_EQ(LowResCells(), "1 8 16 24");
    EXPECT_EQ(Text("lblC_RGB_SM"), "8, 16, 24");
    EXPECT_FALSE(IsOn("cmdUndoSM"));

    OpenForLowRes();
    Pick(2, 2);
    PressIn("cmdApplyTC");
    EXPECT_EQ(LowResCells(), "1 40 80 120");
    EXPECT_EQ(Pixel("picSM", { 2, 2 }), QColor(0, 0, 255)); // shows the background
    EXPECT_EQ(Pixel("picSM", { 0, 0 }), QColor(8, 16, 24));

    OpenForLowRes();
    Choose("optNoTransparent");
    Window()->close();
    EXPECT_EQ(LowResCells().left(1), "0");
    EXPECT_TRUE(IsShown("lblNoTransparentSM"));
    EXPECT_EQ(Cells(), "1 255 0 255"); // the other panel's
}

TEST_F(ChangeTCMeetings, TheEditorOfOnePanelFollowsThatOfTheOther)
{
    OpenForLowRes();
    PressIn("cmdCancelTC");
    OpenEditor();

    Pick(1, 0);

    EXPECT_EQ(Cells(), "1 255 255 255");
    EXPECT_EQ(LowResCells(), "1 255 0 255");
}

TEST_F(ChangeTCMeetings, AllOfItHasTheChromeColour)
{
    OpenEditor();

    const QImage seen = Window()->grab().toImage();

    EXPECT_EQ(seen.pixelColor(2, 2), QColor(224, 223, 227));
    for (const char* name : { "Frame1", "Frame2", "Frame3", "Frame8", "optUsePicker" }) {
        const QWidget& part = Part<QWidget>(name);
        const QPoint corner = part.mapTo(Window(), QPoint(part.width() - 4, part.height() - 3));
        EXPECT_EQ(seen.pixelColor(corner), QColor(224, 223, 227)) << name;
    }
}

TEST_F(ChangeTCMeetings, AWindowThatComesToTheFrontAgainShowsNoMark)
{
    OpenEditor();
    Pick(1, 0);
    const QImage before = View().grab().toImage();

    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&View(), &back);

    EXPECT_EQ(View().grab().toImage(), before);
}

TEST_F(ChangeTCMeetings, KeysOfCommandsPickNothing)
{
    OpenEditor();
    View().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&View(), Qt::Key_Right);

    QTest::keyClick(&View(), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Cells(), "1 255 0 255");
    QTest::keyClick(&View(), Qt::Key_Space);
    EXPECT_EQ(Cells(), "1 255 255 255");
}

} // namespace vypx::test
