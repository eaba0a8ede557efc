#include "CommandFixture.h"
#include "support/Iconsets.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::HasSubstr;

using nlohmann::json;

class Convert : public CommandFixture {
protected:
    ToolRun Run(const std::vector<std::string>& more, const std::string& environment = {})
    {
        return RunCommand("convert", more, environment);
    }
};

TEST_F(Convert, WritesWhatASaveWouldWrite)
{
    EXPECT_EQ(Run({}).exitCode, 0);

    const json before = Dumped("set.prc"), after = Dumped("out.prc");
    EXPECT_EQ(after["databaseName"], "owners");
    EXPECT_EQ(after["icons"].size(), before["icons"].size() - 1) << "the orphan stays out";
    for (std::size_t i = 0; i < after["icons"].size(); ++i)
        EXPECT_EQ(after["icons"][i], before["icons"][i]);
    EXPECT_FALSE(std::filesystem::exists(folder.File("out.prc.bak")));
}

TEST_F(Convert, OutMayBeTheFileItself)
{
    ASSERT_EQ(Run({}).exitCode, 0);

    EXPECT_EQ(RunCommand("convert", {}, {}, "set.prc").exitCode, 0);

    EXPECT_EQ(WithoutDates(ReadBytes(folder.File("set.prc"))),
        WithoutDates(ReadBytes(folder.File("out.prc"))));
}

TEST_F(Convert, OnlyOneResolutionLeavesTheOtherOut)
{
    UseSample("depth8");
    for (const auto& [only, kept, dropped] : { std::tuple("high", "highResFile", "lowResFile"),
             { "low", "lowResFile", "highResFile" } }) {
        ASSERT_EQ(Run({ "--only", only }).exitCode, 0);

        const json after = Dumped("out.prc");
        ASSERT_FALSE(after["icons"].empty());
        for (const json& icon : after["icons"]) {
            EXPECT_NE(icon[kept], "NEW") << only;
            EXPECT_EQ(icon[dropped], "NEW") << only;
        }
    }
}

TEST_F(Convert, AFileThatIsNoIconsetGivesItsMessageAndNoOutput)
{
    WriteBytes(folder.File("set.prc"), Bytes(100, 0));

    const ToolRun run = Run({});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors,
        "pixelworks-cli: This file doesn't appear to be a valid Vantry IconSet\n"
        "pixelworks-cli: No file loaded.\n");
    EXPECT_FALSE(std::filesystem::exists(folder.File("out.prc")));
}

TEST_F(Convert, AFileThatIsNotThereGivesNoOutput)
{
    std::filesystem::remove(folder.File("set.prc"));

    const ToolRun run = Run({});

    EXPECT_NE(run.exitCode, 0);
    EXPECT_FALSE(run.errors.empty());
    EXPECT_FALSE(std::filesystem::exists(folder.File("out.prc")));
}

TEST_F(Convert, KeepsEveryIconOfAPictureThatManyShare)
{
    std::string catalog;
    Bytes index;
    for (const char letter : std::string("ABCDEFGH")) {
        const std::string creator = std::string("APP") + letter;
        catalog += "[App " + std::string(1, letter) + "]\nType=appl\nCreator={" + creator + "}\n";
        index = Join({ index, IndexRecord("appl", creator, 3500, 0) });
    }
    WriteText(folder.File("catalogs/AppList.dat"), catalog);
    Iconset set{ .resources = { { "tAIB", 3500, LowRecord(8) }, { "iTbl", 1000, index } } };
    for (int id = 1; id <= 5; ++id)
        set.resources.push_back({ "text", id, Bytes(2) }); // which a save leaves out
    WriteBytes(folder.File("set.prc"), set.File());

    const ToolRun run = Run({});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(Dumped("out.prc")["icons"].size(), 8u);
}

TEST_F(Convert, TellsWhatWillBeOrphansInOut)
{
    WriteText(folder.File("catalogs/AppList.dat"), "[Alpha]\nType=appl\nCreator={ALPH}\n");
    const Iconset set{ .resources = { { "tAIB", 3500, LowRecord(8) },
                           { "Tbmp", 3501, LowRecord(8) },
                           { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 3501) } } };
    WriteBytes(folder.File("set.prc"), set.File());

    const ToolRun run = Run({ "--name", "" });

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors,
        "pixelworks-cli: 1 icon will be an orphan when this file is opened: its index of "
        "applications does not name it. The iconset has no Palm database name.\n");
    const json after = Dumped("out.prc");
    EXPECT_EQ(after["icons"][1]["label"], "Tbmp3501 (Orphan) ");
}

