#include "WindowFixture.h"

#include "support/Variable.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#ifndef Q_OS_WIN

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* NoWay =
    "Save and Install has no way to the handheld yet: name the sync folder of palm-sync above, or "
    "start J-Pilot once.";

/// The line of the options window that says which way "Save and Install" takes, for a user whose
/// home is empty at first.
class InstallWayLine : public WindowFixture {
protected:
    void Show()
    {
        Start();
        Entry("mnuOptions").trigger();
    }
    QString Line() { return Find<QLabel>("lblInstallWay").text(); }
    QLineEdit& Folder() { return Find<QLineEdit>("txtPalmSyncFolder"); }
    QString Made(const char* name)
    {
        fs::create_directory(home.File(name));
        return QString::fromStdString(home.File(name));
    }
    /// Where the folder is not the one that is set yet, as the window stands open.
    QString Uses(const QString& way)
    {
        const bool isSet = Folder().text().trimmed().toStdString() == PalmSyncFolder;
        return isSet ? "Save and Install uses " + way + "."
                     : "Save and Install will use " + way + " once this window is closed.";
    }

    TempFolder home;

private:
    Variable m_jpilotHome{ "JPILOT_HOME", home.Path().c_str() };
};

TEST_F(InstallWayLine, SaysThatNoneIsSetUpAndWhatWouldBe)
{
    Show();

    EXPECT_EQ(Line(), NoWay);
}

TEST_F(InstallWayLine, FollowsWhatIsTyped)
{
    const QString folder = Made("sync");
    Show();
    Folder().clear();

    QTest::keyClicks(&Folder(), folder.chopped(1));
    EXPECT_EQ(Line(), QString("There is no such palm-sync folder. ") + NoWay);

    QTest::keyClicks(&Folder(), folder.last(1));
    EXPECT_EQ(Line(), Uses("palm-sync, in " + folder));
    EXPECT_EQ(Folder().accessibleDescription(), Line()) << "for those who can't see the line";

    QTest::keyClicks(&Folder(), "  ");
    EXPECT_EQ(Line(), Uses("palm-sync, in " + folder)) << "blanks at its end don't count";

    Folder().clear();
    EXPECT_EQ(Line(), NoWay);
}

TEST_F(InstallWayLine, FollowsWhatIsBrowsedFor)
{
    const QString folder = Made("sync");
    Show();
    ask.ChooseFolder(folder);

    QTest::mouseClick(&Find<QPushButton>("cmdBrowsePalmSync"), Qt::LeftButton);

    EXPECT_EQ(Line(), Uses("palm-sync, in " + folder));
}

TEST_F(InstallWayLine, GoesByTheSettingAtFirst)
{
    const QString folder = Made("sync");
    WriteSettings("[Hotsync Info]\nPalm Sync Folder=" + folder.toStdString() + "\n");

    Show();

    EXPECT_EQ(Folder().text(), folder);
    EXPECT_EQ(Line(), Uses("palm-sync, in " + folder));
}

TEST_F(InstallWayLine, PutsPalmSyncBeforeJPilot)
{
    const QString sync = Made("sync");
    const QString jpilot = Made(".jpilot");
    Show();
    EXPECT_EQ(Line(), Uses("J-Pilot, in " + jpilot));

    Folder().setText(sync);
    EXPECT_EQ(Line(), Uses("palm-sync, in " + sync));

    Folder().setText(sync + "/gone");
    EXPECT_EQ(Line(), "There is no such palm-sync folder. " + Uses("J-Pilot, in " + jpilot));
}

TEST_F(InstallWayLine, TakesNoFileForAFolder)
{
    WriteText(home.File("sync"), "");
    Show();

    Folder().setText(QString::fromStdString(home.File("sync")));

    EXPECT_EQ(Line(), QString("There is no such palm-sync folder. ") + NoWay);
}

TEST_F(InstallWayLine, SeesFoldersThatCameAndWentWhileTheUserWasElsewhere)
{
    Show();
    const auto comeBack = [&] {
        QEvent back(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&Find<QDialog>("frmProgOptions"), &back);
    };
    const QString jpilot = Made(".jpilot");

    comeBack();
    EXPECT_EQ(Line(), Uses("J-Pilot, in " + jpilot));

    fs::remove(jpilot.toStdString());
    comeBack();
    EXPECT_EQ(Line(), NoWay);
}

TEST_F(InstallWayLine, ShowsAFoldersNameAsItIs)
{
    const QString folder = Made("<b>a&b %1");
    Show();

    Folder().setText(folder);

    EXPECT_EQ(Line(), Uses("palm-sync, in " + folder));
    EXPECT_EQ(Find<QLabel>("lblInstallWay").textFormat(), Qt::PlainText);
}

TEST_F(InstallWayLine, NeverWidensTheWindow)
{
    std::string folder = home.File(std::string(100, 'x'));
    fs::create_directory(folder);
    Show();
    QCoreApplication::processEvents();
    const int width = Find<QWidget>("allOptions").width();

    Folder().setText(QString::fromStdString(folder));
    QCoreApplication::processEvents();

    EXPECT_EQ(Find<QWidget>("allOptions").width(), width);
}

} // namespace
} // namespace vypx::test

#endif
