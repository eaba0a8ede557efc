#include "document/AppFolders.h"
#include "document/Product.h"

#include "support/CommonUser.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#ifndef _WIN32
#include <unistd.h>
#endif

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

/// A folder that nobody can write into, root included: it is not there.
std::string Unwritable(const TempFolder& folder) { return folder.File("missing/program"); }

TEST(AppFolders, TheProgramsFolderIsUsedWhereItCanBeWritten)
{
    const TempFolder program, user;

    const AppFolders folders = ResolveAppFolders(program.Path(), user.File("data"));

    EXPECT_EQ(folders, (AppFolders{ .work = program.Path(), .shipped = "" }));
    EXPECT_FALSE(fs::exists(user.File("data")));
}

TEST(AppFolders, ElseTheUsersFolderIsMadeAndFilledFromTheProgramsOne)
{
    const TempFolder folder;

    const AppFolders folders = ResolveAppFolders(Unwritable(folder), folder.File("user/data"));

    EXPECT_EQ(
        folders, (AppFolders{ .work = folder.File("user/data"), .shipped = Unwritable(folder) }));
    EXPECT_TRUE(fs::is_directory(folder.File("user/data")));
}

TEST(AppFolders, WhereNeitherCanBeWrittenItIsTheProgramsFolder)
{
    const TempFolder folder;
    WriteText(folder.File("file"), "");

    for (const std::string& user : { folder.File("file/data"), std::string() })
        EXPECT_EQ(ResolveAppFolders(Unwritable(folder), user),
            (AppFolders{ .work = Unwritable(folder), .shipped = "" }))
            << user;
}

#ifndef _WIN32 // where data stand beside the program in any layout

/// An installation in a folder of its own, as this process's user, who may be root, can write it.
class InstalledCopy : public ::testing::Test {
protected:
    InstalledCopy()
    {
        fs::create_directories(Programs());
        fs::create_directories(Data());
        WriteText(Data() + "/AppList.dat", "[Shipped]\n");
    }

    std::string Programs() const { return root.File("usr/bin"); }
    std::string Data() const
    {
        return (fs::path(Programs()) / DataFromPrograms).lexically_normal().string();
    }

    TempFolder root, user;
};

TEST_F(InstalledCopy, WorksInTheUsersFolderThoughItsOwnCanBeWritten)
{
    const AppFolders folders = ResolveAppFolders(Programs(), user.File("a/data"));

    EXPECT_EQ(folders, (AppFolders{ .work = user.File("a/data"), .shipped = Data() }));
    EXPECT_TRUE(fs::is_directory(user.File("a/data")));
    EXPECT_TRUE(fs::is_empty(Programs()));
}

TEST_F(InstalledCopy, IsNoneWhereDataStandBesideTheProgram)
{
    WriteText(Programs() + "/AppList.dat", "[Beside]\n");

    EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")).work, Programs());
}

TEST_F(InstalledCopy, IsNoneWithoutData)
{
    fs::remove(Data() + "/AppList.dat");

    EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")).work, Programs());
}

TEST_F(InstalledCopy, DoesNotStartWithoutAFolderOfTheUsers)
{
    WriteText(user.File("file"), "");

    for (const std::string& folder : { user.File("file"), user.File("file/data"), std::string() })
        EXPECT_THROW(ResolveAppFolders(Programs(), folder), fs::filesystem_error) << folder;
}

TEST_F(InstalledCopy, WorksBehindALinkInPlaceOfTheUsersFolder)
{
    fs::create_directory(user.File("elsewhere"));
    fs::create_directory_symlink(user.File("elsewhere"), user.File("data"));

    EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")).work, user.File("data"));
}

TEST_F(InstalledCopy, LeavesAUsersFolderThatCannotBeWrittenAsItIs)
{
    fs::create_directory(user.File("data"));
    fs::permissions(user.File("data"), fs::perms(0555));
    {
        const CommonUser common;
        EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")).work, user.File("data"))
            << "not the program's, which others share";
    }
    fs::permissions(user.File("data"), fs::perms::owner_all);
}

TEST_F(InstalledCopy, StartedByRootMakesNothingInTheFolderOfAnotherUser)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "takes root";
    constexpr uid_t Nobody = 65534;
    ASSERT_EQ(::chown(user.Path().c_str(), Nobody, Nobody), 0);

    EXPECT_THROW(ResolveAppFolders(Programs(), user.File(".local/data")), fs::filesystem_error);

    EXPECT_TRUE(fs::is_empty(user.Path()));
}

#endif

} // namespace
} // namespace vypx::test
