#include "pictures/WitnessFixture.h"

#include <random>

namespace vypx::test {

namespace {

/// A picture file, the command that makes it, and the one that tells its pixels.
struct Form {
    const char* file;
    const char* made;
    const char* shown;
    int tolerance = 0;
};

/// What the forms are made of: in.ppm, in.pgm and in.pbm, two of 16 bits, and in.ppm with few
/// colours.
class PictureFormatsTest : public WitnessFixture {
protected:
    void SetUp() override
    {
        WitnessFixture::SetUp();
        if (IsSkipped())
            return;
        WritePpm(folder.File("in.ppm"), Colourful());
        Run("ppmtopgm in.ppm >in.pgm && pgmtopbm -threshold in.pgm >in.pbm");
        Run("pamdepth 65535 in.ppm | pamfunc -multiplier=.93 >in16.ppm && ppmtopgm in16.ppm "
            ">in16.pgm");
        Run("for n in 200 16 4 2; do pnmquant $n in.ppm >q$n.ppm || exit; done");
    }

    static Picture Colourful()
    {
        std::mt19937 random(7);
        Picture picture(37, 23);
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x) {
                const auto any = [&] { return static_cast<int>(random() % 64); };
                picture.Set(x, y, { x * 5 + any(), y * 8 + any(), 190 - x * 5 + any() });
            }
        return picture;
    }

