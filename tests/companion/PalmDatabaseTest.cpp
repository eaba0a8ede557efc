#include "companion/PalmDatabase.h"

#include "companion/BmpFile.h"
#include "companion/NearestColour.h"
#include "companion/PalmRecord.h"
#include "companion/PixelBuffer.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// Two pixels: white, and (255, 0, 255), which is index 5.
Picture TwoPixels()
{
    Picture picture(2, 1);
    picture.Set(0, 0, { 255, 255, 255 });
    picture.Set(1, 0, { 255, 0, 255 });
    return picture;
}

RecordForm Form(int depth, bool packed = false)
{
    return { .depth = depth, .packed = packed, .palette8 = Palette8, .palette4 = Palette4 };
}

TEST(PalmRecord, LowDensityAt8Bits)
{
    EXPECT_EQ(EncodeLowDensity(TwoPixels(), Form(8), Rgb{ 255, 0, 255 }, false),
        Hex("0002 0001 0002 2000 08 02 0000 05 FF 0000 0005 0000"));
}

TEST(PalmRecord, LowDensityAt4BitsTakesTheHighNibbleFirst)
{
    EXPECT_EQ(EncodeLowDensity(TwoPixels(), Form(4), std::nullopt, false),
        Hex("0002 0001 0002 0000 04 02 0000 00 FF 0000 0500 0000"));
}

TEST(PalmRecord, LowDensityAt16BitsHasADirectColourBlock)
{
    // The colour is the one that the pixels widen back to: 250 has 30 in 5 bits, 30 x 255 / 31 =
    // 247
    EXPECT_EQ(EncodeLowDensity(TwoPixels(), Form(16), Rgb{ 250, 0, 255 }, false),
        Hex("0002 0001 0004 2400 10 02 0000 00 FF 0000 050605 00 00 F700FF FFFF F81F"));
}

TEST(PalmRecord, ALowDensityRecordLeadsToWhatFollows)
{
    const Bytes record = EncodeLowDensity(TwoPixels(), Form(8), std::nullopt, true);

    EXPECT_EQ(record.size(), 20u);
    EXPECT_EQ(record[11], 5) << "in units of four bytes";
}

TEST(PalmRecord, HighDensityAt8And16Bits)
{
    EXPECT_EQ(EncodeHighDensity(TwoPixels(), Form(8), Rgb{ 255, 0, 255 }),
        Hex("0002 0001 0002 2000 08 03 18 00 00 FF 0090 00000005 00000000 0005 0000"));
    EXPECT_EQ(EncodeHighDensity(TwoPixels(), Form(16), Rgb{ 255, 0, 255 }),
        Hex("0002 0001 0004 2400 10 03 18 01 00 FF 0090 0000F81F 00000000 FFFF F81F"));
}

TEST(PalmRecord, HighDensityAt4Bits)
{
    EXPECT_EQ(EncodeHighDensity(TwoPixels(), Form(4), Black),
        Hex("0002 0001 0002 2000 04 03 18 00 00 FF 0090 0000000F 00000000 0500 0000"));
}

TEST(PalmRecord, PackedPixelsAt16BitsArePairs)
{
    Picture flat(4, 1);
    for (int x = 0; x < 4; ++x)
        flat.Set(x, 0, { 255, 0, 255 });

    EXPECT_EQ(EncodeLowDensity(flat, Form(16, true), std::nullopt, false),
        Hex("0004 0001 0008 8400 10 02 0000 00 02 0000 050605 00 00 000000 0005 FDF81F 000000"));
    EXPECT_EQ(EncodeHighDensity(flat, Form(16, true), std::nullopt),
        Hex("0004 0001 0008 8400 10 03 18 01 00 02 0090 00000000 00000000 00000007 FDF81F 00"));
}

TEST(PalmRecord, ARowOfMoreBytesThanItsFieldTellsIsRefused)
{
    const Picture wide(32767, 1), wider(32768, 1), wideIndexed(65534, 1), widerIndexed(65535, 1);

    EXPECT_NO_THROW(EncodeHighDensity(wide, Form(16), std::nullopt));
    EXPECT_THROW(EncodeHighDensity(wider, Form(16), std::nullopt), RecordTooLarge);
    EXPECT_THROW(EncodeLowDensity(wider, Form(16), std::nullopt, false), RecordTooLarge);
    EXPECT_NO_THROW(EncodeLowDensity(wideIndexed, Form(8), std::nullopt, false));
    EXPECT_THROW(EncodeLowDensity(widerIndexed, Form(8), std::nullopt, false), RecordTooLarge);
}

