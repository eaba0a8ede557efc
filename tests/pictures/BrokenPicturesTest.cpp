#include "pictures/GuardedLoads.h"
#include "pictures/PictureBytes.h"
#include "pictures/WitnessFixture.h"
#include "support/Iconsets.h"

#include <filesystem>
#include <random>

namespace vypx::test {

namespace {

/// Small files of all formats, to be broken.
class BrokenPicturesTest : public WitnessFixture {
protected:
    void SetUp() override
    {
        WitnessFixture::SetUp();
        if (IsSkipped())
            return;
        Run("pamgradient red green blue white 20 17 | pamtopnm >in.ppm && ppmtopgm in.ppm >in.pgm");
        Run("pgmtopbm in.pgm >in.pbm");
        Run("pnmquant 60 in.ppm >few.ppm && pnmquant 12 in.ppm >fewest.ppm");
        Run("pamgradient black white white black 20 17 | pamtopnm | ppmtopgm >alpha.pgm");
        Run("pnmtopng -alpha=alpha.pgm in.ppm >alpha.png; mkdir seeds");
        for (const char* made : Seeds)
            Run(made);
        for (const auto& entry : std::filesystem::directory_iterator(folder.File("seeds")))
            names.push_back(entry.path().string());
        std::sort(names.begin(), names.end());
        for (const std::string& name : names)
            seeds.push_back(ReadBytes(name));
    }

    static constexpr const char* Seeds[] = {
        "ppmtobmp in.ppm >seeds/24.bmp && ppmtobmp few.ppm >seeds/8.bmp",
        "ppmtobmp -bpp=4 fewest.ppm >seeds/4.bmp && ppmtobmp in.pbm >seeds/1.bmp",
        "ppmtobmp -os2 few.ppm >seeds/os2.bmp && convert alpha.png seeds/32.bmp",
        "convert few.ppm -compress RLE bmp3:seeds/rle.bmp",
        "convert in.ppm -define bmp:subtype=RGB565 seeds/565.bmp",
        "ppmtogif few.ppm >seeds/a.gif && ppmtogif -interlace fewest.ppm >seeds/i.gif",
        "convert -delay 9 -dispose previous few.ppm fewest.ppm seeds/animated.gif",
        "convert alpha.png seeds/alpha.gif",
        "pamtowinicon in.ppm >seeds/32.ico && pamtowinicon few.ppm >seeds/8.ico",
        "pamtowinicon -pngthreshold=1 in.ppm >seeds/png.ico",
        "pamtowinicon fewest.ppm >seeds/4.ico",
        "pnmtojpeg in.ppm >seeds/a.jpg && pnmtojpeg -progressive in.ppm >seeds/p.jpg",
        "pnmtojpeg in.pgm >seeds/grey.jpg && convert in.ppm -colorspace CMYK seeds/cmyk.jpg",
        "pnmtopng in.ppm >seeds/rgb.png && pnmtopng -interlace few.ppm >seeds/palette.png",
        "cp alpha.png seeds/ && pamdepth 65535 in.ppm | pnmtopng >seeds/16.png",
        "pnmtopng in.pgm >seeds/grey.png && pnmtopng -interlace in.pbm >seeds/1.png",
        "pnmtoplainpnm in.pbm >seeds/1.pnm && pnmtoplainpnm in.ppm >seeds/3.pnm",
        "cp in.pbm in.pgm in.ppm seeds/",
        "pamtotiff -lzw -truecolor in.ppm >seeds/lzw.tif && pamtotiff -g4 in.pbm >seeds/fax.tif",
        "pamtotiff -flate in.pgm >seeds/flate.tif && pamtotiff -packbits few.ppm >seeds/pack.tif",
        "convert in.ppm -compress JPEG seeds/jpeg.tif",
        "convert in.ppm -compress zip -define tiff:tile-geometry=16x16 seeds/tiles.tif",
        "convert in.ppm -colorspace CMYK seeds/cmyk.tif && convert in.ppm tiff64:seeds/big.tif",
        "convert alpha.png -interlace plane seeds/planes.tif",
        "cwebp -lossless alpha.png -o seeds/lossless.webp && cwebp in.ppm -o seeds/lossy.webp",
        "cwebp -q 50 alpha.png -o seeds/alpha.webp",
        "img2webp -lossless in.ppm few.ppm -o seeds/animated.webp",
        "pbmtoxbm in.pbm >seeds/a.xbm && ppmtoxpm few.ppm >seeds/a.xpm",
    };

    std::vector<std::string> names;
    std::vector<Bytes> seeds;
};

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t end) { return random() % end; }

/// A number where a header may have one: at an extreme, or any.
void ChangeField(Bytes& file, Random& random)
{
    constexpr std::uint64_t Extremes[] = { 0, 1, 2, 0x7F, 0x80, 0xFF, 0x100, 0x7FFF, 0x8000, 0xFFFF,
        0x2710, 0x1388, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF };
    const int width = 1 << Below(random, 3);
    const std::uint64_t value =
        Below(random, 4) == 0 ? random() : Extremes[Below(random, std::size(Extremes))];
    const Bytes field = Below(random, 2) == 0 ? Little(value, width) : Big(value, width);
    const std::size_t headerSize = std::min<std::size_t>(file.size(), 160);
    const std::size_t at = Below(random, headerSize);
    for (std::size_t i = 0; i < field.size() && at + i < file.size(); ++i)
        file[at + i] = field[i];
}

void ChangeBytes(Bytes& file, Random& random)
{
    for (std::size_t count = 1 + Below(random, 6); count > 0; --count)
        file[Below(random, file.size())] = static_cast<std::uint8_t>(random());
}

/// Some bytes go, come twice, or come from another file.
void MoveBytes(Bytes& file, Random& random, const Bytes& other)
{
    const std::size_t at = Below(random, file.size());
    const auto place = file.begin() + static_cast<std::ptrdiff_t>(at);
    const auto count =
        static_cast<std::ptrdiff_t>(Below(random, std::min<std::size_t>(file.size() - at, 64) + 1));
    const Bytes piece(place, place + count);
    switch (Below(random, 3)) {
    case 0:
        file.erase(place, place + count);
        break;
    case 1:
        file.insert(place, piece.begin(), piece.end());
        break;
    default:
        file.insert(place, other.begin(),
            other.begin() + static_cast<std::ptrdiff_t>(Below(random, other.size())));
    }
}

Bytes Broken(const std::vector<Bytes>& seeds, int number)
{
    Random random(static_cast<unsigned>(number));
    Bytes file = seeds[static_cast<std::size_t>(number) % seeds.size()];
    for (std::size_t changes = 1 + Below(random, 3); changes > 0 && !file.empty(); --changes)
        switch (Below(random, 6)) {
        case 0:
            file.resize(Below(random, file.size()));
            break;
        case 1:
        case 2:
            ChangeBytes(file, random);
            break;
        case 3:
            MoveBytes(file, random, seeds[Below(random, seeds.size())]);
            break;
        default:
            ChangeField(file, random);
        }
    return file;
}

TEST_F(BrokenPicturesTest, NoneCrashesHangsOrTakesTooMuchMemory)
{
    constexpr int Files = VYPX_SANITIZED ? 800 : 4000;
    GuardedLoads loads;

    loads.Run(Files, [&](int number) { return Broken(seeds, number); });

    EXPECT_EQ(loads.Loaded() + loads.Refused(), Files);
    // The files are neither as good as whole nor all beyond use.
    EXPECT_GT(loads.Loaded(), Files / 10);
    EXPECT_GT(loads.Refused(), Files / 10);
}

} // namespace

} // namespace vypx::test
