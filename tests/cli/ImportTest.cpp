#include "ImportFixture.h"
#include "support/Iconsets.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using nlohmann::json;
using ::testing::HasSubstr;

class Import : public ImportFixture { };

TEST_F(Import, FillsSlotsByLabelAndByResource)
{
    SKIP_WITHOUT_NETPBM();
    const Picture large = Make("large.ppm", 64, 44), small = Make("small.ppm", 30, 22, 1),
                  unknown = Make("unknown.ppm", 20, 10, 2), low = Make("low.ppm", 15, 11, 3);

    const ToolRun run = Run("Acorn Notes (Large Icon)\thigh\tlarge.ppm\n"
                            "tAIB3507\thigh\tsmall.ppm\n"
                            "tAIB3505 (Zzzz - Large) \thigh\tunknown.ppm\n"
                            "Acorn Notes (Small Icon)\tlow\tlow.ppm\n");

    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "");
    const json after = Dumped("out.prc");
    EXPECT_EQ(Shown("tAIB3500-d144.bmp"), large);
    EXPECT_EQ(Shown("tAIB3507-d144.bmp"), small);
    EXPECT_EQ(Shown("tAIB3505-d144.bmp"), unknown);
    EXPECT_EQ(Shown("tAIB3501.bmp"), low);
    for (const char* label : { "Acorn Notes (Large Icon)", "Bird Log (Large Icon)" })
        EXPECT_EQ(Entry(after["icons"], "label", label)["highResFile"], "tAIB3500-d144.bmp");
    EXPECT_EQ(Entry(after["icons"], "label", "Compass (Large Icon)")["highResFile"], "NEW");
    const json bitmap = Entry(after["bitmaps"], "file", "tAIB3507-d144.bmp");
    EXPECT_EQ(bitmap["hasTransparent"], 1);
    EXPECT_EQ((std::vector<int>{ bitmap["red"], bitmap["green"], bitmap["blue"] }),
        (std::vector{ 255, 0, 0 }))
        << "the corner's colour";
}

TEST_F(Import, OtherSlotsStayAsConvertWritesThem)
{
    Make("small.ppm", 30, 22);
    ASSERT_EQ(RunCommand("convert", {}).exitCode, 0);
    const json converted = Dumped("out.prc");

    ASSERT_EQ(Run("Fern (Small Icon)\thigh\tsmall.ppm\n").exitCode, 0);

    json expected = converted["icons"];
    for (json& icon : expected)
        if (icon["label"] == "Fern (Small Icon)")
            icon["highResFile"] = "tAIB3507-d144.bmp";
    EXPECT_EQ(Dumped("out.prc")["icons"], expected);
}

TEST_F(Import, StoresAtTheDepthThatIsAsked)
{
    SKIP_WITHOUT_NETPBM();
    Picture blackAndWhite(30, 22);
    for (int i = 0; i < 22; ++i)
        blackAndWhite.Set(i, i, { 255, 255, 255 });
    WritePpm(folder.File("pictures/small.ppm"), blackAndWhite);
    for (const auto& [depth, bits] : { std::pair("4-Bit", 4), { "8-Bit", 8 }, { "16-Bit", 16 } }) {
        ASSERT_EQ(Run("Fern (Small Icon)\tlow\tsmall.ppm\n", { "--depth", depth }).exitCode, 1)
            << "it is too large for low-res";
        ASSERT_EQ(Run("Fern (Small Icon)\thigh\tsmall.ppm\n", { "--depth", depth }).exitCode, 0);

        Dumped("out.prc");
        EXPECT_EQ(Shown("tAIB3507-d144.bmp"), blackAndWhite) << depth;
        const Bytes file = ReadBytes(folder.File("out.prc"));
        const std::size_t first = ByteView(file).U32(78 + 6);
        EXPECT_EQ(ByteView(file).U8(first + 8), bits);
    }
}

