#include "support/Netpbm.h"
#include "companion/BmpFile.h"
#include "companion/NearestColour.h"
#include "support/LoadFixture.h"

#include <random>

/// Records that netpbm wrote, opened here, against the pictures that it was given and against what
/// it reads back itself.
namespace vypx::test {

namespace {

struct Variant {
    int depth;
    bool highDensity;
    std::string compression; ///< an option of pnmtopalm, or empty
};

std::vector<Variant> AllVariants()
{
    std::vector<Variant> variants;
    for (const int depth : { 1, 2, 4, 8, 16 })
        for (const bool high : { false, true })
            for (const char* compression :
                { "", "-scanline_compression", "-rle_compression", "-packbits_compression" })
                if (depth < 16 || *compression == '\0') // it compresses up to 8 bits
                    variants.push_back({ depth, high, compression });
    return variants;
}

std::string NameOf(const ::testing::TestParamInfo<Variant>& info)
{
    const Variant& variant = info.param;
    std::string name = std::to_string(variant.depth) + (variant.highDensity ? "High" : "Low");
    for (const char letter : variant.compression)
        if (letter != '-' && letter != '_')
            name += letter;
    return name;
}

/// Runs and noise in the colours that the depth has.
Picture SomePicture(int depth, int width, int height)
{
    std::mt19937 random(static_cast<unsigned>(depth * 1000 + width));
    Picture picture(width, height);
    Rgb colour;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            if (random() % 3 != 0) {
                const auto value = static_cast<int>(random() % 65536);
                const int levels = (1 << std::min(depth, 4)) - 1;
                const int grey = value % (levels + 1) * 255 / levels;
                colour = depth == 16 ? From565(value)
                    : depth == 8     ? Palette8[static_cast<std::size_t>(value % 231)]
                                     : Rgb{ grey, grey, grey };
            }
            picture.Set(x, y, colour);
        }
    return picture;
}

/// netpbm widens 5 and 6 bits without rounding, so 16-bit pictures are compared as 5-6-5.
Picture As565(Picture picture)
{
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.Set(x, y, From565(To565(picture.At(x, y))));
    return picture;
}

class NetpbmRecords : public LoadFixture, public ::testing::WithParamInterface<Variant> {
protected:
    /// The record that pnmtopalm makes of a picture.
    Bytes RecordOf(const Picture& picture)
    {
        const Variant& variant = GetParam();
        const std::string source = folder.File("source.ppm");
        WritePpm(source, picture);
        const std::string levels = std::to_string((1 << variant.depth) - 1);
        const std::string input = variant.depth <= 4
            ? "ppmtopgm '" + source + "' | pamdepth " + levels + " 2>/dev/null"
            : "cat '" + source + "'";
        const Bytes record =
            OutputOf(input + " | pnmtopalm -quiet -depth=" + std::to_string(variant.depth)
                + (variant.highDensity ? " -density=144 " : " ") + variant.compression);
        WriteBytes(folder.File("record.palm"), record);
        return record;
    }
};

TEST_P(NetpbmRecords, OpenAsThePictureThatTheyWereMadeOf)
{
    SKIP_WITHOUT_NETPBM();
    for (const auto& [width, height] :
        { std::pair(32, 22), std::pair(15, 11), std::pair(64, 44) }) {
        const Picture picture = SomePicture(GetParam().depth, width, height);
        const Bytes record = RecordOf(picture);
        const bool high = GetParam().highDensity;
        const Bytes data = high ? Join({ Separator(), record }) : record;

        ASSERT_EQ(
            Open(Iconset{ .resources = { { "tAIB", 3500, data } } }.File()), LoadResult::Opened);

        const std::string file = WorkPath(high ? "tAIB3500-d144.bmp" : "tAIB3500.bmp");
        const auto ours = DecodeBmp(ReadBytes(file));
        EXPECT_EQ(ours, picture) << width;
        const Picture theirs = PictureFrom("palmtopnm -quiet '" + folder.File("record.palm") + "'");
        EXPECT_EQ(ours, GetParam().depth == 16 ? As565(theirs) : theirs) << width;
    }
}

INSTANTIATE_TEST_SUITE_P(All, NetpbmRecords, ::testing::ValuesIn(AllVariants()), NameOf);

} // namespace
} // namespace vypx::test
