#include "reader/BitmapDecoder.h"

#include "companion/BmpFile.h"
#include "reader/ExtractBitmaps.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// One resource in hand, carried by one row.
class Decoder : public LoadFixture {
protected:
    void Decode(const Bytes& family)
    {
        walk.ResourceName = "Tbmp1000";
        IconTable.assign(1, { .ResourceKey = "Tbmp1000", .HighResFile = "before" });
        BitmapTable.assign(1, {});
        BitmapRow = 0;
        walk.ResourceBytes = Join({ Bytes{ 0 }, family });
        BitmapDecoder(walk, listener).DecodeBitmapFamily();
    }

    /// Names of the working files.
    std::vector<std::string> Files()
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(WorkFolder()))
            names.push_back(platform::Utf8Path(entry.path().filename()));
        std::sort(names.begin(), names.end());
        return names;
    }
    static Picture Working(const std::string& name)
    {
        return DecodeBmp(ReadBytes(WorkPath(name))).value_or(Picture());
    }

    WalkState walk;
};

/// A low-density header and pixel data.
Bytes Low(const std::string& header, const std::string& pixels)
{
    return Join({ Hex(header), Hex(pixels) });
}

// width height rowBytes flags size version next index form
constexpr const char* Eight = "0002 0001 0002 0000 08 01 0000 00 00 0000";

TEST_F(Decoder, ASingleBitmapGivesOneFileAndLeavesTheHighResCell)
{
    Decode(Low(Eight, "00D7"));

    EXPECT_THAT(Files(), ElementsAre("Tbmp1000.bmp"));
    EXPECT_EQ(IconTable[0].LowResFile, "Tbmp1000.bmp");
    EXPECT_EQ(IconTable[0].HighResFile, "before");
    const Picture picture = Working("Tbmp1000.bmp");
    ASSERT_EQ(picture.Width(), 2);
    EXPECT_EQ(picture.At(0, 0), (Rgb{ 255, 255, 255 }));
    EXPECT_EQ(BitmapRow, 1);
}

TEST_F(Decoder, OfAChainOnlyTheLastRecordIsDecoded)
{
    Decode(Join({ LowRecord(1, false), LowRecord(2, false), LowRecord(4, false),
        Low("0003 0001 0004 0000 08 01 0000 00 00 0000", "00000000") }));

    EXPECT_THAT(Files(), ElementsAre("Tbmp1000.bmp"));
    EXPECT_EQ(Working("Tbmp1000.bmp").Width(), 3);
    EXPECT_EQ(BitmapTable[0].depth, 8);
}

TEST_F(Decoder, AResourceThatBeginsWithTheMarkGivesOnlyTheHighResFile)
{
    Decode(Join({ Separator(), HighRecord(8) }));

    EXPECT_THAT(Files(), ElementsAre("Tbmp1000-d144.bmp"));
    EXPECT_EQ(IconTable[0].LowResFile, "");
    EXPECT_EQ(IconTable[0].HighResFile, "Tbmp1000-d144.bmp");
}

TEST_F(Decoder, LowAndHighDensityAreDecodedInThisOrder)
{
    Bytes low = LowRecord(4);
    PutU16(low, 10, static_cast<unsigned>(low.size() / 4));

    Decode(Join({ low, Separator(), HighRecord(1, false), HighRecord(8) }));

    EXPECT_THAT(Files(), ElementsAre("Tbmp1000-d144.bmp", "Tbmp1000.bmp"));
    ASSERT_EQ(BitmapRow, 2);
    EXPECT_EQ(BitmapTable[0].file, "Tbmp1000.bmp");
    EXPECT_EQ(BitmapTable[1].file, "Tbmp1000-d144.bmp");
    EXPECT_EQ(BitmapTable[1].depth, 8);
    EXPECT_THAT(listener.steps, IsEmpty()) << "no more than BitmapCount steps are shown";
}

TEST_F(Decoder, OnPurposeOfTwoHighDensityRecordsOfOneDepthTheFirstIsTaken)
{
    Bytes first = HighRecord(8, false), second = HighRecord(8);
    first[24] = 0;    // white
    second[24] = 215; // another colour

    Decode(Join({ Separator(), first, second }));

    EXPECT_EQ(Working("Tbmp1000-d144.bmp").At(0, 0), (Rgb{ 255, 255, 255 }));
}

