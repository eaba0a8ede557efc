#include "document/AppFolders.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// A folder that nobody can write into, root included: it is not there.
std::string Unwritable(const TempFolder& folder) { return folder.File("missing/program"); }

TEST(AppFolders, TheProgramsFolderIsUsedWhereItCanBeWritten)
{
    const TempFolder program, user;

    EXPECT_EQ(ResolveAppFolder(program.Path(), user.File("data")), program.Path());
    EXPECT_FALSE(std::filesystem::exists(user.File("data")));
}

TEST(AppFolders, ElseTheUsersFolderIsMade)
{
    const TempFolder folder;

    EXPECT_EQ(
        ResolveAppFolder(Unwritable(folder), folder.File("user/data")), folder.File("user/data"));

    EXPECT_TRUE(std::filesystem::is_directory(folder.File("user/data")));
}

TEST(AppFolders, TheUsersFolderIsFilledOnce)
{
    const TempFolder program, user;
    WriteText(program.File("AppList.dat"), "[First]\n");
    std::filesystem::permissions(
        program.Path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const std::string data = user.File("data");
    if (ResolveAppFolder(program.Path(), data) != data) {
        std::filesystem::permissions(program.Path(), std::filesystem::perms::owner_all);
        GTEST_SKIP() << "this user can write everywhere";
    }
    EXPECT_EQ(ReadText(data + "/AppList.dat"), "[First]\n");

    WriteText(data + "/AppList.dat", "[Mine]\n");
    ResolveAppFolder(program.Path(), data);
    std::filesystem::permissions(program.Path(), std::filesystem::perms::owner_all);

    EXPECT_EQ(ReadText(data + "/AppList.dat"), "[Mine]\n");
}

TEST(AppFolders, WhereNeitherCanBeWrittenItIsTheProgramsFolder)
{
    const TempFolder folder;
    WriteText(folder.File("file"), "");

    EXPECT_EQ(ResolveAppFolder(Unwritable(folder), folder.File("file/data")), Unwritable(folder));
    EXPECT_EQ(ResolveAppFolder(Unwritable(folder), ""), Unwritable(folder));
}

} // namespace
} // namespace vypx::test
