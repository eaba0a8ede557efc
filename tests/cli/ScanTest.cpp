#include "CommandFixture.h"
#include "support/PrcFiles.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using ::testing::HasSubstr;

// What stands before the tool on the shell's line.
constexpr const char* WithoutRoomInFiles = R"(sh -c 'trap "" XFSZ; ulimit -f 0; exec "$0" "$@"')";
constexpr const char* IntoFullDisk = R"(sh -c 'exec "$0" "$@" >/dev/full')";
/// Root reads every folder.
std::string AsCommonUser()
{
    return ::geteuid() == 0 ? "setpriv --reuid=65534 --clear-groups" : "";
}

class Scan : public ::testing::Test {
protected:
    Scan()
    {
        fs::create_directories(folder.File("palm/sub"));
        fs::create_directory(folder.File("catalogs"));
        WriteText(folder.File("catalogs/PalmApp.dat"), "[Palm Clock]\nType=appl\nCreator={CLCK}\n");
        WriteText(folder.File("catalogs/AppList.dat"), "[Known]\nType=appl\nCreator={KNWN}\n");
    }

    ToolRun Run(const std::string& environment = {})
    {
        return RunTool(
            { "scan", folder.File("palm"), "--app-folder", folder.File("catalogs") }, environment);
    }
    void Put(const std::string& name, const Bytes& file)
    {
        WriteBytes(folder.File("palm/" + name), file);
    }
    json PassedOver(const std::string& name, const std::string& why) const
    {
        return { { "path", folder.File("palm/" + name) }, { "result", "passed over" },
            { "why", why } };
    }
    std::string Apps() const { return ReadText(folder.File("catalogs/AppList.dat")); }

    TempFolder folder;
};

TEST_F(Scan, TellsOfEachFileAndAddsWhatIsNew)
{
    Put("a.prc", PrcFile("New [App]", "appl", "NEWA"));
    Put("b.txt", PrcFile("Other"));
    Put("sub/c.PRC", PrcFile("Panel", "panl", "NEWP"));
    Put("sub/d.prc", PrcFile("Lib", "libr"));

    const ToolRun run = Run();

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.Json(),
        (json{ { "files",
                   { { { "path", folder.File("palm/a.prc") }, { "result", "added" },
                         { "entry", "New {App}" } },
                       { { "path", folder.File("palm/sub/c.PRC") }, { "result", "added" },
                           { "entry", "Panel Panel" } },
                       PassedOver("sub/d.prc", "is neither an application nor a panel") } },
            { "unreadableFolders", json::array() }, { "messages", json::array() } }));
    EXPECT_EQ(Apps(),
        "[Known]\nType=appl\nCreator={KNWN}\n[New {App}]\nType=appl\nCreator={NEWA}\n"
        "[Panel Panel]\nType=panl\nCreator={NEWP}\n");
}

TEST_F(Scan, SaysWhyAFileIsPassedOverAndWhatIsInItsWay)
{
    Put("a.prc", PrcFile("A", "appl", "syst"));
    Put("b.prc", PrcFile("B", "appl", "CLCK"));
    Put("c.prc", PrcFile("C", "appl", "KNWN"));
    Put("d.prc", PrcFile("Unknown", "appl", "DDDD"));
    Put("e.prc", PrcFile("", "appl", "EEEE"));
    Put("f.prc", PrcFile("F", "appl", "F\nFF"));
    Put("g.prc", {});
    ASSERT_EQ(::mkfifo(folder.File("palm/h.prc").c_str(), 0600), 0);

    const ToolRun run = Run();

    const auto with = [](json row, const std::string& entry) {
        row["entry"] = entry;
        return row;
    };
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.Json()["files"],
        (json{ PassedOver("a.prc", "is a program of Palm OS"),
            with(PassedOver("b.prc", "has the Creator ID of a Palm system icon"), "Palm Clock"),
            with(PassedOver("c.prc", "has the Creator ID of a known application"), "Known"),
            with(PassedOver("d.prc", "has the name of a known application in its name"), "Known"),
            PassedOver("e.prc", "has no name"),
            PassedOver("f.prc", "has a control character in its Creator ID"),
            PassedOver("g.prc", "is too short for a Palm database"),
            PassedOver("h.prc", "is no file that can be read") }));
}

TEST_F(Scan, NothingNewIsExitCode0AndLeavesTheFileAlone)
{
    Put("a.prc", PrcFile("New", "appl", "NEWA"));
    ASSERT_EQ(Run().exitCode, 0);
    const std::string before = Apps();

    EXPECT_EQ(Run().exitCode, 0);

    EXPECT_EQ(Apps(), before);
}

