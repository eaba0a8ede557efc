#include "support/CommonUser.h"
#include "support/InstallFixture.h"
#include "support/Skips.h"

#include <fstream>
#include <gmock/gmock.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class JPilotWay : public InstallFixture {
protected:
    JPilotWay() { fs::create_directory(Home()); }

    std::int16_t Queue(std::string file) const
    {
        std::string user;
        return MakeJPilotWay(Home())->Install(user, file);
    }
    std::int16_t QueueSet() const { return Queue(Set()); }
    /// What the queue holds after the iconset joined one that holds `before`.
    std::string After(const std::string& before) const
    {
        WriteText(List(), before);
        EXPECT_EQ(QueueSet(), InstallResult::Queued);
        EXPECT_THAT(NamesIn(Home()), ElementsAre("jpilot.install")) << "nothing beside it";
        return ReadText(List());
    }
    /// An iconset whose absolute path has that many bytes.
    std::string SetWithPathOf(std::size_t bytes) const
    {
        std::string path = folder.Path();
        while (path.size() + 201 + 2 <= bytes)
            path += "/" + std::string(200, 'd');
        fs::create_directories(path);
        path += "/" + std::string(bytes - path.size() - 1, 'f');
        WriteText(path, "x");
        EXPECT_EQ(path.size(), bytes);
        return path;
    }

    std::string Set() const { return folder.File("set.prc"); }
    std::string Home() const { return folder.File(".jpilot"); }
    std::string List() const { return folder.File(".jpilot/jpilot.install"); }
};

TEST_F(JPilotWay, MakesTheListWithTheFilesPathAsItsLine)
{
    EXPECT_EQ(QueueSet(), InstallResult::Queued);

    EXPECT_EQ(ReadText(List()), Set() + "\n");
    EXPECT_THAT(NamesIn(Home()), ElementsAre("jpilot.install")) << "nothing beside it";
}

TEST_F(JPilotWay, AppendsAndCompletesALastLineWithoutItsEnd)
{
    EXPECT_EQ(After(""), Set() + "\n");
    EXPECT_EQ(After("/a b.prc\n"), "/a b.prc\n" + Set() + "\n");
    EXPECT_EQ(After("/a.prc"), "/a.prc\n" + Set() + "\n");
    EXPECT_EQ(After("/a.prc\n\n"), "/a.prc\n\n" + Set() + "\n");
    EXPECT_EQ(After("\n"), "\n" + Set() + "\n");
    EXPECT_EQ(After("\x01/card.prc\r\n"), "\x01/card.prc\r\n" + Set() + "\n");
    EXPECT_EQ(After(std::string("\0\xFF", 2)), std::string("\0\xFF\n", 3) + Set() + "\n");
}

TEST_F(JPilotWay, ALineThatIsThereIsASuccessAndTheListStaysAsItIs)
{
    for (const std::string& lines :
        { Set() + "\n", Set(), "/a.prc\n" + Set() + "\n/b.prc\n", "/a.prc\n" + Set() }) {
        WriteText(List(), lines);
        const auto before = platform::IdentityOf(List());

        EXPECT_EQ(QueueSet(), InstallResult::Queued);

        EXPECT_EQ(platform::IdentityOf(List()), before) << "not even written";
        EXPECT_EQ(ReadText(List()), lines);
        EXPECT_THAT(NamesIn(Home()), ElementsAre("jpilot.install"));
    }
}

TEST_F(JPilotWay, ALineThatOnlyHoldsThePathIsAnotherOne)
{
    for (const std::string& line : { Set() + "x", "x" + Set(), "\x01" + Set(), Set() + " ",
             Set().substr(0, Set().size() - 1) })
        EXPECT_EQ(After(line + "\n"), line + "\n" + Set() + "\n");
}

TEST_F(JPilotWay, WritesPathsAsUtf8)
{
    const std::string file = folder.File("\xC3\x84ndern \xE2\x82\xAC.prc");
    WriteText(file, "x");

    EXPECT_EQ(Queue(file), InstallResult::Queued);

    EXPECT_EQ(ReadText(List()), file + "\n");
}

TEST_F(JPilotWay, MakesARelativePathAbsolute)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const fs::path here = fs::current_path();

    EXPECT_EQ(Queue("set.prc"), InstallResult::Queued);
    fs::current_path(before);

    EXPECT_EQ(ReadText(List()), platform::Utf8Path(here / "set.prc") + "\n");
}

TEST_F(JPilotWay, TellsOfAMissingFileAndWritesNothing)
{
    fs::create_directory(folder.File("folder.prc"));

    EXPECT_EQ(Queue(folder.File("missing.prc")), InstallResult::FileMissing);
    EXPECT_EQ(Queue(folder.File("folder.prc")), InstallResult::FileMissing);
    EXPECT_EQ(Queue(folder.File("missing\n.prc")), InstallResult::FileMissing) << "told first";
    EXPECT_EQ(Queue(""), InstallResult::FileMissing);

    EXPECT_THAT(NamesIn(Home()), IsEmpty());
}

TEST_F(JPilotWay, FailsWhenTheFolderHasGone)
{
    fs::remove(Home());

    EXPECT_EQ(QueueSet(), InstallResult::Unknown);

    EXPECT_FALSE(fs::exists(Home()));
}

