#include "platform/Platform.h"
#include "platform/PassingFile.h"

#include "support/CommonUser.h"
#include "support/Files.h"
#include "support/Skips.h"
#include "support/TempFolder.h"

#include <cstdint>
#include <fstream>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <regex>

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
}

TEST(PassingFile, HasANameThatNoOtherCallGets)
{
    const std::string first = platform::NewPassingFile("/f/set.prc").filename().string();
    const std::string second = platform::NewPassingFile("/f/set.prc").filename().string();

    EXPECT_TRUE(std::regex_match(first, std::regex("set\\.prc\\.[0-9]+-[0-9]+\\.vypx-new")))
        << first;
    EXPECT_NE(first, second);
}

TEST(PassingFile, ALongNameIsCutBetweenLetters)
{
#ifdef _WIN32
    GTEST_SKIP() << "the letters of a name have 16 bits here";
#endif
    const fs::path longest = platform::NewPassingFile("/f/" + std::string(255, 'x'));
    const std::size_t room = longest.filename().string().find('.');
    // The last letter would be cut in two.
    const std::string umlauts = std::string(room - 1, 'x') + "\xC3\xA4.prc.and.more.to.be.cut.off";

    const std::string cut = platform::NewPassingFile("/f/" + umlauts).filename().string();

    EXPECT_EQ(longest.filename().string().size(), 255u);
    EXPECT_EQ(cut.substr(0, room), std::string(room - 1, 'x') + ".");
}

TEST(PassingFile, IsFoundBesideItsTargetOnly)
{
    const TempFolder folder;
    for (const char* name :
        { "set.prc.12-3.vypx-new", "set.prc.vypx-new", "set.prc.bak.1-2.vypx-new",
            "set.prc.1-2-3.vypx-new", "set.prc.-3.vypx-new", "set.prc.12-.vypx-new",
            "set.prc.12-x.vypx-new", "set.prc", "set.prc.12-3", "my set.prc.12-3.vypx-new" })
        WriteText(folder.File(name), "");

    const auto found = platform::PassingFilesOf(folder.File("set.prc"));

    EXPECT_THAT(found,
        ::testing::UnorderedElementsAre(fs::path(folder.File("set.prc.12-3.vypx-new")),
            fs::path(folder.File("set.prc.vypx-new"))));
    EXPECT_THAT(platform::PassingFilesOf("/no/such/folder/set.prc"), ::testing::IsEmpty());
}

TEST(ReplaceFile, RemovesWhatAKilledWriterOfThisFileLeft)
{
    const TempFolder folder;
    WriteText(folder.File("set.prc.12-3.vypx-new"), "half of");
    WriteText(folder.File("other.prc.12-3.vypx-new"), "half of another");

    EXPECT_FALSE(platform::ReplaceFile(folder.File("set.prc"), TextBytes("new")));

    EXPECT_FALSE(fs::exists(folder.File("set.prc.12-3.vypx-new")));
    EXPECT_TRUE(fs::exists(folder.File("other.prc.12-3.vypx-new")));
}

TEST(ReplaceFile, LeavesWhatAnotherWriterStillWrites)
{
    const TempFolder folder;
    FileLock writer;
    ASSERT_EQ(writer.TryLock(folder.File("set.prc.12-3.vypx-new")), FileLock::Answer::Taken);

    EXPECT_FALSE(platform::ReplaceFile(folder.File("set.prc"), TextBytes("new")));

    EXPECT_TRUE(fs::exists(folder.File("set.prc.12-3.vypx-new")));
}

TEST(ReplaceFile, FollowsASymbolicLinkAndKeepsIt)
{
    SKIP_WITHOUT_LINKS();
    const TempFolder folder;
    WriteText(folder.File("real"), "old");
    fs::create_symlink("real", folder.File("link"));

    EXPECT_FALSE(platform::ReplaceFile(folder.File("link"), TextBytes("new")));

    EXPECT_TRUE(fs::is_symlink(folder.File("link")));
    EXPECT_EQ(ReadText(folder.File("real")), "new");
}

TEST(ReplaceFile, KeepsPermissions)
{
    SKIP_WITHOUT_RIGHTS();
    const TempFolder folder;
    WriteText(folder.File("a"), "old");
    const fs::perms mine = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(folder.File("a"), mine);

    EXPECT_FALSE(platform::ReplaceFile(folder.File("a"), TextBytes("new")));

    EXPECT_EQ(fs::status(folder.File("a")).permissions(), mine);
}

