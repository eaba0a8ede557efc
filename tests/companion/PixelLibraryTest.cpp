#include "companion/PixelLibrary.h"

#include "companion/BmpFile.h"
#include "companion/NearestColour.h"
#include "support/Files.h"
#include "support/Netpbm.h"
#include "support/Pixels.h"
#include "support/Properties.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

class PixelLibrary : public ::testing::Test {
protected:
    /// A buffer of one row.
    static PixelBuffer OneRow(const Bytes& bytes)
    {
        PixelBuffer pixels(static_cast<int>(bytes.size()), 1);
        const auto row = pixels.NextRow();
        std::copy(bytes.begin(), bytes.end(), row.begin());
        return pixels;
    }

    std::vector<Rgb> Written() const
    {
        const Picture picture = DecodeBmp(ReadBytes(path)).value_or(Picture());
        std::vector<Rgb> colours;
        for (int x = 0; x < picture.Width(); ++x)
            colours.push_back(picture.At(x, 0));
        return colours;
    }
    bool WasWritten() const { return std::filesystem::exists(path); }

    TempFolder folder;
    std::string path = folder.File("out.bmp");
};

TEST_F(PixelLibrary, OneBitPixelsBeginAtTheHighBit)
{
    Bmp1to24(OneRow(Hex("A080")), Palette1, 9, 1, path);

    EXPECT_EQ(Written(),
        (std::vector<Rgb>{ GreyOf(0), GreyOf(255), GreyOf(0), GreyOf(255), GreyOf(255), GreyOf(255),
            GreyOf(255), GreyOf(255), GreyOf(0) }));
}

TEST_F(PixelLibrary, TwoBitPixelsBeginAtTheHighBits)
{
    Bmp2to24(OneRow(Hex("1B40")), Palette2, 5, 1, path);

    EXPECT_EQ(Written(),
        (std::vector<Rgb>{ GreyOf(255), GreyOf(170), GreyOf(85), GreyOf(0), GreyOf(170) }));
}

TEST_F(PixelLibrary, FourBitsAtAWidthOf3IgnoreTheLastNibble)
{
    Bmp4to24(OneRow(Hex("0F7F")), Palette4, 3, 1, path);

    EXPECT_EQ(Written(), (std::vector<Rgb>{ GreyOf(255), GreyOf(0), GreyOf(136) }));
}

TEST_F(PixelLibrary, EightBitsAreLookedUp)
{
    Bmp8to24(OneRow(Hex("0005FF")), Palette8, 3, 1, path);

    EXPECT_EQ(Written(), (std::vector<Rgb>{ GreyOf(255), { 255, 0, 255 }, GreyOf(0) }));
}

TEST_F(PixelLibrary, SixteenBitsAreBigEndianAndWidened)
{
    Bmp16to24(OneRow(Hex("F800 07E0 001F C51C")), 4, 1, path);

    EXPECT_EQ(Written(),
        (std::vector<Rgb>{ { 255, 0, 0 }, { 0, 255, 0 }, { 0, 0, 255 }, { 197, 162, 230 } }));
}

TEST_F(PixelLibrary, WritesRowsFromTheBottomPaddedTo4Bytes)
{
    PixelBuffer pixels(1, 2);
    pixels.NextRow()[0] = 5; // (255, 0, 255)
    pixels.NextRow()[0] = 0; // white

    Bmp8to24(pixels, Palette8, 1, 2, path);

    const Bytes file = ReadBytes(path);
    EXPECT_EQ(Bytes(file.begin() + 54, file.end()), Hex("FFFFFF00 FF00FF00"));
    EXPECT_EQ(Bytes(file.begin(), file.begin() + 54),
        Hex("424D 3E000000 00000000 36000000 28000000 01000000 02000000 0100 1800 00000000 08000000"
            "130B0000 130B0000 00000000 00000000"));
}

