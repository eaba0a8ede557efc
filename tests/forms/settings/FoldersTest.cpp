#include "WindowFixture.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

namespace vypx::test {

namespace {

/// One of the folders that the options window keeps.
struct FolderCase {
    const char* name;
    const char* edit;
    const char* browse;
    std::string* setting;
    const char* key;
};

class FolderOption : public WindowFixture, public ::testing::WithParamInterface<FolderCase> {
protected:
    FolderOption()
    {
        Start();
        Setting() = "/home/user/Palm";
        Entry("mnuOptions").trigger();
    }

    static std::string& Setting() { return *GetParam().setting; }
    static std::string Line(const std::string& value) { return GetParam().key + ("=" + value); }
    bool IsSaved(const std::string& value)
    {
        return Settings().find(Line(value) + '\n') != std::string::npos;
    }
    QLineEdit& Folder() { return Find<QLineEdit>(GetParam().edit); }
    void Press(const QString& name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }
    bool IsOpen()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return frame->findChild<QDialog*>("frmProgOptions") != nullptr;
    }
    /// 2 bytes in UTF-8 for each.
    static QString LongPath() { return "/" + QString(127, QChar(0xe9)); }
    static QString TooLong()
    {
        return QString("The path of the %1 folder is too long to be kept: the settings hold 254 "
                       "bytes of it at most. Please choose another folder.")
            .arg(GetParam().name);
    }
};

TEST_P(FolderOption, IsShownAndTakenOverWithoutBlanksAtItsEnds)
{
    const auto& label = Find<QLabel>(QString("lbl_") + GetParam().edit);
    EXPECT_EQ(label.text(), QString(GetParam().name) + " Folder");
    EXPECT_EQ(label.buddy(), &Folder());
    EXPECT_EQ(Folder().text(), "/home/user/Palm");
    Folder().setText(QString::fromUtf8("  /home/us er/\u0416  "));

    Press("cmdDoneOptions");

    EXPECT_EQ(Setting(), "/home/us er/\u0416");
    EXPECT_TRUE(IsSaved("/home/us er/\u0416"));
}

TEST_P(FolderOption, IsChosenByAFolderDialog)
{
    ask.ChooseFolder("/media/card");
    Press(GetParam().browse);

    EXPECT_EQ(Find<QPushButton>(GetParam().browse).text(), "Browse...");
    EXPECT_EQ(ask.folders.back().title, QString(GetParam().name) + " Folder");
    EXPECT_EQ(ask.folders.back().folder, "/home/user/Palm");
    EXPECT_EQ(Folder().text(), "/media/card");
    EXPECT_EQ(Setting(), "/home/user/Palm") << "not before the window is closed";
}

TEST_P(FolderOption, HasAButtonThatSaysWhatItLooksFor)
{
    EXPECT_EQ(Find<QPushButton>(GetParam().browse).accessibleName(),
        QString("Browse for the %1 folder").arg(GetParam().name));
}

TEST_P(FolderOption, StaysWhereTheDialogIsCancelled)
{
    ask.ChooseFolder({});
    Press(GetParam().browse);

    EXPECT_EQ(Folder().text(), "/home/user/Palm");
}

TEST_P(FolderOption, ThatNoKeyCanHoldIsRefused)
{
    Folder().setText(LongPath());
    ask.Answer(QMessageBox::Ok);

    Press("cmdDoneOptions");

    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Folder().text(), LongPath());
    EXPECT_EQ(Find<QDialog>("frmProgOptions").focusWidget(), &Folder());
    EXPECT_EQ(Setting(), "/home/user/Palm");
    EXPECT_EQ(ask.shown.back().text, TooLong());
    ask.Answer(QMessageBox::Ok);
    QTest::keyClick(&Folder(), Qt::Key_Escape);
    EXPECT_TRUE(IsOpen());
    Folder().setText("/short");
    Press("cmdDoneOptions");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Setting(), "/short");
}

TEST_P(FolderOption, ThatJustFitsIsKept)
{
    const QString path = "/" + QString(253, 'x');
    Folder().setText(path);

    Press("cmdDoneOptions");

    EXPECT_EQ(Setting(), path.toStdString());
}

TEST_P(FolderOption, ThatIsTooLongKeepsNoExitUp)
{
    Folder().setText(LongPath());
    Find<QLineEdit>("txtPalmUserID").setText("Anna");

    Entry("mnuExit").trigger();

    EXPECT_FALSE(frame->isVisible());
    EXPECT_TRUE(IsSaved("/home/user/Palm"));
    EXPECT_NE(Settings().find("Palm User ID=Anna"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Each, FolderOption,
    ::testing::Values(FolderCase{ "Palm Desktop", "txtPalmDesktopFolder", "cmdBrowsePalmDesktop",
                          &PalmDesktopFolder, "Palm Desktop Folder" },
        FolderCase{ "palm-sync", "txtPalmSyncFolder", "cmdBrowsePalmSync", &PalmSyncFolder,
            "Palm Sync Folder" }),
    [](const auto& folder) { return std::string(folder.param.edit); });

class BothFolders : public WindowFixture {
protected:
    BothFolders()
    {
        Start();
        Entry("mnuOptions").trigger();
    }
};

TEST_F(BothFolders, AreRefusedOneAfterTheOtherAndTakenTogether)
{
    const QString tooLong = "/" + QString(254, 'x');
    Find<QLineEdit>("txtPalmDesktopFolder").setText("/desktop");
    Find<QLineEdit>("txtPalmSyncFolder").setText(tooLong);
    ask.Answer(QMessageBox::Ok);

    Find<QPushButton>("cmdDoneOptions").click();

    EXPECT_EQ(PalmDesktopFolder, "") << "neither, while the window stays";
    EXPECT_EQ(ask.shown.size(), 1u);
    Find<QLineEdit>("txtPalmSyncFolder").setText("/sync");
    Find<QPushButton>("cmdDoneOptions").click();
    EXPECT_EQ(PalmDesktopFolder, "/desktop");
    EXPECT_EQ(PalmSyncFolder, "/sync");
}

TEST_F(BothFolders, AreReachedByTabInTheirOrder)
{
    QWidget* at = &Find<QLineEdit>("txtPalmUserID");
    at->setFocus();
    for (const char* next : { "txtPalmDesktopFolder", "cmdBrowsePalmDesktop", "txtPalmSyncFolder",
             "cmdBrowsePalmSync" }) {
        QTest::keyClick(at, Qt::Key_Tab);
        at = Find<QDialog>("frmProgOptions").focusWidget();
        EXPECT_EQ(at->objectName(), next);
    }
}

} // namespace
} // namespace vypx::test
