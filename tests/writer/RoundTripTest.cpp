#include "companion/NearestColour.h"
#include "support/CompileFixture.h"
#include "support/Netpbm.h"
#include "support/PalmPdb.h"
#include "support/Properties.h"
#include "support/Unpacked.h"

#include <gmock/gmock.h>
#include <map>
#include <random>
#include <set>

namespace vypx::test {

namespace {

/// A document with random pictures, saved and opened again.
struct RoundTrip : Compiling {
    vypx::Picture Noise(int width, int height)
    {
        vypx::Picture picture(width, height);
        Rgb colour;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                if (random() % 3 != 0)
                    colour = { static_cast<int>(random() % 256), static_cast<int>(random() % 256),
                        static_cast<int>(random() % 256) };
                picture.Set(x, y, colour);
            }
        return picture;
    }

    /// As the depth keeps it.
    static Rgb Reduced(Rgb colour)
    {
        if (DefaultColorDepth == ColorDepth::Bits16)
            return From565(To565(colour));
        const Palette palette =
            DefaultColorDepth == ColorDepth::Bits8 ? Palette(Palette8) : Palette(Palette4);
        return palette[static_cast<std::size_t>(
            NearestIn(palette).IndexOf(colour.red, colour.green, colour.blue))];
    }
    static vypx::Picture Reduced(vypx::Picture picture)
    {
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x)
                picture.Set(x, y, Reduced(picture.At(x, y)));
        return picture;
    }

    void AddPicture(const std::string& file, int width, int height)
    {
        pictures[file] = Noise(width, height);
        WriteBytes(WorkPath(file), EncodeBmp24(pictures[file]));
        const bool transparent = random() % 2 == 0;
        BitmapEntry entry{ .file = file, .hasTransparent = transparent ? 1 : 0 };
        if (transparent) {
            const Rgb colour = pictures[file].At(0, 0);
            entry.red = colour.red;
            entry.green = colour.green;
            entry.blue = colour.blue;
        }
        BitmapTable.push_back(entry);
        transparency[file] = entry;
    }

    std::mt19937 random;
    std::map<std::string, vypx::Picture> pictures;
    std::map<std::string, BitmapEntry> transparency;
};

#ifdef RC_GTEST_PROP
RC_GTEST_FIXTURE_PROP(RoundTrip, ASavedDocumentOpensWithItsIconsPicturesAndColours, ())
{
    random.seed(*rc::gen::arbitrary<unsigned>());
    DefaultColorDepth = *rc::gen::element(ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16);
    UsePackbits = *rc::gen::arbitrary<bool>();
    const int icons = *rc::gen::inRange(1, 6);
    Itbl.assign(1, {});
    for (int i = 0; i < icons; ++i) {
        const int id = 3500 + i;
        const std::string key = "tAIB" + std::to_string(id);
        const bool low = random() % 4 != 0, high = !low || random() % 4 != 0;
        const std::string label = i == 0 ? "Alpha (Large Icon)"
            : i == 1                     ? "Alpha (Small Icon)"
                                         : key + " (UN0" + std::to_string(i) + " - Large) ";
        IconTable.push_back({ label, key, low ? key + ".bmp" : "NEW",
            high ? key + "-d144.bmp" : "NEW", 1, i < 2 ? "APP" : "UNKNOWN" });
        if (i >= 2)
            Itbl.push_back({ "appl", "UN0" + std::to_string(i), id, 0 });
        if (low)
            AddPicture(key + ".bmp", 1 + static_cast<int>(random() % 32),
                1 + static_cast<int>(random() % 22));
        if (high)
            AddPicture(key + "-d144.bmp", 1 + static_cast<int>(random() % 64),
                1 + static_cast<int>(random() % 44));
    }
    const std::vector<IconRow> before = IconTable;

    CompileIconset(TargetFromFlags());
    RC_ASSERT(Load(FileName) == LoadResult::Opened);

    RC_ASSERT(IconTable.size() == before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        RC_ASSERT(IconTable[i].ResourceKey == before[i].ResourceKey);
        RC_ASSERT(IconTable[i].LowResFile == before[i].LowResFile);
        RC_ASSERT(IconTable[i].HighResFile == before[i].HighResFile);
        RC_ASSERT(IconTable[i].IconLabel == before[i].IconLabel);
        RC_ASSERT(IconTable[i].IconKind == before[i].IconKind);
    }
    for (const auto& [file, picture] : pictures)
        RC_ASSERT(DecodeBmp(ReadBytes(WorkPath(file))) == Reduced(picture));
    std::set<std::string> met;
    for (const BitmapEntry& entry : BitmapTable) {
        if (entry.file.empty())
            continue;
        met.insert(entry.file);
        const BitmapEntry& expected = transparency[entry.file];
        RC_ASSERT(entry.hasTransparent == expected.hasTransparent);
        if (entry.hasTransparent == 1) {
            const Rgb colour{ *entry.red, *entry.green, *entry.blue };
            RC_ASSERT(colour == Reduced(Rgb{ *expected.red, *expected.green, *expected.blue }));
        }
    }

    RC_ASSERT(met.size() == pictures.size());

    // Saved once more it is the same file, apart from its dates.
    const Bytes first = ReadBytes(FileName);
    FileName = folder.File("second.prc");
    CompileIconset(TargetFromFlags());
    Bytes second = ReadBytes(FileName);
    std::copy(first.begin() + 36, first.begin() + 44, second.begin() + 36);
    const bool isTheSame = second == first;
    RC_ASSERT(isTheSame);

    IconTable.clear();
    BitmapTable.clear();
    FileName = folder.File("out.prc");
    pictures.clear();
    transparency.clear();
}
#endif

