#include "forms/common/DisabledWindow.h"

#include <QDialog>
#include <QLineEdit>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace vypx::test {

namespace {

/// A window with two texts, the second of which has the focus.
struct Disabled : ::testing::Test {
    Disabled()
    {
        window.show();
        first.move(0, 40);
        second.setFocus();
    }

    QWidget window;
    QLineEdit first{ &window }, second{ &window };
};

TEST_F(Disabled, TheWindowAndWhatItHoldsAreUsableAgainAfterwards)
{
    QDialog child(&window);
    {
        const DisabledWindow disabled(window);
        EXPECT_FALSE(window.isEnabled());
        EXPECT_FALSE(second.isEnabled());
        EXPECT_FALSE(child.isEnabled());
    }
    EXPECT_TRUE(window.isEnabled());
    EXPECT_TRUE(second.isEnabled());
    EXPECT_TRUE(child.isEnabled());
}

TEST_F(Disabled, AHeldChildThatIsLetGoFollowsTheWindow)
{
    QDialog child(&window);
    HoldWindow(child, true);
    EXPECT_FALSE(child.isEnabled());
    {
        const DisabledWindow disabled(window);
        HoldWindow(child, false);
        EXPECT_FALSE(child.isEnabled()) << "it would be used over a window that waits";
    }
    EXPECT_TRUE(child.isEnabled());
}

TEST_F(Disabled, AHeldChildStaysSoWhenTheWindowIsFreed)
{
    QDialog child(&window);
    {
        const DisabledWindow disabled(window);
        HoldWindow(child, true);
    }
    EXPECT_FALSE(child.isEnabled());
    HoldWindow(child, false);
    EXPECT_TRUE(child.isEnabled());
}

TEST_F(Disabled, TheLastOfSeveralHoldersFreesItWhicheverThatIs)
{
    for (const bool firstGoesFirst : { true, false }) {
        second.setFocus();
        auto one = std::make_unique<DisabledWindow>(window);
        auto other = std::make_unique<DisabledWindow>(window);

        (firstGoesFirst ? one : other).reset();
        EXPECT_FALSE(window.isEnabled());
        (firstGoesFirst ? other : one).reset();

        EXPECT_TRUE(window.isEnabled());
        EXPECT_EQ(window.focusWidget(), &second);
    }
}

TEST_F(Disabled, AWindowThatIsMadeMeanwhileCanBeUsed)
{
    const DisabledWindow disabled(window);
    const QDialog child(&window);

    EXPECT_TRUE(child.isEnabled());
}

TEST_F(Disabled, AWindowMayGoBeforeItsHolder)
{
    auto passing = std::make_unique<QWidget>();
    const DisabledWindow disabled(*passing);

    passing.reset();
}

} // namespace

} // namespace vypx::test
