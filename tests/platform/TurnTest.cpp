#include "platform/Turn.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <future>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using platform::FileLock;
using platform::Turn;

TEST(Turn, KeepsOthersOutAndLeavesItsFileOrNot)
{
    const TempFolder folder;
    const std::string file = folder.File("l");
    for (const Turn::LockFile atEnd : { Turn::LockFile::Stays, Turn::LockFile::Goes }) {
        {
            const Turn turn(file, atEnd);
            EXPECT_EQ(FileLock().TryLock(file), FileLock::Answer::HeldByAnother);
        }
        EXPECT_EQ(fs::exists(file), atEnd == Turn::LockFile::Stays);
        EXPECT_EQ(FileLock().TryLock(file), FileLock::Answer::Taken);
    }
}

TEST(Turn, BeginsWhenTheOneBeforeEnds)
{
    const TempFolder folder;
    const std::string file = folder.File("l");
    std::string order;
    auto first = std::make_unique<Turn>(file, Turn::LockFile::Goes);
    auto second = std::async(std::launch::async, [&] {
        const Turn turn(file, Turn::LockFile::Goes);
        order += "2";
    });

    order += "1";
    first.reset();
    second.get();

    EXPECT_EQ(order, "12");
    EXPECT_FALSE(fs::exists(file));
}

TEST(Turn, GoesOnWhereNothingCanBeLocked)
{
    const TempFolder folder;
    fs::create_directory(folder.File("l"));
    {
        const Turn inNoFolder(folder.File("no/such/l"), Turn::LockFile::Goes);
        const Turn onAFolder(folder.File("l"), Turn::LockFile::Goes);
    }
    EXPECT_TRUE(fs::is_directory(folder.File("l"))) << "it is not its own";
}

TEST(Turn, DoesNotWaitForEverAndLeavesTheLockOfAProgramThatHangs)
{
    const TempFolder folder;
    FileLock other;
    ASSERT_EQ(other.TryLock(folder.File("l")), FileLock::Answer::Taken);
    {
        const Turn turn(folder.File("l"), Turn::LockFile::Goes);
    }
    EXPECT_EQ(FileLock().TryLock(folder.File("l")), FileLock::Answer::HeldByAnother);
}

} // namespace
} // namespace vypx::test
