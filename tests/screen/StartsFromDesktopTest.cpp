#include "screen/DesktopFixture.h"

#include "support/Files.h"

#include <chrono>
#include <gmock/gmock.h>
#include <thread>

namespace vypx::test {

namespace {

using StartsFromDesktop = DesktopFixture;

TEST_F(StartsFromDesktop, TheBusStartsTheProgramForAFile)
{
    StartBus();

    EXPECT_EQ(Open({ Set("a.prc") }), Done);

    EXPECT_TRUE(WaitForWindow(TitleOf("a.prc")));
    WaitForCopies(1);
}

TEST_F(StartsFromDesktop, TheBusStartsTheProgramOnceAndTheNextActivateOnceMore)
{
    StartBus();

    EXPECT_EQ(Activate(), Done);
    EXPECT_TRUE(WaitForWindow(Empty));
    WaitForCopies(1);

    EXPECT_EQ(Activate(), Done);

    WaitForCopies(2);
    EXPECT_TRUE(WaitForWindow(Empty, 2));
}

TEST_F(StartsFromDesktop, ACopyOfOneThatTheBusStartedIsNotTakenForOneItself)
{
    StartBus();
    Activate();
    WaitForCopies(1);
    Activate();
    const auto copies = WaitForCopies(2);
    const std::string first = Owner();
    Crash(first); // the second one hears the next call

    ASSERT_TRUE(WaitUntil([&] { return Copies().size() == 1; }));
    EXPECT_EQ(Activate(), Done);

    WaitForCopies(2);
}

TEST_F(StartsFromDesktop, ACopyThatInheritedTheMarkOfAStartByTheBusStartsAFurtherOne)
{
    StartBus();
    const auto copy = StartCopy({ "DBUS_STARTER_BUS_TYPE=session" });
    WaitForCopies(1);
    ASSERT_TRUE(WaitForWindow(Empty));
    std::this_thread::sleep_for(std::chrono::seconds(4)); // "just started" is over

    EXPECT_EQ(Activate(), Done);

    WaitForCopies(2);
}

TEST_F(StartsFromDesktop, WhatBringsAWindowUpComesToTheNewCopyInItsOwnVariables)
{
    StartBus();
    const auto copy = StartCopy({ "DBUS_STARTER_BUS_TYPE=session",
        "DBUS_STARTER_ADDRESS=unix:path=/x", "XDG_ACTIVATION_TOKEN=old" });
    const std::string name = WaitForCopies(1).at(0);
    Open({ Set("a.prc") }); // so that the next call is not taken for that of a start

    EXPECT_EQ(
        Call("org.freedesktop.Application.Activate", { "{'desktop-startup-id': <'x_TIME7'>}" }),
        Done);

    auto copies = WaitForCopies(2);
    std::erase(copies, name);
    const auto environment = EnvironmentOf(copies.at(0));
    const std::string all = testing::PrintToString(environment);
    EXPECT_THAT(environment, testing::Contains("DESKTOP_STARTUP_ID=x_TIME7"));
    EXPECT_EQ(all.find("XDG_ACTIVATION_TOKEN"), std::string::npos);
    EXPECT_EQ(all.find("DBUS_STARTER"), std::string::npos);
}

/// Without a bus: starts as ever, and ends when it is told to.
class WithoutABus : public DesktopFixture {
protected:
    void ExpectAnOrdinaryStart()
    {
        const auto copy = StartCopy();

        EXPECT_TRUE(WaitForWindow(Empty));
        EXPECT_EQ(ReadText(File("errors")), "");

        EXPECT_TRUE(WaitUntil([&] { return Windows(Empty) == 0; }, [&] { screen.Key("alt+F4"); }));
        EXPECT_EQ(copy->Wait(), 0);
    }
};

TEST_F(WithoutABus, AnAddressWhereNobodyIsChangesNothing)
{
    UseAddress("unix:path=" + File("nobody"));
    ExpectAnOrdinaryStart();
}

TEST_F(WithoutABus, AnAddressThatIsNoneChangesNothing)
{
    UseAddress("nonsense");
    ExpectAnOrdinaryStart();
}

} // namespace
} // namespace vypx::test
