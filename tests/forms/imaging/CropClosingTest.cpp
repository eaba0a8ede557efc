#include "CropFixture.h"

#include <functional>

namespace vypx::test {

namespace {

/// The ways out of the window.
class CropClosing : public CropFixture {
protected:
    void ExpectNothingImported()
    {
        EXPECT_FALSE(IsOpen());
        EXPECT_TRUE(frame->isEnabled());
        EXPECT_TRUE(IsUntouched(StoredLG()));
        EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
        EXPECT_TRUE(ask.shown.empty());
    }
    void ExpectImportedOnce(unsigned changesBefore)
    {
        EXPECT_FALSE(IsOpen());
        EXPECT_TRUE(frame->isEnabled());
        EXPECT_EQ(SizeOf(StoredLG()), QSize(64, 44));
        EXPECT_EQ(StoredLG().At(0, 0), BlockColour(143, 103));
        EXPECT_EQ(IconsetChanged.Times(), changesBefore + 1);
        EXPECT_TRUE(ask.shown.empty());
        EXPECT_EQ(Note(), "");
    }
    /// Without letting anything happen between them.
    static void Keys(QWidget& target, std::initializer_list<Qt::Key> keys)
    {
        const QPointer<QWidget> to = &target;
        for (const Qt::Key key : keys)
            if (to)
                QTest::keyClick(to.data(), key);
        Settle();
    }
};

} // namespace

TEST_F(CropClosing, EveryWayOutEnablesTheMainFormAgain)
{
    const std::function<void()> ways[] = {
        [&] { Cancel(); },
        [&] { Crop().close(); },
        [&] { Keys(View(), { Qt::Key_Escape }); },
        [&] { Keys(Control("optStretch"), { Qt::Key_Escape }); },
    };
    for (const auto& leave : ways) {
        OpenCrop(700, 500);
        EXPECT_FALSE(frame->isEnabled());

        leave();

        ExpectNothingImported();
    }
    OpenCrop(700, 500);
    Ok();
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(CropClosing, ACancelLeavesWhatTheImportBegan)
{
    IconsetChanged = false;
    OpenCrop(700, 500);

    Cancel();

    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(CropForLG);
    EXPECT_FALSE(CropForSM || CropResultReady);
    EXPECT_TRUE(IsOn("cmdUndoLG") && CanUse("mnuUndo_LG"));
    EXPECT_FALSE(IsOn("cmdUndoSM"));
    EXPECT_TRUE(NamedFileExists(WorkPath("tAIB3500-d144.bmp.bak")));
    EXPECT_TRUE(frame->windowTitle().contains('*'));

    Press("cmdUndoLG"); // brings back what is there

    EXPECT_TRUE(IsUntouched(StoredLG()));
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::HighResFile), "tAIB3500-d144.bmp");
}

TEST_F(CropClosing, ACancelLeavesAnEmptySlotEmpty)
{
    Click("Beta (Large Icon)");
    OpenCrop(700, 500);

    Cancel();

    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "NEW");
    EXPECT_FALSE(IsOn("cmdDelLG"));
    EXPECT_FALSE(NamedFileExists(WorkPath("tAIB3502-d144.bmp")));
}

TEST_F(CropClosing, AfterACancelForOneSlotTheOtherAloneIsFilled)
{
    for (const bool highFirst : { true, false }) {
        OpenCrop(700, 500, highFirst ? "cmdImportLG" : "cmdImportSM");
        Cancel();
        OpenCrop(300, 300, highFirst ? "cmdImportSM" : "cmdImportLG");
        EXPECT_EQ(CropForLG, !highFirst);
        EXPECT_EQ(CropForSM, highFirst);

        Ok();

        EXPECT_FALSE(CropForLG || CropForSM || CropResultReady);
        EXPECT_EQ(SizeOf(StoredSM()), QSize(32, 22));
        EXPECT_EQ(SizeOf(StoredLG()), highFirst ? QSize(2, 1) : QSize(64, 44));
    }
}

TEST_F(CropClosing, EnterIsOkAndTwiceInAHurryImportsOnce)
{
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter }) {
        OpenCrop(700, 500);
        const unsigned changes = IconsetChanged.Times();

        Keys(View(), { key, key, key });

        ExpectImportedOnce(changes);
    }
}

TEST_F(CropClosing, EnterIsOkOnAnOptionButtonToo)
{
    OpenCrop(700, 500);
    const unsigned changes = IconsetChanged.Times();

    Keys(Control("optAspectIcon"), { Qt::Key_Return });

    ExpectImportedOnce(changes);
}

TEST_F(CropClosing, ADoubleClickOnOkImportsOnce)
{
    OpenCrop(700, 500);
    const unsigned changes = IconsetChanged.Times();
    const QPointer<QWidget> ok = &Control("cmdOK");

    QTest::mouseClick(ok.data(), Qt::LeftButton);
    if (ok)
        QTest::mouseDClick(ok.data(), Qt::LeftButton);
    Settle();

    ExpectImportedOnce(changes);
}

TEST_F(CropClosing, OfEnterAndEscapeTheFirstCounts)
{
    OpenCrop(700, 500);
    Keys(View(), { Qt::Key_Escape, Qt::Key_Return });
    ExpectNothingImported();

    OpenCrop(700, 500);
    const unsigned changes = IconsetChanged.Times();
    Keys(View(), { Qt::Key_Return, Qt::Key_Escape });
    ExpectImportedOnce(changes);
}

TEST_F(CropClosing, AnEnterStillHeldFromTheFileDialogCutsNothing)
{
    OpenCrop(700, 500);

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&View(), &repeat);

    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(IsUntouched(StoredLG()));
}

} // namespace vypx::test
