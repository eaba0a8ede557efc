#include "ImportFixture.h"
#include "support/Iconsets.h"

#include <gmock/gmock.h>

/// Templates: an iconset's icons without their pictures.
namespace vypx::test {

namespace {

using nlohmann::json;
using ::testing::HasSubstr;

class Template : public ImportFixture {
protected:
    /// Exports `set.prc` as a template.
    ToolRun Export(std::vector<std::string> more = {}, const std::string& out = "t.vpt")
    {
        more.push_back("--export-template");
        return RunCommand("convert", more, {}, out);
    }
    /// `command t.vpt OUT --template`, with these further arguments.
    ToolRun FromTemplate(const std::string& command, const std::vector<std::string>& more = {},
        const std::string& out = "out.prc")
    {
        std::filesystem::remove_all(folder.File("work"));
        std::vector<std::string> arguments{ command, folder.File("t.vpt"), folder.File(out),
            "--template", "--app-folder", folder.File("catalogs"), "--work", folder.File("work") };
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments);
    }
    ToolRun FillFromTemplate(std::string_view list, std::vector<std::string> more = {})
    {
        WriteText(folder.File("pictures/list.txt"), list);
        more.insert(more.end(), { "--list", folder.File("pictures/list.txt") });
        return FromTemplate("import", more);
    }
    /// What `dump` prints of the template.
    json DumpedTemplate()
    {
        std::filesystem::remove_all(folder.File("dump"));
        return RunTool({ "dump", folder.File("t.vpt"), "--template", "--app-folder",
                           folder.File("catalogs"), "--work", folder.File("dump") })
            .Json();
    }
    bool IsThere(const std::string& file) { return std::filesystem::exists(folder.File(file)); }
};

TEST_F(Template, KeepsTheIconsAndNoPicture)
{
    const json before = Dumped("set.prc");

    const ToolRun run = Export();

    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, "");
    ASSERT_EQ(run.exitCode, 0);
    const json after = DumpedTemplate();
    EXPECT_EQ(after["databaseName"], "owners");
    EXPECT_EQ(after["messages"], json::array());
    EXPECT_EQ(after["iconTable"].size(), before["iconTable"].size());
    json expected = json::array();
    for (json icon : before["icons"])
        if (icon["state"] == 1) {
            icon["lowResFile"] = icon["highResFile"] = "NEW";
            expected.push_back(icon);
        }
    EXPECT_EQ(after["icons"], expected);
    EXPECT_FALSE(IsThere("t.vpt.bak"));
    EXPECT_FALSE(IsThere("set.prc.bak"));
}

TEST_F(Template, HoldsTheSameWhateverThePicturesAndTheirDepth)
{
    UseSample("depth8");
    ASSERT_EQ(Export().exitCode, 0);
    const Bytes all = WithoutDates(ReadBytes(folder.File("t.vpt")));

    for (const std::vector<std::string>& more :
        { std::vector<std::string>{ "--depth", "4-Bit" }, { "--depth", "8-Bit" }, { "--packbits" },
            { "--only", "high" }, { "--only", "low" } }) {
        ASSERT_EQ(Export(more).exitCode, 0) << more[0];
        EXPECT_EQ(WithoutDates(ReadBytes(folder.File("t.vpt"))), all) << more.back();
    }
}

TEST_F(Template, UnknownIconsCanBeLeftOutAndTheNameChanged)
{
    ASSERT_EQ(Export({ "--drop-unknown", "--name", "Mine" }).exitCode, 0);

    const json after = DumpedTemplate();
    EXPECT_EQ(after["databaseName"], "Mine");
    EXPECT_EQ(after["icons"].size(), 9u);
    for (const json& icon : after["icons"])
        EXPECT_NE(icon["kind"], "UNKNOWN");
}

TEST_F(Template, TheChecksOfAnExportStopIt)
{
    WriteBytes(folder.File("set.prc"), Bytes(100, 0));
    ToolRun run = Export();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors,
        "pixelworks-cli: This file doesn't appear to be a valid Vantry IconSet\n"
        "pixelworks-cli: No file loaded\n")
        << "without a full stop";

    WriteBytes(
        folder.File("set.prc"), Iconset{ .resources = { { "tAIB", 3500, LowRecord(8) } } }.File());
    run = Export();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "pixelworks-cli: Can't save. The iconset doesn't contain any icons.\n")
        << "pictures of unknown icons do not count";
    EXPECT_EQ(run.output, "");
    EXPECT_FALSE(IsThere("t.vpt"));
}

