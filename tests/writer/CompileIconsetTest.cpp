#include "writer/CompileIconset.h"

#include "companion/BmpFile.h"
#include "companion/NearestColour.h"
#include "document/IconStats.h"
#include "support/LoadFixture.h"
#include "support/Netpbm.h"
#include "writer/IconIndex.h"
#include "writer/SaveChecks.h"

#include <gmock/gmock.h>
#include <random>
#include <rapidcheck/gtest.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Compiling : public LoadFixture {
protected:
    Compiling()
    {
        WriteText(folder.File("AppList.dat"),
            "[Alpha]\nType=appl\nCreator={ALPH}\n[Beta]\nType=panl\nCreator={B   }\n"
            "[Gamma]\nType=data\nCreator={GAMM}\n");
        WriteText(folder.File("PalmApp.dat"), "[Palm Clock]\nType=appl\nCreator={clck}\n");
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "panl", "B   ", "" } };
        PalmTable = { {}, { "Palm Clock", "appl", "clck", "" } };
        FileLoaded = true;
        SavingAs = false;
        DatabaseName = "Set";
        FileName = folder.File("out.prc");
        IconTable.clear();
        BitmapTable.clear();
    }

    /// A row and its pictures, which are made.
    void Add(const std::string& label, int id, bool low, bool high, const std::string& kind = "APP",
        int state = 1, const std::string& type = "tAIB")
    {
        const std::string key = type + std::to_string(id);
        const auto file = [&](bool wanted, const std::string& name, int width) {
            if (wanted)
                WriteBytes(WorkPath(name), EncodeBmp24(vypx::Picture(width, 2)));
            return wanted ? name : std::string("NEW");
        };
        IconTable.push_back({ label, key, file(low, key + ".bmp", 3),
            file(high, key + "-d144.bmp", 6), state, kind });
    }

    std::vector<std::string> Keys() const
    {
        std::vector<std::string> keys;
        for (const ResourceRow& row : PictureRows())
            keys.push_back(row.key);
        return keys;
    }

    static std::string Text(std::uint32_t packed)
    {
        std::string text;
        for (int shift = 24; shift >= 0; shift -= 8)
            text += static_cast<char>(packed >> shift & 0xFF);
        return text;
    }
    /// "type creator large small" of each record, in the file's order.
    std::vector<std::string> Index()
    {
        std::vector<std::string> records;
        BuildIconTableResource();
        if (!FileExists(WorkPath("iTbl1000.bin")))
            return records;
        const Bytes body = ReadBytes(WorkPath("iTbl1000.bin"));
        const ByteView view(body);
        for (std::size_t at = 0; at < body.size(); at += 16)
            records.push_back(view.Text(at, 4) + " " + view.Text(at + 4, 4) + " "
                + std::to_string(view.U16(at + 8)) + " " + std::to_string(view.U16(at + 10)));
        return records;
    }
    void Compile() { CompileIconset(); }
};

TEST_F(Compiling, TakesRowsWithPicturesThatAreKept)
{
    Add("A (Large Icon)", 3500, true, true);
    Add("B (Large Icon)", 3501, false, false);
    Add("C (Large Icon)", 3502, true, false, "APP", 0);
    Add("tAIB3503 (X - Large) ", 3503, true, false, "UNKNOWN");

    EXPECT_THAT(Keys(), ElementsAre("tAIB3500", "tAIB3503"));
    KeepUnknown = false;
    EXPECT_THAT(Keys(), ElementsAre("tAIB3500"));
}

TEST_F(Compiling, AHighResPictureOnlyLeavesTheLowResColumnEmpty)
{
    Add("A (Large Icon)", 3500, false, true);

    const auto rows = PictureRows();

    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].lowFile, "");
    EXPECT_EQ(rows[0].highFile, "tAIB3500-d144.bmp");
}

TEST_F(Compiling, OneResourceForBothSizesIsOneRowAndOneRecord)
{
    Add("Alpha (Large Icon)", 3500, true, true);
    Add("Alpha (Small Icon)", 3500, true, true);

    EXPECT_THAT(Keys(), ElementsAre("tAIB3500"));
    EXPECT_THAT(Index(), ElementsAre("appl ALPH 3500 3500"));
}

