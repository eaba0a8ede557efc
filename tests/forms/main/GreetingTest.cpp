#include "GreetingFixture.h"

#include "document/SettingsFile.h"
#include "forms/greeting/frmTip.h"

namespace vypx::test {

namespace {

/// Starts with each combination of splash, search and tip.
class GreetingTest : public GreetingFixture, public ::testing::WithParamInterface<int> {
protected:
    bool HasSplash() const { return (GetParam() & 1) != 0; }
    bool Searches() const { return (GetParam() & 2) != 0; }
    bool HasTip() const { return (GetParam() & 4) != 0; }
};

} // namespace

TEST_P(GreetingTest, OneComesAfterTheOtherAndTheMainWindowIsFreeInTheEnd)
{
    bool wasMet = false;
    if (Searches())
        AmidTheSearch([&] {
            wasMet = true;
            EXPECT_EQ(Splash(), nullptr) << "unloaded before the search";
            EXPECT_EQ(Tip(), nullptr);
            EXPECT_TRUE(CanUseMain());
            EXPECT_TRUE(Find<QLabel>("lblWorking").isVisible());
        });

    StartWith({ HasSplash(), Searches(), HasTip() });

    if (HasSplash()) {
        ASSERT_NE(Splash(), nullptr);
        EXPECT_EQ(Tip(), nullptr);
        EXPECT_FALSE(HasSearched());
        EXPECT_FALSE(CanUseMain());
        Press(Splash(), Qt::Key_A);
    }
    EXPECT_EQ(Splash(), nullptr);
    EXPECT_EQ(HasSearched(), Searches());
    EXPECT_EQ(wasMet, Searches());
    EXPECT_FALSE(StartupSearchRunning);
    EXPECT_EQ(Tip() != nullptr, HasTip());
    if (HasTip()) {
        EXPECT_FALSE(CanUseMain());
        Press(Tip(), Qt::Key_Return);
    }
    EXPECT_EQ(Tip(), nullptr);
    EXPECT_TRUE(CanUseMain());
    EXPECT_EQ(frame->focusWidget(), &Nodes());
    EXPECT_FALSE(CanUse("mnuPasteLG"));
    EXPECT_FALSE(CanUse("mnuPasteSM"));
}

INSTANTIATE_TEST_SUITE_P(, GreetingTest, ::testing::Range(0, 8), [](const auto& test) {
    return std::string(test.param & 1 ? "Splash" : "NoSplash")
        + (test.param & 2 ? "Search" : "NoSearch") + (test.param & 4 ? "Tip" : "NoTip");
});

namespace {

class Greeted : public GreetingFixture { };

TEST_F(Greeted, ByDefaultWithSplashAndTipButNoSearch)
{
    SaveShowTipsAtStartup(true);
    StartAsItIs();

    Press(Splash(), Qt::Key_Space);

    EXPECT_NE(Tip(), nullptr);
    EXPECT_FALSE(HasSearched());
}

TEST_F(Greeted, AKeyThatIsHeldEndsNeitherSplashNorTip)
{
    StartWith({ .splash = true, .tip = true });

    Repeat(Splash(), Qt::Key_Return);
    ASSERT_NE(Splash(), nullptr) << "held since the program was started";
    Press(Splash(), Qt::Key_Return);
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space }) {
        Repeat(Tip(), key);
        QTest::keyRelease(Tip()->focusWidget(), key);
        ASSERT_NE(Tip(), nullptr) << key;
    }
    Press(Tip(), Qt::Key_Return);
    EXPECT_EQ(Tip(), nullptr);
}

TEST_F(Greeted, F1OnTheSplashEndsItAndThenOpensTheHelp)
{
    StartWith({ .splash = true });
    const auto isHelpOpen = [] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
            return window->objectName() == "frmHelp" && window->isVisible();
        });
    };

    Press(Splash(), Qt::Key_F1);

    EXPECT_EQ(Splash(), nullptr);
    EXPECT_TRUE(CanUseMain());
    EXPECT_TRUE(isHelpOpen());
}

TEST_F(Greeted, AClickOnTheWindowBehindLeavesTheKeysToTheSplash)
{
    StartWith({ .splash = true });
    frame->activateWindow();
    QCoreApplication::processEvents();

    EXPECT_EQ(QApplication::activeWindow(), Splash()) << "its words say that any key goes on";
}

TEST_F(Greeted, AnExitWhileTheSplashStandsSearchesNothingAndGivesNoTip)
{
    StartWith({ .splash = true, .search = true, .tip = true });

    frame->close();

    EXPECT_EQ(Splash(), nullptr);
    EXPECT_EQ(Tip(), nullptr);
    EXPECT_FALSE(HasSearched());
    EXPECT_TRUE(frame->isHidden());
    EXPECT_TRUE(SettingsSaved);
}

TEST_F(Greeted, AnExitAmidTheSearchGivesNoTip)
{
    for (const bool splash : { false, true }) {
        SettingsSaved = false;
        AmidTheSearch([&] { Entry("mnuExit").trigger(); });
        StartWith({ .splash = splash, .search = true, .tip = true });
        if (splash)
            Press(Splash(), Qt::Key_A);

        EXPECT_EQ(Tip(), nullptr);
        EXPECT_TRUE(frame->isHidden());
        std::filesystem::copy_file(std::string(VYPX_SHIPPED_DATA) + "/AppList.dat",
            program.File("AppList.dat"), std::filesystem::copy_options::overwrite_existing);
    }
}

