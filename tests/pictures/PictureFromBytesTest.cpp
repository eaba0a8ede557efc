#include "pictures/PictureBytes.h"
#include "pictures/WitnessFixture.h"
#include "support/Iconsets.h"

#include <filesystem>
#include <random>

namespace vypx::test {

namespace {

/// The bytes of a picture file are read like the file.
class PictureFromBytesTest : public WitnessFixture {
protected:
    LoadedPicture LoadBytes(const std::string& name) const
    {
        return LoadPictureBytes(ReadBytes(folder.File(name)));
    }
};

TEST_F(PictureFromBytesTest, IsTheSameInEveryFormat)
{
    Run("pamgradient red green blue white 20 17 | pamtopnm >in.ppm && pnmquant 60 in.ppm >few.ppm");
    Run("ppmtopgm in.ppm >in.pgm && pgmtopbm in.pgm >in.pbm");
    Run("pamgradient black white white black 20 17 | pamtopnm | ppmtopgm >alpha.pgm");
    Run("mkdir all && pnmtopng -alpha=alpha.pgm in.ppm >all/alpha.png");
    Run("pamdepth 65535 in.ppm | pnmtopng >all/16.png && pnmtopng in.pbm >all/1.png");
    Run("ppmtobmp in.ppm >all/24.bmp && ppmtobmp few.ppm >all/8.bmp");
    Run("convert in.ppm -define bmp:subtype=RGB565 all/565.bmp");
    Run("ppmtogif few.ppm >all/a.gif && pnmtojpeg in.ppm >all/a.jpg");
    Run("convert all/alpha.png all/alpha.webp && convert in.ppm all/a.tif");
    Run("pamtowinicon in.ppm >all/a.ico && cp in.ppm in.pgm in.pbm all/");
    Run("ppmtoxpm few.ppm >all/a.xpm && pbmtoxbm in.pbm >all/a.xbm");
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.File("all"))) {
        const std::string name = "all/" + entry.path().filename().string();

        const LoadedPicture file = Load(name), bytes = LoadBytes(name);

        EXPECT_EQ(bytes.whyNot, "") << name;
        EXPECT_EQ(bytes.picture.pixels, file.picture.pixels) << name;
        EXPECT_EQ(bytes.picture.transparent, file.picture.transparent) << name;
        EXPECT_EQ(bytes.picture.pixels.Width(), 20) << name;
        EXPECT_EQ(PixelsClaimed(ReadBytes(folder.File(name))), 20 * 17) << name;
        ++count;
    }
    EXPECT_EQ(count, 16);
}

TEST_F(PictureFromBytesTest, IsWhatTheWitnessTells)
{
    Run("pamgradient red green blue white 20 17 | pamtopnm >in.ppm && pnmtopng in.ppm >a.png");

    EXPECT_EQ(LoadBytes("a.png").picture.pixels, Shown("cat in.ppm"));
}

TEST_F(PictureFromBytesTest, IsTurnedAsItsTagSays)
{
    Run("pamgradient red green blue white 20 17 | pamtopnm | pnmtojpeg >in.jpg");
    constexpr int App1 = 0xE1, QuarterRight = 6;
    const Bytes turned =
        WithJpegSegment(ReadBytes(folder.File("in.jpg")), App1, Exif(QuarterRight, true));

    EXPECT_EQ(LoadPictureBytes(turned).picture.pixels.Height(), 20);
}

TEST(LoadPictureBytes, RefusesWhatIsNoPicture)
{
    std::mt19937 random(3);
    Bytes noise(5000);
    for (std::uint8_t& byte : noise)
        byte = static_cast<std::uint8_t>(random());

    for (const Bytes& bytes : { Bytes(), Bytes(1, 0x42), Bytes(4000, 0), noise }) {
        const LoadedPicture loaded = LoadPictureBytes(bytes);
        EXPECT_TRUE(loaded.picture.pixels.IsNull());
        EXPECT_EQ(loaded.whyNot, "it is no picture that can be read here");
        EXPECT_EQ(PixelsClaimed(bytes), 0);
    }
}

TEST(LoadPictureBytes, HasTheBoundsOfAFile)
{
    constexpr int Colour = 2;
    const auto whyNot = [](std::uint32_t width, std::uint32_t height) {
        const Bytes png = Join({ PngHeader(width, height, 8, Colour), PngChunk("IDAT", {}) });
        EXPECT_EQ(PixelsClaimed(png), std::int64_t{ width } * height);
        return LoadPictureBytes(png).whyNot;
    };

    EXPECT_EQ(whyNot(32768, 1), "it is wider or higher than 32767 pixels");
    EXPECT_EQ(whyNot(20000, 5001), "it has more than 100 million pixels");
    EXPECT_EQ(whyNot(3, 3), "its data are broken or of a kind that can't be read here");
}

TEST(LoadPictureBytes, RefusesOneThatIsCutOffAtAnyPlace)
{
    Bytes bmp = Join({ BmpHeader(4, 4, 24, 0, 0), Bytes(4 * 12, 0x55) });
    ASSERT_EQ(LoadPictureBytes(bmp).whyNot, "");

    for (bmp.pop_back(); !bmp.empty(); bmp.pop_back())
        EXPECT_NE(LoadPictureBytes(bmp).whyNot, "") << bmp.size();
}

} // namespace
} // namespace vypx::test
