#include "GreetingFixture.h"
#include "OutsideFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using testing::ElementsAre;

using OutsideFilesAtStart = FromOutside<GreetingFixture>;

TEST_F(OutsideFilesAtStart, SplashSearchAndTipAreWaitedFor)
{
    bool taken = false;
    QTimer::singleShot(0, [&] { taken = Take(Set()); });
    StartWith({ .splash = true, .search = true, .tip = true });
    RunEvents();
    ASSERT_NE(Splash(), nullptr);
    EXPECT_FALSE(FileLoaded);

    Press(Splash(), Qt::Key_Space);
    RunEvents();
    EXPECT_TRUE(taken);
    EXPECT_TRUE(HasSearched());
    ASSERT_NE(Tip(), nullptr);
    EXPECT_FALSE(FileLoaded);

    Click(Tip(), "cmdOK");

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideFilesAtStart, AFileAmidTheSearchOfAStartIsOpenedAfterIt)
{
    bool taken = false, wasLoaded = true;
    AmidTheSearch([&] {
        taken = Take(Set());
        QCoreApplication::processEvents();
        wasLoaded = FileLoaded;
    });

    StartWith({ .search = true });

    EXPECT_TRUE(taken);
    EXPECT_FALSE(wasLoaded);
    EXPECT_TRUE(WaitUntilOpen());
    EXPECT_TRUE(HasSearched());
}

TEST_F(OutsideFilesAtStart, ExitAmidTheSearchGivesTheFileBack)
{
    AmidTheSearch([&] {
        Watch();
        EXPECT_TRUE(Take(Set()));
        frame->Form().ExitProgram();
        EXPECT_FALSE(Taker().IsFree()); // though the search still runs
    });

    StartWith({ .search = true });

    EXPECT_THAT(givenBack, ElementsAre(QString::fromStdString(program.File("set.prc"))));
    EXPECT_FALSE(FileLoaded);
}

TEST_F(OutsideFilesAtStart, AWindowThatIsCalledAmidTheSearchOfAStartComesUpAfterIt)
{
    bool wasMinimised = false;
    AmidTheSearch([&] {
        frame->showMinimized();
        Taker().ComeUp({});
        wasMinimised = frame->isMinimized();
    });

    StartWith({ .search = true });

    EXPECT_TRUE(wasMinimised);
    EXPECT_FALSE(frame->isMinimized());
}

} // namespace
} // namespace vypx::test
