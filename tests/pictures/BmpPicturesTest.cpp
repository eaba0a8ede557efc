#include "pictures/PictureBytes.h"
#include "pictures/PictureLoader.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <gtest/gtest.h>

/// BMP files of which each byte is worked out by hand.
namespace vypx::test {

namespace {

constexpr Rgb White{ 255, 255, 255 }, Green{ 0, 255, 0 };

LoadedPicture LoadBytes(const Bytes& bytes)
{
    const TempFolder folder;
    WriteBytes(folder.File("a.bmp"), bytes);
    return LoadPicture(folder.File("a.bmp"));
}

/// The picture's rows, a letter for each pixel: black, red, green, blue, white, "." for the
/// transparent colour, "?" for others.
std::vector<std::string> Letters(const MaskedPicture& picture)
{
    std::vector<std::string> rows;
    for (int y = 0; y < picture.pixels.Height(); ++y) {
        std::string row;
        for (int x = 0; x < picture.pixels.Width(); ++x) {
            const Rgb colour = picture.pixels.At(x, y);
            row += picture.transparent == colour ? '.'
                : colour == Black                ? 'k'
                : colour == Red                  ? 'r'
                : colour == Green                ? 'g'
                : colour == Blue                 ? 'b'
                : colour == White                ? 'w'
                                                 : '?';
        }
        rows.push_back(row);
    }
    return rows;
}

using Rows = std::vector<std::string>;

TEST(LoadBmp, RowsFromTheTopAreNotTurned)
{
    const Bytes rows = Hex("0000FF 00FF00 0000"   // red, green, two bytes to fill the row
                           "FF0000 FFFFFF 0000"); // blue, white

    EXPECT_EQ(Letters(LoadBytes(Join({ BmpHeader(2, -2, 24, 0, 0), rows })).picture),
        (Rows{ "rg", "bw" }));
    EXPECT_EQ(Letters(LoadBytes(Join({ BmpHeader(2, 2, 24, 0, 0), rows })).picture),
        (Rows{ "bw", "rg" }));
}

/// What runs pass over is colour 0, and nothing of what the memory held before.
TEST(LoadBmp, GapsOfRunsAreFilledWhicheverWayTheRowsGo)
{
    for (const int height : { 16, -16 }) {
        const Bytes file =
            Join({ BmpHeader(16, height, 8, 1, 2), Hex("FFFFFF00 0000FF00"), Hex("01 01 00 01") });
        const Bytes dirt(1 << 16, 0xAB); // what is freed here may be what the reader gets
        const LoadedPicture loaded = LoadBytes(file);

        ASSERT_FALSE(loaded.picture.pixels.IsNull()) << loaded.whyNot;
        int red = 0, white = 0;
        for (const std::string& row : Letters(loaded.picture)) {
            red += static_cast<int>(std::count(row.begin(), row.end(), 'r'));
            white += static_cast<int>(std::count(row.begin(), row.end(), 'w'));
        }
        EXPECT_EQ(red, 1) << height;
        EXPECT_EQ(white, 255) << height;
    }
}

constexpr const char* BlackRedGreenBlue = "00000000 0000FF00 00FF0000 FF000000";

TEST(LoadBmp, RunsOf8BitsWithAJump)
{
    const Bytes runs =
        Hex("02 01 0003 020301 00 0000" // 2 red; 3 as they are, one byte to fill; end of row
            "01 02 0002 02 01 01 03"    // green; go 2 right and 1 up; blue
            "0001");                    // end

    const LoadedPicture loaded =
        LoadBytes(Join({ BmpHeader(5, 3, 8, 1, 4), Hex(BlackRedGreenBlue), runs }));

    // What is passed over has the first colour.
    EXPECT_EQ(Letters(loaded.picture), (Rows{ "kkkbk", "gkkkk", "rrgbr" }));
}

TEST(LoadBmp, RunsOf4BitsWithAJump)
{
    const Bytes runs =
        Hex("04 12 0003 3210 0000 "  // red and green by turns, 4; 3 as they are, 2 bytes
            "02 33 0002 03 01 02 11" // 2 blue; go 3 right and 1 up; 2 red
            "0001");

    const LoadedPicture loaded =
        LoadBytes(Join({ BmpHeader(7, 3, 4, 2, 4), Hex(BlackRedGreenBlue), runs }));

    EXPECT_EQ(Letters(loaded.picture), (Rows{ "kkkkkrr", "bbkkkkk", "rgrgbgr" }));
}

TEST(LoadBmp, ThePixelsThatRunsPassOverAreTheSameEachTime)
{
    const Bytes file = Join({ BmpHeader(300, 300, 8, 1, 4), Hex(BlackRedGreenBlue),
        Hex("0002 FF FF 0001") }); // a jump, and nothing else
    for (std::size_t size = 80'000; size < 100'000; size += 1000)
        const Bytes rubbish(size, 2); // what the heap gives out next, perhaps

    EXPECT_EQ(Letters(LoadBytes(file).picture), Rows(300, std::string(300, 'k')));
}

TEST(LoadBmp, MostOf16BitsIsWhite)
{
    const Bytes by5 = Join({ BmpHeader(4, 1, 16, 0, 0), Hex("FF7F 007C E003 1F00") });
    const Bytes by565 = Join({ BmpHeader(4, 1, 16, 3, 3), Hex("00F80000 E0070000 1F000000"),
        Hex("FFFF 00F8 E007 1F00") });

    EXPECT_EQ(Letters(LoadBytes(by5).picture), (Rows{ "wrgb" }));
    EXPECT_EQ(Letters(LoadBytes(by565).picture), (Rows{ "wrgb" }));
}

/// A header of 108 bytes with masks of 8 bits each.
Bytes BmpWithAlpha(const Bytes& pixels)
{
    Bytes header = BmpHeader(static_cast<std::int32_t>(pixels.size() / 4), 1, 32, 3, 0);
    header[10] = 122;
    header[14] = 108;
    const Bytes masks = Hex("0000FF00 00FF0000 FF000000 000000FF");
    return Join({ header, masks, Hex("42475273"), Bytes(48, 0), pixels });
}

TEST(LoadBmp, AlphaOf32Bits)
{
    const Bytes pixels = Hex("0000FFFF 00FF007F FF000080 FFFFFF00");

    EXPECT_EQ(Letters(LoadBytes(BmpWithAlpha(pixels)).picture), (Rows{ "r.b." }));
}

TEST(LoadBmp, AnEmptyAlphaCountsForNothing)
{
    const Bytes pixels = Hex("0000FF00 00FF0000 FF000000 FFFFFF00");
    const Bytes noMasks = Join({ BmpHeader(4, 1, 32, 0, 0), pixels });

    for (const Bytes& file : { BmpWithAlpha(pixels), noMasks }) {
        const LoadedPicture loaded = LoadBytes(file);
        EXPECT_EQ(loaded.picture.transparent, std::nullopt);
        EXPECT_EQ(Letters(loaded.picture), (Rows{ "rgbw" }));
    }
}

TEST(LoadBmp, RowsThatAreMissingMakeItBroken)
{
    Bytes file = Join({ BmpHeader(2, 2, 24, 0, 0), Bytes(16, 0xFF) });
    EXPECT_EQ(LoadBytes(file).whyNot, "");
    file.pop_back();

    const LoadedPicture loaded = LoadBytes(file);

    EXPECT_TRUE(loaded.picture.pixels.IsNull());
    EXPECT_EQ(loaded.whyNot, "its data are broken or of a kind that can't be read here");
}

/// An icon of 2 x 1 pixels at 32 bits: red and green.
Bytes IconOf32Bits(std::uint8_t alphaOfRed, std::uint8_t alphaOfGreen, const char* mask)
{
    const Bytes entry = Hex("0000 0100 0100 02 01 00 00 0100 2000 34000000 16000000");
    Bytes header = BmpHeader(2, 2, 32, 0, 0); // twice the height
    header.erase(header.begin(), header.begin() + 14);
    return Join({ entry, header, { 0, 0, 255, alphaOfRed, 0, 255, 0, alphaOfGreen }, Hex(mask) });
}

TEST(LoadIcon, AlphaCountsAndTheMaskOnlyWhereThereIsNone)
{
    EXPECT_EQ(Letters(LoadBytes(IconOf32Bits(255, 127, "80000000")).picture), (Rows{ "r." }));
    EXPECT_EQ(Letters(LoadBytes(IconOf32Bits(0, 0, "80000000")).picture), (Rows{ ".g" }));
    EXPECT_EQ(Letters(LoadBytes(IconOf32Bits(0, 0, "00000000")).picture), (Rows{ "rg" }));
    EXPECT_EQ(Letters(LoadBytes(IconOf32Bits(0, 0, "")).picture), (Rows{ "rg" }));
    EXPECT_EQ(Letters(LoadBytes(IconOf32Bits(200, 130, "00000000")).picture), (Rows{ "rg" }))
        << "unblended";
}

TEST(LoadIcon, MoreColoursThanTheBitsTellAreBroken)
{
    const Bytes entry = Hex("0000 0100 0100 02 01 00 00 0100 0400 70000000 16000000");
    for (const int colours : { 16, 17, -1 }) {
        Bytes header = BmpHeader(2, 2, 4, 0, colours);
        header.erase(header.begin(), header.begin() + 14);
        // Table, a row of the pixels 1 and 1, a row of the mask.
        const Bytes icon = Join({ entry, header, Hex("00000000 0000FF00"), Bytes(14 * 4, 0),
            Hex("11000000 00000000") });

        const LoadedPicture loaded = LoadBytes(icon);

        EXPECT_EQ(loaded.whyNot.empty(), colours == 16) << colours;
        EXPECT_EQ(Letters(loaded.picture), colours == 16 ? Rows{ "rr" } : Rows()) << colours;
    }
}

} // namespace

} // namespace vypx::test
