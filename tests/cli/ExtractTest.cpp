#include "ReadingFixture.h"

#include <fstream>

namespace vypx::test {

namespace {

using nlohmann::json;
using ::testing::HasSubstr;

std::string HexOf(Rgb colour)
{
    char text[sizeof "#000000"];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(colour.red) & 0xFF,
        static_cast<unsigned>(colour.green) & 0xFF, static_cast<unsigned>(colour.blue) & 0xFF);
    return text;
}

class Extract : public ReadingFixture {
protected:
    ToolRun Run(const std::string& environment = {}, const std::string& into = "x")
    {
        return RunTool({ "extract", folder.File("set.prc"), folder.File(into) }, environment);
    }
    json Index() const { return json::parse(ReadText(folder.File("x/index.json"))); }
};

TEST_F(Extract, WritesEachPictureAndAnIndex)
{
    Write(SoundSet());

    EXPECT_EQ(Run().exitCode, 0);

    EXPECT_EQ(Listing("x"),
        (std::set<std::string>{ "index.json", "tAIB3500-high.png", "tAIB3500-low.png",
            "tAIB3501-high.png", "tAIB3501-low.png" }));
    const json index = Index();
    EXPECT_EQ(index["databaseName"], "Sound");
    EXPECT_TRUE(index["passedOver"].empty());
    ASSERT_EQ(index["pictures"].size(), 4u);
    // Index 5 of Palm OS's table is 255, 0, 255.
    EXPECT_EQ(index["pictures"][1], json::parse(R"json({"file": "tAIB3500-high.png",
        "resourceType": "tAIB", "resourceId": 3500, "density": "high", "width": 64, "height": 44,
        "depth": 8, "transparent": "#ff00ff",
        "icons": [{"label": "Palm Date Book (Large Icon)", "kind": "PALM", "ownerType": "appl",
                   "ownerCreator": "date"}]})json"));
}

TEST_F(Extract, TransparentPixelsAreTransparent)
{
    SKIP_WITHOUT_NETPBM();
    Write(SoundSet());
    ASSERT_EQ(Run().exitCode, 0);

    const Picture opacity =
        PictureFrom("pngtopnm -quiet -alpha '" + folder.File("x/tAIB3501-low.png") + "'");

    ASSERT_EQ(opacity.Width(), 15);
    ASSERT_EQ(opacity.Height(), 11);
    for (int y = 0; y < 11; ++y)
        for (int x = 0; x < 15; ++x)
            EXPECT_EQ(opacity.At(x, y).red, x + y == 0 ? 0 : 255) << x << "," << y;
}

/// Every sample's pictures, against those that were worked out by other means.
TEST_F(Extract, PicturesOfAllSamplesAreTheExpectedOnes)
{
    SKIP_WITHOUT_NETPBM();
    std::size_t compared = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TestData("iconsets"))) {
        if (entry.path().extension() != ".prc")
            continue;
        const std::string name = entry.path().stem();
        std::filesystem::remove_all(folder.File("x"));
        const ToolRun run = RunTool({ "extract", entry.path(), folder.File("x") });
        ASSERT_EQ(run.exitCode, 0) << name << run.errors;
        const json index = Index();
        for (const json& picture : index["pictures"]) {
            if (name == "repeated")
                continue; // a resource stands in it twice, and one file was worked out for both
            const std::string key = picture["resourceType"].get<std::string>()
                + std::to_string(picture["resourceId"].get<int>());
            const std::string expected = TestData("iconsets/pictures/" + name + "." + key
                + (picture["density"] == "high" ? "-d144" : "") + ".png");
            const std::string file = folder.File("x/" + picture["file"].get<std::string>());
            const Picture ours = PictureFrom("pngtopnm -quiet '" + file + "'");
            const Picture opacity = PictureFrom("pngtopnm -quiet -alpha '" + file + "'");
            const Picture theirs = PictureFrom("pngtopnm -quiet '" + expected + "'");
            ASSERT_EQ(ours.Width(), theirs.Width()) << file;
            ASSERT_EQ(ours.Height(), theirs.Height()) << file;
            for (int y = 0; y < ours.Height(); ++y)
                for (int x = 0; x < ours.Width(); ++x) {
                    const Rgb colour = theirs.At(x, y);
                    const bool isSeen = picture["transparent"] != HexOf(colour);
                    ASSERT_EQ(opacity.At(x, y).red, isSeen ? 255 : 0) << file << x << y;
                    ASSERT_TRUE(!isSeen || ours.At(x, y) == colour) << file << x << y;
                }
            ++compared;
        }
    }
    EXPECT_GT(compared, 40u);
}