TEST(PalmRecord, RowsBeyondWhatAReaderExpandsAreTooMany)
{
    // Five columns and one row more: 4096 rows of 65,533 bytes are just below 256 MiB.
    EXPECT_TRUE(PixelBuffer::Holds(65528, 4095));
    EXPECT_FALSE(PixelBuffer::Holds(65528, 4096));
}

TEST(PalmRecord, ANextRecordFartherThanItsFieldTellsIsRefused)
{
    // 16 bytes of header and 4 for each row: 65535 and 65536 times 4 bytes
    const Picture large(4, 65531), larger(4, 65532);

    const Bytes record = EncodeLowDensity(large, Form(8), std::nullopt, true);
    EXPECT_EQ(Bytes(record.begin() + 10, record.begin() + 12), Hex("FFFF"));
    EXPECT_EQ(record.size(), 65535u * 4);
    EXPECT_THROW(EncodeLowDensity(larger, Form(8), std::nullopt, true), RecordTooLarge);
    EXPECT_NO_THROW(EncodeLowDensity(larger, Form(8), std::nullopt, false)) << "nothing follows";
}

TEST(PalmRecord, PackedPixelsStandBehindTheirSize)
{
    Picture flat(4, 1);
    for (int x = 0; x < 4; ++x)
        flat.Set(x, 0, { 255, 0, 255 });

    EXPECT_EQ(EncodeLowDensity(flat, Form(8, true), std::nullopt, false),
        Hex("0004 0001 0004 8000 08 02 0000 00 02 0000 0004 FD05"));
    EXPECT_EQ(EncodeHighDensity(flat, Form(8, true), std::nullopt),
        Hex("0004 0001 0004 8000 08 03 18 00 00 02 0090 00000000 00000000 00000006 FD05 0000"));
}

TEST(PalmRecord, LowDensityPixelsThatASizeOf16BitsCannotTellAreNotPacked)
{
    Picture noise(300, 300);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
            noise.Set(x, y, Palette8[static_cast<std::size_t>((x * 7 + y * 13 + x * y) % 200)]);

    const Bytes record = EncodeLowDensity(noise, Form(8, true), std::nullopt, false);

    EXPECT_EQ(record[6] & 0x80, 0);
    EXPECT_EQ(record.size(), 16u + 300 * 300);
}

class Database : public ::testing::Test {
protected:
    Database()
    {
        WriteBytes(folder.File("tver1000.bin"), Hex("332E3230 00"));
        WriteBytes(folder.File("iTbl1000.bin"), Bytes(16, 7));
        WriteBytes(folder.File("a.bmp"), EncodeBmp24(TwoPixels()));
    }

    std::optional<CompileFailure> Compile(
        const std::vector<ResourceRow>& rows, const std::string& name = "Name")
    {
        return CompilePRC(rows, {}, Palette8, Palette4, 8, false, out, name, folder.Path() + "/");
    }
    Bytes Out() const { return ReadBytes(out); }

    TempFolder folder;
    std::string out = folder.File("out.prc");
};

const ResourceRow Version{ "tver1000", "tver1000", "tver1000" };
const ResourceRow Index{ "iTbl1000", "iTbl1000", "iTbl1000" };

TEST_F(Database, OfPlainFilesOnlyIsAValidOneWithoutAPicture)
{
    EXPECT_FALSE(Compile({ Version, Index }));

    const Bytes file = Out();
    EXPECT_EQ(Bytes(file.begin(), file.begin() + 5), Hex("4E616D6500"));
    EXPECT_EQ(Bytes(file.begin() + 32, file.begin() + 36), Hex("0001 0001"));
    EXPECT_EQ(Bytes(file.begin() + 60, file.begin() + 68), Hex("49434F4E 564E5452"));
    EXPECT_EQ(Bytes(file.begin() + 76, file.begin() + 98),
        Hex("0002 74766572 03E8 0000006C 6954626C 03E8 00000072"));
    EXPECT_EQ(Bytes(file.begin() + 98, file.begin() + 108), Bytes(10, 0)) << "a whole entry";
    EXPECT_EQ(Bytes(file.begin() + 108, file.end()),
        Hex("332E323000 00 07070707070707070707070707070707"))
        << "each resource begins at an even offset";
}