TEST_F(Decoder, AHighDensityMemberBehindAChainThatEndedIsNotFound)
{
    Decode(Join({ LowRecord(8), Separator(), HighRecord(8) }));

    EXPECT_THAT(Files(), ElementsAre("Tbmp1000.bmp"));
}

TEST_F(Decoder, EveryRowOfTheResourceGetsTheFile)
{
    walk.ResourceName = "Tbmp1000";
    IconTable.assign(3, {});
    IconTable[0].ResourceKey = IconTable[2].ResourceKey = "Tbmp1000";
    IconTable[1].ResourceKey = "Tbmp1001";
    walk.ResourceBytes = Join({ Bytes{ 0 }, LowRecord(8) });

    BitmapDecoder(walk, listener).DecodeBitmapFamily();

    EXPECT_EQ(IconTable[0].LowResFile, "Tbmp1000.bmp");
    EXPECT_EQ(IconTable[1].LowResFile, "");
    EXPECT_EQ(IconTable[2].LowResFile, "Tbmp1000.bmp");
}

TEST_F(Decoder, WithoutTheFlagTheColourCellsStayEmpty)
{
    Decode(Low("0002 0001 0002 0000 08 01 0000 07 00 0000", "0000"));

    EXPECT_EQ(
        BitmapTable[0], (BitmapEntry{ .file = "Tbmp1000.bmp", .hasTransparent = 0, .depth = 8 }));
}

TEST_F(Decoder, EightBitsTakeTheColourOfTheirIndex)
{
    Decode(Low("0002 0001 0002 2000 08 01 0000 05 00 0000", "0000"));

    EXPECT_EQ(BitmapTable[0], (BitmapEntry{ "Tbmp1000.bmp", 1, 5, 255, 0, 255, 8 }));
}

TEST_F(Decoder, FourBitsTakeTheirGrey)
{
    Decode(Low("0002 0001 0002 2000 04 01 0000 07 00 0000", "0000"));

    EXPECT_EQ(BitmapTable[0], (BitmapEntry{ "Tbmp1000.bmp", 1, 7, 136, 136, 136, 4 }));
}

TEST_F(Decoder, OnPurposeOneAndTwoBitsKeepTheIndexOnly)
{
    Decode(Low("0002 0001 0002 2000 02 01 0000 03 00 0000", "0000"));
    EXPECT_EQ(BitmapTable[0],
        (BitmapEntry{ .file = "Tbmp1000.bmp", .hasTransparent = 1, .index = 3, .depth = 2 }));

    Decode(Low("0002 0001 0002 2000 01 01 0000 01 00 0000", "0000"));
    EXPECT_EQ(BitmapTable[0].red, std::nullopt);
}

TEST_F(Decoder, SixteenBitsLowDensityTakeTheirColourAsItStands)
{
    Decode(Low("0001 0001 0002 2000 10 02 0000 09 00 0000 050605 00 00 4B96D7", "FFFF"));

    EXPECT_EQ(
        BitmapTable[0], (BitmapEntry{ "Tbmp1000.bmp", 1, std::nullopt, 0x4B, 0x96, 0xD7, 16 }));
}

/// Header of a 16-bit record of high density with this transparent value.
Bytes High16(const std::string& transparentValue)
{
    return Low(
        "0001 0001 0002 2000 10 03 18 00 01 00 0090 " + transparentValue + " 00000000", "FFFF");
}

TEST_F(Decoder, SixteenBitsHighDensityWidenTheirColour)
{
    Decode(Join({ Separator(), High16("0000C51C") }));

    // 0xC51C: red 24, green 40, blue 28; 24 * 255 / 31 = 197.4, 40 * 255 / 63 = 161.9,
    // 28 * 255 / 31 = 230.3
    EXPECT_EQ(
        BitmapTable[0], (BitmapEntry{ "Tbmp1000-d144.bmp", 1, std::nullopt, 197, 162, 230, 16 }));
}

TEST_F(Decoder, HighDensityIndexesStandAtTheEndOfTheirField)
{
    Decode(Join({ Separator(),
        Low("0002 0001 0002 2000 08 03 18 00 09 00 0090 00000006 00000000", "0000") }));

    EXPECT_EQ(BitmapTable[0].index, 6);
    EXPECT_EQ(BitmapTable[0].blue, 204);
}