TEST_F(Scan, ACatalogThatCannotBeWrittenIsExitCode1)
{
    Put("a.prc", PrcFile("New", "appl", "NEWA"));
    Put("b.prc", PrcFile("Lib", "libr"));
    fs::remove(folder.File("catalogs/AppList.dat"));
    fs::create_directory(folder.File("catalogs/AppList.dat"));

    const ToolRun run = Run();

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.Json()["files"][0]["why"], "is new, but AppList.dat could not be written");
    EXPECT_EQ(run.Json()["files"][1]["why"], "is neither an application nor a panel");
    EXPECT_EQ(run.Json()["messages"],
        (json{ "Error! Can't find Applist.dat.", "Failed to save value." }));
}

TEST_F(Scan, ARepairThatCannotBeWrittenIsExitCode1)
{
    const std::string apps = "[Known]\nType=appl\nCreator=KNWN\n";
    WriteText(folder.File("catalogs/AppList.dat"), apps);

    EXPECT_EQ(Run(WithoutRoomInFiles).exitCode, 1);
    EXPECT_EQ(Apps(), apps);
    EXPECT_EQ(Run().exitCode, 0) << "where it can be written";
    EXPECT_EQ(Apps(), "[Known]\nType=appl\nCreator={KNWN}\n");
}

TEST_F(Scan, OutputThatGetsLostIsExitCode1)
{
    const ToolRun run = Run(IntoFullDisk);

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors, HasSubstr("the output could not be written"));
    EXPECT_EQ(RunTool({ "scan", folder.File("gone"), "--app-folder", folder.File("catalogs") },
                  IntoFullDisk)
                  .exitCode,
        2)
        << "what went wrong before counts";
}

TEST_F(Scan, AFolderThatIsNotThereIsWrongUse)
{
    fs::remove_all(folder.File("palm"));

    const ToolRun run = Run();

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(run.errors, HasSubstr("there is no such folder: " + folder.File("palm")));
}

TEST_F(Scan, SoAreAFileAndMissingOptions)
{
    WriteText(folder.File("file"), "");

    EXPECT_EQ(
        RunTool({ "scan", folder.File("file"), "--app-folder", folder.File("catalogs") }).exitCode,
        2);
    EXPECT_EQ(RunTool({ "scan", "", "--app-folder", folder.File("catalogs") }).exitCode, 2);
    EXPECT_EQ(RunTool({ "scan", folder.File("palm") }).exitCode, 2);
    EXPECT_EQ(RunTool({ "scan", "--app-folder", folder.File("catalogs") }).exitCode, 2);
    EXPECT_EQ(
        RunTool({ "scan", folder.File("palm"), "--app-folder", folder.File("gone") }).exitCode, 2);
}

TEST_F(Scan, FoldersThatCannotBeReadAreListed)
{
    fs::permissions(folder.File("palm/sub"), fs::perms::none);

    const ToolRun run = Run(AsCommonUser());
    fs::permissions(folder.File("palm/sub"), fs::perms::all);

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.Json()["unreadableFolders"], json{ folder.File("palm/sub") + "/" });
    EXPECT_EQ(run.Json()["messages"], json{ "Error searching for prc files." });
}

TEST_F(Scan, APathThatIsNoUtf8IsStillJson)
{
    Put("x\xFF.prc", PrcFile("New", "appl", "NEWA"));

    const ToolRun run = Run();

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.Json()["files"][0]["path"], folder.File("palm/x\xEF\xBF\xBD.prc"));
    EXPECT_EQ(run.Json()["files"][0]["result"], "added");
}

TEST_F(Scan, ALinkThatLeadsBackIsNoTrap)
{
    Put("sub/a.prc", PrcFile("New", "appl", "NEWA"));
    fs::create_directory_symlink(folder.File("palm"), folder.File("palm/sub/up"));

    EXPECT_EQ(Run().Json()["files"].size(), 1u);
}

TEST_F(Scan, TellsOfNamesThatTheCatalogHasTooManyOf)
{
    std::string apps;
    for (int i = 0; i < 600; ++i)
        apps += "[Application number " + std::to_string(i) + "]\nType=appl\nCreator={X"
            + std::to_string(100 + i) + "}\n";
    WriteText(folder.File("catalogs/AppList.dat"), apps);

    EXPECT_THAT(Run().errors, HasSubstr("of the 600 names in AppList.dat are known"));
}

} // namespace
} // namespace vypx::test
