#include "Tool.h"
#include "companion/BmpFile.h"
#include "support/Files.h"
#include "support/Netpbm.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

/// Every file of tests/data/iconsets against NAME.expected.json, which was worked out by other
/// means than ours (see the README there).
namespace vypx::test {

namespace {

using nlohmann::json;

std::vector<std::string> SampleNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(TestData("iconsets")))
        if (entry.path().extension() == ".prc")
            names.push_back(entry.path().stem());
    std::sort(names.begin(), names.end());
    return names;
}

class Samples : public ::testing::TestWithParam<std::string> { };

TEST_P(Samples, OpenAsExpected)
{
    const TempFolder folder;
    const json expected =
        json::parse(ReadText(TestData("iconsets/" + GetParam() + ".expected.json")));

    std::filesystem::copy(TestData("iconsets/catalogs"), folder.File("catalogs"));
    const ToolRun run = RunTool({ "dump", TestData("iconsets/" + GetParam() + ".prc"),
        "--app-folder", folder.File("catalogs"), "--work", folder.File("work") });

    EXPECT_EQ(run.exitCode, 0);
    const json document = run.Json();
    EXPECT_EQ(document, expected);
}

/// Each picture as netpbm reads our working file, against the one that was worked out for it.
TEST_P(Samples, HaveTheExpectedPictures)
{
    SKIP_WITHOUT_NETPBM();
    const TempFolder folder;
    std::filesystem::copy(TestData("iconsets/catalogs"), folder.File("catalogs"));
    RunTool({ "dump", TestData("iconsets/" + GetParam() + ".prc"), "--app-folder",
        folder.File("catalogs"), "--work", folder.File("work") });

    std::size_t expected = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TestData("iconsets/pictures"))) {
        const std::string name = entry.path().stem();
        if (!name.starts_with(GetParam() + "."))
            continue;
        ++expected;
        const std::string file = folder.File("work/" + name.substr(GetParam().size() + 1) + ".bmp");
        const Picture ours = PictureFrom("bmptopnm -quiet '" + file + "'");
        EXPECT_EQ(ours, PictureFrom("pngtopnm -quiet '" + entry.path().string() + "'")) << file;
        EXPECT_EQ(DecodeBmp(ReadBytes(file)), ours) << file;
    }
    std::size_t written = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.File("work")))
        written += entry.path().extension() == ".bmp";
    EXPECT_EQ(written, expected);
    EXPECT_GT(expected, 0u);
}

std::string TestName(const ::testing::TestParamInfo<std::string>& sample)
{
    std::string name = sample.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Iconsets, Samples, ::testing::ValuesIn(SampleNames()), TestName);

/// The set that we ship shows every kind of icon with the catalogs that we ship.
TEST(ShippedSample, ShowsEveryKindOfIcon)
{
    const TempFolder folder;
    for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
        std::filesystem::copy_file(std::string(VYPX_SHIPPED_DATA) + "/" + name, folder.File(name));

    const ToolRun run = RunTool({ "dump", VYPX_SHIPPED_DATA "/samples/first-set.prc",
        "--app-folder", folder.Path(), "--work", folder.File("work") });

    const json document = run.Json();
    EXPECT_TRUE(document["messages"].empty());
    std::map<std::string, int> kinds, keys;
    for (const json& icon : document["icons"]) {
        ++kinds[icon["kind"]];
        ++keys[icon["resourceKey"]];
        EXPECT_NE(icon["lowResFile"], "NEW");
        EXPECT_NE(icon["highResFile"], "NEW");
    }
    EXPECT_EQ(kinds,
        (std::map<std::string, int>{
            { "PALM", 10 }, { "UNKNOWN", 4 }, { "VY", 2 }, { "DELETE", 1 } }));
    EXPECT_EQ(keys["tAIB3500"], 2) << "a shared resource";
    for (const json& bitmap : document["bitmaps"])
        EXPECT_EQ(bitmap["hasTransparent"], 1);
}

} // namespace
} // namespace vypx::test
