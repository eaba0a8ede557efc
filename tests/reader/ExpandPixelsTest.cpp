#include "reader/ExpandPixels.h"

#include "support/Files.h"
#include "support/Properties.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

/// Data at the beginning of the record, zeros behind them as the decoder's buffer has.
struct Given {
    Given(const Bytes& data, int bytesOfARow, int rows, bool pairs = false)
        : bytes(data)
        , rowBytes(bytesOfARow)
        , height(rows)
        , sixteenBits(pairs)
    {
        bytes.resize(data.size() + 8);
    }

    StoredPixels Stored() const
    {
        return { .bytes = bytes,
            .start = 0,
            .rowBytes = rowBytes,
            .height = height,
            .sixteenBits = sixteenBits };
    }

    Bytes bytes;
    int rowBytes, height;
    bool sixteenBits;
};

/// A row with its pad columns.
Bytes RowOf(const PixelBuffer& pixels, int y)
{
    const std::uint8_t* const row = pixels.Row(y);
    return { row, row + pixels.RowBytes() + pixels.RowPad() };
}

TEST(CopyPixels, TakesRowsAsTheyStandAndRepeatsTheLastByteAsPad)
{
    const Given given(Hex("010203 040506"), 3, 2);

    const PixelBuffer pixels = CopyPixels(given.Stored());

    EXPECT_EQ(RowOf(pixels, 0), Hex("01020303"));
    EXPECT_EQ(RowOf(pixels, 1), Hex("04050606"));
}

TEST(CopyPixels, TheLastRowMayEndWithTheBytes)
{
    const Bytes bytes = Hex("FFFF 010203 040506"); // two bytes of a header before them

    const PixelBuffer pixels =
        CopyPixels({ .bytes = bytes, .start = 2, .rowBytes = 3, .height = 2 });

    EXPECT_EQ(RowOf(pixels, 1), Hex("04050606"));
    EXPECT_THROW(
        CopyPixels({ .bytes = bytes, .start = 3, .rowBytes = 3, .height = 2 }), BrokenFile);
}

TEST(CopyPixels, PadsRowsToAMultipleOfFour)
{
    EXPECT_EQ(PixelBuffer(30, 1).RowPad(), 2);
    EXPECT_EQ(PixelBuffer(32, 1).RowPad(), 0);
    EXPECT_EQ(PixelBuffer(33, 1).RowPad(), 3);
    EXPECT_EQ(PixelBuffer(0, 1).RowPad(), 0);
}

TEST(CopyPixels, RowsBeyondTheBytesThrow)
{
    const Given given(Hex("0102"), 2, 9);

    EXPECT_THROW(CopyPixels(given.Stored()), BrokenFile);
}

TEST(DecodeScanline, ASetBitTakesAByteAClearOneTheByteAbove)
{
    // Row 0: all nine bytes new (two masks). Row 1: bytes 1 and 8 new, the rest from above. The
    // row below the picture: all from above.
    const Given given(Hex("FF 1011121314151617 80 18   40 21 80 28   00 00"), 9, 2);

    const PixelBuffer pixels = DecodeScanline(given.Stored());

    EXPECT_EQ(RowOf(pixels, 0), Hex("101112131415161718 000000"));
    EXPECT_EQ(RowOf(pixels, 1), Hex("102112131415161728 000000"));
}

TEST(DecodeScanline, OnPurposeAFirstByteOf0IsTheHighHalfOfAWiderSize)
{
    const Given plain(Hex("F0 01020304 00"), 4, 1);
    const Given wider(Hex("0012 F0 01020304 00"), 4, 1);

    EXPECT_EQ(RowOf(DecodeScanline(plain.Stored()), 0), Hex("01020304"));
    EXPECT_EQ(RowOf(DecodeScanline(wider.Stored()), 0), Hex("01020304"));
}

TEST(DecodeScanline, OnPurposeOneRowMoreThanThePictureIsRead)
{
    Given given(Hex("F0 01020304 F0 05060708"), 4, 1);

    EXPECT_EQ(DecodeScanline(given.Stored()).RowsMade(), 2);

    given.bytes.resize(8); // the extra row's bytes are not there
    EXPECT_THROW(DecodeScanline(given.Stored()), BrokenFile);
}

TEST(DecodeScanline, AClearBitInTheFirstRowThrows)
{
    const Given given(Hex("7F 01020304050607"), 8, 1);

    EXPECT_THROW(DecodeScanline(given.Stored()), BrokenFile);
}