TEST_F(Compiling, LargeAndSmallMeetInOneRecord)
{
    Add("Alpha (Small Icon)", 3501, true, false);
    Add("Beta (Large Icon)", 3502, true, false);
    Add("Alpha (Large Icon)", 3500, true, false);
    Add("Palm Clock (Small Icon)", 3503, true, false, "PALM");

    EXPECT_THAT(
        Index(), ElementsAre("appl ALPH 3500 3501", "appl clck 0 3503", "panl B    3502 0"));
}

TEST_F(Compiling, OnlyKeptPicturesOfTheRangeTakePartInTheIndex)
{
    Add("Alpha (Large Icon)", 3499, true, false);
    Add("Alpha (Large Icon)", 10000, true, false);
    Add("Alpha (Large Icon)", 3501, false, false);
    Add("Alpha (Large Icon)", 3502, true, false, "APP", 0);
    Add("Alpha (Large Icon)", 3503, true, false, "APP", 1, "Tbmp");
    Add("Nobody (Large Icon)", 3504, true, false);
    Add("tAIB3505 (Orphan) ", 3505, true, false, "DELETE");

    EXPECT_THAT(Index(), IsEmpty());
}

TEST_F(Compiling, UnknownIconsAreNamedByTheIndexThatWasRead)
{
    Itbl = { {}, { "appl", "FRST", 3500, 0 }, { "appl", "LAST", 3500, 3501 } };
    Add("tAIB3500 (LAST - Large) ", 3500, true, false, "UNKNOWN");
    Add("tAIB3501 (LAST - Small) ", 3501, true, false, "UNKNOWN");

    EXPECT_THAT(Index(), ElementsAre("appl LAST 3500 3501")) << "the last row wins";
    KeepUnknown = false;
    EXPECT_THAT(CollectIconIndex().values, IsEmpty());
}

TEST_F(Compiling, OnPurposeAnotherTypeKeepsTheClassOfTheRecordBefore)
{
    Add("Gamma (Large Icon)", 3500, true, false);
    EXPECT_THAT(Index(), IsEmpty()) << "the class is 0 at first";

    Add("Beta (Large Icon)", 3501, true, false);
    Add("Gamma (Small Icon)", 3502, true, false);
    EXPECT_THAT(Index(), ElementsAre("panl B    3501 0"));

    IconTable.erase(IconTable.begin());
    EXPECT_THAT(Index(), ElementsAre("panl B    3501 0", "data GAMM 0 3502"));
}

TEST_F(Compiling, AVersionTextLosesItsBlanksAndEndsInAZero)
{
    VersionString = " 3.20  ";

    WriteVersionResource();

    EXPECT_EQ(ReadText(WorkPath("tver1000.bin")), std::string(" 3.20\0", 6));
}

TEST_F(Compiling, OldScratchFilesDoNotGetIn)
{
    WriteBytes(WorkPath("iTbl1000.bin"), Bytes(16, 1));
    Add("Nobody (Large Icon)", 3500, true, false);

    Compile();

    EXPECT_FALSE(FileExists(WorkPath("iTbl1000.bin")));
}

TEST_F(Compiling, TbmpResourcesOnlyGiveNoIndex)
{
    Add("Alpha (Large Icon)", 3500, true, false, "APP", 1, "Tbmp");

    Compile();

    EXPECT_EQ(LoadFile(FileName, listener), LoadResult::Opened);
    EXPECT_THAT(Labels(), ElementsAre("Tbmp3500 () "));
}

TEST_F(Compiling, BacksUpTheOldFile)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    WriteText(FileName, "old");
    WriteText(FileName + ".bak", "older");

    Compile();

    EXPECT_EQ(ReadText(FileName + ".bak"), "old");
}

TEST_F(Compiling, MakesNoBackupUnderANewNameOrWithoutTheOption)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    WriteText(FileName, "old");

    SavingAs = true;
    Compile();
    SavingAs = false;
    CreateBackup = false;
    Compile();

    EXPECT_FALSE(FileExists(FileName + ".bak"));
}

TEST_F(Compiling, AMissingWorkingFileIsAFailureAndTheOldFileStands)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    std::filesystem::remove(WorkPath("tAIB3500.bmp"));
    CreateBackup = false;
    WriteText(FileName, "old");

    EXPECT_THROW(Compile(), SaveFailure);

    EXPECT_EQ(ReadText(FileName), "old");
}

