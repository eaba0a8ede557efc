#include "ThumbnailFixture.h"
#include "companion/Palettes.h"

namespace vypx::test {

namespace {

using Thumbnail = ThumbnailFixture;

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

    EXPECT_EQ(ColoursInOrder(), (std::vector<Rgb>{ Palette8[0x23], Palette8[0x47] }))
        << "the small one of the first stays out";
}

TEST_F(Thumbnail, OneFourOrSixteenIconsAreShown)
{
    SKIP_WITHOUT_NETPBM();
    Iconset set;
    std::vector<Rgb> colours;
    for (int i = 0; i < 20; ++i) {
        set.resources.push_back({ "tAIB", 3500 + i, Family(static_cast<std::uint8_t>(0x20 + i)) });
        colours.push_back(Palette8[static_cast<std::size_t>(0x20 + i)]);
    }
    Write(set);
    const std::vector<std::pair<int, int>> expected{ { 127, 1 }, { 128, 4 }, { 511, 4 },
        { 512, 16 } };
    for (const auto& [size, icons] : expected) {
        EXPECT_EQ(Run({ "--size", std::to_string(size) }).exitCode, 0);
        EXPECT_EQ(ColoursInOrder(), std::vector<Rgb>(colours.begin(), colours.begin() + icons))
            << size;
    }
}

TEST_F(Thumbnail, TheLowResPictureServesWhereThereIsNoOther)
{
    SKIP_WITHOUT_NETPBM();
    Write({ .resources = { { "tAIB", 3500,
                PlainBitmap{ .width = 32, .height = 22, .index = 9, .corner = 9 }.Record() } } });

    EXPECT_EQ(Run().exitCode, 0);

    EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc", "out.png" }));
    EXPECT_EQ(Colours().Width(), 128);
    EXPECT_EQ(Colours().Height(), 88);
    EXPECT_EQ(ColoursInOrder(), std::vector<Rgb>{ Palette8[9] });
}

TEST_F(Thumbnail, ALowResPictureOfARepeatedResourceTakesNoHighResOnesPlace)
{
    SKIP_WITHOUT_NETPBM();
    const Bytes low = PlainBitmap{ .width = 32, .height = 22, .index = 9, .corner = 9 }.Record();
    Write({ .resources = { { "tAIB", 3500, Family(0x23) }, { "tAIB", 3500, low } } });
    EXPECT_EQ(Run().exitCode, 0);
    EXPECT_EQ(ColoursInOrder(), std::vector<Rgb>{ Palette8[0x23] });

    Write({ .resources = { { "tAIB", 3500, Family(0x23) }, { "tAIB", 3500, Family(0x47) } } });
    EXPECT_EQ(Run().exitCode, 0);
    EXPECT_EQ(ColoursInOrder(), std::vector<Rgb>{ Palette8[0x47] }) << "as the program shows it";
}

/// Sixteen pictures of four million pixels, packed in the file.
TEST_F(Thumbnail, LargePicturesTakeNoMoreMemoryThanTheSheet)
{
    if (VYPX_SANITIZED)
        GTEST_SKIP() << "whose own maps take terabytes";
    const Bytes record = PlainBitmap{ .width = 2040, .height = 2048, .index = 9 }.InRuns();
    Iconset set;
    for (int i = 0; i < 16; ++i)
        set.resources.push_back({ "tAIB", 3500 + i, record });
    Write(set);

    // 12 MB are one of them; all of them would be 200.
    const ToolRun run = Run({ "--size", "512" }, "prlimit --as=160000000");

    EXPECT_EQ(run.exitCode, 0) << run.errors;
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
    SKIP_WITHOUT_NETPBM();
    Bytes broken = Family(3);
    broken[8] = 7; // bits of a pixel
    Write({ .resources = { { "tAIB", 3500, Family(2) }, { "tAIB", 3501, broken } } });

    const ToolRun run = Run({ "--size", "200" });

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "pixelworks-cli: The file could not be read.\n");
    EXPECT_EQ(ColoursInOrder(), std::vector<Rgb>{ Palette8[2] });
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

} // namespace
} // namespace vypx::test
