#include "ReadingFixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace vypx::test {

namespace {

using ::testing::HasSubstr;

class Thumbnail : public ReadingFixture {
protected:
    ToolRun Run(const std::vector<std::string>& more = {}, const std::string& environment = {})
    {
        std::vector<std::string> arguments{ "thumbnail", folder.File("set.prc"),
            folder.File("out.png") };
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments, environment);
    }
    /// netpbm's view of the thumbnail: its colours, and its opacity as greys.
    Picture Colours() const
    {
        return PictureFrom("pngtopnm -quiet '" + folder.File("out.png") + "'");
    }
    Picture Opacity() const
    {
        return PictureFrom("pngtopnm -quiet -alpha '" + folder.File("out.png") + "'");
    }
};

constexpr Rgb Opaque{ 255, 255, 255 };

TEST_F(Thumbnail, AFewIconsAreShownLargerByWholeNumbers)
{
    SKIP_WITHOUT_NETPBM();
    Write({ .resources = { { "tAIB", 3500, Family(0x60) } } });

    EXPECT_EQ(Run().exitCode, 0);

    const Picture colours = Colours(), opacity = Opacity();
    ASSERT_EQ(colours.Width(), 128);
    ASSERT_EQ(colours.Height(), 88);
    for (int y = 0; y < 88; ++y)
        for (int x = 0; x < 128; ++x) {
            const bool isCorner = x < 2 && y < 2;
            ASSERT_EQ(opacity.At(x, y), isCorner ? Black : Opaque) << x << "," << y;
            if (!isCorner) {
                // Index 0x60 of Palm OS's table: cube entry 96, red 102, blue 255, green 255.
                ASSERT_EQ(colours.At(x, y), colours.At(127, 87));
            }
        }
}

TEST_F(Thumbnail, IsNeverLargerThanAskedAndKeepsTheShape)
{
    SKIP_WITHOUT_NETPBM();
    Write(SoundSet());
    for (const int size : { 16, 31, 127, 256, 1024 }) {
        EXPECT_EQ(Run({ "--size", std::to_string(size) }).exitCode, 0);
        const Picture picture = Colours();
        EXPECT_LE(picture.Width(), size);
        EXPECT_LE(picture.Height(), size);
        EXPECT_NEAR(picture.Width() * 44.0 / 64, picture.Height(), 1.0) << size;
    }
}

TEST_F(Thumbnail, LargeIconsComeBeforeSmallOnesInTheOrderOfTheSet)
{
    SKIP_WITHOUT_NETPBM();
    // A small icon's picture of one colour stands first in the file; its application's large icon
    // and another's follow.
    Write({ .resources = { { "tAIB", 3500, Family(1, 30, 22) }, { "tAIB", 3501, Family(0x23) },
                { "tAIB", 3502, Family(0x47) },
                { "iTbl", 1000,
                    Join({ IndexRecord("appl", "AAAA", 3501, 3500),
                        IndexRecord("appl", "BBBB", 3502, 0) }) } } });

    EXPECT_EQ(Run({ "--size", "130" }).exitCode, 0);

    const Picture colours = Colours();
    std::set<std::tuple<int, int, int>> seen;
    const Picture opacity = Opacity();
    for (int y = 0; y < colours.Height(); ++y)
        for (int x = 0; x < colours.Width(); ++x)
            if (opacity.At(x, y) == Opaque) {
                const Rgb colour = colours.At(x, y);
                seen.insert({ colour.red, colour.green, colour.blue });
            }
    EXPECT_EQ(seen.size(), 2u) << "two large icons, and the small one of the first stays out";
}

TEST_F(Thumbnail, TheLowResPictureServesWhereThereIsNoOther)
{
    Write({ .resources = { { "tAIB", 3500,
                PlainBitmap{ .width = 32, .height = 22, .index = 9 }.Record() } } });

    EXPECT_EQ(Run().exitCode, 0);
    EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc", "out.png" }));
}

TEST_F(Thumbnail, ATemplateHasNone)
{
    std::filesystem::copy_file(VYPX_SHIPPED_DATA "/samples/first-set.prc", folder.File("full.prc"));
    std::filesystem::copy(TestData("iconsets/catalogs"), folder.File("catalogs"));
    ASSERT_EQ(RunTool({ "convert", folder.File("full.prc"), folder.File("t.vpt"), "--app-folder",
                          VYPX_SHIPPED_DATA, "--work", folder.File("work"), "--export-template" })
                  .exitCode,
        0);
    const auto before = Listing();

    for (const char* name : { "t.vpt", "t.prc" }) {
        std::error_code ignored;
        std::filesystem::copy_file(folder.File("t.vpt"), folder.File(name), ignored);
        const ToolRun run = RunTool({ "thumbnail", folder.File(name), folder.File("out.png") });
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.errors, "pixelworks-cli: there is no picture in it\n");
        EXPECT_FALSE(std::filesystem::exists(folder.File("out.png")));
    }
    EXPECT_EQ(Listing().size(), before.size() + 1);
}

TEST_F(Thumbnail, WhatCameBeforeABrokenPictureIsShown)
{
    Bytes broken = Family(3);
    broken[8] = 7; // bits of a pixel
    Write({ .resources = { { "tAIB", 3500, Family(2) }, { "tAIB", 3501, broken } } });

    EXPECT_EQ(Run({ "--size", "200" }).exitCode, 0);
    EXPECT_TRUE(std::filesystem::exists(folder.File("out.png")));
}

