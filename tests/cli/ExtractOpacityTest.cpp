#include "ReadingFixture.h"

namespace vypx::test {

namespace {

/// A picture of 16 x 2 pixels at that depth, byte by byte: all have the last palette index, or
/// white at 16 bits, but for the second of the upper row, which has the transparent 0, or red.
Bytes Sixteen(int depth, bool high)
{
    const int rowBytes = 2 * depth;
    const std::size_t header = high || depth == 16 ? 24 : 16;
    Bytes record(header + static_cast<std::size_t>(2 * rowBytes), 0xFF);
    std::fill_n(record.begin(), header, std::uint8_t{ 0 });
    PutU16(record, 0, 16);
    PutU16(record, 2, 2);
    PutU16(record, 4, static_cast<unsigned>(rowBytes));
    PutU16(record, 6, depth == 16 ? 0x2400 : 0x2000);
    record[8] = static_cast<std::uint8_t>(depth);
    record[9] = high ? 3 : 2;
    if (high) {
        record[11] = depth == 16;
        PutU16(record, 14, 144);
        PutU16(record, 18, depth == 16 ? 0xF800 : 0);
    } else if (depth == 16) {
        record[21] = 255;
    }
    const auto clear = [&](std::size_t at, std::uint8_t value) { record[header + at] = value; };
    if (depth == 1)
        clear(0, 0b1011'1111);
    else if (depth == 2)
        clear(0, 0b1100'1111);
    else if (depth == 4)
        clear(0, 0xF0);
    else if (depth == 8)
        clear(1, 0);
    else
        PutU16(record, header + 2, 0xF800);
    return record;
}

class ExtractOpacity : public ReadingFixture, public ::testing::WithParamInterface<int> { };

TEST_P(ExtractOpacity, OfEachDepthTheTransparentPixelsAreTransparent)
{
    SKIP_WITHOUT_NETPBM();
    Bytes low = Sixteen(GetParam(), false);
    PutU16(low, 10, static_cast<unsigned>(low.size() / 4));
    Write({ .resources = {
                { "tAIB", 3500, Join({ low, Separator(), Sixteen(GetParam(), true) }) } } });

    ASSERT_EQ(RunTool({ "extract", folder.File("set.prc"), folder.File("x") }).exitCode, 0);

    for (const char* name : { "x/tAIB3500-low.png", "x/tAIB3500-high.png" }) {
        const std::string file = "'" + folder.File(name) + "'";
        const Picture opacity = PictureFrom("pngtopnm -quiet -alpha " + file);
        const Picture colours = PictureFrom("pngtopnm -quiet " + file);
        ASSERT_EQ(opacity.Width(), 16);
        ASSERT_EQ(opacity.Height(), 2);
        // The last index is black but for 16 bits, which have white there.
        const Rgb opaque = GetParam() == 16 ? Rgb{ 255, 255, 255 } : Black;
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 16; ++x) {
                const bool isSeen = x != 1 || y != 0;
                EXPECT_EQ(opacity.At(x, y).red, isSeen ? 255 : 0) << name << x << "," << y;
                EXPECT_TRUE(!isSeen || colours.At(x, y) == opaque) << name << x << "," << y;
            }
    }
}

INSTANTIATE_TEST_SUITE_P(Depths, ExtractOpacity, ::testing::Values(1, 2, 4, 8, 16));

} // namespace
} // namespace vypx::test
