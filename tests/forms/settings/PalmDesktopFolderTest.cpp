#include "WindowFixture.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

namespace vypx::test {

namespace {

class PalmDesktopFolderOption : public WindowFixture {
protected:
    PalmDesktopFolderOption()
    {
        Start();
        PalmDesktopFolder = "/home/user/Palm";
        Entry("mnuOptions").trigger();
    }

    QLineEdit& Folder() { return Find<QLineEdit>("txtPalmDesktopFolder"); }
    void Press(const QString& name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }
    bool IsOpen()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return frame->findChild<QDialog*>("frmProgOptions") != nullptr;
    }
    /// 2 bytes in UTF-8 for each.
    static QString LongPath() { return "/" + QString(127, QChar(0xe9)); }
};

TEST_F(PalmDesktopFolderOption, IsShownAndTakenOverWithoutBlanksAtItsEnds)
{
    EXPECT_EQ(Find<QLabel>("lbl_txtPalmDesktopFolder").text(), "Palm Desktop Folder");
    EXPECT_EQ(Folder().text(), "/home/user/Palm");
    Folder().setText(QString::fromUtf8("  /home/us er/\u0416  "));

    Press("cmdDoneOptions");

    EXPECT_EQ(PalmDesktopFolder, "/home/us er/\u0416");
    EXPECT_NE(Settings().find("Palm Desktop Folder=/home/us er/\u0416"), std::string::npos);
}

TEST_F(PalmDesktopFolderOption, IsChosenByAFolderDialog)
{
    ask.ChooseFolder("/media/card");
    Press("cmdBrowsePalmDesktop");

    EXPECT_EQ(Find<QPushButton>("cmdBrowsePalmDesktop").text(), "Browse...");
    EXPECT_EQ(ask.folders.back().folder, "/home/user/Palm");
    EXPECT_EQ(Folder().text(), "/media/card");
    EXPECT_EQ(PalmDesktopFolder, "/home/user/Palm") << "not before the window is closed";
}

TEST_F(PalmDesktopFolderOption, StaysWhereTheDialogIsCancelled)
{
    ask.ChooseFolder({});
    Press("cmdBrowsePalmDesktop");

    EXPECT_EQ(Folder().text(), "/home/user/Palm");
}

TEST_F(PalmDesktopFolderOption, ThatNoKeyCanHoldIsRefused)
{
    Folder().setText(LongPath());
    ask.Answer(QMessageBox::Ok);

    Press("cmdDoneOptions");

    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Folder().text(), LongPath());
    EXPECT_EQ(PalmDesktopFolder, "/home/user/Palm");
    EXPECT_EQ(ask.shown.back().text,
        "The path of the Palm Desktop folder is too long to be kept: the settings hold 254 bytes "
        "of "
        "it at most. Please choose another folder.");
    ask.Answer(QMessageBox::Ok);
    QTest::keyClick(&Folder(), Qt::Key_Escape);
    EXPECT_TRUE(IsOpen());
    Folder().setText("/short");
    Press("cmdDoneOptions");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(PalmDesktopFolder, "/short");
}

TEST_F(PalmDesktopFolderOption, ThatJustFitsIsKept)
{
    const QString path = "/" + QString(253, 'x');
    Folder().setText(path);

    Press("cmdDoneOptions");

    EXPECT_EQ(PalmDesktopFolder, path.toStdString());
}

TEST_F(PalmDesktopFolderOption, ThatIsTooLongKeepsNoExitUp)
{
    Folder().setText(LongPath());
    Find<QLineEdit>("txtPalmUserID").setText("Anna");

    Entry("mnuExit").trigger();

    EXPECT_FALSE(frame->isVisible());
    EXPECT_NE(Settings().find("Palm Desktop Folder=/home/user/Palm"), std::string::npos);
    EXPECT_NE(Settings().find("Palm User ID=Anna"), std::string::npos);
}

} // namespace
} // namespace vypx::test
