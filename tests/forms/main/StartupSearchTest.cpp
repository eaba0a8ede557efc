#include "SearchRunFixture.h"

#include "document/SettingsFile.h"

namespace vypx::test {

namespace {

/// The search that a start begins with.
class StartupSearchTest : public SearchRunFixture {
protected:
    StartupSearchTest() { PutApplications(Many); }

    /// The program once more, with these settings.
    void StartAgain(const std::string& searches = "True")
    {
        frame.reset();
        WriteSettings("[Startup Search]\nSearch for apps at startup=" + searches
            + "\n[Hotsync Info]\nPalm Desktop Folder=" + program.File("palm") + "\n");
        m_isMet = false;
        QTimer::singleShot(0, &m_timers, [this] { Meet(); });
        Start();
    }
    void WhileItRuns(std::function<void()> act) { m_act = std::move(act); }
    bool WasMet() const { return m_isMet; }

private:
    void Meet()
    {
        if (!StartupSearchRunning)
            return;
        m_isMet = true;
        if (m_act)
            m_act();
    }

    QObject m_timers;
    std::function<void()> m_act;
    bool m_isMet = false;
};

TEST_F(StartupSearchTest, AddsWhatIsNewWhileTheWindowIsAlive)
{
    WhileItRuns([&] {
        EXPECT_TRUE(frame->isVisible());
        EXPECT_EQ(Find<QLabel>("lblWorking").text(), "Updating application list....");
        EXPECT_TRUE(Find<QLabel>("lblWorking").isVisible());
        for (const char* name : { "mnuNew", "mnuOpen" })
            EXPECT_FALSE(CanUse(name)) << name;
        EXPECT_TRUE(CanUse("mnuOptions"));
    });

    StartAgain();

    EXPECT_TRUE(WasMet());
    EXPECT_EQ(NewApplications(), Many);
    EXPECT_FALSE(StartupSearchRunning);
    EXPECT_EQ(Find<QLabel>("lblWorking").text(), "Working....");
    EXPECT_FALSE(Find<QLabel>("lblWorking").isVisible());
    EXPECT_FALSE(Find<QLabel>("lblSearchingApp").isVisible());
    EXPECT_TRUE(CanUse("mnuNew"));
    EXPECT_TRUE(CanUse("mnuOpen"));
}

TEST_F(StartupSearchTest, IsNotRunWhereTheOptionIsOff)
{
    StartAgain("False");

    EXPECT_FALSE(WasMet());
    EXPECT_EQ(NewApplications(), 0);
}

TEST_F(StartupSearchTest, ShowsItsPathOnTheMainForm)
{
    QString path;
    bool isVisible = false;
    WhileItRuns([&] {
        AmidTheWalk([&] {
            path = PathOnShow();
            isVisible = Find<QLabel>("lblSearchingApp").isVisible();
        });
    });

    StartAgain();

    EXPECT_TRUE(path.endsWith("app0.prc")) << path.toStdString();
    EXPECT_TRUE(isVisible);
    EXPECT_EQ(PathOnShow(), "");
}

TEST_F(StartupSearchTest, ShowsItsPathInTheEditorThatIsOpenedMeanwhile)
{
    QString path;
    WhileItRuns([&] {
        OpenEditor();
        EXPECT_TRUE(IsSeen("lblSearching"));
        EXPECT_FALSE(CanUsePart("cmdGetAppsAuto"));
        AmidTheWalk([&] {
            path = Part<QLabel>("lblSearchingFolder").text();
            EXPECT_FALSE(Find<QLabel>("lblSearchingApp").isVisible());
        });
    });

    StartAgain();

    EXPECT_TRUE(path.endsWith("app0.prc")) << path.toStdString();
    EXPECT_EQ(Names().size(), 2 + Many) << "the list shows what was added";
    EXPECT_TRUE(CanUsePart("cmdGetAppsAuto"));
}

TEST_F(StartupSearchTest, EscapeInTheMainWindowStopsIt)
{
    WhileItRuns([&] { QTest::keyClick(&Nodes(), Qt::Key_Escape); });

    StartAgain();

    EXPECT_LT(NewApplications(), Many);
    EXPECT_TRUE(frame->isVisible());
}

TEST_F(StartupSearchTest, AnEscapeThatIsHeldFromAWindowBeforeDoesNotStopIt)
{
    WhileItRuns([&] {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&Nodes(), &repeat);
    });

    StartAgain();

    EXPECT_EQ(NewApplications(), Many);
}

TEST_F(StartupSearchTest, AnExitAmidItEndsTheProgram)
{
    WhileItRuns([&] {
        frame->close();
        EXPECT_TRUE(frame->isVisible());
    });

    StartAgain();

    EXPECT_TRUE(frame->isHidden()) << "so that nobody waits for its events";
    EXPECT_TRUE(SettingsSaved);
    EXPECT_LT(NewApplications(), Many);
}

TEST_F(StartupSearchTest, ItsWordsStandAlthoughAnotherCommandHidesTheLabel)
{
    WhileItRuns([&] {
        Find<QLabel>("lblWorking").setVisible(false); // as a command for a picture does
        AmidTheWalk([&] { EXPECT_TRUE(Find<QLabel>("lblWorking").isVisible()); });
    });

    StartAgain();
}

TEST_F(StartupSearchTest, AFolderThatIsNoneSearchesNothing)
{
    std::filesystem::remove_all(program.File("palm"));

    StartAgain();

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(NewApplications(), 0);
}

} // namespace
} // namespace vypx::test
