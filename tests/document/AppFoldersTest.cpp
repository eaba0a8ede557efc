#include "document/AppFolders.h"
#include "document/RunningCopies.h"

#include "support/CommonUser.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <chrono>
#include <future>
#include <gtest/gtest.h>
#include <memory>

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

#ifndef _WIN32

TEST(AppFolders, TheUsersFolderIsFilledFileByFile)
{
    namespace fs = std::filesystem;
    const TempFolder program, user;
    WriteText(program.File("AppList.dat"), "[First]\n");
    WriteText(program.File("PalmApp.dat"), "[Palm]\n");
    fs::create_directories(program.File("samples/drawings"));
    WriteText(program.File("samples/drawings/one.svg"), "<svg/>");
    fs::create_directories(program.File("samples/closed"));
    fs::permissions(program.File("samples/closed"), fs::perms::none);
    fs::permissions(program.Path(), fs::perms(0555));
    fs::permissions(user.Path(), fs::perms::all);
    const std::string data = user.File("data");
    {
        const CommonUser common;

        EXPECT_EQ(ResolveAppFolder(program.Path(), data), data);
        EXPECT_EQ(ReadText(data + "/AppList.dat"), "[First]\n");
        EXPECT_EQ(ReadText(data + "/samples/drawings/one.svg"), "<svg/>");

        WriteText(data + "/AppList.dat", "[Mine]\n");
        fs::remove(data + "/PalmApp.dat"); // as an interrupted first start leaves it
        fs::remove(data + "/shipped.txt");
        WriteText(data + "/PalmApp.dat.12-1.vypx-new", "[Pa");
        EXPECT_EQ(ResolveAppFolder(program.Path(), data), data);
        EXPECT_EQ(ReadText(data + "/AppList.dat"), "[Mine]\n");
        EXPECT_EQ(ReadText(data + "/PalmApp.dat"), "[Palm]\n");
        EXPECT_FALSE(fs::exists(data + "/PalmApp.dat.12-1.vypx-new"));
    }
    fs::permissions(program.File("samples/closed"), fs::perms::owner_all);
    fs::permissions(program.Path(), fs::perms::owner_all);
}

TEST(AppFolders, AtEveryStartTheUsersFolderGetsWhatANewerVersionShips)
{
    namespace fs = std::filesystem;
    const TempFolder program, user;
    WriteText(program.File("AppList.dat"), "[First]\n");
    WriteText(program.File("PalmApp.dat"), "[Palm]\n");
    fs::permissions(user.Path(), fs::perms::all);
    const std::string data = user.File("data");
    const auto start = [&] {
        fs::permissions(program.Path(), fs::perms(0555));
        {
            const CommonUser common;
            EXPECT_EQ(ResolveAppFolder(program.Path(), data), data);
        }
        fs::permissions(program.Path(), fs::perms::owner_all);
    };
    start();
    WriteText(data + "/VYPX.ini", "[Program]\n");
    WriteText(data + "/AppList.dat", "[Mine]\n");
    fs::remove(data + "/PalmApp.dat");

    WriteText(program.File("AppList.dat"), "[Newer]\n");
    WriteText(program.File("VY_Icons.dat"), "[Icons]\n");
    fs::create_directories(program.File("samples/new"));
    WriteText(program.File("samples/new/set.prc"), "set");
    start();

    EXPECT_EQ(ReadText(data + "/VY_Icons.dat"), "[Icons]\n");
    EXPECT_EQ(ReadText(data + "/samples/new/set.prc"), "set");
    EXPECT_EQ(ReadText(data + "/AppList.dat"), "[Mine]\n");
    EXPECT_FALSE(fs::exists(data + "/PalmApp.dat")) << "what the user deletes stays deleted";
}

TEST(AppFolders, AFolderOfWhichNothingIsKnownGetsAllThatItLacks)
{
    namespace fs = std::filesystem;
    const TempFolder program, user;
    WriteText(program.File("AppList.dat"), "[Shipped]\n");
    WriteText(program.File("PalmApp.dat"), "[Palm]\n");
    WriteText(user.File("VYPX.ini"), "[Program]\n");
    WriteText(user.File("AppList.dat"), "[Mine]\n");
    fs::permissions(user.Path(), fs::perms::all);
    fs::permissions(program.Path(), fs::perms(0555));
    {
        const CommonUser common;
        EXPECT_EQ(ResolveAppFolder(program.Path(), user.Path()), user.Path());
    }
    fs::permissions(program.Path(), fs::perms::owner_all);

    EXPECT_EQ(ReadText(user.File("AppList.dat")), "[Mine]\n");
    EXPECT_EQ(ReadText(user.File("PalmApp.dat")), "[Palm]\n");
}

TEST(AppFolders, ACopyThatStartsMeanwhileWaitsUntilTheFolderIsFull)
{
    namespace fs = std::filesystem;
    const TempFolder program, user;
    WriteText(program.File("AppList.dat"), "[First]\n");
    fs::permissions(program.Path(), fs::perms(0555));
    fs::permissions(user.Path(), fs::perms::all);
    const std::string data = user.File("data");
    {
        const CommonUser common;
        fs::create_directory(data);
        auto another = std::make_unique<CopiesGate>(data);
        std::future<std::string> folder =
            std::async(std::launch::async, [&] { return ResolveAppFolder(program.Path(), data); });

        EXPECT_EQ(folder.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
        WriteText(data + "/AppList.dat", "[Filled by another]\n");
        another.reset();

        EXPECT_EQ(folder.get(), data);
        EXPECT_EQ(ReadText(data + "/AppList.dat"), "[Filled by another]\n");
    }
    fs::permissions(program.Path(), fs::perms::owner_all);
}

#endif

TEST(AppFolders, WhereNeitherCanBeWrittenItIsTheProgramsFolder)
{
    const TempFolder folder;
    WriteText(folder.File("file"), "");

    EXPECT_EQ(ResolveAppFolder(Unwritable(folder), folder.File("file/data")), Unwritable(folder));
    EXPECT_EQ(ResolveAppFolder(Unwritable(folder), ""), Unwritable(folder));
}

} // namespace
} // namespace vypx::test