TEST_F(Decoder, EightBitsAtAWorkingDepthOfFourAreReducedWithTheirColour)
{
    DefaultColorDepth = ColorDepth::Bits4;

    // Index 5 is (255, 0, 255); its nearest grey is 170, sum of squares 43350 against 43605 at 153
    Decode(Low("0001 0001 0002 2000 08 01 0000 05 00 0000", "0505"));

    EXPECT_EQ(BitmapTable[0].red, 170);
    EXPECT_EQ(BitmapTable[0].index, 5);
    EXPECT_EQ(Working("Tbmp1000.bmp").At(0, 0), (Rgb{ 170, 170, 170 }));
}

TEST_F(Decoder, FourBitsAtAWorkingDepthOfEightStayAsTheyAre)
{
    DefaultColorDepth = ColorDepth::Bits8;

    Decode(Low("0001 0001 0002 2000 04 01 0000 09 00 0000", "9900"));

    // The grey 102 stands in Palette8 as well; 9 * 17 = 153 from white is 102.
    EXPECT_EQ(Working("Tbmp1000.bmp").At(0, 0), (Rgb{ 102, 102, 102 }));
    EXPECT_EQ(BitmapTable[0].red, 102);

    Decode(Low("0001 0001 0002 2000 04 01 0000 01 00 0000", "1100"));
    EXPECT_EQ(BitmapTable[0].red, 238) << "no nearest colour is looked for";
}

TEST_F(Decoder, SixteenBitsAreReducedToTheWorkingDepth)
{
    const Bytes pink =
        Low("0001 0001 0002 2000 10 02 0000 00 00 0000 050605 00 00 F800F8", "F81F 0000");

    DefaultColorDepth = ColorDepth::Bits8;
    Decode(pink);
    EXPECT_EQ(Working("Tbmp1000.bmp").At(0, 0), (Rgb{ 255, 0, 255 }));
    EXPECT_EQ(BitmapTable[0].red, 255) << "248, 0, 248 is nearest to 255, 0, 255";

    DefaultColorDepth = ColorDepth::Bits4;
    Decode(pink);
    EXPECT_EQ(Working("Tbmp1000.bmp").At(0, 0), (Rgb{ 170, 170, 170 }));
}

TEST_F(Decoder, TheMaskColourOf16BitsIsFoundInThePicture)
{
    for (int value = 0; value < 65536; value += 257) {
        Bytes record = High16("00000000");
        PutU16(record, 18, static_cast<unsigned>(value));
        PutU16(record, 24, static_cast<unsigned>(value));

        Decode(Join({ Separator(), record }));

        const BitmapEntry& entry = BitmapTable[0];
        EXPECT_EQ(
            Working("Tbmp1000-d144.bmp").At(0, 0), (Rgb{ *entry.red, *entry.green, *entry.blue }))
            << value;
    }
}

TEST_F(Decoder, ACompressionOfAnyOtherTypeIsNone)
{
    Decode(Low("0004 0001 0004 8000 08 01 0000 00 FF 0000", "00010203"));

    const Picture picture = Working("Tbmp1000.bmp");
    EXPECT_EQ(picture.At(1, 0), (Rgb{ 255, 204, 255 })) << "no size field is passed over";
}

TEST_F(Decoder, CompressedDataStandBehindASizeField)
{
    Decode(Low("0004 0001 0004 8000 08 01 0000 00 01 0000 0004", "0400"));
    EXPECT_EQ(Working("Tbmp1000.bmp").At(3, 0), (Rgb{ 255, 255, 255 }));

    Decode(Join({ Separator(),
        Low("0004 0001 0004 8000 08 03 18 00 09 01 0090 00000000 00000000 00000006", "0401") }));
    EXPECT_EQ(Working("Tbmp1000-d144.bmp").At(3, 0), (Rgb{ 255, 204, 255 }));
}

TEST_F(Decoder, OnPurposeARecordIsReadIntoTwiceItsRoomAndZerosFollow)
{
    // Four rows of 4 bytes: 16 bytes of header and 8 of 16 pixel bytes are there; twice 24 are
    // enough for the rest as zeros, which are white.
    Decode(Low("0004 0004 0004 0000 08 01 0000 00 00 0000", "0505050505050505"));

    EXPECT_EQ(Working("Tbmp1000.bmp").At(0, 1), (Rgb{ 255, 0, 255 }));
    EXPECT_EQ(Working("Tbmp1000.bmp").At(0, 3), (Rgb{ 255, 255, 255 }));
}