TEST_F(Extract, AResourceThatStandsThereTwiceKeepsBoth)
{
    Iconset set = SoundSet();
    set.resources.insert(set.resources.begin() + 1, { "tAIB", 3500, Family(0x11) });
    Write(set);

    EXPECT_EQ(Run().exitCode, 0);

    EXPECT_TRUE(Listing("x").contains("tAIB3500-2-high.png"));
    EXPECT_NE(ReadBytes(folder.File("x/tAIB3500-2-high.png")),
        ReadBytes(folder.File("x/tAIB3500-high.png")));
}

TEST_F(Extract, BytesOfTheFileDoNotLeadOutOfTheFolder)
{
    Iconset set = SoundSet();
    set.name = "../../up";
    set.resources.push_back({ "../x", 47, Family(0x11) });
    set.resources.push_back({ "iTbl", 1001, IndexRecord("../.", "\x1B[2J", 3500, 3501) });
    Write(set);

    EXPECT_EQ(Run().exitCode, 0);
    EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc", "x" }));
    EXPECT_EQ(Listing("x").size(), 5u);
}

TEST_F(Extract, WhatGivesNoPictureIsPassedOverAndTold)
{
    Iconset set = SoundSet();
    PlainBitmap thin{ .width = 8, .height = 4 };
    Bytes record = thin.Record();
    PutU16(record, 4, 2); // bytes of a row, for 8 pixels of 8 bits
    set.resources.push_back({ "tAIB", 3600, record });
    Write(set);

    const ToolRun run = Run();

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(
        run.errors, "pixelworks-cli: tAIB3600 (low) is passed over: its record gives no picture\n");
    EXPECT_EQ(Index()["passedOver"],
        json::parse(R"([{"resourceType": "tAIB", "resourceId": 3600, "density": "low",
            "why": "its record gives no picture"}])"));
}

TEST_F(Extract, AResourceThatGivesNothingIsPassedOverAndTold)
{
    Iconset set = SoundSet();
    set.resources.insert(set.resources.begin(), { "abmp", 3600, Family(1) });
    set.resources.insert(set.resources.begin() + 1, { "tAIB", 3601, {} });
    Write(set);

    const ToolRun run = Run();

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(
        run.errors, HasSubstr("abmp3600 is passed over: pictures of this kind are not read"));
    EXPECT_EQ(Index()["passedOver"],
        json::parse(R"([{"resourceType": "abmp", "resourceId": 3600, "density": null,
            "why": "pictures of this kind are not read"}, {"resourceType": "tAIB",
            "resourceId": 3601, "density": null, "why": "nothing of it can be read"}])"));
}

TEST_F(Extract, ATemplateIsWhatEndsInVptWithItsFullStop)
{
    Write(SoundSet());
    const auto run = [&](const std::string& name) {
        std::filesystem::remove_all(folder.File("x"));
        std::filesystem::copy_file(folder.File("set.prc"), folder.File(name));
        return RunTool({ "extract", folder.File(name), folder.File("x") });
    };
    EXPECT_EQ(run("setvpt").exitCode, 0);
    EXPECT_EQ(run("set.VPT").errors, "pixelworks-cli: it is a template, which has no pictures\n");
}

