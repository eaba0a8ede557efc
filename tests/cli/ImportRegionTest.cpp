#include "ImportCropFixture.h"
#include "support/Iconsets.h"

#include <random>

/// Lists that name regions of pictures.
namespace vypx::test {

namespace {

using nlohmann::json;

class ImportRegion : public ImportCrop { };

TEST_F(ImportRegion, ARegionOfTheSlotsSizeIsStoredToTheLetter)
{
    SKIP_WITHOUT_NETPBM();
    const Picture sheet = Make("sheet.ppm", 200, 101);
    for (const SlotCase& slot : { LargeHigh, LargeLow, SmallHigh, SmallLow }) {
        const std::string size = std::to_string(slot.width) + "," + std::to_string(slot.height);
        const Picture stored = Stored(slot, "sheet.ppm\t41,30," + size);

        EXPECT_EQ(stored,
            Witness("pamcut -left=41 -top=30 -width=" + std::to_string(slot.width)
                + " -height=" + std::to_string(slot.height) + " sheet.ppm"))
            << slot.head;
        EXPECT_EQ(stored.At(2, 1), sheet.At(43, 31));
    }
}

TEST_F(ImportRegion, ARegionOfAnyShapeIsStretchedToTheSlot)
{
    SKIP_WITHOUT_NETPBM();
    WritePpm(folder.File("pictures/photo.ppm"), Noise(300, 230));
    for (const SlotCase& slot : { LargeHigh, LargeLow, SmallHigh, SmallLow })
        for (const auto& [region, options] :
            { std::pair("17,31,200,150", "-left=17 -top=31 -width=200 -height=150"),
                { "0,0,300,230", "-left=0 -top=0 -width=300 -height=230" },
                { "100,0,64,230", "-left=100 -top=0 -width=64 -height=230" },
                { "0,229,300,1", "-left=0 -top=229 -width=300 -height=1" } }) {
            SCOPED_TRACE(std::string(slot.head) + region);
            ExpectAverage(Stored(slot, std::string("photo.ppm\t") + region),
                Witness(std::string("pamcut ") + options + " photo.ppm | " + ScaleTo(slot)));
        }
}

TEST_F(ImportRegion, APixelFillsTheSlot)
{
    SKIP_WITHOUT_NETPBM();
    const Picture source = Make("p.ppm", 5, 4);
    for (const SlotCase& slot : { LargeHigh, SmallLow }) {
        const Picture stored = Stored(slot, "p.ppm\t4,3,1,1");

        ExpectSize(stored, slot);
        for (int y = 0; y < stored.Height(); ++y)
            for (int x = 0; x < stored.Width(); ++x)
                ASSERT_EQ(stored.At(x, y), source.At(4, 3));
    }
}

TEST_F(ImportRegion, APictureThatFitsIsCutAndStretchedToo)
{
    SKIP_WITHOUT_NETPBM();
    const Picture source = Make("p.ppm", 12, 9);

    const Picture part = Stored(SmallHigh, "p.ppm\t2,3,8,5");
    ExpectSize(part, SmallHigh);
    EXPECT_EQ(part.At(0, 0), source.At(2, 3));
    EXPECT_EQ(part.At(29, 0), source.At(9, 3));
    EXPECT_EQ(part.At(0, 21), source.At(2, 7));
    EXPECT_EQ(part.At(29, 21), source.At(9, 7));

    const Picture whole = Stored(SmallHigh, "p.ppm\t0,0,12,9");
    ExpectSize(whole, SmallHigh);
    EXPECT_EQ(whole.At(29, 21), source.At(11, 8));
    EXPECT_EQ(Stored(SmallHigh, "p.ppm"), source) << "without a region it stays as it is";
}

TEST_F(ImportRegion, OnePictureGivesSeveralIcons)
{
    SKIP_WITHOUT_NETPBM();
    Make("sheet.ppm", 94, 44);

    const ToolRun run = Run(std::string(LargeHigh.head) + "sheet.ppm\t0,0,64,44\n" + SmallHigh.head
        + "sheet.ppm\t64,0,30,22\r\n" + SmallLow.head + "sheet.ppm\t64,22,15,11");

    EXPECT_EQ(run.errors, "");
    Dumped("out.prc");
    EXPECT_EQ(Shown(LargeHigh.file), Witness("pamcut -width=64 sheet.ppm"));
    EXPECT_EQ(Shown(SmallHigh.file), Witness("pamcut -left=64 -height=22 sheet.ppm"));
    EXPECT_EQ(
        Shown(SmallLow.file), Witness("pamcut -left=64 -width=15 -top=22 -height=11 sheet.ppm"));
}

TEST_F(ImportRegion, ARegionBeyondThePictureIsRefusedAndNothingIsWritten)
{
    Make("p.ppm", 80, 60);
    for (const char* region :
        { "0,0,81,60", "0,0,80,61", "1,0,80,60", "0,1,80,60", "80,0,1,1", "0,60,1,1",
            "2147483647,0,1,1", "0,0,2147483647,1", "2147483647,2147483647,2147483647,2147483647" })
        for (const std::vector<std::string>& options :
            { std::vector<std::string>{}, { "--stretch" } }) {
            const ToolRun run = Run(std::string(SmallHigh.head) + "p.ppm\t0,0,80,60\n"
                    + SmallLow.head + "p.ppm\t" + region,
                options);

            EXPECT_EQ(run.exitCode, 1);
            EXPECT_EQ(run.errors,
                "pixelworks-cli: line 2: p.ppm was not imported: the region is not wholly inside "
                "of its 80 x 60 pixels.\n")
                << region;
            EXPECT_FALSE(WroteOut());
        }
}

/// The half of the stored picture waits in a file of its own, to which no region belongs.
TEST_F(ImportRegion, TheLowResPictureIsTheHalfOfTheRegion)
{
    SKIP_WITHOUT_NETPBM();
    const Iconset set{ .resources = { { "tAIB", 3501, Join({ Separator(), HighRecord(8) }) },
                           { "iTbl", 1000, IndexRecord("appl", "AcNt", 0, 3501) } } };
    WriteBytes(folder.File("set.prc"), set.File());
    const SlotCase small{ "tAIB3501\thigh\t", "tAIB3501-d144.bmp", 30, 22 };
    Picture sheet(100, 50);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 100; ++x)
            sheet.Set(x, y, (x / 2 + y / 2) % 3 == 0 ? Rgb{ 255, 0, 0 } : Rgb{ 0, 0, 255 });
    WritePpm(folder.File("pictures/sheet.ppm"), sheet);
    const std::string cut = "pamcut -left=20 -top=10 -width=30 -height=22 sheet.ppm";