TEST_F(Import, TheSizeIsThatOfIconAndSlot)
{
    struct Case {
        const char* icon;
        const char* slot;
        int width, height;
    };
    for (const Case& fits : { Case{ "Compass (Large Icon)", "high", 64, 44 },
             { "Compass (Small Icon)", "high", 30, 22 }, { "Compass (Large Icon)", "low", 32, 22 },
             { "Compass (Small Icon)", "low", 15, 11 },
             // Of the icons that share a resource the first counts.
             { "tAIB3502", "high", 64, 44 } }) {
        const std::string line = std::string(fits.icon) + "\t" + fits.slot + "\tp.ppm";
        Make("p.ppm", fits.width, fits.height);
        EXPECT_EQ(Run(line).errors, "") << line;
        const auto expectRefused = [&](int width, int height) {
            Make("p.ppm", width, height);
            const ToolRun run = Run(line);
            EXPECT_EQ(run.exitCode, 1);
            EXPECT_EQ(run.errors,
                "pixelworks-cli: line 1: The picture has " + std::to_string(width) + " x "
                    + std::to_string(height) + " pixels; this slot takes "
                    + std::to_string(fits.width) + " x " + std::to_string(fits.height)
                    + " at most.\n");
        };
        expectRefused(fits.width + 1, fits.height);
        expectRefused(fits.width, fits.height + 1);
    }
}

TEST_F(Import, NoLineKeepsTheSizeOfTheOneBefore)
{
    Make("large.ppm", 64, 44);
    Make("low.ppm", 15, 11);

    EXPECT_EQ(Run("Fern (Small Icon)\tlow\tlow.ppm\n"
                  "tAIB3505 (Zzzz - Large) \thigh\tlarge.ppm\n")
                  .errors,
        "");
    EXPECT_EQ(Run("Compass (Large Icon)\thigh\tlarge.ppm\n"
                  "tAIB3506 (Zzzz - Small) \thigh\tlarge.ppm\n")
                  .errors,
        "pixelworks-cli: line 2: The picture has 64 x 44 pixels; this slot takes 30 x 22 at "
        "most.\n");
}

TEST_F(Import, OfTwoLinesForASlotTheLaterOneCounts)
{
    SKIP_WITHOUT_NETPBM();
    Make("one.ppm", 30, 22);
    const Picture other = Make("other.ppm", 8, 4, 5);

    ASSERT_EQ(Run("tAIB3507\thigh\tone.ppm\nFern (Small Icon)\thigh\tother.ppm\n").exitCode, 0);

    Dumped("out.prc");
    EXPECT_EQ(Shown("tAIB3507-d144.bmp"), other);
}

/// An icon without a low-res picture, and a high-res one for it.
class ImportLowRes : public ImportFixture {
protected:
    ImportLowRes()
    {
        const Iconset set{ .resources = { { "tAIB", 3500, LowRecord(8) },
                               { "tAIB", 3501, Join({ Separator(), HighRecord(8) }) },
                               { "iTbl", 1000, IndexRecord("appl", "AcNt", 3500, 3501) } } };
        WriteBytes(folder.File("set.prc"), set.File());
        for (int y = 0; y < 22; ++y)
            for (int x = 0; x < 30; ++x) {
                const Rgb colour = (x / 2 + y / 2) % 2 == 0 ? Rgb{ 255, 0, 0 } : Rgb{ 0, 0, 255 };
                high.Set(x, y, colour);
                half.Set(x / 2, y / 2, colour);
            }
        WritePpm(folder.File("pictures/high.ppm"), high);
    }

    Picture high{ 30, 22 }, half{ 15, 11 }; // squares of 2 x 2, of which one pixel each is left
    const std::string highLine = "Acorn Notes (Small Icon)\thigh\thigh.ppm\n";
    const std::string lowLine = "Acorn Notes (Small Icon)\tlow\tlow.ppm\n";
};

TEST_F(ImportLowRes, IsMadeWhereTheSlotIsEmptyAndTheOptionIsOn)
{
    SKIP_WITHOUT_NETPBM();
    ASSERT_EQ(Run(highLine).exitCode, 0);
    EXPECT_EQ(Entry(Dumped("out.prc")["icons"], "resourceKey", "tAIB3501")["lowResFile"], "NEW");

    const ToolRun run = Run(highLine, { "--low-res" });

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "");
    Dumped("out.prc");
    EXPECT_EQ(Shown("tAIB3501.bmp"), half);
    EXPECT_EQ(Shown("tAIB3501-d144.bmp"), high);
}