TEST_F(Thumbnail, APictureThatClaimsTooMuchIsPassedOver)
{
    Bytes huge = Family(3);
    PutU16(huge, 0, 65535);
    PutU16(huge, 2, 65535);
    huge.resize(16 + 65536);
    PutU16(huge, 10, 0);
    Write({ .resources = { { "tAIB", 3500, huge } } });

    const ToolRun run = Run();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "pixelworks-cli: there is no picture in it\n");
}

TEST_F(Thumbnail, TheSameSetGivesTheSameBytes)
{
    Write(SoundSet());
    ASSERT_EQ(Run().exitCode, 0);
    const Bytes first = ReadBytes(folder.File("out.png"));
    ASSERT_EQ(Run().exitCode, 0);
    EXPECT_EQ(ReadBytes(folder.File("out.png")), first);
}

TEST_F(Thumbnail, WhatIsNoIconsetLeavesOutAsItWas)
{
    WriteText(folder.File("out.png"), "old");
    WriteText(folder.File("set.prc"), "short");
    EXPECT_EQ(Run().exitCode, 1);

    std::filesystem::remove(folder.File("set.prc"));
    EXPECT_EQ(Run().exitCode, 1);

    ASSERT_EQ(::mkfifo(folder.File("set.prc").c_str(), 0600), 0);
    EXPECT_EQ(Run().exitCode, 1) << "a pipe never ends";
    EXPECT_EQ(RunTool({ "thumbnail", "/dev/zero", folder.File("out.png") }).exitCode, 1);
    EXPECT_EQ(RunTool({ "thumbnail", folder.Path(), folder.File("out.png") }).exitCode, 1);

    EXPECT_EQ(ReadText(folder.File("out.png")), "old");
}

TEST_F(Thumbnail, AFileBeyondTheLimitIsNotRead)
{
    Write(SoundSet());
    std::filesystem::resize_file(folder.File("set.prc"), (1u << 24) + 10'000'001);

    EXPECT_EQ(Run().errors, "pixelworks-cli: The file could not be read.\n");
}

TEST_F(Thumbnail, OutThatCannotBeWrittenIsTold)
{
    Write(SoundSet());
    const auto runTo = [&](const std::string& out) {
        return RunTool({ "thumbnail", folder.File("set.prc"), out });
    };

    EXPECT_EQ(runTo(folder.File("gone/out.png")).exitCode, 1);
    std::filesystem::create_directory(folder.File("folder"));
    EXPECT_THAT(runTo(folder.File("folder")).errors, HasSubstr("there is a folder of this name"));
    EXPECT_EQ(runTo(folder.File("folder")).exitCode, 1);
    const Bytes set = ReadBytes(folder.File("set.prc"));
    EXPECT_EQ(runTo(folder.File("set.prc")).exitCode, 2);
    EXPECT_EQ(ReadBytes(folder.File("set.prc")), set);
    EXPECT_EQ(runTo("/dev/full").exitCode, 1);
    EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc", "folder" }));
}

TEST_F(Thumbnail, ADanglingLinkIsFollowed)
{
    Write(SoundSet());
    std::filesystem::create_symlink(folder.File("real.png"), folder.File("out.png"));

    EXPECT_EQ(Run().exitCode, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("out.png")));
    EXPECT_TRUE(std::filesystem::is_regular_file(folder.File("real.png")));
}

TEST_F(Thumbnail, AFullDiskLeavesTheOldPicture)
{
    Write(SoundSet());
    const auto runWithFault = [&](int at) {
        WriteText(folder.File("out.png"), "old");
        return Run({},
            "LD_PRELOAD=" VYPX_FAULTS " ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 "
            "FAULT_PATH=out.png FAULT_KIND=space FAULT_AT="
                + std::to_string(at) + " FAULT_COUNT=" + folder.File("count"));
    };
    ASSERT_EQ(runWithFault(0).exitCode, 0);
    const int operations = std::stoi(ReadText(folder.File("count")));
    int told = 0;
    for (int at = 1; at <= operations; ++at) {
        const ToolRun run = runWithFault(at);
        EXPECT_EQ(run.exitCode == 1, !run.errors.empty()) << at;
        EXPECT_EQ(run.exitCode == 1, ReadText(folder.File("out.png")) == "old") << at;
        EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc", "out.png", "count" })) << at;
        told += run.exitCode;
    }
    EXPECT_GE(told, 4) << "an open, a write, a sync and a rename at least";
}

TEST_F(Thumbnail, WrongUseIsExitCode2)
{
    Write(SoundSet());
    EXPECT_EQ(Run({ "--size", "15" }).exitCode, 2);
    EXPECT_EQ(Run({ "--size", "1025" }).exitCode, 2);
    EXPECT_EQ(Run({ "--app-folder", folder.File("gone") }).exitCode, 2);
    EXPECT_EQ(RunTool({ "thumbnail", folder.File("set.prc") }).exitCode, 2);
}

TEST_F(Thumbnail, AFolderOfCatalogsIsNotRepaired)
{
    Write(SoundSet());
    std::filesystem::create_directory(folder.File("catalogs"));
    const std::string text = "[Alpha]\nType=appl\nCreator=AL\n"; // without braces
    WriteText(folder.File("catalogs/AppList.dat"), text);
    WriteText(folder.File("catalogs/PalmApp.dat"), "");
    WriteText(folder.File("catalogs/VY_Icons.dat"), "");

    EXPECT_EQ(Run({ "--app-folder", folder.File("catalogs") }).exitCode, 0);

    EXPECT_EQ(ReadText(folder.File("catalogs/AppList.dat")), text);
    EXPECT_EQ(Listing("catalogs").size(), 3u);
}

TEST(Version, IsTold)
{
    const ToolRun run = RunTool({ "--version" });
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "pixelworks-cli (VY Pixelworks) 2.0.0\n");
}

} // namespace
} // namespace vypx::test
