#include "platform/Folders.h"

#include "platform/WideText.h"

#include "platform/Registry.h"
#include "support/CommonUser.h"
#include "support/Files.h"
#include "support/Skips.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using platform::FolderId;
using platform::FolderListing;
using platform::ListFolder;
using platform::ReadFileHead;
using ::testing::UnorderedElementsAre;

bool Any(FolderId) { return true; }

/// Names; a slash behind those of folders.
std::vector<std::string> NamesOf(const FolderListing& listing)
{
    std::vector<std::string> names;
    for (const platform::FolderEntry& entry : listing.entries)
        names.push_back(entry.name + (entry.isFolder ? "/" : ""));
    return names;
}

TEST(ListFolder, NamesFilesFoldersAndWhereLinksLead)
{
    SKIP_WITHOUT_LINKS();
    const TempFolder folder;
    fs::create_directory(folder.File("sub"));
    WriteText(folder.File(".hidden"), "");
    WriteText(folder.File("file"), "");
    fs::create_directory_symlink(folder.File("sub"), folder.File("link"));
    fs::create_symlink(folder.File("nowhere"), folder.File("broken"));

    const FolderListing listing = ListFolder(folder.Path(), Any);

    EXPECT_TRUE(listing.isWhole);
    EXPECT_THAT(
        NamesOf(listing), UnorderedElementsAre("sub/", ".hidden", "file", "link/", "broken"));
}

TEST(ListFolder, OneFolderHasOneIdentityByWhateverPath)
{
    SKIP_WITHOUT_LINKS();
    const TempFolder folder;
    fs::create_directory(folder.File("sub"));
    fs::create_directory_symlink(folder.File("sub"), folder.File("link"));
    std::vector<FolderId> ids;
    const auto keep = [&](FolderId id) {
        ids.push_back(id);
        return false;
    };
    WriteText(folder.File("sub/file"), "");

    const FolderListing unwanted = ListFolder(folder.File("sub"), keep);
    ListFolder(folder.File("link"), keep);
    ListFolder(folder.Path(), keep);

    ASSERT_EQ(ids.size(), 3u);
    EXPECT_EQ(ids[0], ids[1]);
    EXPECT_NE(ids[0], ids[2]);
    EXPECT_TRUE(unwanted.isWhole && unwanted.entries.empty())
        << "one that is not wanted is not read";
}

TEST(ListFolder, AsksBehindEachStepWhetherToGoOn)
{
    const TempFolder folder;
    for (std::size_t i = 0; i < 2 * platform::EntriesOfAStep + 1; ++i)
        WriteText(folder.File(std::to_string(i)), "");
    int asked = 0;

    EXPECT_EQ(ListFolder(folder.Path(), Any, [&] { return ++asked > 0; }).entries.size(),
        2 * platform::EntriesOfAStep + 1);
    EXPECT_EQ(asked, 2);
    const FolderListing stopped = ListFolder(folder.Path(), Any, [] { return false; });
    EXPECT_EQ(stopped.entries.size(), platform::EntriesOfAStep);
    EXPECT_TRUE(stopped.wasStopped);
    EXPECT_TRUE(stopped.isWhole) << "a stop is no failure";
}

TEST(Utf8FromWide, GivesEveryLetterAndNeverThrows)
{
    EXPECT_EQ(platform::Utf8FromWide(std::u16string_view(u"a\u00E9\u20AC\U0001F600")),
        "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    const char16_t halves[] = { 0xD83D, u'a', 0xDE00, 0xD83D };
    EXPECT_EQ(platform::Utf8FromWide(std::u16string_view(halves, 4)),
        "\xEF\xBF\xBD"
        "a"
        "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(ListFolder, WhatIsNoFolderCannotBeRead)
{
    const TempFolder folder;
    WriteText(folder.File("file"), "");

    EXPECT_FALSE(ListFolder(folder.File("file"), Any).isWhole);
    EXPECT_FALSE(ListFolder(folder.File("nowhere"), Any).isWhole);
}

TEST(ReadFileHead, GivesTheFirstBytesOrAllThereAre)
{
    const TempFolder folder;
    WriteText(folder.File("file"), "0123456789");
    WriteText(folder.File("empty"), "");

    EXPECT_EQ(ReadFileHead(folder.File("file"), 4), Hex("30 31 32 33"));
    EXPECT_EQ(ReadFileHead(folder.File("file"), 68)->size(), 10u);
    EXPECT_EQ(ReadFileHead(folder.File("empty"), 68), Bytes());
}

TEST(ReadFileHead, ReadsNoFolderAndNoMissingFile)
{
    SKIP_WITHOUT_LINKS();
    const TempFolder folder;
    fs::create_symlink(folder.File("nowhere"), folder.File("broken"));

    EXPECT_FALSE(ReadFileHead(folder.Path(), 68));
    EXPECT_FALSE(ReadFileHead(folder.File("nowhere"), 68));
    EXPECT_FALSE(ReadFileHead(folder.File("broken"), 68));
    EXPECT_FALSE(ReadFileHead("", 68));
}

#ifndef _WIN32

TEST(ReadFileHead, NeitherHangsOnAPipeNorReadsADevice)
{
    const TempFolder folder;
    ASSERT_EQ(::mkfifo(folder.File("pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", folder.File("zero"));

    EXPECT_FALSE(ReadFileHead(folder.File("pipe"), 68));
    EXPECT_FALSE(ReadFileHead(folder.File("zero"), 68));
}

TEST(ReadFileHead, AFileThatMayNotBeReadIsNone)
{
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    WriteText(folder.File("file"), "0123456789");
    fs::permissions(folder.File("file"), fs::perms::none);
    const CommonUser common;

    EXPECT_FALSE(ReadFileHead(folder.File("file"), 4));
}

TEST(ListFolder, OneThatMayNotBeReadIsNotWhole)
{
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    fs::create_directory(folder.File("sub"));
    fs::permissions(folder.File("sub"), fs::perms::none);
    const CommonUser common;

    EXPECT_FALSE(ListFolder(folder.File("sub"), Any).isWhole);
    EXPECT_TRUE(ListFolder(folder.Path(), Any).isWhole);
}

/// Far deeper than a path that the system takes at once: 4096 bytes.
TEST(Folders, PathsOfAnyLengthAreFollowed)
{
    const TempFolder folder;
    const std::string name(200, 'n');
    const fs::path before = fs::current_path();
    std::string path = folder.Path();
    fs::current_path(folder.Path());
    for (int depth = 0; depth < 100; ++depth) {
        fs::create_directory(name);
        fs::current_path(name);
        path += "/" + name;
    }
    WriteText("file", "0123456789");
    fs::current_path(before);

    EXPECT_THAT(NamesOf(ListFolder(path, Any)), UnorderedElementsAre("file"));
    EXPECT_EQ(ReadFileHead(path + "/file", 2), Hex("30 31"));
    EXPECT_FALSE(ReadFileHead(path + "/none", 2));
    EXPECT_FALSE(ListFolder(folder.Path() + "/none" + path, Any).isWhole);
    EXPECT_FALSE(ListFolder(std::string(10'000, 'x'), Any).isWhole) << "a name that none can have";
}

TEST(UserRegistryValues, AreNoneWhereThereIsNoRegistry)
{
    EXPECT_FALSE(platform::UserRegistryValues("Software"));
}

#endif

} // namespace
} // namespace vypx::test