TEST_F(PixelLibrary, ReducesToTheNearestColour)
{
    RGB16to8Bit(OneRow(Hex("F81F 1082")), Palette8, 2, 1, 16, path);
    EXPECT_EQ(Written(), (std::vector<Rgb>{ { 255, 0, 255 }, GreyOf(17) }));

    RGB16to4Bit(OneRow(Hex("F81F 1082")), Palette4, 2, 1, 16, path);
    EXPECT_EQ(Written(), (std::vector<Rgb>{ GreyOf(170), GreyOf(17) }));

    RGB8to4Bit(OneRow(Hex("05FF")), Palette4, Palette8, 2, 1, 8, path);
    EXPECT_EQ(Written(), (std::vector<Rgb>{ GreyOf(170), GreyOf(0) }));
}

TEST_F(PixelLibrary, APictureThatTheRowsDoNotHoldDoesNotAppear)
{
    const PixelBuffer row = OneRow(Hex("00000000"));

    EXPECT_EQ(Bmp8to24(row, Palette8, 5, 1, path), NoPicture());
    EXPECT_EQ(Bmp16to24(row, 3, 1, path), NoPicture());
    EXPECT_EQ(Bmp1to24(row, Palette1, 33, 1, path), NoPicture());
    EXPECT_EQ(Bmp8to24(row, Palette8, 1, 2, path), NoPicture());
    EXPECT_EQ(Bmp8to24(row, Palette8, 0, 1, path), NoPicture());
    EXPECT_EQ(Bmp8to24(row, Palette8, 1, 0, path), NoPicture());

    EXPECT_FALSE(WasWritten());
}

TEST_F(PixelLibrary, AFileThatCannotBeWrittenDoesNotAppear)
{
    EXPECT_EQ(Bmp8to24(OneRow(Hex("00")), Palette8, 1, 1, folder.File("no/folder.bmp")),
        std::errc::no_such_file_or_directory);

    EXPECT_FALSE(std::filesystem::exists(folder.File("no")));
}

#ifndef _WIN32

/// The full disk that Linux has for such tests.
TEST_F(PixelLibrary, AFileThatOnlyHalfFitsDoesNotAppear)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no full device";
    std::filesystem::create_symlink("/dev/full", folder.File("full.bmp"));

    EXPECT_EQ(Bmp8to24(OneRow(Hex("00")), Palette8, 1, 1, folder.File("full.bmp")),
        std::errc::no_space_on_device);

    EXPECT_FALSE(std::filesystem::is_symlink(folder.File("full.bmp"))) << "taken away again";
    EXPECT_TRUE(std::filesystem::exists("/dev/full"));
}

#endif

TEST_F(PixelLibrary, TCchangeLeavesAPalettesColourUnchanged)
{
    for (const int depth : { 4, 8 })
        for (const Rgb& colour : depth == 4 ? Palette(Palette4) : Palette(Palette8)) {
            Rgb changed = colour;
            TCchange(Palette4, Palette8, depth, changed.red, changed.green, changed.blue);
            EXPECT_EQ(changed, colour);
        }
}

TEST_F(PixelLibrary, TCchangeTakesTheNearestOfItsDepth)
{
    Rgb colour{ 250, 3, 249 };
    TCchange(Palette4, Palette8, 8, colour.red, colour.green, colour.blue);
    EXPECT_EQ(colour, (Rgb{ 255, 0, 255 }));
    TCchange(Palette4, Palette8, 4, colour.red, colour.green, colour.blue);
    EXPECT_EQ(colour, GreyOf(170));
}

#ifdef RC_GTEST_PROP
RC_GTEST_FIXTURE_PROP(PixelLibrary, ReductionsGiveOnlyWhatTCchangeGives, ())
{
    const auto high = *rc::gen::inRange(0, 256), low = *rc::gen::inRange(0, 256);
    const Bytes row{ static_cast<std::uint8_t>(high), static_cast<std::uint8_t>(low) };
    const Rgb wide = From565(high << 8 | low);
    for (const int depth : { 4, 8 }) {
        Rgb expected = wide;
        TCchange(Palette4, Palette8, depth, expected.red, expected.green, expected.blue);

        if (depth == 4)
            RGB16to4Bit(OneRow(row), Palette4, 1, 1, 16, path);
        else
            RGB16to8Bit(OneRow(row), Palette8, 1, 1, 16, path);

        RC_ASSERT(Written().at(0) == expected);
    }
}
#endif