TEST(DecodeRLE, RepeatsAValueByItsCount)
{
    const Given given(Hex("03AA 01BB  04CC"), 4, 2);

    const PixelBuffer pixels = DecodeRLE(given.Stored());

    EXPECT_EQ(RowOf(pixels, 0), Hex("AAAAAABB"));
    EXPECT_EQ(RowOf(pixels, 1), Hex("CCCCCCCC"));
}

TEST(DecodeRLE, PadBytesAreZero)
{
    const Given given(Hex("1E AA"), 30, 1);

    Bytes expected(30, 0xAA);
    expected.resize(32, 0);
    EXPECT_EQ(RowOf(DecodeRLE(given.Stored()), 0), expected);
}

TEST(DecodeRLE, OnPurposeARunGoesOnIntoThePadColumns)
{
    const Given given(Hex("04AA"), 3, 1);

    EXPECT_EQ(RowOf(DecodeRLE(given.Stored()), 0), Hex("AAAAAAAA"))
        << "the zero of the pad follows the column that was reached";
}

TEST(DecodeRLE, ARunBeyondTheRowsBoundThrows)
{
    // 3 + 1 pad + 5 columns: a run of 8 leaves room for the pad, one of 9 does not.
    EXPECT_NO_THROW(DecodeRLE(Given(Hex("08AA"), 3, 1).Stored()));
    EXPECT_THROW(DecodeRLE(Given(Hex("09AA"), 3, 1).Stored()), BrokenFile);
}

TEST(DecodeRLE, CountsOf0RunToTheEndOfTheBytesAndThrow)
{
    EXPECT_THROW(DecodeRLE(Given(Hex("00AA 00BB"), 4, 1).Stored()), BrokenFile);
}

TEST(DecodePackBits, ExpandsRunsAndLiterals)
{
    const Given given(Hex("FEAA 02010203"), 6, 1);

    EXPECT_EQ(RowOf(DecodePackBits(given.Stored()), 0), Hex("AAAAAA010203 0303"));
}

TEST(DecodePackBits, OnPurposeControl80IsARunOf129)
{
    const Given given(Hex("80AA"), 129, 1);

    Bytes expected(132, 0xAA);
    EXPECT_EQ(RowOf(DecodePackBits(given.Stored()), 0), expected);
}

TEST(DecodePackBits, PadBytesRepeatTheLastValueByte)
{
    Bytes data = Hex("1D");
    for (std::uint8_t i = 1; i <= 30; ++i)
        data.push_back(i);

    const Bytes row = RowOf(DecodePackBits(Given(data, 30, 1).Stored()), 0);

    EXPECT_EQ(row.size(), 32u);
    EXPECT_EQ(row[29], 30);
    EXPECT_EQ(row[30], 30);
    EXPECT_EQ(row[31], 30);
}

TEST(DecodePackBits, SixteenBitPixelsArePairs)
{
    const Given given(Hex("FF1234 0156789ABC"), 8, 1, true);

    EXPECT_EQ(RowOf(DecodePackBits(given.Stored()), 0), Hex("12341234 56789ABC"));
}

TEST(DecodePackBits, ThePadOf16BitsIsTheFirstByteOfTheLastPair)
{
    const Given given(Hex("FF1234 005678"), 6, 1, true);

    EXPECT_EQ(RowOf(DecodePackBits(given.Stored()), 0), Hex("123412345678 5656"));
}

TEST(DecodePackBits, OnPurposeARunThatOverstepsTheRowGoesOnUntilTheBoundThrows)
{
    // Five bytes for a row of four: the end is missed, and the zeros behind are literals.
    EXPECT_THROW(DecodePackBits(Given(Hex("FCAA"), 4, 1).Stored()), BrokenFile);
}

TEST(PixelBuffer, KeepsOneRowMoreThanThePictureAndNoOtherMore)
{
    PixelBuffer pixels(4, 2);

    for (int y = 0; y < 3; ++y)
        pixels.NextRow();

    EXPECT_THROW(pixels.NextRow(), BrokenFile);
}

TEST(PixelBuffer, AClaimOf65535RowsCostsOnlyWhatTheBytesGive)
{
    const Given given(Hex("FFAA"), 65535, 65535);

    EXPECT_THROW(DecodeRLE(given.Stored()), BrokenFile);
}

