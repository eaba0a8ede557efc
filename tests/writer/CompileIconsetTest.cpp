#include "support/CommonUser.h"
#include "support/CompileFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

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

TEST_F(Compiling, AFileCellIsAPicturesInAnyLetterCase)
{
    Add("A (Large Icon)", 3500, false, false);
    IconTable[0].LowResFile = "X.BMP";

    const auto rows = PictureRows();

    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].lowFile, "X.BMP");
    EXPECT_EQ(rows[0].highFile, "");
}

TEST_F(Compiling, UnknownRowsThatAreNotKeptAreGoneAtTheNextOpen)
{
    Add("Alpha (Large Icon)", 3500, true, true);
    Add("tAIB3501 (UNKN - Large) ", 3501, true, true, "UNKNOWN");
    KeepUnknown = false;

    CompileIconset(TargetFromFlags());

    EXPECT_EQ(IconTable.size(), 2u) << "the document keeps them";
    EXPECT_EQ(Load(FileName), LoadResult::Opened);
    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)"));
}

TEST_F(Compiling, AnOrphanThatIsNotMarkedIsCarriedOverWithoutARecord)
{
    Add("tAIB3500 (Orphan) ", 3500, true, false, "DELETE");

    CompileIconset(TargetFromFlags());

    EXPECT_THAT(SavedKeys(), ElementsAre("tAIB3500", "tver1000"));
}

TEST_F(Compiling, PicturesStandBeforeTheVersionAndTheIndex)
{
    Add("tAIB7 (X)", 7, true, false, "VY", 1, "Tbmp");
    Add("Alpha (Large Icon)", 3500, true, false);
    Add("Beta (Large Icon)", 3400, true, false);

    CompileIconset(TargetFromFlags());

    EXPECT_THAT(SavedKeys(), ElementsAre("Tbmp7", "tAIB3500", "tAIB3400", "tver1000", "iTbl1000"));
}

TEST_F(Compiling, AKeyThatIsMarkedAsADoubleKeepsItsNumber)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    IconTable[0].ResourceKey = "tAIB3500(Dup)";

    CompileIconset(TargetFromFlags());

    EXPECT_THAT(SavedKeys(), ElementsAre("tAIB3500", "tver1000", "iTbl1000"));
    EXPECT_EQ(Saved()[2].data, Hex("6170706C 414C5048 0DAC 0000 00000000"));
}

TEST_F(Compiling, TheOptionPacksEveryRecordAtEveryDepth)
{
    Add("Alpha (Large Icon)", 3500, true, true);
    for (const ColorDepth depth : { ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16 })
        for (const bool packs : { false, true }) {
            DefaultColorDepth = depth;
            UsePackbits = packs;

            CompileIconset(TargetFromFlags());

            const Bytes family = Saved()[0].data;
            const std::size_t mark = ByteView(family).U16(10) * std::size_t{ 4 };
            EXPECT_EQ((family[6] & 0x80) != 0, packs) << BitsOf(depth);
            EXPECT_EQ((family[mark + 16 + 6] & 0x80) != 0, packs) << BitsOf(depth);
            EXPECT_EQ(family[8], BitsOf(depth));
            EXPECT_EQ(family[mark + 16 + 8], BitsOf(depth));
        }
}

TEST_F(Compiling, AHighResPictureOnlyLeavesTheLowResColumnEmpty)
{
    Add("A (Large Icon)", 3500, false, true);

    const auto rows = PictureRows();

    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].lowFile, "");
    EXPECT_EQ(rows[0].highFile, "tAIB3500-d144.bmp");
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

    CompileIconset(TargetFromFlags());

    EXPECT_FALSE(FileExists(WorkPath("iTbl1000.bin")));
}

TEST_F(Compiling, TbmpResourcesOnlyGiveNoIndex)
{
    Add("Alpha (Large Icon)", 3500, true, false, "APP", 1, "Tbmp");

    CompileIconset(TargetFromFlags());

    EXPECT_EQ(Load(FileName), LoadResult::Opened);
    EXPECT_THAT(Labels(), ElementsAre("Tbmp3500 () "));
}

