#include "screen/Screen.h"

namespace vypx::test {

namespace {

class GreetingOnScreen : public ScreenFixture {
protected:
    GreetingOnScreen()
        : ScreenFixture(Greets::SplashAndTip)
    {
        EXPECT_TRUE(WaitForWindow("frmSplash"));
    }

    bool CanUseMain() { return Ask("enabled MDIForm1") == "yes"; }
};

TEST_F(GreetingOnScreen, KeysOfTheKeyboardGetPastSplashAndTip)
{
    EXPECT_FALSE(CanUseMain());
    WaitUntil([&] { return IsVisible("frmTip"); }, [&] { screen.Key("Tab"); });
    EXPECT_FALSE(IsVisible("frmSplash"));
    EXPECT_FALSE(CanUseMain());

    WaitUntil([&] { return !IsVisible("frmTip"); }, [&] { screen.Key("Escape"); });

    EXPECT_TRUE(CanUseMain());
}

TEST_F(GreetingOnScreen, ClicksGetPastThemToo)
{
    Click("imgSplash");
    EXPECT_TRUE(WaitForWindow("frmTip"));
    EXPECT_TRUE(WaitForWindow("frmSplash", false));

    Click("cmdOK");

    EXPECT_TRUE(WaitForWindow("frmTip", false));
    EXPECT_TRUE(CanUseMain());
}

} // namespace
} // namespace vypx::test