/// The forms as a writer makes them, for the round trips below.
Bytes PackedAsRle(const Bytes& row)
{
    Bytes packed;
    for (std::size_t i = 0; i < row.size();) {
        std::size_t end = i;
        while (end < row.size() && row[end] == row[i] && end - i < 255)
            ++end;
        packed.push_back(static_cast<std::uint8_t>(end - i));
        packed.push_back(row[i]);
        i = end;
    }
    return packed;
}

Bytes PackedAsPackBits(const Bytes& row, std::size_t unit)
{
    Bytes packed;
    const std::size_t pixels = row.size() / unit;
    const auto same = [&](std::size_t a, std::size_t b) {
        return std::equal(row.begin() + static_cast<std::ptrdiff_t>(a * unit),
            row.begin() + static_cast<std::ptrdiff_t>((a + 1) * unit),
            row.begin() + static_cast<std::ptrdiff_t>(b * unit));
    };
    for (std::size_t i = 0; i < pixels;) {
        std::size_t end = i + 1;
        while (end < pixels && same(i, end) && end - i < 128)
            ++end;
        packed.push_back(
            end - i > 1 ? static_cast<std::uint8_t>(257 - (end - i)) : std::uint8_t{ 0 });
        for (std::size_t k = 0; k < unit; ++k)
            packed.push_back(row[i * unit + k]);
        i = end;
    }
    return packed;
}

Bytes PackedAsScanline(const Bytes& row, const Bytes* above)
{
    Bytes packed;
    for (std::size_t i = 0; i < row.size(); i += 8) {
        Bytes group;
        int mask = 0;
        for (std::size_t k = i; k < std::min(i + 8, row.size()); ++k)
            if (!above || (*above)[k] != row[k]) {
                mask |= 0x80 >> (k - i);
                group.push_back(row[k]);
            }
        packed.push_back(static_cast<std::uint8_t>(mask));
        packed.insert(packed.end(), group.begin(), group.end());
    }
    return packed;
}

#ifdef RC_GTEST_PROP
/// Rows of bytes with runs in them.
std::vector<Bytes> SomeRows(std::size_t rowBytes)
{
    const auto count = *rc::gen::inRange<std::size_t>(1, 6);
    std::vector<Bytes> rows;
    for (std::size_t y = 0; y < count; ++y)
        rows.push_back(
            *rc::gen::container<Bytes>(rowBytes, rc::gen::map(rc::gen::inRange(0, 9), [](int v) {
                return static_cast<std::uint8_t>(v < 4 ? 0xFF : v);
            })));
    return rows;
}

void RequireRows(const PixelBuffer& pixels, const std::vector<Bytes>& rows)
{
    for (std::size_t y = 0; y < rows.size(); ++y) {
        Bytes row = RowOf(pixels, static_cast<int>(y));
        row.resize(rows[y].size());
        RC_ASSERT(row == rows[y]);
    }
}

RC_GTEST_PROP(ExpandPixels, GivesBackWhatWasPackedInEveryForm, ())
{
    const auto pairs = *rc::gen::inRange<std::size_t>(1, 200);
    const std::size_t rowBytes = 2 * pairs;
    const std::vector<Bytes> rows = SomeRows(rowBytes);
    Bytes plain, rle, packed, packed16, scanline;
    const auto append = [](Bytes& all, const Bytes& part) {
        all.insert(all.end(), part.begin(), part.end());
    };
    for (std::size_t y = 0; y < rows.size(); ++y) {
        append(plain, rows[y]);
        append(rle, PackedAsRle(rows[y]));
        append(packed, PackedAsPackBits(rows[y], 1));
        append(packed16, PackedAsPackBits(rows[y], 2));
        append(scanline, PackedAsScanline(rows[y], y == 0 ? nullptr : &rows[y - 1]));
    }
    append(scanline, Bytes(rowBytes / 8 + 1, 0)); // the row below the picture

    const int width = static_cast<int>(rowBytes), height = static_cast<int>(rows.size());
    RequireRows(CopyPixels(Given(plain, width, height).Stored()), rows);
    RequireRows(DecodeRLE(Given(rle, width, height).Stored()), rows);
    RequireRows(DecodePackBits(Given(packed, width, height).Stored()), rows);
    RequireRows(DecodePackBits(Given(packed16, width, height, true).Stored()), rows);
    RequireRows(DecodeScanline(Given(scanline, width, height).Stored()), rows);
}
#endif

} // namespace
} // namespace vypx::test
