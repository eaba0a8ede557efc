#include "pictures/PictureBytes.h"
#include "pictures/WitnessFixture.h"

namespace vypx::test {

namespace {

/// How a picture with an orientation tag is to be shown, as pamflip calls it. Source: Exif 2.3, tag
/// Orientation: where row 0 and column 0 of the stored pixels stand.
constexpr const char* Flips[] = {
    "-null",                                // 1: top, left
    "-leftright",                           // 2: top, right
    "-rotate180",                           // 3: bottom, right
    "-topbottom",                           // 4: bottom, left
    "-transpose",                           // 5: left, top
    "-cw",                                  // 6: right, top
    "-xform=transpose,topbottom,leftright", // 7: right, bottom
    "-ccw",                                 // 8: left, bottom
};

class TurnedPicturesTest : public WitnessFixture {
protected:
    void SetUp() override
    {
        WitnessFixture::SetUp();
        if (!IsSkipped())
            Run("pamgradient red yellow black white 37 23 | pamtopnm >in.ppm && ppmtopgm in.ppm "
                ">in.pgm");
    }
};

TEST_F(TurnedPicturesTest, TheEightOrientationsOfAPhoto)
{
    constexpr int App1 = 0xE1;
    Run("pnmtojpeg -quality=95 in.ppm >in.jpg");
    const Bytes jpeg = ReadBytes(folder.File("in.jpg"));
    for (int orientation = 1; orientation <= 8; ++orientation)
        for (const bool isLittle : { true, false }) {
            SCOPED_TRACE(orientation);
            WriteBytes(folder.File("turned.jpg"),
                WithJpegSegment(jpeg, App1, Exif(orientation, isLittle)));

            ExpectShows("turned.jpg",
                std::string("jpegtopnm in.jpg | pamflip ") + Flips[orientation - 1], 2);
        }
}

TEST_F(TurnedPicturesTest, TheEightOrientationsOfATiff)
{
    const Bytes entry = Hex("1201 0300 01000000 0100"); // tag, a short, one of them, 1
    for (const std::string source : { "in.ppm", "in.pgm" }) {
        Run("convert " + source + " -compress zip straight.tif");
        Bytes tiff = ReadBytes(folder.File("straight.tif"));
        const auto at = std::search(tiff.begin(), tiff.end(), entry.begin(), entry.end());
        ASSERT_NE(at, tiff.end());
        for (std::size_t i = 0; i < std::size(Flips); ++i) {
            SCOPED_TRACE(i + 1);
            at[8] = static_cast<std::uint8_t>(i + 1);
            WriteBytes(folder.File("turned.tif"), tiff);

            ExpectShows("turned.tif", std::string("pamflip ") + Flips[i] + " " + source);
        }
    }
}

TEST_F(TurnedPicturesTest, MoreRowsThanAreCopiedAtOnce)
{
    constexpr int App1 = 0xE1;
    Run("pamgradient red yellow black white 301 1003 | pamtopnm | pnmtojpeg >in.jpg");
    WriteBytes(folder.File("turned.jpg"),
        WithJpegSegment(ReadBytes(folder.File("in.jpg")), App1, Exif(6, true)));

    ExpectShows("in.jpg", "jpegtopnm in.jpg", 2);
    ExpectShows("turned.jpg", "jpegtopnm in.jpg | pamflip -cw", 2);
}

TEST_F(TurnedPicturesTest, AMaskTurnsWithItsPixels)
{
    Run("pamgradient black black white white 37 23 | pamtopnm | ppmtopgm >alpha.pgm");
    Run("pnmtopng -alpha=alpha.pgm in.ppm | convert - -compress zip -orient RightTop a.tif");

    const LoadedPicture loaded = Load("a.tif");

    const Picture alpha = Shown("pamflip -cw alpha.pgm");
    ASSERT_EQ(loaded.picture.pixels.Width(), alpha.Width());
    ASSERT_TRUE(loaded.picture.transparent);
    for (int y = 0; y < alpha.Height(); ++y)
        for (int x = 0; x < alpha.Width(); ++x)
            EXPECT_EQ(loaded.picture.pixels.At(x, y) == *loaded.picture.transparent,
                alpha.At(x, y).red < 128);
}

} // namespace

} // namespace vypx::test
