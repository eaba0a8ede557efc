#include "companion/BmpFile.h"

#include "companion/PixelLibrary.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <random>
#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

namespace vypx::test {

namespace {

/// Two pixels of 4 bits, indexes 1 and 2, with a table of three colours; worked out by hand.
Bytes FourBits()
{
    return Hex("424D 46000000 00000000 42000000" // 70 bytes, the pixels from 66
               "28000000 02000000 01000000 0100 0400 00000000 04000000 130B0000 130B0000"
               "03000000 00000000"
               "0A0B0C00 14151600 1E1F2000" // blue, green, red, 0
               "12000000");
}

Bytes With(Bytes file, std::size_t offset, std::uint8_t value)
{
    file.at(offset) = value;
    return file;
}

TEST(BmpFile, ReadsIndexesOfFourBitsFromTheHighOneOn)
{
    const auto picture = DecodeBmp(FourBits());

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Width(), 2);
    EXPECT_EQ(picture->Height(), 1);
    EXPECT_EQ(picture->At(0, 0), (Rgb{ 0x16, 0x15, 0x14 }));
    EXPECT_EQ(picture->At(1, 0), (Rgb{ 0x20, 0x1F, 0x1E }));
}

TEST(BmpFile, AnIndexBeyondTheTableIsBlack)
{
    const auto picture = DecodeBmp(With(FourBits(), 66, 0x0F));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->At(0, 0), (Rgb{ 0x0C, 0x0B, 0x0A }));
    EXPECT_EQ(picture->At(1, 0), Black);
}

/// A number of colours of 0 stands for all that the depth has.
TEST(BmpFile, NoNumberOfColoursMeansAWholeTable)
{
    Bytes file = With(With(FourBits(), 46, 0), 10, 54 + 16 * 4);
    EXPECT_FALSE(DecodeBmp(file)) << "the file is too short for it";

    file.insert(file.begin() + 66, 13 * 4, std::uint8_t{ 9 });
    const auto picture = DecodeBmp(With(file, 54 + 16 * 4, 0x1F));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->At(0, 0), (Rgb{ 0x16, 0x15, 0x14 }));
    EXPECT_EQ(picture->At(1, 0), (Rgb{ 9, 9, 9 }));
}

TEST(BmpFile, NoNumberOfColoursMeans256At8Bits)
{
    BmpBytes bmp(1, 1, 8, Palette8);
    bmp.Row(0)[0] = 5;
    Bytes file = bmp.File();
    file[47] = 0; // 256 is 0x100

    const auto picture = DecodeBmp(file);

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->At(0, 0), (Rgb{ 255, 0, 255 }));
    bmp.Row(0)[0] = 200;
    file = bmp.File();
    file[47] = 0;
    EXPECT_EQ(DecodeBmp(file)->At(0, 0), Palette8[200]);
}

TEST(BmpFile, RefusesEachFieldThatItDoesNotWrite)
{
    ASSERT_TRUE(DecodeBmp(FourBits()));
    const struct {
        std::size_t offset;
        std::uint8_t value;
        const char* what;
    } changes[] = { { 0, 'b', "sign" }, { 1, 'm', "sign" }, { 14, 12, "header" },
        { 26, 2, "planes" }, { 28, 1, "depth" }, { 28, 16, "depth" }, { 30, 2, "compressed" },
        { 46, 17, "more colours than 4 bits tell" }, { 18, 0, "no width" }, { 22, 0, "no height" },
        { 20, 1, "a width of 65538" }, { 24, 1, "a height of 65537" },
        { 10, 65, "pixels inside of the table" }, { 10, 67, "pixels beyond the end" } };

    for (const auto& change : changes)
        EXPECT_FALSE(DecodeBmp(With(FourBits(), change.offset, change.value)))
            << change.what << " at " << change.offset;
    Bytes cut = FourBits();
    cut.pop_back();
    EXPECT_FALSE(DecodeBmp(cut));
    cut.resize(53);
    EXPECT_FALSE(DecodeBmp(cut)) << "half a header";
}