TEST_F(Convert, TellsOfNamesThatACatalogHasTooManyOf)
{
    std::string text;
    for (int i = 0; i < 1100; ++i)
        text += "[N" + std::to_string(100'000 + i) + "]\nType=appl\nCreator={N" + std::to_string(i)
            + "}\n";
    WriteText(folder.File("catalogs/PalmApp.dat"), text);

    EXPECT_THAT(Run({}).errors,
        ::testing::HasSubstr(
            "pixelworks-cli: Only 1023 of the 1100 names in PalmApp.dat are known: "
            "together they are too long.\n"));
}

TEST_F(Convert, OptionsChangeWhatIsWritten)
{
    EXPECT_EQ(Run({ "--name", "Caf\xC3\xA9", "--drop-unknown", "--packbits", "--depth", "8-Bit",
                      "--version-string", "9.9" })
                  .exitCode,
        0);

    const json before = Dumped("set.prc"), after = Dumped("out.prc");
    std::vector<json> kept;
    for (const json& icon : before["icons"])
        if (icon["kind"] != "UNKNOWN" && icon["kind"] != "DELETE")
            kept.push_back(icon["label"]);
    std::vector<json> labels;
    for (const json& icon : after["icons"])
        labels.push_back(icon["label"]);
    EXPECT_LT(kept.size() + 1, before["icons"].size()) << "there are unknown icons to be dropped";
    EXPECT_EQ(labels, kept);
    const std::string file = ReadText(folder.File("out.prc"));
    EXPECT_EQ(file.substr(0, 5), std::string("Caf\xE9\0", 5));
    EXPECT_NE(file.find(std::string("9.9\0", 4)), std::string::npos);
    const std::size_t first = ByteView(ReadBytes(folder.File("out.prc"))).U32(78 + 6);
    EXPECT_EQ(file[first + 8], 8) << "bits";
    EXPECT_EQ(file[first + 6] & 0x80, 0x80) << "packed";
}

TEST_F(Convert, TellsWhatReadersWillNotShowOfAName)
{
    const ToolRun accent = Run({ "--name", "Caf\xC3\xA9" });
    EXPECT_EQ(accent.exitCode, 0);
    EXPECT_THAT(accent.errors, HasSubstr("readers end the name before"));
    EXPECT_EQ(Dumped("out.prc")["databaseName"], "Caf");

    const ToolRun tooLong = Run({ "--name", "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345" });
    EXPECT_THAT(tooLong.errors, HasSubstr("only the first 31 characters"));
    EXPECT_EQ(Dumped("out.prc")["databaseName"], "ABCDEFGHIJKLMNOPQRSTUVWXYZ01234");
}

TEST_F(Convert, TheChecksOfASaveStopIt)
{
    Iconset unknown{ .resources = { { "tAIB", 3500, LowRecord(8) } } };
    WriteBytes(folder.File("set.prc"), unknown.File());

    const ToolRun run = Run({});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors,
        "pixelworks-cli: Error! Can't save an iconset that only contains unknown icons.\n");
    EXPECT_EQ(run.output, "");
    EXPECT_FALSE(std::filesystem::exists(folder.File("out.prc")));
}

TEST_F(Convert, WrongUseIsExitCode2)
{
    EXPECT_EQ(RunTool({ "convert", folder.File("set.prc") }).exitCode, 2);
}

/// Every operation on the database fails once in every way, or the process dies there.
class ConvertWithFaults : public Convert, public ::testing::WithParamInterface<std::string> { };

TEST_P(ConvertWithFaults, LeaveTheOldFileOrTheNewOneWhole)
{
    ASSERT_EQ(Run({}).exitCode, 0);
    const Bytes expected = WithoutDates(ReadBytes(folder.File("out.prc")));
    const Bytes old = WithoutDates(Bytes(3000, 'o'));
    const bool kills = GetParam() == "before" || GetParam() == "within" || GetParam() == "after";
    const auto runWithFault = [&](int at) {
        WriteBytes(folder.File("out.prc"), old);
        return Run({},
            "LD_PRELOAD=" VYPX_FAULTS " ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 "
            "FAULT_PATH=out.prc FAULT_KIND="
                + GetParam() + " FAULT_AT=" + std::to_string(at)
                + " FAULT_COUNT=" + folder.File("count"));
    };
    EXPECT_EQ(runWithFault(0).exitCode, 0);
    const int operations = std::stoi(ReadText(folder.File("count")));
    EXPECT_GE(operations, 5) << "an open, a write, a sync, a close and a rename at least";

    int told = 0;
    for (int at = 1; at <= operations; ++at) {
        const ToolRun run = runWithFault(at);
        EXPECT_EQ(run.exitCode == -1, kills) << "after operation " << at;
        told += run.exitCode == 1 && !run.errors.empty() ? 1 : 0;

        const Bytes now = WithoutDates(ReadBytes(folder.File("out.prc")));
        EXPECT_TRUE(now == old || now == expected) << "a third thing after operation " << at;
        if (run.exitCode == 0) {
            EXPECT_TRUE(now == expected) << "an untold failure at operation " << at;
        }
        if (!kills) {
            EXPECT_EQ(PassingFiles(folder.Path()), 0u) << at;
        }
        EXPECT_EQ(Run({}).exitCode, 0) << "what is left must not block the next save";
        EXPECT_EQ(PassingFiles(folder.Path()), 0u) << "and goes with it, after operation " << at;
    }
    if (GetParam() == "space" || GetParam() == "io") {
        EXPECT_GE(told, 4) << "an open, a write, a sync and a rename at least";
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ConvertWithFaults,
    ::testing::Values("space", "io", "short", "before", "within", "after"));

TEST_F(Convert, LettersThatPalmOsHasNotBecomeQuestionMarks)
{
    EXPECT_EQ(Run({ "--version-string", "\xC3\xA9\xE2\x82\xAC\xC3" }).exitCode, 0);

    const Bytes file = ReadBytes(folder.File("out.prc"));
    const Bytes expected = Hex("E9 3F 3F 00");
    EXPECT_NE(std::search(file.begin(), file.end(), expected.begin(), expected.end()), file.end());
}

} // namespace
} // namespace vypx::test