TEST_F(Template, IsNotWrittenOntoTheIconsetItself)
{
    const Bytes before = ReadBytes(folder.File("set.prc"));
    std::filesystem::create_symlink(folder.File("set.prc"), folder.File("link.vpt"));
    std::filesystem::create_hard_link(folder.File("set.prc"), folder.File("twin.vpt"));

    for (const char* out : { "set.prc", "./set.prc", "link.vpt", "twin.vpt" }) {
        const ToolRun run = Export({}, out);

        EXPECT_EQ(run.exitCode, 1) << out;
        EXPECT_THAT(run.errors, testing::StartsWith("pixelworks-cli: ")) << out;
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(ReadBytes(folder.File("set.prc")), before) << out;
    }
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("link.vpt")));
}

TEST_F(Template, AFolderThatIsMissingIsTold)
{
    const ToolRun run = Export({}, "no/such/t.vpt");

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors, HasSubstr("no/such"));
    EXPECT_FALSE(IsThere("no"));
}

TEST_F(Template, IsFilledAndSavedAsAnIconset)
{
    SKIP_WITHOUT_NETPBM();
    const json before = Dumped("set.prc");
    ASSERT_EQ(Export().exitCode, 0);
    const vypx::Picture large = Make("large.ppm", 64, 44), small = Make("small.ppm", 15, 11, 1);

    const ToolRun run = FillFromTemplate("Acorn Notes (Large Icon)\thigh\tlarge.ppm\n"
                                         "Fern (Small Icon)\tlow\tsmall.ppm\n");

    EXPECT_EQ(run.errors, "");
    ASSERT_EQ(run.exitCode, 0);
    const json after = Dumped("out.prc");
    EXPECT_EQ(Shown("tAIB3500-d144.bmp"), large);
    EXPECT_EQ(Shown("tAIB3507.bmp"), small);
    std::vector<std::string> labels;
    for (const json& icon : after["icons"]) {
        labels.push_back(icon["label"]);
        EXPECT_EQ(icon["kind"], "APP");
    }
    EXPECT_THAT(labels,
        testing::ElementsAre(
            "Acorn Notes (Large Icon)", "Bird Log (Large Icon)", "Fern (Small Icon)"))
        << "those with pictures";
    EXPECT_EQ(Entry(after["iconTable"], "creator", "Fe  ")["small"], 3507);
    EXPECT_EQ(Entry(after["iconTable"], "creator", "BrdL")["large"], 3500);
}

TEST_F(Template, IsNoIconsetToBeSavedOrExportedAsLongAsItIsEmpty)
{
    UseSample("depth8");
    ASSERT_EQ(Export().exitCode, 0);

    ToolRun run = FromTemplate("convert");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "pixelworks-cli: Error! Iconset doesn't contain any images.\n");
    EXPECT_FALSE(WroteOut());

    run = FromTemplate("convert", { "--export-template" }, "again.vpt");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "pixelworks-cli: Can't save. The iconset doesn't contain any icons.\n");
    EXPECT_FALSE(IsThere("again.vpt"));

    run = FillFromTemplate("# nothing\n");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors, HasSubstr("Error! Iconset doesn't contain any images.\n"));
    EXPECT_FALSE(WroteOut());
}

TEST_F(Template, WithUnknownIconsTheRefusalSpeaksOfNormalOnes)
{
    ASSERT_EQ(Export().exitCode, 0);

    const ToolRun run = FromTemplate("convert");

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors,
        "pixelworks-cli: Error! Iconset must contain at least on normal icon that has images.\n");
    EXPECT_FALSE(WroteOut());
}

TEST_F(Template, TheOptionAndTheEndingGoTogether)
{
    ASSERT_EQ(Export().exitCode, 0);
    std::filesystem::copy_file(folder.File("set.prc"), folder.File("iconset.vpt"));
    std::filesystem::copy_file(folder.File("t.vpt"), folder.File("template.prc"));
    const auto run = [&](const std::string& file, std::vector<std::string> more) {
        std::filesystem::remove_all(folder.File("work"));
        more.insert(more.begin(),
            { "dump", folder.File(file), "--app-folder", folder.File("catalogs"), "--work",
                folder.File("work") });
        return RunTool(more);
    };

    EXPECT_THAT(run("t.vpt", {}).output, HasSubstr("Incorrect file type."));
    EXPECT_THAT(run("set.prc", { "--template" }).output, HasSubstr("Incorrect file type."));
    const json copy = run("iconset.vpt", { "--template" }).Json();
    EXPECT_EQ(copy["icons"].size(), 13u);
    for (const json& icon : copy["icons"])
        EXPECT_EQ(icon["lowResFile"], "NEW");
    const json opened = run("template.prc", {}).Json();
    EXPECT_EQ(opened["icons"].size(), 12u);
    for (const json& icon : opened["icons"]) {
        EXPECT_NE(icon["lowResFile"], "NEW");
        EXPECT_NE(icon["highResFile"], "NEW");
    }
}

} // namespace
} // namespace vypx::test
