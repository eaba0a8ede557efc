#include "Tool.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using nlohmann::json;

class Dump : public ::testing::Test {
protected:
    Dump()
    {
        for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
            WriteText(folder.File(name), "");
    }

    ToolRun DumpOf(const std::string& file, const std::vector<std::string>& more = {})
    {
        std::vector<std::string> arguments{ "dump", file, "--app-folder", folder.Path(), "--work",
            folder.File("work") };
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments);
    }

    std::string Written(const Bytes& file, const std::string& name = "set.prc")
    {
        WriteBytes(folder.File(name), file);
        return folder.File(name);
    }

    TempFolder folder;
};

Iconset TwoIcons()
{
    return { .name = "Two",
        .resources = { { "tAIB", 3500, LowRecord(8) }, { "abmp", 3501, LowRecord(4) } } };
}

TEST_F(Dump, PrintsTheDocument)
{
    const ToolRun run = DumpOf(Written(TwoIcons().File()));

    EXPECT_EQ(run.exitCode, 0);
    const json document = run.Json();
    EXPECT_EQ(document["loaded"], true);
    EXPECT_EQ(document["databaseName"], "Two");
    ASSERT_EQ(document["icons"].size(), 2u);
    EXPECT_EQ(document["icons"][1],
        json::parse(R"({"label": "abmp3501 () ", "resourceKey": "abmp3501", "lowResFile": "NEW",
            "highResFile": "NEW", "state": 1, "kind": "UNKNOWN"})"));
    EXPECT_EQ(document["tree"][0],
        json::parse(R"({"key": "abmp3501 () ", "image": 4, "colour": "#0000ff"})"));
    EXPECT_EQ(document["stats"]["total"], 2);
    EXPECT_EQ(document["stats"]["unknown"], 1);
}

TEST_F(Dump, KeysStandInTheirOrder)
{
    const std::string text = DumpOf(Written(TwoIcons().File())).output;

    std::size_t at = 0;
    for (const char* key : { "loaded", "databaseName", "messages", "icons", "bitmaps", "iconTable",
             "tree", "stats" }) {
        const std::size_t found = text.find("\"" + std::string(key) + "\"", at);
        ASSERT_NE(found, std::string::npos) << key;
        at = found;
    }
}

TEST_F(Dump, AFileThatIsNoIconsetIsPrintedAllTheSame)
{
    const ToolRun run = DumpOf(Written(Iconset{ .type = "appl" }.File()));

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.Json()["loaded"], false);
    EXPECT_EQ(run.Json()["messages"],
        json::array({ "This file doesn't appear to be a valid Vantry IconSet" }));
}

TEST_F(Dump, AMissingFileIsPrintedAllTheSame)
{
    const ToolRun run = DumpOf(folder.File("gone.prc"));

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "pixelworks-cli: The file could not be read.\n");
    EXPECT_EQ(run.Json()["loaded"], false);
}

TEST_F(Dump, BytesOfTextsAreLatin1)
{
    Iconset set = TwoIcons();
    set.resources.push_back({ "iTbl", 1000, IndexRecord("appl", "Caf\xE9", 3500, 0) });

    const json document = DumpOf(Written(set.File())).Json();

    EXPECT_EQ(document["iconTable"][0]["creator"], "Caf\u00e9");
}

TEST_F(Dump, ATemplateBringsNoImages)
{
    const ToolRun run = DumpOf(Written(TwoIcons().File(), "t.vpt"), { "--template" });

    EXPECT_EQ(run.exitCode, 0);
    const json document = run.Json();
    for (const json& icon : document["icons"])
        EXPECT_EQ(icon["lowResFile"], "NEW");
}

TEST_F(Dump, CatalogsComeFirstAndAreRepaired)
{
    WriteText(folder.File("AppList.dat"), "[Alpha]\nType=appl\nCreator=ALPH\n");
    std::filesystem::remove(folder.File("PalmApp.dat"));
    Iconset set = TwoIcons();
    set.type = "appl";

    const json document = DumpOf(Written(set.File())).Json();

    EXPECT_EQ(document["messages"],
        json::array({ "Error! Can't find PalmApp.dat.",
            "This file doesn't appear to be a valid Vantry IconSet" }));
    EXPECT_EQ(ReadText(folder.File("AppList.dat")), "[Alpha]\nType=appl\nCreator={ALPH}\n");
}

TEST_F(Dump, TheSettingsFileIsNeitherReadNorWritten)
{
    WriteText(folder.File("VYPX.ini"), "[Default Color Depth]\nUser Color Depth=4-Bit\n");

    EXPECT_EQ(DumpOf(Written(TwoIcons().File())).exitCode, 0);

    EXPECT_EQ(ReadText(folder.File("VYPX.ini")), "[Default Color Depth]\nUser Color Depth=4-Bit\n");
}

TEST_F(Dump, WrongUseIsExitCode2)
{
    const std::string file = Written(TwoIcons().File());

    EXPECT_EQ(RunTool({}).exitCode, 2);
    EXPECT_EQ(RunTool({ "dump" }).exitCode, 2);
    EXPECT_EQ(RunTool({ "polish", file }).exitCode, 2);
    EXPECT_EQ(DumpOf(file, { "--depth", "24-Bit" }).exitCode, 2);
    EXPECT_EQ(DumpOf(file, { "--only", "both" }).exitCode, 2);
    EXPECT_FALSE(std::filesystem::exists(folder.File("work")));
}

TEST_F(Dump, AWorkFolderWithAFileInItIsWrongUseAndStaysAsItWas)
{
    std::filesystem::create_directory(folder.File("work"));
    WriteText(folder.File("work/mine.bmp"), "mine");

    EXPECT_EQ(DumpOf(Written(TwoIcons().File())).exitCode, 2);

    EXPECT_EQ(ReadText(folder.File("work/mine.bmp")), "mine");
}

TEST_F(Dump, AWorkFolderThatCannotBeMadeIsWrongUse)
{
    WriteText(folder.File("work"), "a file");
    const ToolRun taken = DumpOf(Written(TwoIcons().File()));
    EXPECT_EQ(taken.exitCode, 2);
    EXPECT_EQ(taken.errors,
        "pixelworks-cli: the work folder is no folder: " + folder.File("work") + "\n");

    const ToolRun below = RunTool({ "dump", folder.File("set.prc"), "--app-folder", folder.Path(),
        "--work", folder.File("work/below") });
    EXPECT_EQ(below.exitCode, 2);
    EXPECT_EQ(below.errors,
        "pixelworks-cli: can't make the work folder: " + folder.File("work/below") + "\n");
    EXPECT_EQ(ReadText(folder.File("work")), "a file");
}

TEST_F(Dump, AnEmptyWorkFolderServes)
{
    std::filesystem::create_directory(folder.File("work"));

    EXPECT_EQ(DumpOf(Written(TwoIcons().File())).exitCode, 0);
}

TEST_F(Dump, HelpIsNoWrongUse) { EXPECT_EQ(RunTool({ "--help" }).exitCode, 0); }

} // namespace
} // namespace vypx::test
