#include "pictures/PictureWriter.h"
#include "support/Files.h"
#include "support/Netpbm.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// A picture whose every pixel has a colour of its own; those of the second row's are transparent,
/// every second one.
MaskedPicture Colourful()
{
    MaskedPicture picture{ Picture(7, 5), Rgb{ 1, 2, 3 } };
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x)
            picture.pixels.Set(
                x, y, y == 1 && x % 2 == 0 ? Rgb{ 1, 2, 3 } : Rgb{ x * 40, y * 60, 255 - x });
    return picture;
}

TEST(PictureWriter, NetpbmReadsColoursAndTransparencyBack)
{
    SKIP_WITHOUT_NETPBM();
    const TempFolder folder;
    const MaskedPicture picture = Colourful();
    const PngFile png = PngOf(WithOpacity(picture));
    ASSERT_EQ(png.whyNot, "");
    WriteBytes(folder.File("a.png"), png.bytes);

    const Picture colours = PictureFrom("pngtopnm -quiet '" + folder.File("a.png") + "'");
    const Picture opacity = PictureFrom("pngtopnm -quiet -alpha '" + folder.File("a.png") + "'");

    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x) {
            const bool isTransparent = y == 1 && x % 2 == 0;
            EXPECT_EQ(opacity.At(x, y), (isTransparent ? Black : Rgb{ 255, 255, 255 }));
            EXPECT_EQ(colours.At(x, y), (isTransparent ? Black : picture.pixels.At(x, y)));
        }
}

TEST(PictureWriter, TheSamePictureGivesTheSameBytes)
{
    EXPECT_EQ(PngOf(WithOpacity(Colourful())).bytes, PngOf(WithOpacity(Colourful())).bytes);
}

/// Chunks as RFC 2083 has them: length, name, data, and a checksum over both.
TEST(PictureWriter, HoldsNoDateAndNoTextOfTheMachine)
{
    const Bytes png = PngOf(WithOpacity(Colourful())).bytes;
    std::vector<std::string> chunks;
    const ByteView view(png);
    for (std::size_t at = 8; at < png.size(); at += view.U32(at) + 12)
        chunks.push_back(view.Text(at + 4, 4));

    EXPECT_EQ(chunks, (std::vector<std::string>{ "IHDR", "pHYs", "IDAT", "IEND" }));
}

TEST(PictureWriter, APictureWithoutATransparentColourIsOpaque)
{
    const OpacityPicture picture = WithOpacity({ Picture(3, 2), std::nullopt });

    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(picture.Row(y)[x * 4 + 3], 255);
}

} // namespace
} // namespace vypx::test