TEST_F(Greeted, AnExitWhileTheTipStandsEndsTheProgram)
{
    StartWith({ .tip = true });

    frame->close();

    EXPECT_EQ(Tip(), nullptr);
    EXPECT_TRUE(frame->isHidden());
}

TEST_F(Greeted, ATipThatIsAskedForAmidTheSearchIsTheOnlyOne)
{
    AmidTheSearch([&] { Entry("mnuTips").trigger(); });
    StartWith({ .search = true, .tip = true });

    EXPECT_EQ(frame->findChildren<QDialog*>("frmTip").size(), 1);
    Press(Tip(), Qt::Key_Escape);
    EXPECT_EQ(Tip(), nullptr);
    EXPECT_TRUE(CanUseMain());
}

TEST_F(Greeted, AWindowThatIsOpenedAmidTheSearchWaitsForTheTip)
{
    AmidTheSearch([&] { Entry("mnuOptions").trigger(); });
    StartWith({ .search = true, .tip = true });

    EXPECT_FALSE(Window("frmProgOptions")->isEnabled());
    Press(Tip(), Qt::Key_Return);
    EXPECT_TRUE(Window("frmProgOptions")->isEnabled());
    EXPECT_TRUE(CanUseMain());
}

TEST_F(Greeted, AboutOpenedAmidTheSearchAndTheTipBothFreeTheMainWindowOnlyTogether)
{
    AmidTheSearch([&] { Entry("mnuAbout").trigger(); });
    StartWith({ .search = true, .tip = true });

    Press(About(), Qt::Key_Escape);
    EXPECT_FALSE(CanUseMain()) << "the tip still stands";
    Press(Tip(), Qt::Key_Escape);
    EXPECT_TRUE(CanUseMain());
}

TEST_F(Greeted, TheTipsOfAHelpMenuComeWhateverTheSettingIs)
{
    StartWith({});

    for (int i = 0; i < 2; ++i) {
        Entry("mnuTips").trigger();
        EXPECT_FALSE(CanUseMain());
        EXPECT_TRUE(In<QAbstractButton>(Tip(), "chkLoadTipsAtStartup").isChecked());
        EXPECT_FALSE(ShowTipsAtStartup()) << "ticked is not said";
        Click(Tip(), "cmdOK");
        EXPECT_TRUE(CanUseMain());
    }
    EXPECT_FALSE(TipOnDemand);
}

} // namespace

/// Each window that the main one waits for, and each way to leave it.
struct WayOut {
    const char* window;
    const char* way;
};

class WaysOut : public GreetingFixture, public ::testing::WithParamInterface<WayOut> {
protected:
    void OpenIt()
    {
        const bool isSplash = Name() == "frmSplash";
        StartWith({ .splash = isSplash });
        if (!isSplash)
            Entry(Name() == "frmTip" ? "mnuTips" : "mnuAbout").trigger();
    }
    QString Name() const { return GetParam().window; }
    void Leave()
    {
        const QString way = GetParam().way;
        if (way == "Escape")
            Press(Window(Name()), Qt::Key_Escape);
        else if (way == "Enter")
            Press(Window(Name()), Qt::Key_Return);
        else if (way == "Frame")
            Window(Name())->close();
        else
            Click(Window(Name()), way);
    }
};

TEST_P(WaysOut, FreeTheMainWindowAndItsSideWindows)
{
    OpenIt();
    ASSERT_NE(Window(Name()), nullptr);
    EXPECT_TRUE(Window(Name())->isEnabled());
    EXPECT_FALSE(CanUseMain());

    Leave();

    EXPECT_EQ(Window(Name()), nullptr);
    EXPECT_TRUE(CanUseMain());
    EXPECT_TRUE(CanUse("mnuOpen"));
    for (const char* side : { "frmShareList", "frmPreviewOpt", "frmIconStat" })
        EXPECT_TRUE(Find<QWidget>(side).isEnabled()) << side;
    EXPECT_EQ(frame->focusWidget(), &Nodes());
}

INSTANTIATE_TEST_SUITE_P(, WaysOut,
    ::testing::Values(WayOut{ "frmSplash", "Escape" }, WayOut{ "frmSplash", "Enter" },
        WayOut{ "frmSplash", "Frame" }, WayOut{ "frmSplash", "imgSplash" },
        WayOut{ "frmTip", "Escape" }, WayOut{ "frmTip", "Enter" }, WayOut{ "frmTip", "Frame" },
        WayOut{ "frmTip", "cmdOK" }, WayOut{ "frmAbout", "Escape" }, WayOut{ "frmAbout", "Enter" },
        WayOut{ "frmAbout", "Frame" }, WayOut{ "frmAbout", "cmdOK" }),
    [](const auto& test) { return std::string(test.param.window) + "_" + test.param.way; });

} // namespace vypx::test
