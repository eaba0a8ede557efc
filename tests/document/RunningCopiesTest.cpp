#include "document/RunningCopies.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(RunningCopies, TheFirstIsAlone)
{
    const TempFolder folder;
    RunningCopies first;

    first.Enter(folder.Path());

    EXPECT_FALSE(first.AnotherRan());
    EXPECT_EQ(first.Place(), 0);
}

TEST(RunningCopies, FurtherOnesFindTheOthers)
{
    const TempFolder folder;
    RunningCopies first, second, third;
    first.Enter(folder.Path());

    second.Enter(folder.Path());
    third.Enter(folder.Path());

    EXPECT_TRUE(second.AnotherRan());
    EXPECT_EQ(second.Place(), 1);
    EXPECT_TRUE(third.AnotherRan());
    EXPECT_EQ(third.Place(), 2);
}

TEST(RunningCopies, AnyOtherCountsEvenWhenTheFirstHasLeft)
{
    const TempFolder folder;
    RunningCopies first, second, third;
    first.Enter(folder.Path());
    second.Enter(folder.Path());
    first.Leave();

    third.Enter(folder.Path());

    EXPECT_TRUE(third.AnotherRan());
}

TEST(RunningCopies, ALockFileThatACrashLeftIsNotBelieved)
{
    const TempFolder folder;
    WriteText(folder.File("copy0.lock"), "");
    RunningCopies copy;

    copy.Enter(folder.Path());

    EXPECT_FALSE(copy.AnotherRan());
}

TEST(RunningCopies, LeavingTakesTheLockFileAway)
{
    const TempFolder folder;
    RunningCopies copy;
    copy.Enter(folder.Path());

    copy.Leave();

    EXPECT_FALSE(std::filesystem::exists(folder.File("copy0.lock")));
}

TEST(RunningCopies, WhereNoLockCanBeMadeItBelievesToBeAlone)
{
    RunningCopies copy;

    copy.Enter("/nowhere/at/all");

    EXPECT_FALSE(copy.AnotherRan());
    EXPECT_EQ(copy.Place(), 0);
}

} // namespace
} // namespace vypx::test