TEST(ReplaceFile, GivesACopyThePermissionsOfItsOriginal)
{
    SKIP_WITHOUT_RIGHTS();
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

TEST(ReplaceFile, IsCalledOffBeforeTheNewFileHasItsName)
{
    const TempFolder folder;
    WriteText(folder.File("a"), "old");
    std::size_t files = 0;

    const std::error_code error =
        platform::ReplaceFile(folder.File("a"), TextBytes("new"), {}, [&] {
            files = FilesIn(folder);
            return false;
        });

    EXPECT_EQ(error, std::errc::operation_canceled);
    EXPECT_EQ(files, 2u) << "asked when all but the name was done";
    EXPECT_EQ(ReadText(folder.File("a")), "old");
    EXPECT_EQ(FilesIn(folder), 1u);
}

TEST(ExplainRefusal, NamesAFolderThatIsMissing)
{
    const TempFolder folder;
    const std::string file = folder.File("missing/set.prc");
    const std::error_code error = platform::ReplaceFile(file, TextBytes("x"));

    const platform::Refusal refusal = platform::ExplainRefusal(file, error);

    EXPECT_EQ(refusal.path, folder.File("missing"));
    EXPECT_EQ(refusal.reason, error.message());
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST(ExplainRefusal, NamesAFileThatStandsWhereTheFolderShould)
{
    const TempFolder folder;
    WriteText(folder.File("file"), "");
    const std::string below = folder.File("file/set.prc");
    const std::error_code error = platform::ReplaceFile(below, TextBytes("x"));

    EXPECT_EQ(platform::ExplainRefusal(below, error).path, folder.File("file"));
}

TEST(ExplainRefusal, AFolderInTheFilesPlaceIsToldInWords)
{
    const TempFolder folder;
    fs::create_directory(folder.File("set.prc.bak"));
    const std::string file = folder.File("set.prc.bak");
    const std::error_code error = platform::ReplaceFile(file, TextBytes("x"));

    const platform::Refusal refusal = platform::ExplainRefusal(file, error);

    EXPECT_EQ(refusal.path, file);
    EXPECT_EQ(refusal.reason, "there is a folder of this name");
}

TEST(ExplainRefusal, AFullDiskIsTheFiles)
{
    const std::error_code error = std::make_error_code(std::errc::no_space_on_device);

    EXPECT_EQ(
        platform::ExplainRefusal("/nowhere/at/all/set.prc", error).path, "/nowhere/at/all/set.prc");
}

#ifndef _WIN32

TEST(ExplainRefusal, NamesAFolderOrAFileThatCannotBeWritten)
{
    const TempFolder folder;
    fs::create_directory(folder.File("closed"));
    fs::create_symlink("closed/set.prc", folder.File("link.prc"));
    WriteText(folder.File("closed/set.prc"), "old");
    WriteText(folder.File("mine.prc"), "old");
    fs::permissions(folder.File("closed/set.prc"), fs::perms(0666));
    fs::permissions(folder.File("mine.prc"), fs::perms(0444));
    fs::permissions(folder.Path(), fs::perms::all);
    fs::permissions(folder.File("closed"), fs::perms(0555));
    const auto told = [&](const std::string& name) {
        const CommonUser common;
        const std::error_code error = platform::ReplaceFile(folder.File(name), TextBytes("new"));
        const platform::Refusal refusal = platform::ExplainRefusal(folder.File(name), error);
        return refusal.path + ": " + refusal.reason;
    };

    EXPECT_EQ(told("closed/set.prc"), folder.File("closed") + ": Permission denied");
    EXPECT_EQ(told("link.prc"), folder.File("closed") + ": Permission denied");
    EXPECT_EQ(told("mine.prc"), folder.File("mine.prc") + ": Permission denied");
    fs::permissions(folder.File("closed"), fs::perms::owner_all);
}

#endif

/// Worked out with the number of seconds from 1601 to 1970, 11,644,473,600.
TEST(NanosecondsFromFileTime, CountsFrom1970AndNeverOverflows)
{
    constexpr std::uint64_t TicksOf1970 = 116'444'736'000'000'000;
    const auto convert = platform::NanosecondsFromFileTime;

    EXPECT_EQ(convert(TicksOf1970), 0);
    EXPECT_EQ(convert(TicksOf1970 + 1), 100);
    EXPECT_EQ(convert(TicksOf1970 - 10'000'000), -1'000'000'000);
    EXPECT_EQ(convert(133'485'408'000'000'000), 1'704'067'200'000'000'000) << "2024-01-01";
    EXPECT_EQ(convert(TicksOf1970 + 92'233'720'368'547'758), 9'223'372'036'854'775'800);
    EXPECT_EQ(
        convert(TicksOf1970 + 92'233'720'368'547'759), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(convert(std::numeric_limits<std::uint64_t>::max()),
        std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(convert(TicksOf1970 - 92'233'720'368'547'758), -9'223'372'036'854'775'800);
    EXPECT_EQ(
        convert(TicksOf1970 - 92'233'720'368'547'759), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(convert(0), std::numeric_limits<std::int64_t>::min());
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

TEST(FileLock, OnADeletedFileKeepsNobodyOut)
{
    const TempFolder folder;
    FileLock first, second, third;
    EXPECT_EQ(first.TryLock(folder.File("l")), FileLock::Answer::Taken);
    fs::remove(folder.File("l"));
    if (fs::exists(folder.File("l")))
        GTEST_SKIP() << "a deleted file keeps its name here as long as it is open";

    EXPECT_EQ(second.TryLock(folder.File("l")), FileLock::Answer::Taken);
    EXPECT_EQ(third.TryLock(folder.File("l")), FileLock::Answer::HeldByAnother);
}

TEST(FileLock, WaitsForAnotherToGo)
{
    const TempFolder folder;
    FileLock first, second;
    first.TryLock(folder.File("l"));
    EXPECT_EQ(second.Lock(folder.File("l"), std::chrono::milliseconds(1)),
        FileLock::Answer::HeldByAnother);
    auto waits = std::async(
        std::launch::async, [&] { return second.Lock(folder.File("l"), std::chrono::minutes(1)); });

    first.Unlock();

    EXPECT_EQ(waits.get(), FileLock::Answer::Taken);
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