TEST_F(JPilotWay, NeverReplacesWhatItCannotRead)
{
    fs::create_directory(List());
    EXPECT_EQ(QueueSet(), InstallResult::Unknown);
    EXPECT_TRUE(fs::is_directory(List()));
    EXPECT_THAT(NamesIn(Home()), ElementsAre("jpilot.install"));
}

TEST_F(JPilotWay, AListOf16MiBIsTheLargest)
{
    constexpr std::size_t Most = 16u << 20;
    const std::string room = Set() + "\n";
    const std::string fits(Most - room.size() - 1, 'x');

    EXPECT_TRUE(After(fits + "\n") == fits + "\n" + room);
    EXPECT_EQ(fs::file_size(List()), Most);

    WriteText(List(), fits + "y\n");
    EXPECT_EQ(QueueSet(), InstallResult::Unknown) << "it would become too large";
    EXPECT_TRUE(ReadText(List()) == fits + "y\n");
    fs::resize_file(List(), Most + 1);
    EXPECT_EQ(QueueSet(), InstallResult::Unknown) << "it is too large";
    EXPECT_EQ(fs::file_size(List()), Most + 1);
    EXPECT_THAT(NamesIn(Home()), ElementsAre("jpilot.install"));
}

TEST_F(JPilotWay, AListBehindALinkIsWrittenWhereItIs)
{
    SKIP_WITHOUT_LINKS();
    WriteText(folder.File("real"), "/a.prc\n");
    fs::create_symlink(folder.File("real"), List());

    EXPECT_EQ(QueueSet(), InstallResult::Queued);

    EXPECT_TRUE(fs::is_symlink(List()));
    EXPECT_EQ(ReadText(folder.File("real")), "/a.prc\n" + Set() + "\n");
}

TEST_F(JPilotWay, QueuesWhereTurnsCannotBeTaken)
{
    fs::create_directory(List() + ".lock");

    EXPECT_EQ(QueueSet(), InstallResult::Queued);

    EXPECT_EQ(ReadText(List()), Set() + "\n");
    EXPECT_TRUE(fs::is_directory(List() + ".lock"));
}

TEST_F(JPilotWay, SaysWhereTheFileWaitsAndWhatIsToBeDone)
{
    const auto way = MakeJPilotWay("/home/ada/.jpilot");

    EXPECT_FALSE(way->UsesUser());
    EXPECT_EQ(way->Description(), "J-Pilot, in /home/ada/.jpilot");
#ifndef _WIN32
    EXPECT_EQ(way->WhatNext("", "/tmp/set.prc"),
        "It is on J-Pilot's list, /home/ada/.jpilot/jpilot.install, and has to stay where it is "
        "until it is installed. Press Sync in J-Pilot, then HotSync on the handheld.");
#endif
}

#ifndef _WIN32 // paths of that length, and names with line breaks

TEST_F(JPilotWay, ALineOf999BytesIsTheLongest)
{
    for (const std::size_t path : { 997u, 998u }) {
        fs::remove(List());
        const std::string file = SetWithPathOf(path);
        EXPECT_EQ(Queue(file), InstallResult::Queued);
        EXPECT_EQ(fs::file_size(List()), path + 1);
        EXPECT_EQ(ReadText(List()), file + "\n");
    }
    fs::remove(List());
    for (const std::size_t path : { 999u, 1000u, 1001u })
        EXPECT_EQ(Queue(SetWithPathOf(path)), InstallResult::Unknown) << path;
    EXPECT_THAT(NamesIn(Home()), IsEmpty());
}

TEST_F(JPilotWay, RefusesAPathThatIsMoreThanALine)
{
    WriteText(List(), "/a.prc");
    for (const char* name : { "a\nb.prc", "a\rb.prc", "a.prc\n", "\n" }) {
        WriteText(folder.File(name), "x");
        EXPECT_EQ(Queue(folder.File(name)), InstallResult::Unknown);
    }
    EXPECT_EQ(Queue(Set() + std::string("\0x", 2)), InstallResult::Unknown);

    EXPECT_EQ(ReadText(List()), "/a.prc");
}

TEST_F(JPilotWay, NeverReplacesAPipeOrWhatOthersKeepFromIt)
{
    ASSERT_EQ(::mkfifo(List().c_str(), 0600), 0);
    EXPECT_EQ(QueueSet(), InstallResult::Unknown);
    EXPECT_TRUE(fs::is_fifo(List()));

    fs::remove(List());
    WriteText(List(), "/a.prc\n");
    fs::permissions(List(), fs::perms(0200));
    fs::permissions(Home(), fs::perms::all);
    {
        const CommonUser common;
        EXPECT_EQ(QueueSet(), InstallResult::Unknown);
    }
    fs::permissions(List(), fs::perms(0600));
    EXPECT_EQ(ReadText(List()), "/a.prc\n");
    EXPECT_THAT(NamesIn(Home()), ElementsAre("jpilot.install"));
}

TEST_F(JPilotWay, TheListKeepsItsRights)
{
    WriteText(List(), "");
    fs::permissions(List(), fs::perms(0600));

    EXPECT_EQ(QueueSet(), InstallResult::Queued);

    EXPECT_EQ(fs::status(List()).permissions(), fs::perms(0600));
}

#endif

} // namespace
} // namespace vypx::test