TEST_F(ImportLowRes, GivesWayToALineForIt)
{
    SKIP_WITHOUT_NETPBM();
    const Picture low = Make("low.ppm", 15, 11);
    for (const std::string& list : { highLine + lowLine, lowLine + highLine }) {
        ASSERT_EQ(Run(list, { "--low-res" }).exitCode, 0);

        Dumped("out.prc");
        EXPECT_EQ(Shown("tAIB3501.bmp"), low) << list;
        EXPECT_EQ(Shown("tAIB3501-d144.bmp"), high) << list;
    }
}

TEST_F(ImportLowRes, OfAPictureWithoutAHalfIsNoError)
{
    Make("high.ppm", 1, 20);

    const ToolRun run = Run(highLine, { "--low-res" });

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors,
        "pixelworks-cli: line 1: There is no low-res picture: the high-res one is too small to be "
        "halved.\n");
    const json icon = Entry(Dumped("out.prc")["icons"], "resourceKey", "tAIB3501");
    EXPECT_EQ(icon["lowResFile"], "NEW");
    EXPECT_EQ(icon["highResFile"], "tAIB3501-d144.bmp");
}

TEST_F(Import, FillsASetThatCouldNotBeSavedWithoutPictures)
{
    UseSample("trailing");
    Make("large.ppm", 64, 44);
    const std::vector<std::string> onlyHigh{ "--only", "high" };
    const ToolRun converted = RunCommand("convert", onlyHigh);
    EXPECT_EQ(converted.errors, "pixelworks-cli: Error! Iconset doesn't contain any images.\n");
    EXPECT_EQ(Run("", onlyHigh).errors, converted.errors);

    EXPECT_EQ(Run("Acorn Notes (Large Icon)\thigh\tlarge.ppm\n", onlyHigh).errors, "");

    EXPECT_EQ(Dumped("out.prc")["icons"][0]["highResFile"], "tAIB3500-d144.bmp");
}

TEST_F(Import, SavesAsConvertDoes)
{
    Make("small.ppm", 30, 22);
    const std::string list = "Fern (Small Icon)\thigh\tsmall.ppm\n";

    const ToolRun run = Run(list,
        { "--name", "Caf\xC3\xA9", "--drop-unknown", "--packbits", "--version-string", "9.9" });

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.errors, HasSubstr("readers end the name before"));
    const std::string file = ReadText(folder.File("out.prc"));
    EXPECT_EQ(file.substr(0, 5), std::string("Caf\xE9\0", 5));
    EXPECT_NE(file.find(std::string("9.9\0", 4)), std::string::npos);
    const std::size_t first = ByteView(ReadBytes(folder.File("out.prc"))).U32(78 + 6);
    EXPECT_EQ(file[first + 6] & 0x80, 0x80) << "packed";
    const json after = Dumped("out.prc");
    for (const json& icon : after["icons"])
        EXPECT_NE(icon["kind"], "UNKNOWN");
}

TEST_F(Import, OutMayBeTheFileItself)
{
    Make("small.ppm", 30, 22);
    ASSERT_EQ(Run("Fern (Small Icon)\thigh\tsmall.ppm\n").exitCode, 0);

    EXPECT_EQ(RunCommand("import", { "--list", folder.File("pictures/list.txt") }, {}, "set.prc")
                  .exitCode,
        0);

    EXPECT_EQ(WithoutDates(ReadBytes(folder.File("set.prc"))),
        WithoutDates(ReadBytes(folder.File("out.prc"))));
}

TEST_F(Import, AFileThatIsNoIconsetIsToldAsConvertDoes)
{
    WriteBytes(folder.File("set.prc"), Bytes(100, 0));

    const ToolRun run = Run("Nobody\thigh\tsmall.ppm\n");

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, RunCommand("convert", {}).errors);
    EXPECT_FALSE(WroteOut());
}

} // namespace
} // namespace vypx::test
