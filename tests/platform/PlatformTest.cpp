#include "platform/Platform.h"

#include "support/CommonUser.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using platform::FileLock;

Bytes TextBytes(std::string_view text) { return { text.begin(), text.end() }; }

std::size_t FilesIn(const TempFolder& folder)
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()));
}

TEST(ReadWholeFile, GivesAllBytes)
{
    const TempFolder folder;
    const Bytes bytes{ 0, 13, 10, 255, 26, 0 };
    WriteBytes(folder.File("a"), bytes);

    EXPECT_EQ(platform::ReadWholeFile(folder.File("a")), bytes);
}

TEST(ReadWholeFile, RefusesMoreThanTheLimit)
{
    const TempFolder folder;
    WriteText(folder.File("a"), "12345");

    EXPECT_TRUE(platform::ReadWholeFile(folder.File("a"), 5));
    EXPECT_FALSE(platform::ReadWholeFile(folder.File("a"), 4));
}

TEST(ReadWholeFile, ReadsNoFolderDeviceOrMissingFile)
{
    const TempFolder folder;

    EXPECT_FALSE(platform::ReadWholeFile(folder.Path()));
    EXPECT_FALSE(platform::ReadWholeFile(folder.File("missing")));
    EXPECT_FALSE(platform::ReadWholeFile("/dev/zero"));
}

TEST(ReplaceFile, MakesAndReplacesAndLeavesNothingBeside)
{
    const TempFolder folder;

    EXPECT_FALSE(platform::ReplaceFile(folder.File("a"), TextBytes("one")));
    EXPECT_FALSE(platform::ReplaceFile(folder.File("a"), TextBytes("two")));

    EXPECT_EQ(ReadText(folder.File("a")), "two");
    EXPECT_EQ(FilesIn(folder), 1u);
}

TEST(ReplaceFile, TakesTheLongestNamesThatTheSystemTakes)
{
    const TempFolder folder;
    const std::string longest(255, 'x');

    EXPECT_FALSE(platform::ReplaceFile(folder.File(longest), TextBytes("one")));

    EXPECT_EQ(ReadText(folder.File(longest)), "one");
    EXPECT_EQ(FilesIn(folder), 1u);
    EXPECT_EQ(platform::PassingFile("/f/set.prc"), "/f/set.prc.vypx-new");
    // 246 bytes are left for the name, which would cut the last letter in two.
    const std::string umlauts = std::string(245, 'x') + "\xC3\xA4.prc";
    EXPECT_EQ(platform::PassingFile("/f/" + umlauts), "/f/" + std::string(245, 'x') + ".vypx-new");
}

TEST(ReplaceFile, FollowsASymbolicLinkAndKeepsIt)
{
    const TempFolder folder;
    WriteText(folder.File("real"), "old");
    fs::create_symlink("real", folder.File("link"));

    EXPECT_FALSE(platform::ReplaceFile(folder.File("link"), TextBytes("new")));

    EXPECT_TRUE(fs::is_symlink(folder.File("link")));
    EXPECT_EQ(ReadText(folder.File("real")), "new");
}

TEST(ReplaceFile, KeepsPermissions)
{
    const TempFolder folder;
    WriteText(folder.File("a"), "old");
    const fs::perms mine = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(folder.File("a"), mine);

    EXPECT_FALSE(platform::ReplaceFile(folder.File("a"), TextBytes("new")));

    EXPECT_EQ(fs::status(folder.File("a")).permissions(), mine);
}

TEST(ReplaceFile, GivesACopyThePermissionsOfItsOriginal)
{
    const TempFolder folder;
    WriteText(folder.File("a"), "secret");
    WriteText(folder.File("older copy"), "x");
    const fs::perms mine = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(folder.File("a"), mine);

    for (const char* copy : { "new copy", "older copy" }) {
        EXPECT_FALSE(
            platform::ReplaceFile(folder.File(copy), TextBytes("secret"), folder.File("a")));

        EXPECT_EQ(fs::status(folder.File(copy)).permissions(), mine) << copy;
    }
}

#ifndef _WIN32

TEST(ReplaceFile, ACopyOfAReadOnlyFileCanBeReplacedByTheNext)
{
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    const CommonUser common;
    WriteText(folder.File("a"), "x");
    fs::permissions(folder.File("a"), fs::perms::owner_read);

    EXPECT_FALSE(platform::ReplaceFile(folder.File("copy"), TextBytes("1"), folder.File("a")));
    EXPECT_FALSE(platform::ReplaceFile(folder.File("copy"), TextBytes("2"), folder.File("a")));

    EXPECT_EQ(ReadText(folder.File("copy")), "2");
    EXPECT_TRUE(platform::ReplaceFile(folder.File("a"), TextBytes("2"))) << "but not the original";
}

TEST(ReplaceFile, GivesTheRightsOfAGroupToNoOther)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can make a file of another group";
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    WriteText(folder.File("a"), "x");
    ASSERT_EQ(::chown(folder.File("a").c_str(), 65534, 4711), 0);
    fs::permissions(folder.File("a"), fs::perms(0664));
    {
        const CommonUser common; // of the group 0

        EXPECT_FALSE(platform::ReplaceFile(folder.File("a"), TextBytes("y")));
    }

    EXPECT_EQ(fs::status(folder.File("a")).permissions(), fs::perms(0644));
}

#endif

TEST(ReplaceFile, AFailureIsNamedAndLeavesTheOldFile)
{
    const TempFolder folder;

    EXPECT_TRUE(platform::ReplaceFile(folder.File("no/such/folder"), TextBytes("x")));
    fs::create_directory(folder.File("sub"));
    EXPECT_TRUE(platform::ReplaceFile(folder.File("sub"), TextBytes("x")));

    EXPECT_TRUE(fs::is_directory(folder.File("sub")));
    EXPECT_EQ(FilesIn(folder), 1u);
}

TEST(IdentityOf, AWriteChangesIt)
{
    const TempFolder folder;
    WriteText(folder.File("a"), "one");
    const auto before = platform::IdentityOf(folder.File("a"));

    ASSERT_FALSE(platform::ReplaceFile(folder.File("a"), TextBytes("two")));

    ASSERT_TRUE(before);
    EXPECT_NE(platform::IdentityOf(folder.File("a")), before);
    EXPECT_FALSE(platform::IdentityOf(folder.File("missing")));
}

TEST(FileLock, KeepsOthersOutUntilItGoes)
{
    const TempFolder folder;
    FileLock second;
    {
        FileLock first;
        EXPECT_EQ(first.TryLock(folder.File("l")), FileLock::Answer::Taken);
        EXPECT_EQ(second.TryLock(folder.File("l")), FileLock::Answer::HeldByAnother);
        EXPECT_FALSE(second.Held());
    }
    EXPECT_EQ(second.TryLock(folder.File("l")), FileLock::Answer::Taken);
    EXPECT_TRUE(second.Held());
}

TEST(FileLock, FailsWhereNoFileCanBeMade)
{
    FileLock lock;

    EXPECT_EQ(lock.TryLock("/nowhere/at/all"), FileLock::Answer::Failed);
}

TEST(FolderIsWritable, IsFoundOutByMakingAFileThatGoesAgain)
{
    const TempFolder folder;

    EXPECT_TRUE(platform::FolderIsWritable(folder.Path()));
    EXPECT_FALSE(platform::FolderIsWritable(folder.File("missing")));
    EXPECT_EQ(FilesIn(folder), 0u);
}

} // namespace
} // namespace vypx::test
