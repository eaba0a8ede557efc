#include "PicturesFixture.h"

#include <QClipboard>
#include <QDialog>
#include <QLineEdit>

namespace vypx::test {

namespace {

/// The standard keys, pressed where the focus is.
class PanelKeysTest : public PicturesFixture {
protected:
    PanelKeysTest()
    {
        Click("Alpha (Large Icon)");
        frame->activateWindow();
    }

    void FocusOn(const QString& name) { Find<QWidget>(name).setFocus(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    bool HasPicture(std::string IconRow::*cell)
    {
        return Cell("Alpha (Large Icon)", cell) != "NEW";
    }
};

TEST_F(PanelKeysTest, DeleteTakesThePictureOfTheFocusedPanel)
{
    FocusOn("cmdImportSM");

    Key(Qt::Key_Delete);

    EXPECT_TRUE(HasPicture(&IconRow::HighResFile));
    EXPECT_FALSE(HasPicture(&IconRow::LowResFile));
}

TEST_F(PanelKeysTest, DeleteDoesNothingWithoutAFocusedPanel)
{
    FocusOn("TreeView1");

    Key(Qt::Key_Delete);

    EXPECT_TRUE(HasPicture(&IconRow::HighResFile));
    EXPECT_TRUE(HasPicture(&IconRow::LowResFile));
}

TEST_F(PanelKeysTest, KeysActOnTheHighResPanelWhereNoneHasTheFocus)
{
    FocusOn("TreeView1");
    ask.Choose(PictureFile(64, 44, { 1, 2, 3 }));

    Key(Qt::Key_I, Qt::ControlModifier);

    EXPECT_EQ(Text("lbl_LGsize"), "64 x 44 pixels");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(IsOn("cmdUndoLG"));
    EXPECT_EQ(QImage(QString::fromStdString(HighResPath)).size(), QSize(2, 1));
}

TEST_F(PanelKeysTest, KeysActOnTheOnlyPanelInView)
{
    Entry("mnuHideHighRes").trigger();
    FocusOn("TreeView1");
    ask.SaveTo(QString::fromStdString(program.File("low.bmp")));

    Key(Qt::Key_E, Qt::ControlModifier);

    EXPECT_EQ(ReadBytes(program.File("low.bmp")), ReadBytes(LowResPath));
}

TEST_F(PanelKeysTest, KeysActOnTheFocusedPanel)
{
    FocusOn("cmdImportSM");
    ask.SaveTo(QString::fromStdString(program.File("low.bmp")));

    Key(Qt::Key_E, Qt::ControlModifier);

    EXPECT_EQ(ReadBytes(program.File("low.bmp")), ReadBytes(LowResPath));
}

TEST_F(PanelKeysTest, ADisabledCommandHasNoKey)
{
    Click("Beta (Large Icon)");
    FocusOn("TreeView1");

    Key(Qt::Key_E, Qt::ControlModifier); // an unexpected dialog would fail the test
    Key(Qt::Key_Z, Qt::ControlModifier);

    EXPECT_TRUE(ask.saved.empty());
}

TEST_F(PanelKeysTest, NoKeyActsWhileANameIsTyped)
{
    Press("cmdChangeDataBaseName");
    Click("Set");
    Press("cmdChangeDataBaseName");
    auto* const editor = Nodes().findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    editor->setFocus();

    Key(Qt::Key_E, Qt::ControlModifier);
    for (const Qt::Key key : { Qt::Key_I, Qt::Key_C, Qt::Key_V, Qt::Key_Z })
        Key(key, Qt::ControlModifier);
    Key(Qt::Key_Delete);

    EXPECT_TRUE(ask.saved.empty());
    EXPECT_TRUE(ask.opened.size() == 1); // of the document
}

TEST_F(PanelKeysTest, CopyAndPasteActOnTheFocusedPanel)
{
    FocusOn("cmdImportLG");
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(2, 1));
    QImage red(5, 4, QImage::Format_RGB32);
    red.fill(QColor(255, 0, 0));
    QGuiApplication::clipboard()->setImage(red);
    FocusOn("cmdImportSM");

    Key(Qt::Key_V, Qt::ControlModifier);

    EXPECT_EQ(Text("lbl_SMsize"), "5 x 4 pixels");
    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
    Entry("mnuHideLowRes").trigger();
    FocusOn("TreeView1");
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text("lbl_LGsize"), "5 x 4 pixels");
    QGuiApplication::clipboard()->clear();
}

TEST_F(PanelKeysTest, NoKeyActsWhileAWindowDisablesTheForm)
{
    Import("cmdImportLG", PictureFile(100, 60, { 1, 2, 3 })); // opens the crop window
    auto& crop = Find<QDialog>("frmCrop");

    for (const Qt::Key key : { Qt::Key_E, Qt::Key_I, Qt::Key_V })
        for (QWidget* target : { static_cast<QWidget*>(&crop), static_cast<QWidget*>(frame.get()) })
            QTest::keyClick(target, key, Qt::ControlModifier);

    EXPECT_TRUE(ask.saved.empty());
    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
}

TEST_F(PanelKeysTest, AHeldKeyActsOnce)
{
    FocusOn("cmdImportLG");
    ask.SaveTo(QString::fromStdString(program.File("high.bmp")));

    QTest::keyPress(QApplication::focusWidget(), Qt::Key_E, Qt::ControlModifier);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_E, Qt::ControlModifier, {}, true);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &repeated);
    }

    EXPECT_EQ(ask.saved.size(), 1u);
}

} // namespace

} // namespace vypx::test