    EXPECT_EQ(Stored(small, "sheet.ppm\t20,10,30,22", { "--low-res", "--stretch" }), Witness(cut));

    EXPECT_EQ(Shown("tAIB3501.bmp"), Witness(cut + " | pamscale -linear -xsize=15 -ysize=11"));
}

TEST_F(ImportRegion, TransparentPixelsStayTransparent)
{
    SKIP_WITHOUT_NETPBM();
    // Squares of 2 x 2 are clear or opaque as one, so each pixel of the half is one of the two.
    Picture colours(80, 60), alpha(80, 60);
    std::mt19937 random(5);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 80; ++x) {
            for (int i = 0; i < 3; ++i)
                colours.Row(y)[x * 3 + i] = static_cast<std::uint8_t>(random() % 200);
            if ((x / 2 * 3 + y / 2) % 4 != 0)
                alpha.Set(x, y, { 255, 255, 255 });
        }
    WritePpm(folder.File("pictures/colours.ppm"), colours);
    WritePpm(folder.File("pictures/alpha.ppm"), alpha);
    const std::string pictures = "cd '" + folder.File("pictures") + "' && ";
    OutputOf(pictures + "ppmtopgm alpha.ppm >alpha.pgm");
    OutputOf(pictures + "pnmtopng -quiet -alpha=alpha.pgm colours.ppm >p.png");
    const std::string half =
        " | pamcut -left=8 -top=8 -width=60 -height=44 | " + ScaleTo(SmallHigh);
    const Picture average = Witness("cat colours.ppm" + half),
                  opaque = Witness("cat alpha.ppm" + half);

    const Picture stored = Stored(SmallHigh, "p.png\t8,8,60,44");

    ExpectSize(stored, SmallHigh);
    const Rgb mask = stored.At(0, 0);
    EXPECT_EQ(mask, (Rgb{ 255, 0, 255 }));
    for (int y = 0; y < 22; ++y)
        for (int x = 0; x < 30; ++x) {
            const bool isOpaque = opaque.At(x, y).red == 255;
            EXPECT_EQ(stored.At(x, y) != mask, isOpaque) << x << ' ' << y;
            for (const auto component : { &Rgb::red, &Rgb::green, &Rgb::blue })
                EXPECT_TRUE(
                    !isOpaque || IsWithinALevel(component, stored.At(x, y), average.At(x, y)));
        }
    const json bitmap = Entry(Dumped("out.prc")["bitmaps"], "file", SmallHigh.file);
    EXPECT_EQ(bitmap["hasTransparent"], 1);
    EXPECT_EQ((std::vector<int>{ bitmap["red"], bitmap["green"], bitmap["blue"] }),
        (std::vector{ 255, 0, 255 }));
}

/// In flat squares of 16 x 16, which a JPEG keeps but for a level or two.
TEST_F(ImportRegion, ARegionOfAPhotoIsThatOfThePictureAsItIsTurned)
{
    SKIP_WITHOUT_NETPBM();
    Picture squares(128, 96);
    for (int y = 0; y < 96; ++y)
        for (int x = 0; x < 128; ++x) {
            const int corner = x / 16 + 3 * (y / 16);
            squares.Set(x, y, { corner & 1 ? 255 : 0, corner & 2 ? 255 : 0, corner & 4 ? 255 : 0 });
        }
    WritePpm(folder.File("pictures/squares.ppm"), squares);
    Bytes jpeg = OutputOf(
        "pnmtojpeg -quality=100 -sample=1x1 '" + folder.File("pictures/squares.ppm") + "'");
    WriteBytes(folder.File("pictures/photo.jpg"), jpeg);
    // An Exif segment with nothing but "row 0 is on the right, column 0 on top".
    const Bytes turn = Hex("FFE1 0022 457869660000 4D4D 002A 00000008 0001"
                           "0112 0003 00000001 0006 0000 00000000");
    jpeg.insert(jpeg.begin() + 2, turn.begin(), turn.end());
    WriteBytes(folder.File("pictures/turned.jpg"), jpeg);
    const std::string cut = "pamcut -left=20 -top=70 -width=30 -height=22";

    EXPECT_EQ(Stored(SmallHigh, "photo.jpg\t20,70,30,22", { "--depth", "8-Bit" }),
        Witness(cut + " squares.ppm"));
    EXPECT_EQ(Stored(SmallHigh, "turned.jpg\t20,70,30,22", { "--depth", "8-Bit" }),
        Witness("pamflip -cw squares.ppm | " + cut));
    EXPECT_EQ(Run(std::string(SmallHigh.head) + "turned.jpg\t97,0,30,22").exitCode, 1)
        << "it is 96 wide now";
}

} // namespace
} // namespace vypx::test