TEST_F(Database, CountsItsDatesFrom1904)
{
    Compile({ Version });

    const Bytes bytes = Out();
    const std::uint32_t created = ByteView(bytes).U32(36);
    const auto now = static_cast<std::uint32_t>(std::time(nullptr) + 2082844800);
    EXPECT_NEAR(created, now, 5);
    EXPECT_EQ(ByteView(bytes).U32(40), created);
}

TEST_F(Database, ANameOfMoreThan31CharactersIsCutBeforeItsZero)
{
    Compile({ Version }, std::string(40, 'x'));

    const Bytes file = Out();
    EXPECT_EQ(file[30], 'x');
    EXPECT_EQ(file[31], 0);
}

TEST_F(Database, AFamilyIsLowThenMarkThenHigh)
{
    Compile({ { "a.bmp", "a.bmp", "tAIB3500" } });

    const Bytes file = Out();
    const Bytes low = EncodeLowDensity(TwoPixels(), Form(8), std::nullopt, true);
    const Bytes high = EncodeHighDensity(TwoPixels(), Form(8), std::nullopt);
    Bytes expected = Join({ low, HighDensityMark(), high });
    EXPECT_EQ(Bytes(file.begin() + 98, file.end()), expected);
    EXPECT_EQ(Bytes(file.begin() + 78, file.begin() + 84), Hex("74414942 0DAC"));
}

TEST_F(Database, WithAHighResPictureOnlyTheMarkComesFirst)
{
    Compile({ { "", "a.bmp", "Tbmp1" } });

    EXPECT_EQ(Out()[98 + 8], 0xFF);
}

TEST_F(Database, AMissingPictureIsAFailureAndNoFileAppears)
{
    const auto failure = Compile({ { "gone.bmp", "", "tAIB3500" } });

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->reason, "it is missing or can't be read");
    EXPECT_EQ(platform::NativePath(failure->file), platform::NativePath(folder.File("gone.bmp")));
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(Database, ARecordIsTransparentByTheLastRowOfItsFileWithTheFlagAndAColour)
{
    const TransparencyRow blank{ .flag = "1", .red = "1", .green = "1", .blue = "1" };
    const TransparencyRow other{ "b.bmp", "1", "9", "9", "9" };
    const TransparencyRow yes{ "a.bmp", "1", "255", "0", "255" };
    const TransparencyRow unflagged{ "a.bmp", "0", "255", "0", "255" };
    const TransparencyRow colourless{ "a.bmp", "1", "", "", "" };
    const TransparencyRow noNumber{ "a.bmp", "1", "red", "0", "0" };
    const TransparencyRow tooLarge{ "a.bmp", "1", "256", "0", "0" };
    const auto index = [&](const std::vector<TransparencyRow>& rows) {
        const ResourceRow row{ .lowFile = "a.bmp", .highFile = "", .key = "tAIB3500" };
        EXPECT_FALSE(CompilePRC(
            { { row } }, rows, Palette8, Palette4, 8, false, out, "Name", folder.Path() + "/"));
        return (Out()[98 + 6] & 0x20) != 0 ? Out()[98 + 12] : -1;
    };

    EXPECT_EQ(index({ blank, other, yes }), 5);
    EXPECT_EQ(index({ yes, blank, other }), 5);
    EXPECT_EQ(index({ unflagged, yes }), 5);
    EXPECT_EQ(index({ yes, unflagged }), -1);
    for (const TransparencyRow& row : { unflagged, colourless, noNumber, tooLarge, blank, other })
        EXPECT_EQ(index({ row }), -1);
}

TEST_F(Database, HoldsNoMoreResourcesThanReadersTake)
{
    EXPECT_FALSE(Compile(std::vector<ResourceRow>(2000, Version)));
    WriteText(out, "old");

    const auto failure = Compile(std::vector<ResourceRow>(2001, Version));

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->reason, "an iconset holds 2000 resources at most");
    EXPECT_EQ(ReadText(out), "old");
}

TEST_F(Database, HoldsNoLargerResourceThanReadersTake)
{
    // The last resource is read as one byte more.
    WriteBytes(folder.File("tver1000.bin"), Bytes(9'999'999, 1));
    EXPECT_FALSE(Compile({ Version }));
    WriteBytes(folder.File("tver1000.bin"), Bytes(10'000'000, 1));

    const auto failure = Compile({ Version });

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->reason, "tver1000 would be 10000000 bytes or more");
    EXPECT_EQ(failure->file, out);
    EXPECT_EQ(Out().size(), 98u + 9'999'999) << "the old file stands";
}