    void Expect(std::initializer_list<Form> forms) const
    {
        for (const Form& form : forms) {
            Run(std::string(form.made) + " >" + form.file);
            ExpectShows(form.file, form.shown, form.tolerance);
        }
    }
};

TEST_F(PictureFormatsTest, Bmp)
{
    Expect({
        { "24.bmp", "ppmtobmp in.ppm", "cat in.ppm" },
        { "8.bmp", "ppmtobmp q200.ppm", "cat q200.ppm" },
        { "4.bmp", "ppmtobmp -bpp=4 q16.ppm", "cat q16.ppm" },
        { "1.bmp", "ppmtobmp in.pbm", "cat in.pbm" },
        { "os2.bmp", "ppmtobmp -os2 q200.ppm", "cat q200.ppm" },
        { "rle.bmp", "convert q200.ppm -compress RLE bmp3:-", "bmptopnm rle.bmp" },
        { "v5.bmp", "convert in.ppm bmp:-", "cat in.ppm" },
        // ImageMagick's widening of 5 and 6 bits is a level off the rounded one.
        { "565.bmp", "convert in.ppm -define bmp:subtype=RGB565 bmp:-", "convert 565.bmp ppm:-",
            1 },
        { "555.bmp", "convert in.ppm -define bmp:subtype=RGB555 bmp:-", "convert 555.bmp ppm:-",
            1 },
    });
}

TEST_F(PictureFormatsTest, Gif)
{
    Expect({
        { "plain.gif", "ppmtogif q200.ppm", "cat q200.ppm" },
        { "interlaced.gif", "ppmtogif -interlace q200.ppm", "cat q200.ppm" },
        { "animated.gif", "convert -delay 10 q200.ppm q16.ppm gif:-", "cat q200.ppm" },
    });
}

TEST_F(PictureFormatsTest, Ico)
{
    Run("for n in in q200 q16 q2; do pamcut 0 0 32 22 $n.ppm >$n.icon.ppm; done");
    Expect({
        { "32.ico", "pamtowinicon in.icon.ppm", "cat in.icon.ppm" },
        { "png.ico", "pamtowinicon -pngthreshold=1 in.icon.ppm", "cat in.icon.ppm" },
        { "8.ico", "pamtowinicon q200.icon.ppm", "cat q200.icon.ppm" },
        { "4.ico", "pamtowinicon q16.icon.ppm", "cat q16.icon.ppm" },
        { "1.ico", "ppmtowinicon q2.icon.ppm", "cat q2.icon.ppm" },
    });
}

TEST_F(PictureFormatsTest, Jpeg)
{
    Expect({
        { "plain.jpg", "pnmtojpeg in.ppm", "jpegtopnm plain.jpg", 2 },
        { "progressive.jpg", "pnmtojpeg -progressive in.ppm", "jpegtopnm progressive.jpg", 2 },
        { "grey.jpg", "pnmtojpeg in.pgm", "jpegtopnm grey.jpg", 2 },
        { "fine.jpg", "convert in.ppm -sampling-factor 1x1 jpg:-", "jpegtopnm fine.jpg", 2 },
        { "cmyk.jpg", "convert in.ppm -colorspace CMYK jpg:-",
            "convert cmyk.jpg -colorspace sRGB ppm:-", 2 },
        { "cmyk2.jpg", "convert in.ppm -colorspace CMYK -interlace JPEG jpg:-",
            "convert cmyk2.jpg -colorspace sRGB ppm:-", 2 },
    });
}

TEST_F(PictureFormatsTest, PngOfAllTypesAndDepths)
{
    for (const std::string way : { "", " -interlace" }) {
        for (const char* name : { "in.ppm", "in.pgm", "in.pbm", "in16.ppm", "in16.pgm", "q200.ppm",
                 "q16.ppm", "q4.ppm", "q2.ppm" }) {
            Run("pnmtopng" + way + " " + name + " >a.png");
            ExpectShows("a.png", std::string("cat ") + name);
        }
        for (const std::string most : { "15", "3" }) {
            Run("pamdepth " + most + " in.pgm >grey.pgm && pnmtopng" + way + " grey.pgm >a.png");
            ExpectShows("a.png", "cat grey.pgm");
        }
    }
}

TEST_F(PictureFormatsTest, Pnm)
{
    Expect({
        { "1.pnm", "pnmtoplainpnm in.pbm", "cat in.pbm" },
        { "2.pnm", "pnmtoplainpnm in.pgm", "cat in.pgm" },
        { "3.pnm", "pnmtoplainpnm in.ppm", "cat in.ppm" },
        { "4.pnm", "cat in.pbm", "cat in.pbm" },
        { "5.pnm", "cat in.pgm", "cat in.pgm" },
        { "6.pnm", "cat in.ppm", "cat in.ppm" },
        { "31.pnm", "pamdepth 31 in.ppm", "cat 31.pnm" },
        { "16.ppm", "cat in16.ppm", "cat in16.ppm" },
        { "16.pgm", "cat in16.pgm", "cat in16.pgm" },
        { "16plain.pgm", "pnmtoplainpnm in16.pgm", "cat in16.pgm" },
    });
}

TEST_F(PictureFormatsTest, Tiff)
{
    Expect({
        { "none.tif", "pamtotiff -none -truecolor in.ppm", "cat in.ppm" },
        { "lzw.tif", "pamtotiff -lzw -truecolor in.ppm", "cat in.ppm" },
        { "flate.tif", "pamtotiff -flate -truecolor in.ppm", "cat in.ppm" },
        { "packbits.tif", "pamtotiff -packbits in.pgm", "cat in.pgm" },
        { "fax.tif", "pamtotiff -g4 in.pbm", "cat in.pbm" },
        { "white.tif", "pamtotiff -miniswhite in.pgm", "cat in.pgm" },
        { "palette.tif", "pamtotiff -lzw q200.ppm", "cat q200.ppm" },
        { "16.tif", "pamtotiff -truecolor in16.ppm", "cat in16.ppm" },
        { "16grey.tif", "pamtotiff in16.pgm", "cat in16.pgm" },
        { "tiles.tif", "convert in.ppm -compress zip -define tiff:tile-geometry=16x16 tif:-",
            "cat in.ppm" },
        { "planes.tif", "convert in.ppm -interlace plane tif:-", "cat in.ppm" },
        { "motorola.tif", "convert in.ppm -endian MSB tif:-", "cat in.ppm" },
        { "big.tif", "convert in.ppm tiff64:-", "cat in.ppm" },
        { "jpeg.tif", "convert in.ppm -compress JPEG tif:-", "convert jpeg.tif ppm:-", 2 },
        { "cmyk.tif", "convert in.ppm -colorspace CMYK tif:-",
            "convert cmyk.tif -colorspace sRGB ppm:-", 2 },
    });
}

TEST_F(PictureFormatsTest, WebP)
{
    Run("cwebp -lossless in.ppm -o lossless.webp && cwebp -q 60 in.ppm -o lossy.webp");
    Run("img2webp -lossless in.ppm q16.ppm -o animated.webp");

    ExpectShows("lossless.webp", "cat in.ppm");
    ExpectShows("lossy.webp", "dwebp -ppm lossy.webp -o -");
    ExpectShows("animated.webp", "cat in.ppm");
}

TEST_F(PictureFormatsTest, XbmAndXpm)
{
    Expect({
        { "a.xbm", "pbmtoxbm in.pbm", "cat in.pbm" },
        { "a.xpm", "ppmtoxpm q200.ppm", "cat q200.ppm" },
    });
}

TEST_F(PictureFormatsTest, AWrongEndingMisleadsNobody)
{
    Run("pnmtopng in.ppm >a.bmp && ppmtobmp in.ppm >b.jpeg && ppmtobmp in.ppm >none");

    ExpectShows("a.bmp", "cat in.ppm");
    ExpectShows("b.jpeg", "cat in.ppm");
    ExpectShows("none", "cat in.ppm");
}

} // namespace

} // namespace vypx::test