TEST_F(Compiling, ABackupThatCannotBeMadeIsAFailure)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    WriteText(FileName, "old");
    MakeFolder(FileName + ".bak");

    EXPECT_THROW(Compile(), SaveFailure);

    EXPECT_EQ(ReadText(FileName), "old");
}

TEST_F(Compiling, AFlaggedPictureOfFewBitsKeepsItsMask)
{
    BitmapTable = {
        { .file = "a.bmp", .hasTransparent = 1, .index = 1, .depth = 1 },
        {},
        { "b.bmp", 1, 5, 255, 0, 255, 8 },
    };

    const auto rows = TransparencyRows();

    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].flag + rows[0].red + rows[0].green + rows[0].blue, "1000");
    EXPECT_EQ(rows[1].file, "");
    EXPECT_EQ(rows[2].red + "," + rows[2].green + "," + rows[2].blue, "255,0,255");
}

class SaveChecks : public Compiling { };

TEST_F(SaveChecks, SpeakInTheirOrder)
{
    const auto set = [](int total, int large, int small, int low, int high, int unknown) {
        StatTotal = total;
        StatLarge = large;
        StatSmall = small;
        StatLowRes = low;
        StatHighRes = high;
        StatUnknown = unknown;
    };
    FileLoaded = false;
    EXPECT_EQ(WhyNotSaved(), "No file loaded.");
    FileLoaded = true;
    set(0, 0, 0, 0, 0, 0);
    EXPECT_EQ(WhyNotSaved(), "Can't save. The iconset doesn't contain any icons.");
    set(1, 0, 0, 0, 0, 1);
    EXPECT_EQ(WhyNotSaved(), "Error! Can't save an iconset that only contains unknown icons.");
    set(1, 1, 0, 0, 0, 0);
    EXPECT_EQ(WhyNotSaved(), "Error! Iconset doesn't contain any images.");
    set(2, 1, 0, 0, 0, 1);
    EXPECT_EQ(
        WhyNotSaved(), "Error! Iconset must contain at least on normal icon that has images.");
    set(1, 1, 0, 0, 1, 0);
    EXPECT_EQ(WhyNotSaved(), std::nullopt);
}

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
        if (DefaultColorDepth == "16-Bit")
            return From565(To565(colour));
        const Palette palette =
            DefaultColorDepth == "8-Bit" ? Palette(Palette8) : Palette(Palette4);
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