TEST_F(Compiling, BacksUpTheOldFile)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    WriteText(FileName, "old");
    WriteText(FileName + ".bak", "older");
    const auto mine = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    std::filesystem::permissions(FileName, mine);

    CompileIconset(TargetFromFlags());

    EXPECT_EQ(ReadText(FileName + ".bak"), "old");
#ifndef _WIN32 // where files have other rights
    EXPECT_EQ(std::filesystem::status(FileName + ".bak").permissions(), mine);
#endif
}

TEST_F(Compiling, MakesNoBackupUnderANewNameOrWithoutTheOption)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    WriteText(FileName, "old");

    SavingAs = true;
    CompileIconset(TargetFromFlags());
    SavingAs = false;
    CreateBackup = false;
    CompileIconset(TargetFromFlags());

    EXPECT_FALSE(FileExists(FileName + ".bak"));
}

TEST_F(Compiling, TheTargetAndNoFlagSaysWhereAndWhetherWithABackup)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    const std::string path = folder.File("target.prc");
    WriteText(path, "old");
    FileName.clear();
    SavingAs = true;
    CreateBackup = false;

    CompileIconset({ .path = path, .backUp = true });

    EXPECT_EQ(ReadText(path + ".bak"), "old");
    EXPECT_GT(ReadBytes(path).size(), 78u);
}

TEST_F(Compiling, AMissingWorkingFileIsAFailureAndTheOldFileStands)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    std::filesystem::remove(WorkPath("tAIB3500.bmp"));
    CreateBackup = false;
    WriteText(FileName, "old");

    EXPECT_THROW(CompileIconset(TargetFromFlags()), SaveFailure);

    EXPECT_EQ(ReadText(FileName), "old");
}

TEST_F(Compiling, ABackupThatCannotBeMadeIsAFailure)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    WriteText(FileName, "old");
    MakeFolder(FileName + ".bak");

    EXPECT_EQ(WhyNot(), FileName + ".bak: there is a folder of this name");

    EXPECT_EQ(ReadText(FileName), "old");
}

TEST_F(Compiling, AFolderThatIsMissingIsNamedInPlaceOfTheFile)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    FileName = folder.File("gone/set.prc");

#ifdef _WIN32
    const std::string why = std::error_code(3, std::system_category()).message();
#else
    const std::string why = "No such file or directory";
#endif
    EXPECT_EQ(WhyNot(), folder.File("gone") + ": " + why);
}

TEST_F(Compiling, FailuresSayWhichFileAndWhy)
{
    Add("Alpha (Large Icon)", 3500, true, true);
    const std::string low = WorkPath("tAIB3500.bmp"), high = WorkPath("tAIB3500-d144.bmp");

    WriteText(high, "BM");
    EXPECT_EQ(
        WhyNot(), "The high-res picture of Alpha (Large Icon): it can't be read as a picture");

    std::filesystem::remove(low);
    EXPECT_EQ(
        WhyNot(), "The low-res picture of Alpha (Large Icon): it is missing or can't be read");
}

TEST_F(Compiling, AScratchFileThatCannotBeWrittenIsAFailure)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    const std::pair<const char*, const char*> files[] = {
        { "tver1000.bin", "The version text: " },
        { "iTbl1000.bin", "The index of icons: " },
    };
    for (const auto& [name, words] : files) {
        MakeFolder(WorkPath(name));

        EXPECT_THAT(WhyNot(), StartsWith(words));

        std::filesystem::remove(WorkPath(name));
    }
    EXPECT_FALSE(FileExists(FileName));
    EXPECT_EQ(WhyNot(), "");
}

#ifndef _WIN32