/// A reader looks for the end of the last resource behind the list. Were there pixels, they could
/// name a place within the index: here the record's rows of 8 bytes would, as 0x80000.
TEST_F(RoundTrip, TheIndexIsReadWholeWhateverTheFirstRecordHolds)
{
    DefaultColorDepth = ColorDepth::Bits4;
    IconTable = { { "Alpha (Large Icon)", "tAIB3500", "tAIB3500.bmp", "NEW", 1, "APP" } };
    WriteBytes(WorkPath("tAIB3500.bmp"), EncodeBmp24(vypx::Picture(16, 1)));
    VersionString.assign(0x80000 - 150, 'x'); // brings the index to 0x80000 - 6

    CompileIconset(TargetFromFlags());

    ASSERT_LT(ByteView(ReadBytes(FileName)).U32(78 + 20 + 6), 0x80000u);
    ASSERT_GT(ReadBytes(FileName).size(), 0x80000u);
    ASSERT_EQ(Load(FileName), LoadResult::Opened);
    EXPECT_EQ(listener.messages, std::vector<std::string>());
    EXPECT_EQ(IconTable.at(0).IconLabel, "Alpha (Large Icon)");
}

/// The record with its pixels unpacked; `sizeField` is the width of their size.
Bytes WithPlainPixels(Bytes record, std::size_t header, std::size_t sizeField)
{
    const ByteView view(record);
    const std::size_t size = sizeField == 2 ? view.U16(header) : view.U32(header);
    const Bytes pixels = Unpacked(view.Span().subspan(header + sizeField, size - sizeField), 2);
    record.resize(header);
    record.insert(record.end(), pixels.begin(), pixels.end());
    record[6] &= 0x7F;
    record[13] = 0xFF;
    return record;
}

/// Each record of a saved file, cut out and read by netpbm, which doesn't know packed pixels of 16
/// bits: these are unpacked before.
TEST_F(RoundTrip, NetpbmReadsEveryRecord)
{
    SKIP_WITHOUT_NETPBM();
    const auto read = [&](const Bytes& record) {
        WriteBytes(folder.File("record.palm"), record);
        return Reduced(PictureFrom("palmtopnm -quiet " + folder.File("record.palm")));
    };
    for (const ColorDepth depth : { ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16 })
        for (const bool packed : { false, true }) {
            DefaultColorDepth = depth;
            UsePackbits = packed;
            IconTable = { { "Alpha (Large Icon)", "tAIB3500", "tAIB3500.bmp", "tAIB3500-d144.bmp",
                1, "APP" } };
            BitmapTable.clear();
            AddPicture("tAIB3500.bmp", 31, 21);
            AddPicture("tAIB3500-d144.bmp", 63, 43);

            CompileIconset(TargetFromFlags());

            const Bytes family = Saved()[0].data;
            const auto mark =
                static_cast<std::ptrdiff_t>(ByteView(family).U16(10) * std::size_t{ 4 });
            Bytes low(family.begin(), family.begin() + mark);
            Bytes high(family.begin() + mark + 16, family.end());
            EXPECT_EQ((low[6] & 0x80) != 0, packed);
            EXPECT_EQ((high[6] & 0x80) != 0, packed);
            if (packed && DefaultColorDepth == ColorDepth::Bits16) {
                low = WithPlainPixels(low, 24, 2);
                high = WithPlainPixels(high, 24, 4);
            }
            EXPECT_EQ(read(low), Reduced(pictures["tAIB3500.bmp"])) << BitsOf(depth) << packed;
            EXPECT_EQ(read(high), Reduced(pictures["tAIB3500-d144.bmp"]))
                << BitsOf(depth) << packed;
        }
}

/// The whole file, read by Perl's Palm::PDB.
TEST_F(RoundTrip, PalmPdbReadsEveryResource)
{
    SKIP_WITHOUT_PALM_PDB();
    IconTable = { { "Alpha (Large Icon)", "tAIB3500", "tAIB3500.bmp", "NEW", 1, "APP" },
        { "Other", "Tbmp7", "NEW", "Tbmp7-d144.bmp", 1, "VY" } };
    AddPicture("tAIB3500.bmp", 31, 21);
    AddPicture("Tbmp7-d144.bmp", 63, 43);
    CompileIconset(TargetFromFlags());

    const std::string printed = PrintedByPalmPdb(FileName,
        "print \"$pdb->{name} $pdb->{type} $pdb->{creator} \","
        " $pdb->{attributes}{ResDB} ? 1 : 0, \"\\n\";"
        "print \"$_->{type} $_->{id} \", length($_->{data}), \"\\n\""
        " for @{$pdb->{resources}};");

    std::string expected = "Set ICON VNTR 1\n";
    for (const Resource& resource : Saved())
        expected += resource.type + " " + std::to_string(resource.id) + " "
            + std::to_string(resource.data.size()) + "\n";
    EXPECT_THAT(SavedKeys(), ::testing::ElementsAre("tAIB3500", "Tbmp7", "tver1000", "iTbl1000"));
    EXPECT_EQ(printed, expected);
}

} // namespace
} // namespace vypx::test