RC_GTEST_FIXTURE_PROP(RoundTrip, ASavedDocumentOpensWithItsIconsPicturesAndColours, ())
{
    random.seed(*rc::gen::arbitrary<unsigned>());
    DefaultColorDepth = *rc::gen::element<std::string>("4-Bit", "8-Bit", "16-Bit");
    UsePackbits = *rc::gen::arbitrary<bool>();
    const int icons = *rc::gen::inRange(1, 6);
    Itbl.assign(1, {});
    for (int i = 0; i < icons; ++i) {
        const int id = 3500 + i;
        const std::string key = "tAIB" + std::to_string(id);
        const bool low = random() % 4 != 0, high = !low || random() % 4 != 0;
        const std::string label = i == 0 ? "Alpha (Large Icon)"
            : i == 1                     ? "Alpha (Small Icon)"
                                         : key + " (UNKN - Large) ";
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

    CompileIconset();
    RC_ASSERT(LoadFile(FileName, listener) == LoadResult::Opened);

    RC_ASSERT(IconTable.size() == before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        RC_ASSERT(IconTable[i].ResourceKey == before[i].ResourceKey);
        RC_ASSERT(IconTable[i].LowResFile == before[i].LowResFile);
        RC_ASSERT(IconTable[i].HighResFile == before[i].HighResFile);
        if (i < 2)
            RC_ASSERT(IconTable[i].IconLabel == before[i].IconLabel);
    }
    for (const auto& [file, picture] : pictures)
        RC_ASSERT(DecodeBmp(ReadBytes(WorkPath(file))) == Reduced(picture));
    for (const BitmapEntry& entry : BitmapTable) {
        const BitmapEntry& expected = transparency[entry.file];
        RC_ASSERT(entry.hasTransparent == expected.hasTransparent);
        if (entry.hasTransparent == 1) {
            const Rgb colour{ *entry.red, *entry.green, *entry.blue };
            RC_ASSERT(colour == Reduced(Rgb{ *expected.red, *expected.green, *expected.blue }));
        }
    }

    // Saved once more it is the same file, apart from its dates.
    const Bytes first = ReadBytes(FileName);
    FileName = folder.File("second.prc");
    CompileIconset();
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

/// Each record of a saved file, cut out and read by netpbm.
TEST_F(RoundTrip, NetpbmReadsEveryRecord)
{
    SKIP_WITHOUT_NETPBM();
    for (const char* depth : { "4-Bit", "8-Bit", "16-Bit" })
        for (const bool packed : { false, true }) {
            DefaultColorDepth = depth;
            UsePackbits = packed;
            IconTable = { { "Alpha (Large Icon)", "tAIB3500", "tAIB3500.bmp", "tAIB3500-d144.bmp",
                1, "APP" } };
            BitmapTable.clear();
            AddPicture("tAIB3500.bmp", 31, 21);
            AddPicture("tAIB3500-d144.bmp", 63, 43);

            CompileIconset();

            const Bytes file = ReadBytes(FileName);
            const ByteView view(file);
            const std::size_t first = view.U32(78 + 6), end = view.U32(88 + 6);
            const std::size_t mark = first + view.U16(first + 10) * std::size_t{ 4 };
            WriteBytes(folder.File("low.palm"),
                Bytes(file.begin() + static_cast<std::ptrdiff_t>(first),
                    file.begin() + static_cast<std::ptrdiff_t>(mark)));
            WriteBytes(folder.File("high.palm"),
                Bytes(file.begin() + static_cast<std::ptrdiff_t>(mark + 16),
                    file.begin() + static_cast<std::ptrdiff_t>(end)));
            const bool direct = DefaultColorDepth == "16-Bit";
            if (direct && packed)
                continue; // netpbm does not know packed 16-bit records
            EXPECT_EQ(Reduced(PictureFrom("palmtopnm -quiet " + folder.File("low.palm"))),
                Reduced(pictures["tAIB3500.bmp"]))
                << depth << packed;
            EXPECT_EQ(Reduced(PictureFrom("palmtopnm -quiet " + folder.File("high.palm"))),
                Reduced(pictures["tAIB3500-d144.bmp"]))
                << depth << packed;
        }
}

/// The whole file, read by Perl's Palm::PDB.
TEST_F(RoundTrip, PalmPdbReadsEveryResource)
{
    if (std::system("perl -MPalm::PDB -MPalm::Raw -e 1 2>/dev/null") != 0)
        GTEST_SKIP() << "libpalm-pdb-perl is not installed";
    IconTable = { { "Alpha (Large Icon)", "tAIB3500", "tAIB3500.bmp", "NEW", 1, "APP" },
        { "Other", "Tbmp7", "NEW", "Tbmp7-d144.bmp", 1, "VY" } };
    AddPicture("tAIB3500.bmp", 31, 21);
    AddPicture("Tbmp7-d144.bmp", 63, 43);
    CompileIconset();

    const Bytes output =
        OutputOf("perl -MPalm::PDB -MPalm::Raw -e '"
                 "Palm::PDB::RegisterPRCHandlers(\"Palm::Raw\", [\"VNTR\", \"ICON\"]);"
                 "my $pdb = Palm::PDB->new; $pdb->Load($ARGV[0]);"
                 "print \"$pdb->{name} $pdb->{type} $pdb->{creator} \","
                 " $pdb->{attributes}{ResDB} ? 1 : 0, \"\\n\";"
                 "print \"$_->{type} $_->{id} \", length($_->{data}), \"\\n\""
                 " for @{$pdb->{resources}};' '"
            + FileName + "' 2>/dev/null");

    const Bytes file = ReadBytes(FileName);
    const ByteView view(file);
    const auto size = [&](std::size_t i) {
        const std::size_t from = view.U32(78 + 10 * i + 6);
        return std::to_string((i == 3 ? file.size() : view.U32(78 + 10 * (i + 1) + 6)) - from);
    };
    EXPECT_EQ(std::string(output.begin(), output.end()),
        "Set ICON VNTR 1\ntAIB 3500 " + size(0) + "\nTbmp 7 " + size(1) + "\ntver 1000 " + size(2)
            + "\niTbl 1000 " + size(3) + "\n");
}

} // namespace
} // namespace vypx::test