TEST_F(Compiling, AnOldScratchFileThatCannotBeDeletedIsAFailure)
{
    namespace fs = std::filesystem;
    Add("Alpha (Large Icon)", 3500, true, false);
    WriteBytes(WorkPath("old.bin"), Bytes(16, 1));
    fs::permissions(folder.Path(), fs::perms::all);
    const auto anyone = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read
        | fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    fs::permissions(WorkFolder(), anyone);
    {
        const CommonUser common;

        EXPECT_EQ(WhyNot(), "The working folder: what an earlier save left there can't be deleted");
    }
    fs::permissions(WorkFolder(), fs::perms::all);
    EXPECT_FALSE(FileExists(FileName));
}

TEST_F(Compiling, ANameWithAStarOrAQuestionMarkIsJustAName)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    WriteText(folder.File("out1.prc"), "another");
    FileName = folder.File("out?.prc");

    EXPECT_EQ(WhyNot(), "");

    EXPECT_THAT(SavedKeys(), ElementsAre("tAIB3500", "tver1000", "iTbl1000"));
    EXPECT_EQ(ReadText(folder.File("out1.prc")), "another");
    EXPECT_FALSE(std::filesystem::exists(FileName + ".bak"));
}

#endif

TEST_F(Compiling, AnOldFileThatCannotBeReadForItsBackupIsAFailure)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    MakeFolder(FileName);

    EXPECT_EQ(WhyNot(), FileName + ": the old file can't be read for its backup");
}

TEST_F(Compiling, APictureTooLargeForItsRecordIsAFailureAndTheOldFileStands)
{
    Add("Alpha (Large Icon)", 3500, true, true);
    WriteBytes(WorkPath("tAIB3500.bmp"), EncodeBmp24(vypx::Picture(400, 400)));
    WriteText(FileName, "old");
    CreateBackup = UsePackbits = false;

    EXPECT_EQ(WhyNot(),
        "The low-res picture of Alpha (Large Icon): this picture is too large for a Palm bitmap of "
        "this depth");

    EXPECT_EQ(ReadText(FileName), "old");
    DefaultColorDepth = ColorDepth::Bits8;
    EXPECT_EQ(WhyNot(), "") << "160 KB can be told";
}

TEST_F(Compiling, AFlaggedPictureOfFewBitsTakesTheColourOfItsIndex)
{
    BitmapTable = {
        { .file = "a.bmp", .hasTransparent = 1, .index = 1, .depth = 1 },
        {},
        { "b.bmp", 1, 5, 255, 0, 255, 8 },
        { .file = "c.bmp", .hasTransparent = 1, .index = 1, .depth = 2 },
        { .file = "d.bmp", .hasTransparent = 0, .index = 1, .depth = 2 },
    };

    const auto rows = TransparencyRows();

    ASSERT_EQ(rows.size(), 5u);
    const auto told = [&](std::size_t i) {
        return rows[i].file + " " + rows[i].flag + " " + rows[i].red + "," + rows[i].green + ","
            + rows[i].blue;
    };
    EXPECT_EQ(told(0), "a.bmp 1 0,0,0");
    EXPECT_EQ(told(1), "  ,,");
    EXPECT_EQ(told(2), "b.bmp 1 255,0,255");
    EXPECT_EQ(told(3), "c.bmp 1 170,170,170");
    EXPECT_EQ(told(4), "d.bmp 0 ,,");
}

/// A black-and-white mask is opened, saved at 8 bits and opened again.
TEST_F(Compiling, ABlackAndWhiteIconKeepsItsMask)
{
    const Bytes mono = Hex("0010 0001 0002 2000 01 02 0000 00 FF 0000 AAAA 0000");
    ASSERT_EQ(Open(Iconset{ .name = "Set",
                  .resources = { test::Index({ IndexRecord("appl", "ALPH", 3500, 0) }),
                      { "tAIB", 3500, mono } } }
                       .File()),
        LoadResult::Opened);
    FileName = folder.File("out.prc");
    DefaultColorDepth = ColorDepth::Bits8;

    CompileIconset(TargetFromFlags());

    const Bytes record = Saved()[0].data;
    EXPECT_EQ(record[8], 8);
    EXPECT_EQ(record[6] & 0x20, 0x20);
    EXPECT_EQ(record[12], 0) << "white, which index 0 is in both palettes";
}

} // namespace
} // namespace vypx::test