TEST_F(Database, HoldsNoResourceBehind16MiB)
{
    // Three entries and the zeros behind them end at 118: the third body begins at 16,777,214.
    WriteBytes(folder.File("tver1000.bin"), Bytes(8'388'548, 1));
    EXPECT_FALSE(Compile({ Version, Version, Index }));
    EXPECT_EQ(Out().size(), 16'777'214u + 16);
    WriteBytes(folder.File("tver1000.bin"), Bytes(8'388'549, 1));

    const auto failure = Compile({ Version, Version, Index });

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->reason, "no resource can begin behind the first 16 MiB");
}

TEST_F(Database, AFailureLeavesTheOldFile)
{
    WriteText(out, "old");
    WriteText(folder.File("bad.bmp"), "no picture");

    EXPECT_TRUE(Compile({ { "bad.bmp", "", "tAIB3500" } }));
    EXPECT_TRUE(CompilePRC(
        {}, {}, Palette8, Palette4, 8, false, folder.File("no/out.prc"), "", folder.Path() + "/"));

    EXPECT_EQ(ReadText(out), "old");
}

TEST_F(Database, WithoutAFileNameNothingIsWritten)
{
    const auto failure =
        CompilePRC({ { Version } }, {}, Palette8, Palette4, 8, false, "", "N", folder.Path() + "/");

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->reason, "there is no file name");
    EXPECT_EQ(failure->file, "");
}

TEST_F(Database, APictureMayBearTheKeysName)
{
    WriteBytes(folder.File("tAIB3500"), EncodeBmp24(TwoPixels()));
    const Bytes record = EncodeLowDensity(TwoPixels(), Form(8), std::nullopt, false);

    EXPECT_FALSE(Compile({ { "tAIB3500", "", "tAIB3500" } }));
    const Bytes file = Out();
    EXPECT_EQ(Bytes(file.begin() + 98, file.end()), record);
    EXPECT_FALSE(Compile({ { "", "tAIB3500", "tAIB3500" } }));
    EXPECT_EQ(Out().at(98 + 8), 0xFF);
}

TEST_F(Database, AnIdIsTheNumberBehindTheType)
{
    const auto id = [&](const std::string& key) {
        EXPECT_FALSE(Compile({ { "a.bmp", "", key } }));
        return ByteView(Out()).U16(82);
    };

    EXPECT_EQ(id("tAIB3500"), 3500);
    EXPECT_EQ(id("tAIB3500(Dup)"), 3500);
    EXPECT_EQ(id("Tbmp65535"), 65535);
    EXPECT_EQ(id("Tbmp0019"), 19);
    EXPECT_EQ(id("Tbmp"), 0);
    EXPECT_EQ(id("Tbmp/9"), 0) << "the character before 0";
    EXPECT_EQ(id("Tbmp1:9"), 1) << "the character behind 9";
}

TEST_F(Database, AColourWithoutAllOfItsNumbersIsNone)
{
    for (const TransparencyRow& row : { TransparencyRow{ "a.bmp", "1", "255", "", "255" },
             TransparencyRow{ "a.bmp", "1", "255", "0", "" },
             TransparencyRow{ "a.bmp", "1", "255", "-1", "255" },
             TransparencyRow{ "a.bmp", "1", "255", "0", "256" } }) {
        const std::vector<TransparencyRow> rows{ row };
        EXPECT_FALSE(CompilePRC({ { { "a.bmp", "", "Tbmp1" } } }, rows, Palette8, Palette4, 8,
            false, out, "Name", folder.Path() + "/"));
        EXPECT_EQ(Out()[98 + 6], 0) << row.red << row.green << row.blue;
    }
}

TEST(WriteItbl, SortsByClassAndThenByCreatorWithTheLargeIdFirst)
{
    const TempFolder folder;
    const std::vector<ItblValue> values{
        { 0x70616E6C, 0x41414141, 3501, 3500 }, // a panel
        { 0x6170706C, 0x62626262, 3503, 0 },
        { 0x6170706C, 0x41414141, 0, 3504 },
    };
    const std::vector<ItblKey> keys{ { 2e13, 1 }, { 1e13, 500 }, { 1e13, 2 } };

    EXPECT_FALSE(WriteItbl(values, keys, folder.File("i.bin")));

    EXPECT_EQ(ReadBytes(folder.File("i.bin")),
        Hex("6170706C 41414141 0DB0 0000 00000000"
            "6170706C 62626262 0000 0DAF 00000000"
            "70616E6C 41414141 0DAC 0DAD 00000000"));
}

} // namespace
} // namespace vypx::test
