#include "pictures/PictureBytes.h"
#include "pictures/WitnessFixture.h"
#include "support/Iconsets.h"

#include <algorithm>
#include <set>

namespace vypx::test {

namespace {

constexpr Rgb Magenta{ 255, 0, 255 };

class TransparentPicturesTest : public WitnessFixture {
protected:
    void SetUp() override
    {
        WitnessFixture::SetUp();
        if (IsSkipped())
            return;
        Run("pamgradient red green blue white 40 20 | pamtopnm >in.ppm");
        Run("pnmquant 100 in.ppm >few.ppm && pnmquant 12 in.ppm >fewest.ppm");
        Run("pamgradient black black white gray80 40 20 | pamtopnm | ppmtopgm >alpha.pgm");
        Run("pamthreshold -simple -threshold=.5 alpha.pgm | pamtopnm >half.pbm");
    }

    /// What an alpha (PGM) makes of a picture, as far as the pixels go.
    Picture Masked(const std::string& colours, const std::string& alpha) const
    {
        Picture picture = Shown(colours);
        const Picture shown = Shown(alpha);
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x)
                if (shown.At(x, y).red < 128)
                    picture.Set(x, y, Magenta);
        return picture;
    }

    void ExpectMasked(const std::string& name, const std::string& colours, const std::string& alpha,
        int tolerance = 0) const
    {
        const LoadedPicture loaded = Load(name);
        EXPECT_EQ(loaded.whyNot, "") << name;
        EXPECT_EQ(loaded.picture.transparent, Magenta) << name;
        EXPECT_LE(Difference(loaded.picture.pixels, Masked(colours, alpha)), tolerance) << name;
    }
};

TEST_F(TransparentPicturesTest, AlphaOfAPng)
{
    for (const std::string way : { "", "-interlace " }) {
        Run("pnmtopng " + way + "-alpha=alpha.pgm in.ppm >a.png");
        ExpectMasked("a.png", "cat in.ppm", "cat alpha.pgm");
        Run("ppmtopgm in.ppm | pnmtopng " + way + "-alpha=alpha.pgm >grey.png");
        ExpectMasked("grey.png", "ppmtopgm in.ppm", "cat alpha.pgm");
        Run("pamdepth 65535 in.ppm >in16.ppm && pamdepth 65535 alpha.pgm >alpha16.pgm && pnmtopng "
            + way + "-alpha=alpha16.pgm in16.ppm >a16.png");
        ExpectMasked("a16.png", "cat in.ppm", "cat alpha.pgm");
    }
}

TEST_F(TransparentPicturesTest, ATransparentColourOfAPng)
{
    for (const std::string source : { "few.ppm", "fewest.ppm", "in.ppm" }) {
        const Rgb corner = Shown("cat " + source).At(0, 0);
        char name[16];
        std::snprintf(name, sizeof(name), "=#%02x%02x%02x", corner.red, corner.green, corner.blue);
        Run("pnmtopng -transparent='" + std::string(name) + "' " + source + " >a.png");
        ExpectMasked("a.png", "cat " + source, "pngtopnm -alpha a.png");
    }
}

TEST_F(TransparentPicturesTest, AlphaOfAPalette)
{
    Run("pnmtopng -alpha=alpha.pgm few.ppm >full.png && convert full.png -colors 200 PNG8:a.png");

    ExpectMasked("a.png", "pngtopnm a.png", "pngtopnm -alpha a.png");
}

TEST_F(TransparentPicturesTest, Gif)
{
    Run("pamdepth 255 half.pbm | pamtopnm >half.pgm && pnmtopng -alpha=half.pgm few.ppm >a.png");
    for (const std::string way : { "", "-interlace GIF " }) {
        Run("convert a.png " + way + "a.gif");
        ExpectMasked("a.gif", "cat few.ppm", "giftopnm -alphaout=- a.gif");
    }
}

TEST_F(TransparentPicturesTest, WebP)
{
    Run("pnmtopng -alpha=alpha.pgm in.ppm >a.png && cwebp -lossless -exact a.png -o a.webp");
    Run("cwebp -q 70 -exact a.png -o lossy.webp && dwebp lossy.webp -o lossy.png");
    Run("img2webp -lossless a.png in.ppm -o animated.webp");

    ExpectMasked("a.webp", "cat in.ppm", "cat alpha.pgm");
    ExpectMasked("lossy.webp", "pngtopnm lossy.png", "pngtopnm -alpha lossy.png");
    ExpectMasked("animated.webp", "cat in.ppm", "cat alpha.pgm");
}

TEST_F(TransparentPicturesTest, Tiff)
{
    Run("pnmtopng -alpha=alpha.pgm in.ppm >a.png && convert a.png -compress zip a.tif");

    // The decoder multiplies colours by their alpha, and back again.
    ExpectMasked("a.tif", "cat in.ppm", "cat alpha.pgm", 1);
}

TEST_F(TransparentPicturesTest, Xpm)
{
    Run("ppmtoxpm -alphamask=half.pbm few.ppm >a.xpm");

    ExpectMasked("a.xpm", "cat few.ppm", "pamdepth 255 half.pbm");
}

TEST_F(TransparentPicturesTest, WithoutAnOpaquePixelAllAreOpaque)
{
    Run("ppmmake -maxval=255 rgb:80/80/80 40 20 | pamfunc -multiplier=.9 | ppmtopgm >weak.pgm");
    Run("pnmtopng -alpha=weak.pgm in.ppm >a.png");

    ExpectShows("a.png", "cat in.ppm");
}

TEST_F(TransparentPicturesTest, TheNextColourWhereThatOneIsTaken)
{
    Run("ppmmake '#ff00ff' 20 20 >left.ppm && ppmmake '#ff00fe' 20 20 >right.ppm");
    Run("pnmcat -lr left.ppm right.ppm >taken.ppm && pnmtopng -alpha=alpha.pgm taken.ppm >a.png");

    const LoadedPicture loaded = Load("a.png");

    EXPECT_EQ(loaded.picture.transparent, (Rgb{ 255, 0, 253 }));
}

} // namespace

} // namespace vypx::test