TEST_F(Extract, NoPathSpeaksToTheTerminal)
{
    Write(SoundSet());
    EXPECT_EQ(Run({}, "set.prc/\x1B[2J\x7F\xC2\x9B").errors,
        "pixelworks-cli: can't make DIR: " + folder.File("set.prc/\\x1B[2J\\x7F\\x9B") + "\n");
    const ToolRun run =
        RunTool({ "extract", folder.File("set.prc"), folder.File("x"), "--app-folder", "\x1B]0;" });
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.errors, HasSubstr("\\x1B]0;"));
    EXPECT_EQ(run.errors.find('\x1B'), std::string::npos);
}

TEST_F(Extract, AFolderThatIsNotEmptyIsWrongUseAndStaysAsItWas)
{
    Write(SoundSet());
    std::filesystem::create_directory(folder.File("x"));
    WriteText(folder.File("x/mine"), "mine");

    const ToolRun run = Run();
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.errors, "pixelworks-cli: DIR is not empty: " + folder.File("x") + "\n");
    EXPECT_EQ(Listing("x"), (std::set<std::string>{ "mine" }));
    const ToolRun ofFile = Run({}, "set.prc");
    EXPECT_EQ(ofFile.exitCode, 2);
    EXPECT_EQ(ofFile.errors, "pixelworks-cli: DIR is no folder: " + folder.File("set.prc") + "\n");
    EXPECT_EQ(Run({}, "set.prc/below").exitCode, 1) << "as of an OUT that can't be made";
}

TEST_F(Extract, ABrokenFileLeavesNothing)
{
    Bytes broken = Family(3);
    broken[8] = 7;
    Iconset set = SoundSet();
    set.resources.push_back({ "tAIB", 3600, broken });
    Write(set);

    EXPECT_EQ(Run({}, "new/deep/x").exitCode, 1);
    EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc" })) << "with the folders made for it";

    std::filesystem::create_directory(folder.File("x"));
    EXPECT_EQ(Run().exitCode, 1);
    EXPECT_EQ(Listing("x"), std::set<std::string>{}) << "a folder that was there stays";
}

TEST_F(Extract, ASetWithoutPicturesLeavesNothing)
{
    Write({ .resources = { { "iTbl", 1000, IndexRecord("appl", "date", 3500, 0) } } });

    const ToolRun run = Run();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "pixelworks-cli: there is no picture in it\n");
    EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc" }));
}

TEST_F(Extract, AFullDiskAmidstLeavesNothing)
{
    Write(SoundSet());
    const auto runWithFault = [&](const std::string& word, int at) {
        return Run("LD_PRELOAD=" VYPX_FAULTS
                   " ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 "
                   "FAULT_KIND=space FAULT_PATH="
            + word + " FAULT_AT=" + std::to_string(at) + " FAULT_COUNT=" + folder.File("count"));
    };
    for (const char* word : { "tAIB3500-low.png", "tAIB3501-high.png", "index.json" }) {
        ASSERT_EQ(runWithFault(word, 0).exitCode, 0);
        const int operations = std::stoi(ReadText(folder.File("count")));
        int told = 0;
        for (int at = 1; at <= operations; ++at) {
            std::filesystem::remove_all(folder.File("x"));
            const ToolRun run = runWithFault(word, at);
            EXPECT_EQ(run.exitCode == 0, Listing().contains("x")) << word << at;
            EXPECT_EQ(run.exitCode == 0, run.errors.empty()) << word << at;
            told += run.exitCode;
        }
        EXPECT_GE(told, std::string(word) == "index.json" ? 4 : 2)
            << "an open and a write; of the index a sync and a rename as well";
        std::filesystem::remove_all(folder.File("x"));
    }
}

TEST_F(Extract, MorePixelsInAllThanAreExtractedLeaveNothing)
{
    // A run of 255 bytes in two: 4 million pixels a picture, and 17 of them.
    const Bytes record = PlainBitmap{ .width = 2040, .height = 2048, .index = 9 }.InRuns();
    Iconset set;
    for (int i = 0; i < 17; ++i)
        set.resources.push_back({ "tAIB", 3500 + i, record });
    Write(set);

    const ToolRun run = Run();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors, HasSubstr("more pixels in all than are extracted"));
    EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc" }));
}

} // namespace
} // namespace vypx::test
