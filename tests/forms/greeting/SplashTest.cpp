#include "GreetingFixture.h"

#include "forms/greeting/frmSplash.h"
#include "forms/main/Form1.h"

#include <QCheckBox>
#include <QFrame>

namespace vypx::test {

namespace {

class SplashTest : public GreetingFixture {
protected:
    SplashTest() { StartWith({ .splash = true }); }

    QString Text(const char* name) { return In<QLabel>(Splash(), name).text(); }
};

TEST_F(SplashTest, TellsWhatItIsAndHowToGoOn)
{
    EXPECT_EQ(Text("lblCompanyProduct"), "VY Pixelworks");
    EXPECT_EQ(Text("lblVersion"), "Version 2.0.0");
    EXPECT_EQ(Text("Label1"), "Press F1 at any time for help.");
    EXPECT_EQ(Text("lblPressKey"), "Press a key or click to continue....");
    EXPECT_EQ(In<QCheckBox>(Splash(), "chkDoSearch").text(), "Search for Palm Apps at Startup");
    EXPECT_EQ(In<QCheckBox>(Splash(), "chkShowSplash").text(), "Show Splash Screen at Startup");
    EXPECT_EQ(Splash()->grab().toImage().pixelColor(4, 4), QColor(224, 223, 227));
}

TEST_F(SplashTest, TabAndArrowsEndItLikeAnyOtherKey)
{
    for (const Qt::Key key :
        { Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Down, Qt::Key_F5, Qt::Key_Space, Qt::Key_Delete }) {
        Press(Splash(), key);
        EXPECT_EQ(Splash(), nullptr) << key;
        frame.reset();
        StartWith({ .splash = true });
    }
}

TEST_F(SplashTest, F1EndsItAndAsksForHelpWhichNoOtherKeyDoes)
{
    for (const auto& [key, modifiers, asks] : { std::tuple(Qt::Key_F1, Qt::NoModifier, true),
             std::tuple(Qt::Key_F1, Qt::ShiftModifier, false),
             std::tuple(Qt::Key_F2, Qt::NoModifier, false) }) {
        frame.reset();
        StartWith({});
        auto* const splash = new frmSplash(frame->Form());
        std::optional<bool> asked;
        QObject::connect(splash, &QDialog::finished, [&] { asked = splash->AsksForHelp(); });
        splash->show();

        Press(splash, key, modifiers);

        EXPECT_EQ(asked, asks) << key;
        EXPECT_EQ(Splash(), nullptr);
    }
}

TEST_F(SplashTest, ShortcutsOfTheMenusOnlyEndIt)
{
    Press(Splash(), Qt::Key_O, Qt::ControlModifier);

    EXPECT_EQ(Splash(), nullptr);
    EXPECT_TRUE(ask.opened.empty());
}

TEST_F(SplashTest, ModifiersAloneDoNothing)
{
    for (const Qt::Key key : { Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr,
             Qt::Key_Meta, Qt::Key_Super_L, Qt::Key_CapsLock, Qt::Key_NumLock }) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(Splash()->focusWidget(), &press);
        EXPECT_NE(Splash(), nullptr) << key;
    }
}

TEST_F(SplashTest, AClickOnFrameImageOrLabelEndsIt)
{
    for (const char* name : { "frameSplash", "imgSplash", "lblCompanyProduct", "lblVersion",
             "Label1", "lblPressKey" }) {
        QTest::mouseClick(&In(Splash(), name), Qt::LeftButton, {}, { 2, 2 });
        EXPECT_EQ(Splash(), nullptr) << name;
        frame.reset();
        StartWith({ .splash = true });
    }
    QTest::mouseClick(Splash(), Qt::LeftButton, {}, { 0, 0 });
    EXPECT_EQ(Splash(), nullptr);
}

TEST_F(SplashTest, APressThatIsLetGoElsewhereEndsNothing)
{
    QTest::mousePress(Splash(), Qt::LeftButton, {}, { 4, 4 });
    QTest::mouseRelease(Splash(), Qt::LeftButton, {}, { -40, -40 });

    EXPECT_NE(Splash(), nullptr);
}

TEST_F(SplashTest, ItsBoxesSetTheSettingsAtOnceAndLeaveItStanding)
{
    EXPECT_FALSE(StartupSearch);

    Click(Splash(), "chkDoSearch");
    EXPECT_TRUE(StartupSearch);
    Click(Splash(), "chkShowSplash");
    EXPECT_FALSE(ShowSplash);
    Click(Splash(), "chkShowSplash");
    EXPECT_TRUE(ShowSplash);

    EXPECT_NE(Splash(), nullptr);
    EXPECT_FALSE(HasSearched()) << "not before it ends";
    Press(Splash(), Qt::Key_A);
    EXPECT_TRUE(HasSearched());
}

TEST_F(SplashTest, AKeyEndsItAlsoAfterAClickOnABox)
{
    Click(Splash(), "chkDoSearch");

    Press(Splash(), Qt::Key_Space);

    EXPECT_EQ(Splash(), nullptr);
    EXPECT_TRUE(StartupSearch) << "the key does not change the box";
}

TEST_F(SplashTest, TheSearchOfTheSettingsIsTickedAndCanBeTakenBack)
{
    frame.reset();
    StartWith({ .splash = true, .search = true });
    EXPECT_TRUE(In<QCheckBox>(Splash(), "chkDoSearch").isChecked());

    Click(Splash(), "chkDoSearch");
    Press(Splash(), Qt::Key_A);

    EXPECT_FALSE(HasSearched());
}

TEST_F(SplashTest, ASecondPressAmidItsSearchFindsItEnded)
{
    frame.reset();
    StartWith({ .splash = true, .search = true, .tip = true });
    QDialog* const splash = Splash();
    AmidTheSearch([&] {
        QTest::keyClick(splash, Qt::Key_B);
        splash->close();
        EXPECT_TRUE(StartupSearchRunning);
        EXPECT_EQ(Tip(), nullptr) << "the first end is not through";
    });

    Press(splash, Qt::Key_A);

    EXPECT_EQ(Splash(), nullptr);
    EXPECT_EQ(frame->findChildren<QDialog*>("frmTip").size(), 1);
    Press(Tip(), Qt::Key_Return);
    EXPECT_TRUE(CanUseMain());
}

} // namespace
} // namespace vypx::test
