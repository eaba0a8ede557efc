#include "forms/main/BusyGuard.h"

#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <stdexcept>

namespace vypx::test {

namespace {

TEST(BusyGuard, KeepsClicksOutWhileWorkRuns)
{
    BusyGuard guard;
    QPushButton button;
    button.show();
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });

    guard.Run([&] {
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, Qt::Key_Space);
    });
    EXPECT_EQ(clicks, 0);

    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1) << "afterwards it works again";
}

TEST(BusyGuard, WorkWithinWorkEndsWithTheOuterOne)
{
    BusyGuard guard;
    bool within = false;

    guard.Run([&] {
        guard.Run([] {});
        within = guard.IsBusy();
    });

    EXPECT_TRUE(within);
    EXPECT_FALSE(guard.IsBusy());
}

TEST(BusyGuard, WorkThatFailsLeavesTheProgramUsable)
{
    BusyGuard guard;

    bool ran = false;

    const auto fail = [&] {
        guard.WhenIdle([&] { ran = true; });
        throw std::runtime_error("no");
    };
    EXPECT_THROW(guard.Run(fail), std::runtime_error);

    EXPECT_FALSE(guard.IsBusy());
    EXPECT_TRUE(ran) << "what was put off";
}

TEST(BusyGuard, WhatIsPutOffRunsOnceAtTheEnd)
{
    BusyGuard guard;
    int ran = 0;

    guard.Run([&] {
        guard.WhenIdle([&] { ++ran; });
        guard.Run([] {});
        EXPECT_EQ(ran, 0);
    });
    EXPECT_EQ(ran, 1);

    guard.Run([] {});
    EXPECT_EQ(ran, 1);
    guard.WhenIdle([&] { ++ran; });
    EXPECT_EQ(ran, 2) << "at once where nothing is at hand";
}

} // namespace
} // namespace vypx::test