TEST_F(Decoder, ARecordThatRunsBeyondThatThrows)
{
    EXPECT_THROW(Decode(Low("0004 0040 0004 0000 08 01 0000 00 00 0000", "05050505")), BrokenFile);
    EXPECT_THROW(Decode(Low("FFFF FFFF FFFF 0000 08 01 0000 00 00 0000", "05050505")), BrokenFile);
}

TEST_F(Decoder, APixelSizeThatNoBitmapHasThrows)
{
    EXPECT_THROW(Decode(Low("0001 0001 0002 0000 03 01 0000 00 00 0000", "0000")), BrokenFile);
}

TEST_F(Decoder, AFourBitIndexBeyondItsPaletteThrows)
{
    EXPECT_THROW(Decode(Low("0001 0001 0002 2000 04 01 0000 10 00 0000", "0000")), BrokenFile);
}

TEST_F(Decoder, AWidthThatTheRowsDoNotHoldMakesNoFileAndIsNotTold)
{
    Decode(Low("0009 0001 0004 0000 08 01 0000 00 00 0000", "00000000"));

    EXPECT_THAT(Files(), IsEmpty());
    EXPECT_EQ(IconTable[0].LowResFile, "Tbmp1000.bmp");
    EXPECT_EQ(BitmapRow, 1);
}

TEST_F(Decoder, LinksThatLeadNowhereEndTheWalkOfTheResource)
{
    Bytes low = LowRecord(8);
    PutU16(low, 10, 0x7000);
    Decode(low);
    EXPECT_THAT(Files(), IsEmpty());

    Bytes high = HighRecord(8);
    PutU32(high, 20, 0x700000);
    Decode(Join({ Separator(), high }));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Decoder, BytesBehindTheLastLowDensityRecordBelongToIt)
{
    Decode(Join({ LowRecord(8), Bytes(40, 0x55) }));

    EXPECT_THAT(Files(), ElementsAre("Tbmp1000.bmp"));
}

TEST_F(Decoder, AnEmptyResourceGivesNothing)
{
    Decode({});

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Decoder, MoreBitmapsThanWereCountedGrowTheTable)
{
    Bytes low = LowRecord(4);
    PutU16(low, 10, static_cast<unsigned>(low.size() / 4));
    Decode(Join({ low, Separator(), HighRecord(8) }));

    EXPECT_EQ(BitmapTable.size(), 2u);
}

TEST_F(Decoder, AnOverrunEndsTheLoadWithoutADocument)
{
    Resource broken = Icon(3500);
    PutU16(broken.data, 2, 0xFFFF); // height

    EXPECT_EQ(Open(Iconset{ .resources = { broken, Icon(3501) } }.File()), LoadResult::Failed);

    EXPECT_FALSE(FileLoaded);
    EXPECT_THAT(listener.messages, IsEmpty());
}

TEST_F(Decoder, ProgressIsToldForEachBitmap)
{
    Open(Iconset{ .resources = { Icon(3500), Icon(3501), Icon(3502) } }.File());

    std::vector<std::string> steps;
    for (const std::string& step : listener.steps)
        if (step.starts_with("progress:"))
            steps.push_back(step);
    EXPECT_THAT(steps, ElementsAre("progress:1", "progress:2", "progress:3"));
}

TEST_F(Decoder, HighResOnlyEmptiesTheLowResCellsAndKeepsTheFiles)
{
    HighResOnly = true;

    Open(Iconset{ .resources = { { "tAIB", 3500, LowRecord(8) },
                      { "tAIB", 3501, Join({ Separator(), HighRecord(8) }) } } }
             .File());

    EXPECT_EQ(IconTable[0].LowResFile, "NEW");
    EXPECT_EQ(IconTable[1].HighResFile, "tAIB3501-d144.bmp");
    EXPECT_EQ(BitmapTable[0].file, "");
    EXPECT_EQ(BitmapTable[1].file, "tAIB3501-d144.bmp");
    EXPECT_TRUE(FileExists(WorkPath("tAIB3500.bmp")));
}

TEST_F(Decoder, LowResOnlyEmptiesTheHighResCells)
{
    LowResOnly = true;

    Open(Iconset{ .resources = { { "tAIB", 3501, Join({ Separator(), HighRecord(8) }) } } }.File());

    EXPECT_EQ(IconTable[0].HighResFile, "NEW");
    EXPECT_EQ(BitmapTable[0].file, "");
}

} // namespace
} // namespace vypx::test
