#include "ChangeTCFixture.h"

#include "forms/common/DisabledWindow.h"

#include <QKeyEvent>

namespace vypx::test {

namespace {

/// How the window is left.
class ChangeTCEnd : public ChangeTCFixture {
protected:
    void ExpectTheMainForm()
    {
        EXPECT_FALSE(IsOpen());
        EXPECT_TRUE(frame->isEnabled() && Nodes().isEnabled());
        EXPECT_TRUE(IsOn("cmdChangeTC_LG"));
    }
    void ExpectThatNothingHasChanged()
    {
        ExpectTheMainForm();
        EXPECT_EQ(Cells(), "1 255 0 255");
        EXPECT_EQ(SlotLG.Mask(), Magenta);
        EXPECT_EQ(Text("lblC_RGB_LG"), "255, 0, 255");
        EXPECT_EQ(Pixel("picColSwatchLG", { 4, 4 }), QColor(255, 0, 255));
        EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(0, 0, 255));
        EXPECT_EQ(Pixel("picLG", { 1, 0 }), QColor(Qt::white));
    }
};

} // namespace

TEST_F(ChangeTCEnd, ApplyDrawsThePanelWithTheNewColour)
{
    OpenEditor();
    Pick(1, 0);

    PressIn("cmdApplyTC");

    ExpectTheMainForm();
    EXPECT_EQ(Cells(), "1 255 255 255");
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(255, 0, 255));
    EXPECT_EQ(Pixel("picLG", { 1, 0 }), QColor(0, 0, 255));
    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 255, 255");
}

TEST_F(ChangeTCEnd, ApplyWithoutAColourShowsThatThereIsNone)
{
    OpenEditor();
    Choose("optNoTransparent");

    PressIn("cmdApplyTC");

    ExpectTheMainForm();
    EXPECT_EQ(Cells().left(1), "0");
    EXPECT_TRUE(IsShown("lblNoTransparentLG"));
    EXPECT_FALSE(IsShown("picColSwatchLG"));
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(255, 0, 255));
}

TEST_F(ChangeTCEnd, ApplyTakesWhatIsStillBeingTyped)
{
    OpenEditor();
    Choose("optManualColor");
    Type("txtTC_Red", "8");

    Part<QPushButton>("cmdApplyTC").click(); // the focus stays in the text

    EXPECT_EQ(Cells(), "1 8 0 255");
}

TEST_F(ChangeTCEnd, CancelBringsEverythingBack)
{
    const std::vector<BitmapEntry> before = BitmapTable;
    OpenEditor();
    Pick(1, 0);
    Choose("optNoTransparent");
    Choose("optManualColor");
    TypeAndEnter("txtTC_Red", "12");
    Type("txtTC_Red", "13"); // and not taken yet

    PressIn("cmdCancelTC");

    ExpectThatNothingHasChanged();
    EXPECT_EQ(BitmapTable, before);
}

TEST_F(ChangeTCEnd, OnPurposeCancelLeavesAPictureThatHadNoColourWithBlack)
{
    OpenEditor("Alpha (Small Icon)");
    Pick(0, 0);

    PressIn("cmdCancelTC");

    ExpectTheMainForm();
    EXPECT_EQ(Cells(), "0 0 0 0");
    EXPECT_EQ(SlotLG.Mask(), Rgb{});
    EXPECT_EQ(Text("lblC_RGB_LG"), "0, 0, 0");
    EXPECT_TRUE(IsShown("lblNoTransparentLG"));
    EXPECT_FALSE(IsShown("picColSwatchLG"));
}

TEST_F(ChangeTCEnd, EscapeIsCancelWhereverTheFocusIs)
{
    for (const QString control :
        { "optUsePicker", "txtTC_Red", "picMain", "VScrollRed", "TextBlue", "cmdApplyTC" }) {
        OpenEditor();
        Pick(1, 0);
        Choose(control == "txtTC_Red" ? "optManualColor" : "optUsePicker");
        Part<QWidget>(control).setFocus();

        QTest::keyClick(&Part<QWidget>(control), Qt::Key_Escape);

        ExpectThatNothingHasChanged();
        EXPECT_FALSE(TCPreviewSet);
    }
}

TEST_F(ChangeTCEnd, TheFrameKeepsWhatWasWritten)
{
    OpenEditor();
    Pick(1, 0);

    Window()->close();

    ExpectTheMainForm();
    EXPECT_EQ(Cells(), "1 255 255 255");
    EXPECT_EQ(Pixel("picLG", { 1, 0 }), QColor(0, 0, 255)) << "drawn anew";
    EXPECT_TRUE(TCPreviewSet);
}

TEST_F(ChangeTCEnd, OnPurposeTheFrameUsesNoTypedColourThatWasNotUsed)
{
    OpenEditor("Alpha (Small Icon)");
    Choose("optManualColor");
    TypeAndEnter("txtTC_Red", "255");

    Window()->close();

    EXPECT_EQ(Cells(), "0 255 0 0");
    EXPECT_TRUE(IsShown("lblNoTransparentLG"));
}

TEST_F(ChangeTCEnd, AKeyThatIsHeldDownLeavesItOnce)
{
    OpenEditor();
    Pick(1, 0);
    QPointer<QWidget> window = Window();
    for (int i = 0; i < 3 && window; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, i > 0);
        QApplication::sendEvent(window, &press);
    }

    ExpectThatNothingHasChanged();
    OpenEditor();
    EXPECT_FALSE(frame->isEnabled());
    EXPECT_TRUE(IsOpen());
}

TEST_F(ChangeTCEnd, TheExitOfTheProgramClosesItToo)
{
    OpenEditor();
    Pick(1, 0);

    frame->close();

    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(frame->isVisible());
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(ChangeTCEnd, TwoThatDisableTheFrameFreeItTogether)
{
    OpenEditor();
    {
        const DisabledWindow another(*frame);
        PressIn("cmdCancelTC");
        EXPECT_FALSE(frame->isEnabled());
    }
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(ChangeTCEnd, ADocumentThatIsOpenedMeanwhileEndsIt)
{
    OpenEditor();
    Pick(1, 0);
    const QString file = QString::fromStdString(FileName);
    IconsetChanged = false;

    Open(file); // as the program itself could

    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(frame->isEnabled());
    Click("Alpha (Large Icon)");
    EXPECT_EQ(Cells(), "1 255 0 255");
}

TEST_F(ChangeTCEnd, AnotherIconThatIsSelectedMeanwhileIsLeftAlone)
{
    OpenEditor();
    const std::string path = HighResPath;
    Nodes().setCurrentItem(Nodes().NodeOf("Alpha (Small Icon)"));
    frame->Form().TreeView1_NodeClick(*Nodes().NodeOf("Alpha (Small Icon)"));
    const QString cells = Cells(), text = Text("lblC_RGB_LG");

    Pick(1, 0);
    EXPECT_EQ(Cells(path), "1 255 255 255") << "the file that it was opened for";
    EXPECT_EQ(Cells(), cells);
    EXPECT_EQ(Text("lblC_RGB_LG"), text);
    EXPECT_FALSE(LGhasTransparent);

    PressIn("cmdCancelTC");
    EXPECT_EQ(Cells(path), "1 255 0 255");
    EXPECT_EQ(Cells(), cells);
}

} // namespace vypx::test
