#include "pictures/PictureBytes.h"
#include "pictures/WitnessFixture.h"
#include "support/Iconsets.h"

#include <cmath>

namespace vypx::test {

namespace {

/// The chunk of a PNG that holds a profile: a name, how it is packed, the profile.
Bytes ProfileChunk(std::string_view space)
{
    return PngChunk("iCCP", Join({ Text("test"), { 0, 0 }, AsZlib(ExchangingProfile(space)) }));
}

/// The gamma of a PNG, and its white and primaries, all as the chunks have them: times 100,000.
Bytes Gamma(std::uint32_t gamma) { return PngChunk("gAMA", Big(gamma, 4)); }
Bytes Primaries(std::initializer_list<std::uint32_t> values)
{
    Bytes data;
    for (const std::uint32_t value : values)
        data = Join({ data, Big(value, 4) });
    return PngChunk("cHRM", data);
}
Bytes SrgbPrimaries()
{
    return Primaries({ 31270, 32900, 64000, 33000, 30000, 60000, 15000, 6000 });
}

class ColourSpacesTest : public WitnessFixture {
protected:
    void SetUp() override
    {
        WitnessFixture::SetUp();
        if (IsSkipped())
            return;
        Run("pamgradient black red green white 40 30 | pamtopnm >in.ppm && pnmtopng in.ppm "
            ">plain.png");
        plain = ReadBytes(folder.File("plain.png"));
    }

    LoadedPicture LoadBytes(const Bytes& file) const
    {
        WriteBytes(folder.File("a.png"), file);
        return Load("a.png");
    }

    /// A PNG of one colour, at 8 or 16 bits.
    Bytes OneColour(Rgb colour, int bits) const
    {
        Bytes row{ 0 };
        for (const int value : { colour.red, colour.green, colour.blue })
            row.insert(row.end(), bits == 16 ? 2 : 1, static_cast<std::uint8_t>(value));
        return Join(
            { PngHeader(1, 1, bits, 2), PngChunk("IDAT", AsZlib(row)), PngChunk("IEND", {}) });
    }

    Bytes plain;
};

void ExpectNear(Rgb colour, Rgb expected, int tolerance = 1)
{
    EXPECT_NEAR(colour.red, expected.red, tolerance);
    EXPECT_NEAR(colour.green, expected.green, tolerance);
    EXPECT_NEAR(colour.blue, expected.blue, tolerance);
}

/// 0 to 255, in light, as sRGB has it. Source: IEC 61966-2-1.
int FromLight(double light)
{
    const double value =
        light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
    return static_cast<int>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}

TEST_F(ColourSpacesTest, AnEmbeddedProfileCounts)
{
    for (const int bits : { 8, 16 }) {
        SCOPED_TRACE(bits);
        const auto shown = [&](Rgb colour) {
            return LoadBytes(WithPngChunks(OneColour(colour, bits), { ProfileChunk("RGB ") }))
                .picture.pixels.At(0, 0);
        };

        ExpectNear(shown({ 255, 0, 0 }), { 0, 0, 255 });
        ExpectNear(shown({ 0, 255, 0 }), { 0, 255, 0 });
        ExpectNear(shown({ 64, 128, 200 }),
            { FromLight(200 / 255.), FromLight(128 / 255.), FromLight(64 / 255.) });
    }
}

TEST_F(ColourSpacesTest, TheProfileOfAJpegCounts)
{
    constexpr int App2 = 0xE2;
    Run("ppmmake red 16 16 | pnmtojpeg -quality=100 >a.jpg");
    const Bytes segment = Join({ Text("ICC_PROFILE"), { 0, 1, 1 }, ExchangingProfile("RGB ") });
    WriteBytes(
        folder.File("b.jpg"), WithJpegSegment(ReadBytes(folder.File("a.jpg")), App2, segment));

    ExpectNear(Load("b.jpg").picture.pixels.At(8, 8), Blue, 3);
}

TEST_F(ColourSpacesTest, AProfileCountsForAPalette)
{
    Run("ppmmake red 16 16 | pnmtopng >p.png");
    ASSERT_EQ(ReadBytes(folder.File("p.png"))[25], 3) << "palette";

    const LoadedPicture loaded =
        LoadBytes(WithPngChunks(ReadBytes(folder.File("p.png")), { ProfileChunk("RGB ") }));

    ExpectNear(loaded.picture.pixels.At(3, 3), Blue);
}

TEST_F(ColourSpacesTest, AProfileThatDoesNotFitIsPassedOver)
{
    WriteBytes(folder.File("a.png"), WithPngChunks(plain, { ProfileChunk("GRAY") }));
    ExpectShows("a.png", "cat in.ppm");
    WriteBytes(folder.File("c.png"),
        WithPngChunks(
            plain, { PngChunk("iCCP", Join({ Text("x"), { 0, 0 }, AsZlib(Text("?")) })) }));
    ExpectShows("c.png", "cat in.ppm");
}

TEST_F(ColourSpacesTest, AGreyProfileIsPassedOver)
{
    Run("ppmmake rgb:80/80/80 16 16 | ppmtopgm | pnmtopng >grey.png");
    const Bytes grey = ReadBytes(folder.File("grey.png"));

    const LoadedPicture loaded = LoadBytes(WithPngChunks(grey, { ProfileChunk("GRAY") }));

    EXPECT_EQ(loaded.picture.pixels.At(3, 3), (Rgb{ 128, 128, 128 }));
}

/// Most programs write a gamma of 1/2.2 into a PNG of sRGB, and ImageMagick these primaries too.
TEST_F(ColourSpacesTest, AGammaOfAboutSrgbChangesNothing)
{
    for (const Bytes& file : { WithPngChunks(plain, { Gamma(45455) }),
             WithPngChunks(plain, { Gamma(45455), SrgbPrimaries() }),
             WithPngChunks(plain, { PngChunk("sRGB", { 0 }) }) }) {
        WriteBytes(folder.File("a.png"), file);
        ExpectShows("a.png", "cat in.ppm");
    }
}

TEST_F(ColourSpacesTest, AnyOtherGammaCounts)
{
    const Bytes file =
        WithPngChunks(OneColour({ 64, 128, 200 }, 8), { Gamma(100000), SrgbPrimaries() });

    ExpectNear(LoadBytes(file).picture.pixels.At(0, 0),
        { FromLight(64 / 255.), FromLight(128 / 255.), FromLight(200 / 255.) });
}

/// The primaries of Adobe RGB (1998), whose green lies beyond that of sRGB. Its light, in linear
/// sRGB: red 1.39836 r - 0.39836 g, green g, blue -0.04293 g + 1.04293 b. Worked out from both
/// primaries.
TEST_F(ColourSpacesTest, OtherPrimariesCount)
{
    const Bytes adobe = Primaries({ 31270, 32900, 64000, 33000, 21000, 71000, 15000, 6000 });
    const auto light = [](int value) { return std::pow(value / 255., 2.2); };
    for (const Rgb colour : { Rgb{ 200, 100, 50 }, Rgb{ 128, 128, 128 }, Rgb{ 90, 180, 220 } }) {
        const double r = light(colour.red), g = light(colour.green), b = light(colour.blue);
        const Bytes file = WithPngChunks(OneColour(colour, 8), { Gamma(45455), adobe });

        ExpectNear(LoadBytes(file).picture.pixels.At(0, 0),
            { FromLight(1.39836 * r - 0.39836 * g), FromLight(g),
                FromLight(-0.04293 * g + 1.04293 * b) });
    }
}

} // namespace

} // namespace vypx::test