TEST(BmpFile, IsNotMadeOfSidesThatNoPictureHas)
{
    for (const auto& [width, height] : { std::pair(0, 1), std::pair(1, 0), std::pair(-1, 1),
             std::pair(65536, 1), std::pair(1, 65536) }) {
        EXPECT_THROW(BmpBytes(width, height, 24), std::length_error) << width << ' ' << height;
        EXPECT_THROW(Picture(width, height), std::length_error) << width << ' ' << height;
    }
    EXPECT_THROW(BmpBytes(65535, 65535, 4), std::length_error) << "beyond 1 GiB";
    EXPECT_EQ(BmpBytes(65535, 1, 4).File().size(), 54u + 32768);
    EXPECT_EQ(Picture(1, 65535).Height(), 65535);
}

TEST(BmpFile, PicturesAreEqualByTheirSidesAndPixels)
{
    Picture one(2, 1), other(2, 1);
    EXPECT_EQ(one, other);
    other.Set(1, 0, Blue);
    EXPECT_NE(one, other);
    EXPECT_NE(one, Picture(1, 2)) << "of as many pixels";
}

TEST(BmpFile, HasAtMostAGiB)
{
    // Rows of 53,688 bytes, of which 19,999 and the header are 35,458 bytes less than that.
    EXPECT_EQ(BmpHeader(17895, 19999, 24).size(), 54u);
    EXPECT_THROW(BmpHeader(17895, 20000, 24), std::length_error);
}

/// Too large for a file, and a picture that is not so large.
TEST(BmpFile, WhatCannotBeMadeDoesNotAppear)
{
    const TempFolder folder;
    const std::string path = folder.File("out.bmp");
    const Picture picture(3, 2);

    WriteBmp24(picture, 3, 3, path);
    WriteBmp24(picture, 4, 2, path);
    WriteBmp24(picture, 0, 2, path);
    WriteBmp4(picture, Palette4, 4, 2, path);
    WriteBmp4(picture, Palette4, 3, 3, path);
    WriteBmp4(picture, Palette4, 3, -1, path);
    EXPECT_FALSE(std::filesystem::exists(path));

    WriteBmp4(picture, Palette4, 3, 2, path);
    EXPECT_EQ(DecodeBmp(ReadBytes(path)), picture);
}

/// A picture whose rows are written in several pieces, each row padded by a byte.
Picture Tall()
{
    Picture picture(301, 900);
    std::mt19937 random(2);
    for (int y = 0; y < picture.Height(); ++y)
        for (int i = 0; i < picture.Width() * 3; ++i)
            picture.Row(y)[i] = static_cast<std::uint8_t>(random());
    return picture;
}

TEST(BmpFile, WrittenInPiecesIsTheFileMadeAtOnce)
{
    const TempFolder folder;
    const std::string path = folder.File("out.bmp");
    const Picture picture = Tall();

    EXPECT_FALSE(WriteBmp24(picture, 301, 900, path));
    EXPECT_EQ(ReadBytes(path), EncodeBmp24(picture));

    EXPECT_FALSE(WriteBmp24(picture, 300, 899, path));
    EXPECT_EQ(ReadBytes(path).size(), 54u + 900 * 899) << "a part of it";
    EXPECT_EQ(DecodeBmp(ReadBytes(path))->At(299, 898), picture.At(299, 898));
}

TEST(BmpFile, TheLongestRowsAreWrittenOneByOne)
{
    const TempFolder folder;
    const std::string path = folder.File("out.bmp");
    Picture picture(65535, 3); // 192 KiB to a row
    picture.Set(65534, 0, Red);
    picture.Set(0, 2, Blue);

    EXPECT_FALSE(WriteBmp24(picture, 65535, 3, path));

    EXPECT_EQ(ReadBytes(path), EncodeBmp24(picture));
}

#ifndef _WIN32
/// Lets this process write no file longer than that.
class LongestFile {
public:
    explicit LongestFile(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{ .rlim_cur = bytes, .rlim_max = m_before.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~LongestFile()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST(BmpFile, ADiskThatFillsUpBetweenPiecesLeavesNoFile)
{
    const TempFolder folder;
    const std::string path = folder.File("out.bmp");
    {
        const LongestFile limit(600'000); // of 813,654
        EXPECT_EQ(WriteBmp24(Tall(), 301, 900, path), std::errc::file_too_large);
    }

    EXPECT_FALSE(std::filesystem::exists(path));
}
#endif

} // namespace
} // namespace vypx::test
