#include "companion/PackBits.h"

#include "support/Files.h"
#include "support/Properties.h"
#include "support/Unpacked.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

Bytes Packed(const std::string& row, std::size_t unit = 1)
{
    Bytes packed;
    AppendPackBits(packed, Hex(row), unit);
    return packed;
}

/// The size of the shortest packing, found by trying every run and literal at every unit from the
/// end to the front.
std::size_t ShortestSize(const Bytes& row, std::size_t unit)
{
    const std::size_t units = row.size() / unit;
    const auto same = [&](std::size_t a, std::size_t b) {
        return std::equal(row.begin() + static_cast<std::ptrdiff_t>(a * unit),
            row.begin() + static_cast<std::ptrdiff_t>((a + 1) * unit),
            row.begin() + static_cast<std::ptrdiff_t>(b * unit));
    };
    std::vector<std::size_t> size(units + 1, 0);
    for (std::size_t at = units; at-- > 0;) {
        size[at] = SIZE_MAX;
        for (std::size_t length = 1; length <= 128 && at + length <= units; ++length)
            size[at] = std::min(size[at], 1 + length * unit + size[at + length]);
        for (std::size_t length = 2;
             length <= 128 && at + length <= units && same(at, at + length - 1); ++length)
            size[at] = std::min(size[at], 1 + unit + size[at + length]);
    }
    return size[0];
}

#ifdef RC_GTEST_PROP
/// Short runs, and some about as long as a run may be; few values, so that runs may meet.
Bytes SomeRow(std::size_t unit)
{
    const auto lengths = rc::gen::weightedElement<std::size_t>({ { 60, 1 }, { 20, 2 }, { 8, 3 },
        { 6, 4 }, { 2, 61 }, { 2, 127 }, { 1, 129 }, { 1, 130 } });
    const auto runs = *rc::gen::container<std::vector<std::pair<std::size_t, int>>>(
        static_cast<std::size_t>(*rc::gen::inRange(1, 320)),
        rc::gen::pair(lengths, rc::gen::inRange(0, 40)));
    Bytes row;
    for (const auto& [length, value] : runs)
        for (std::size_t i = 0; i < length * unit; ++i)
            row.push_back(static_cast<std::uint8_t>(unit == 1 || i % 2 == 0 ? value : value / 20));
    return row;
}

RC_GTEST_PROP(PackBits, ARowComesBackInAsFewBytesAsThereAre, ())
{
    const std::size_t unit = *rc::gen::element<std::size_t>(1, 2);
    const Bytes row = SomeRow(unit);

    Bytes packed;
    AppendPackBits(packed, row, unit);

    RC_ASSERT(Unpacked(packed, unit) == row);
    RC_ASSERT(packed.size() == ShortestSize(row, unit));
}
#endif

TEST(PackBits, APairWhereALiteralMustEndStandsAlone)
{
    Bytes row;
    for (int i = 0; i < 127; ++i)
        row.push_back(static_cast<std::uint8_t>(i));
    row.insert(row.end(), { 200, 200 });

    Bytes packed;
    AppendPackBits(packed, row, 1);

    ASSERT_EQ(packed.size(), 130u) << "with a second literal 131";
    EXPECT_EQ(packed[0], 126);
    EXPECT_EQ(Bytes(packed.begin() + 128, packed.end()), Hex("FFC8"));
}

TEST(PackBits, ARunOneTooLongGivesTheOneToTheLiteralBeforeIt)
{
    for (const std::size_t length : { 129u, 257u }) {
        Bytes row = Hex("01");
        row.resize(1 + length, 0xAA);

        Bytes packed;
        AppendPackBits(packed, row, 1);

        EXPECT_EQ(Bytes(packed.begin(), packed.begin() + 5), Hex("01 01AA 81AA")) << length;
        EXPECT_EQ(packed.size(), length == 129 ? 5u : 7u);
    }
}

TEST(PackBits, AddsToWhatIsThere)
{
    Bytes packed = Hex("1234");

    AppendPackBits(packed, Hex("AAAAAA"), 1);

    EXPECT_EQ(packed, Hex("1234FEAA"));
}

TEST(PackBits, ARowOfMoreUnitsThanAPictureHasIsRefused)
{
    Bytes packed;
    EXPECT_NO_THROW(AppendPackBits(packed, Bytes(65536), 1));
    EXPECT_EQ(packed.size(), 1024u);

    EXPECT_THROW(AppendPackBits(packed, Bytes(65537), 1), std::length_error);
}

TEST(PackBits, RunsAndLiterals)
{
    EXPECT_EQ(Packed("AAAAAA"), Hex("FEAA"));
    EXPECT_EQ(Packed("010203"), Hex("02010203"));
    EXPECT_EQ(Packed("AAAAAA0102"), Hex("FEAA010102"));
    EXPECT_EQ(Packed("0102AAAAAA"), Hex("010102FEAA"));
}

TEST(PackBits, TwoEqualBytesStayInALiteralThatIsThere)
{
    EXPECT_EQ(Packed("01AAAA02"), Hex("0301AAAA02")) << "five bytes; a run of its own gives six";
    EXPECT_EQ(Packed("AAAA01"), Hex("FFAA0001"));
}

TEST(PackBits, RunsAndLiteralsEndAt128)
{
    Bytes packed;
    AppendPackBits(packed, Bytes(129, 0x55), 1);
    EXPECT_EQ(packed, Hex("81550055"));

    Bytes row;
    for (int i = 0; i < 130; ++i)
        row.push_back(static_cast<std::uint8_t>(i));
    packed.clear();
    AppendPackBits(packed, row, 1);
    EXPECT_EQ(packed.size(), 132u);
    EXPECT_EQ(packed[0], 127);
    EXPECT_EQ(packed[129], 1);
}

TEST(PackBits, SixteenBitsPackPairs)
{
    EXPECT_EQ(Packed("1234123412345678", 2), Hex("FE1234005678"));
    EXPECT_EQ(Packed("1212", 2), Hex("001212")) << "one pair, not two bytes";
}

} // namespace

} // namespace vypx::test
