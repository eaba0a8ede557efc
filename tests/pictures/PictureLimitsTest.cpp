#include "pictures/GuardedLoads.h"
#include "pictures/PictureBytes.h"
#include "pictures/WitnessFixture.h"
#include "support/Iconsets.h"

#include <functional>

namespace vypx::test {

namespace {

constexpr const char* BrokenData = "its data are broken or of a kind that can't be read here";
constexpr const char* TooManyPixels = "it has more than 100 million pixels";
constexpr const char* TooManyCostlyPixels = "it has more than 50 million pixels";
constexpr const char* TooLong = "it is wider or higher than 32767 pixels";

Bytes Gif(unsigned width, unsigned height)
{
    return Join({ Text("GIF89a"), Little(width, 2), Little(height, 2),
        Hex("80 00 00 FF0000 0000FF"), Hex("2C 0000 0000 0100 0100 00 02 02 4C01 00 3B") });
}

/// A PNG up to its pixels.
Bytes Png(unsigned width, unsigned height, int bits)
{
    constexpr int Colour = 2;
    return Join({ PngHeader(width, height, bits, Colour), PngChunk("IDAT", {}) });
}

/// An animation whose frames are missing.
Bytes AnimatedWebP(std::uint32_t width, std::uint32_t height)
{
    const Bytes body = Join({ Text("WEBPVP8X"), Little(10, 4), { 0x02, 0, 0, 0 },
        Little(width - 1, 3), Little(height - 1, 3) });
    return Join({ Text("RIFF"), Little(body.size(), 4), body });
}

enum class Coding { Baseline = 0xC0, Progressive = 0xC2 };

/// Header and as many empty scans as told, of a JPEG of one component.
Bytes Jpeg(Coding coding, unsigned width, unsigned height, int scans)
{
    Bytes file = Join({ { 0xFF, 0xD8, 0xFF, static_cast<std::uint8_t>(coding) }, Hex("000B 08"),
        Big(height, 2), Big(width, 2), Hex("01 01 11 00") });
    for (int i = 0; i < scans; ++i)
        file = Join({ file, Hex("FFDA 0008 01 01 00 00 00 00") });
    return Join({ file, Hex("FFD9") });
}

/// A costly frame and its scan, then another frame that claims to be small.
Bytes TwoFrames()
{
    Bytes file = Jpeg(Coding::Progressive, 8000, 8000, 1);
    file.resize(file.size() - 2); // the end
    return Join({ file, Hex("FFC2 000B 08 0001 0001 01 01 11 00 FFD9") });
}

/// A TIFF of 8-bit grey whose directory has these longs besides; no pixels.
Bytes Tiff(
    unsigned width, unsigned height, std::initializer_list<std::pair<unsigned, unsigned>> more)
{
    const auto entry = [](unsigned tag, unsigned value) {
        return Join({ Little(tag, 2), Little(4, 2), Little(1, 4), Little(value, 4) });
    };
    Bytes entries = Join({ entry(256, width), entry(257, height), entry(258, 8) });
    for (const auto& [tag, value] : more)
        entries = Join({ entries, entry(tag, value) });
    return Join({ Hex("4949 2A00 08000000"), Little(3 + more.size(), 2), entries, Bytes(4, 0) });
}

Bytes IconOfPng(const Bytes& png)
{
    return Join(
        { Hex("0000 0100 0100 10 10 00 00 0100 2000"), Little(png.size(), 4), Little(22, 4), png });
}

/// Without pixels, so that only the header can be what is told about.
struct Claim {
    Bytes file;
    const char* whyNot;
    std::int64_t pixels;
};

TEST(PictureLimits, AreHeldByWhatTheHeaderClaims)
{
    const std::vector<Claim> claims{
        { Png(10000, 10000, 8), BrokenData, 100'000'000 }, // beyond nothing
        { Png(10001, 10000, 8), TooManyPixels, 100'010'000 },
        { Png(7071, 7071, 16), BrokenData, 49'999'041 },
        { Png(7072, 7072, 16), TooManyCostlyPixels, 50'013'184 },
        { Png(32768, 1, 8), TooLong, 32768 },
        { Png(1, 40000, 8), TooLong, 40000 },
        { Jpeg(Coding::Baseline, 10001, 10000, 1), TooManyPixels, 100'010'000 },
        { Jpeg(Coding::Progressive, 7072, 7072, 1), TooManyCostlyPixels, 50'013'184 },
        { Jpeg(Coding::Progressive, 7000, 7000, 60), "it comes in too many scans", 49'000'000 },
        { Jpeg(Coding::Baseline, 40000, 1, 1), TooLong, 40000 },
        // A second frame that claims less does not make the first one cheap.
        { TwoFrames(), BrokenData, 0 },
        { Gif(10001, 10000), TooManyPixels, 100'010'000 },
        { Gif(40000, 10), TooLong, 400'000 },
        { BmpHeader(10001, 10000, 8, 1, 0), TooManyPixels, 100'010'000 },
        { BmpHeader(40000, -1, 8, 1, 0), TooLong, 40000 },
        { AnimatedWebP(7072, 7072), TooManyCostlyPixels, 50'013'184 },
        { Tiff(10001, 10000, {}), TooManyPixels, 100'010'000 },
        { Tiff(7072, 7072, { { 277, 8 } }), TooManyCostlyPixels, 50'013'184 },
        { Tiff(16, 16, { { 322, 16000 }, { 323, 16000 } }), "its tiles are too large", 256 },
        { Tiff(1, 30000, { { 322, 40000 }, { 323, 1 } }), "its tiles are too large", 30000 },
        { Tiff(16, 16, { { 259, 34925 } }), "it is packed in a way that can't be read here", 256 },
        { IconOfPng(Png(7072, 7072, 8)), TooManyCostlyPixels, 50'013'184 },
        { Text("P6 10001 10000 255\n"), TooManyPixels, 100'010'000 },
        { Text("P4 40000 1\n"), TooLong, 40000 },
        { Text("/* XPM */\nstatic char* a[] = {\n\"10001 10000 2 1\",\n"), TooManyPixels,
            100'010'000 },
    };
    const TempFolder folder;
    for (std::size_t i = 0; i < claims.size(); ++i) {
        WriteBytes(folder.File("claim"), claims[i].file);

        const LoadedPicture loaded = LoadPicture(folder.File("claim"));

        EXPECT_TRUE(loaded.picture.pixels.IsNull()) << i;
        EXPECT_EQ(loaded.whyNot, claims[i].whyNot) << i;
        EXPECT_EQ(PixelsClaimed(folder.File("claim")), claims[i].pixels) << i;
    }
}

/// Small files that make readers work: each claims what is within the limits, and has next to
/// nothing of it, or has all of it and packs it well.
TEST(PictureLimits, NoSmallFileTakesLongOrMuch)
{
    const std::vector<Bytes> files{
        Gif(10000, 10000),
        Join({ BmpHeader(10000, 10000, 8, 1, 4), Bytes(16, 1), Hex("05 01 0001") }),
        Join({ BmpHeader(10000, 10000, 4, 2, 4), Bytes(16, 1), Hex("05 01 0001") }),
        Text("#define a_width 10000\n#define a_height 10000\nstatic char a[] = {\n0x01};\n"),
        Text("P1 10000 10000 0101"),
        Text("P3 10000 10000 255 1 2 3"),
        Text("/* XPM */\nstatic char* a[] = {\n\"10000 10000 2000000000 1\",\n\". c red\",\n"),
        Jpeg(Coding::Progressive, 7000, 7000, 50),
        Jpeg(Coding::Progressive, 100, 100, 3000),
        Tiff(10000, 10000, { { 277, 3 } }),
    };
    GuardedLoads loads;

    loads.Run(static_cast<int>(files.size()),
        [&](int number) { return files[static_cast<std::size_t>(number)]; });
}

TEST(PictureLimits, ManyNumbersAreReadQuickly)
{
    constexpr int Samples = 1500 * 1500 * 3;
    Bytes file = Text("P3 1500 1500 9\n");
    for (int i = 0; i < Samples; ++i)
        file.insert(file.end(), { static_cast<std::uint8_t>('0' + i % 10), ' ' });
    GuardedLoads loads;

    loads.Run(1, [&](int) { return file; });

    EXPECT_EQ(loads.Loaded(), 1);
}

class PictureLimitsTest : public WitnessFixture { };

TEST_F(PictureLimitsTest, LongSidesLoad)
{
    Run("ppmmake red 8002 10 | pnmtopng >a.png && ppmmake blue 32767 2 | ppmtobmp >a.bmp");
    Run("ppmmake green 2 32767 | pnmtojpeg >a.jpg");

    ExpectShows("a.png", "ppmmake red 8002 10");
    ExpectShows("a.bmp", "ppmmake blue 32767 2");
    ExpectShows("a.jpg", "jpegtopnm a.jpg", 2);
    EXPECT_EQ(PixelsClaimed(folder.File("a.png")), 80020);
}

/// Whole pictures of a few kilobytes, whose readers need most; below 25 million pixels but the
/// first.
TEST_F(PictureLimitsTest, WellPackedPicturesStayWithinTimeAndMemory)
{
    if (VYPX_SANITIZED)
        GTEST_SKIP() << "memory can't be measured";
    Run("pbmmake -gray 10000 10000 | pnmtopng -compression=1 >a");
    Run("ppmmake red 4990 4990 >red.ppm && pnmtojpeg -progressive red.ppm >b");
    Run("cwebp -z 0 -lossless red.ppm -o c && rm red.ppm");
    GuardedLoads loads;

    loads.Run(3, [&](int number) {
        return ReadBytes(folder.File(std::string(1, static_cast<char>('a' + number))));
    });

    EXPECT_EQ(loads.Loaded(), 3);
}

} // namespace

} // namespace vypx::test