Picture Colourful()
{
    Picture picture(5, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x)
            picture.Set(x, y, { x * 60, y * 100, (x + y) * 30 });
    return picture;
}

TEST_F(PixelLibrary, WriteBmp24KeepsThePixels)
{
    WriteBmp24(Colourful(), 5, 3, path);

    EXPECT_EQ(DecodeBmp(ReadBytes(path)), Colourful());
}

TEST_F(PixelLibrary, WriteBmp4And8AreTrueIndexedFilesOfTheNearestColours)
{
    for (const int bits : { 4, 8 }) {
        if (bits == 4)
            WriteBmp4(Colourful(), Palette4, 5, 3, path);
        else
            WriteBmp8(Colourful(), Palette8, 5, 3, path);

        const Bytes file = ReadBytes(path);
        EXPECT_EQ(file[28], bits);
        Picture expected = Colourful();
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 5; ++x) {
                Rgb colour = expected.At(x, y);
                TCchange(Palette4, Palette8, bits, colour.red, colour.green, colour.blue);
                expected.Set(x, y, colour);
            }
        EXPECT_EQ(DecodeBmp(file), expected);
    }
}

TEST_F(PixelLibrary, OtherProgramsOpenWhatItWrites)
{
    SKIP_WITHOUT_NETPBM();
    for (const int bits : { 4, 8, 24 }) {
        if (bits == 4)
            WriteBmp4(Colourful(), Palette4, 5, 3, path);
        else if (bits == 8)
            WriteBmp8(Colourful(), Palette8, 5, 3, path);
        else
            WriteBmp24(Colourful(), 5, 3, path);

        EXPECT_EQ(PictureFrom("bmptopnm -quiet '" + path + "'"), DecodeBmp(ReadBytes(path)));
    }
}

TEST_F(PixelLibrary, WritesAPartOfAPictureButNoMoreThanIsThere)
{
    WriteBmp24(Colourful(), 2, 1, path);
    EXPECT_EQ(DecodeBmp(ReadBytes(path))->Width(), 2);

    WriteBmp24(Colourful(), 6, 3, folder.File("more.bmp"));
    WriteBmp8(Colourful(), Palette8, 5, 4, folder.File("more.bmp"));
    EXPECT_FALSE(std::filesystem::exists(folder.File("more.bmp")));
}

TEST(BmpFile, RefusesWhatItDidNotWrite)
{
    const Bytes good = EncodeBmp24(Colourful());
    ASSERT_TRUE(DecodeBmp(good));
    const auto changed = [&](std::size_t offset, std::uint8_t value) {
        Bytes file = good;
        file[offset] = value;
        return file;
    };

    EXPECT_FALSE(DecodeBmp(Bytes()));
    EXPECT_FALSE(DecodeBmp(Bytes(good.begin(), good.end() - 1))) << "cut";
    EXPECT_FALSE(DecodeBmp(changed(0, 'X')));
    EXPECT_FALSE(DecodeBmp(changed(14, 12))) << "another header";
    EXPECT_FALSE(DecodeBmp(changed(28, 16))) << "another depth";
    EXPECT_FALSE(DecodeBmp(changed(30, 1))) << "compressed";
    EXPECT_FALSE(DecodeBmp(changed(18, 0))) << "no width";
    EXPECT_FALSE(DecodeBmp(changed(21, 0x7F))) << "a width beyond the file";
    EXPECT_FALSE(DecodeBmp(changed(25, 0xFF))) << "rows from the top";
    EXPECT_FALSE(DecodeBmp(changed(10, 20))) << "pixels inside of the header";
}

TEST(BmpFile, RefusesATableThatIsNotThere)
{
    BmpBytes bmp(2, 2, 8, Palette8);
    Bytes file = bmp.File();
    ASSERT_TRUE(DecodeBmp(file));
    file[46] = 0xFF;
    file[47] = 0xFF;

    EXPECT_FALSE(DecodeBmp(file));
}

} // namespace
} // namespace vypx::test
