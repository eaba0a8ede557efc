#include "document/AppFolders.h"
#include "document/Product.h"

#include "support/CommonUser.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <iterator>
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

/// An installation in a folder of its own, as this process's user, who may be root, can write it.
class InstalledCopy : public ::testing::Test {
protected:
    InstalledCopy()
    {
        fs::create_directories(Programs());
        fs::create_directories(Data());
    }

    std::string Programs() const { return root.File("usr/bin"); }
    std::string Data() const { return DataOf(Programs()); }
    static std::string DataOf(const std::string& programs)
    {
        const fs::path data = (fs::path(programs) / DataFromPrograms).lexically_normal();
        return fs::weakly_canonical(data).string();
    }
    static std::size_t Entries(const std::string& folder)
    {
        const fs::recursive_directory_iterator begin(folder);
        return static_cast<std::size_t>(std::distance(begin, fs::recursive_directory_iterator()));
    }

    TempFolder root, user;
};

TEST_F(InstalledCopy, WorksInTheUsersFolderThoughItsOwnCanBeWritten)
{
    const std::size_t before = Entries(root.Path());

    const AppFolders folders = ResolveAppFolders(Programs(), user.File("a/data"));

    EXPECT_EQ(folders, (AppFolders{ .work = user.File("a/data"), .shipped = Data() }));
    EXPECT_TRUE(fs::is_directory(user.File("a/data")));
    EXPECT_EQ(Entries(root.Path()), before);
}

TEST_F(InstalledCopy, IsOneWhateverStandsBesideTheProgram)
{
    WriteText(Programs() + "/AppList.dat", "[Stray]\n");

    EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")).work, user.File("data"));
}

TEST_F(InstalledCopy, IsOneWhateverItsDataLack)
{
    ASSERT_TRUE(fs::is_empty(Data()));

    EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")),
        (AppFolders{ .work = user.File("data"), .shipped = Data() }));
}

TEST_F(InstalledCopy, IsNoneWithoutAFolderOfData)
{
    fs::remove(Data());
    EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")).work, Programs());

    WriteText(Data(), "");
    EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")).work, Programs());
}

TEST_F(InstalledCopy, DoesNotStartWithoutAFolderOfTheUsers)
{
    WriteText(user.File("file"), "");

    for (const std::string& folder : { user.File("file"), user.File("file/data"), std::string() })
        EXPECT_THROW(ResolveAppFolders(Programs(), folder), fs::filesystem_error) << folder;
}

#ifndef _WIN32

TEST_F(InstalledCopy, WorksBehindALinkInPlaceOfTheUsersFolder)
{
    fs::create_directory(user.File("elsewhere"));
    fs::create_directory_symlink(user.File("elsewhere"), user.File("data"));

    EXPECT_EQ(ResolveAppFolders(Programs(), user.File("data")).work, user.File("data"));
}

TEST_F(InstalledCopy, BehindALinkToItsProgramsFindsItsDataWhereTheyStand)
{
    fs::create_directories(root.File("opt/pixelworks/elsewhere"));
    fs::create_directory_symlink(Programs(), root.File("opt/pixelworks/elsewhere/bin"));

    EXPECT_EQ(ResolveAppFolders(root.File("opt/pixelworks/elsewhere/bin"), user.File("data")),
        (AppFolders{ .work = user.File("data"), .shipped = Data() }));
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

/// Started by root with the folder of a common user for its own.
class InstalledCopyOfRoot : public InstalledCopy {
protected:
    void SetUp() override
    {
        if (::geteuid() != 0)
            GTEST_SKIP() << "takes root";
        GiveAway(user);
    }
    static void GiveAway(const TempFolder& folder)
    {
        constexpr uid_t Nobody = 65534;
        ASSERT_EQ(::chown(folder.Path().c_str(), Nobody, Nobody), 0);
    }

    TempFolder home;
};

TEST_F(InstalledCopyOfRoot, WorksBelowRootsHome)
{
    const std::string own = home.File(".local/share/vy-pixelworks");

    const AppFolders folders =
        ResolveAppFolders(Programs(), user.File(".local/share/vy-pixelworks"), home.Path());

    EXPECT_EQ(folders, (AppFolders{ .work = own, .shipped = Data() }));
    EXPECT_TRUE(fs::is_directory(own));
    EXPECT_TRUE(fs::is_empty(user.Path()));
}

TEST_F(InstalledCopyOfRoot, WorksNowhereWithoutAHomeOfRoots)
{
    GiveAway(home);
    WriteText(root.File("file"), "");
    for (const std::string& none : { home.Path(), std::string(), root.File("file") })
        EXPECT_THROW(ResolveAppFolders(Programs(), user.File("a/data"), none), fs::filesystem_error)
            << none;

    EXPECT_TRUE(fs::is_empty(user.Path()));
    EXPECT_TRUE(fs::is_empty(home.Path()));
}

TEST_F(InstalledCopyOfRoot, WorksInAFolderOfRootsWhereverItIs)
{
    const TempFolder own;

    EXPECT_EQ(ResolveAppFolders(Programs(), own.File("data"), home.Path()).work, own.File("data"));
    EXPECT_TRUE(fs::is_empty(home.Path()));
}

#endif

} // namespace
} // namespace vypx::test
