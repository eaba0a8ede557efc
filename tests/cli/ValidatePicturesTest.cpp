#include "ValidateFixture.h"

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using ValidatePictures = ValidateFixture;

TEST_F(ValidatePictures, BitmapsAreJudged)
{
    const auto lineOf = [&](std::size_t at, std::uint8_t value) {
        PlainBitmap low{ .width = 32, .height = 22, .index = 1 };
        PlainBitmap high{ .index = 1, .high = true };
        Bytes family = Join({ low.Record(false), Separator(), high.Record() });
        family[at] = value;
        return LinesOf(With(family));
    };
    const std::size_t high = 16 + 32 * 22 + 16;
    EXPECT_THAT(lineOf(9, 3),
        ElementsAre("tAIB3500: its version is 3, which a handheld takes for another kind"));
    EXPECT_THAT(lineOf(high + 9, 2),
        ElementsAre("tAIB3500-d144: its version is 2, which a handheld takes for another kind"));
    EXPECT_THAT(lineOf(high + 15, 72), ElementsAre("tAIB3500-d144: its density is 72 and not 144"));
    EXPECT_THAT(lineOf(6, 0x40), ElementsAre("tAIB3500: its colour table is read as pixels"));
    EXPECT_THAT(lineOf(6, 0x80),
        ElementsAre("tAIB3500: its compression 255 is not known: it is read as not compressed"));
    EXPECT_THAT(lineOf(high + 1, 65),
        ::testing::IsSupersetOf({ "tAIB3500-d144: its rows are too short for 65 pixels",
            "tAIB3500-d144: it gives no picture: nothing can be saved",
            "tAIB3500-d144: it has 65 x 44 pixels, more than the 64 x 44 of \"Palm Date Book "
            "(Large Icon)\"" }));
    EXPECT_THAT(lineOf(high + 8, 7),
        ::testing::IsSupersetOf({ "load: The file could not be read.",
            "tAIB3500-d144: it has 7 bits a pixel: it can't be read" }));
    EXPECT_THAT(lineOf(10, 0xFF), Contains("tAIB3500: the chain of its bitmaps leads out of it"));
}

TEST_F(ValidatePictures, ATransparentColourBeyondThePaletteIsTold)
{
    Bytes record = LowRecord(4);
    record[6] = 0x20;
    record[12] = 16;
    EXPECT_THAT(LinesOf(With(record)),
        ::testing::IsSupersetOf({ "load: The file could not be read.",
            "tAIB3500: its transparent colour 16 is beyond the palette of 4 bits" }));
}

TEST_F(ValidatePictures, FurtherDepthsAndAMissingDensityAreTold)
{
    EXPECT_THAT(LinesOf(With(Join({ LowRecord(1, false), LowRecord(8) }))),
        ElementsAre("tAIB3500: it has 2 depths, of which only that of 8 bits is read and kept"));
    EXPECT_THAT(LinesOf(With(Join({ Separator(), PlainBitmap{ .high = true }.Record() }))),
        ElementsAre("tAIB3500: it has no low-density bitmap: a handheld with a low-density screen "
                    "shows nothing"));
}

TEST_F(ValidatePictures, PicturesThatGiveNoneKeepTheWholeSetFromBeingSaved)
{
    const PlainBitmap sound{ .width = 32, .height = 22, .index = 1 };
    for (const std::size_t side : { 0, 2 }) {
        Bytes none = sound.Record();
        PutU16(none, side, 0);
        EXPECT_THAT(LinesOf(With(none)),
            ElementsAre("tAIB3500: it has no pixels",
                "tAIB3500: it gives no picture: nothing can be saved"));
    }

    Bytes none = sound.Record();
    PutU16(none, 0, 0);
    WriteBytes(folder.File("set.prc"), With(none).File());
    const ToolRun saved = RunTool({ "convert", folder.File("set.prc"), folder.File("out.prc"),
        "--app-folder", VYPX_SHIPPED_DATA, "--work", folder.File("w") });
    EXPECT_EQ(saved.exitCode, 1) << "as a save finds";
}

/// As many as are opened, and a version text that a save adds.
TEST_F(ValidatePictures, OneResourceTooManyWithTheVersionTextIsTold)
{
    Iconset set;
    set.name = "Many";
    for (int i = 0; i < 1999; ++i)
        set.resources.push_back(
            { "tAIB", 3500 + i, PlainBitmap{ .width = 2, .height = 1, .index = 1 }.Record() });
    Bytes index = IndexRecord("appl", "date", 3500, 3501);
    for (int i = 2; i < 1999; ++i)
        index = Join({ index, IndexRecord("appl", std::to_string(1000 + i), 3500 + i, 0) });
    set.resources.push_back({ "iTbl", 1000, index });

    EXPECT_THAT(LinesOf(set),
        ElementsAre("save: an iconset holds 2000 resources at most: nothing can be saved"));
}

TEST_F(ValidatePictures, APictureTooLargeForItsFieldsIsTold)
{
    // A low-density record of more than 262140 bytes, packed here, that another one follows.
    Bytes record = PlainBitmap{ .width = 510, .height = 300, .index = 9 }.InRuns();
    PutU16(record, 10, static_cast<unsigned>(record.size() / 4));

    EXPECT_THAT(LinesOf(With(Join({ record, Separator(), PlainBitmap{ .high = true }.Record() }))),
        Contains("tAIB3500: this picture is too large for a Palm bitmap of this depth: nothing can "
                 "be saved"));
}

TEST_F(ValidatePictures, DataBeyondWhereResourcesBeginAreTold)
{
    // Packed here; 5 MB each at a save's 16 bits.
    const Bytes record = PlainBitmap{ .width = 2040, .height = 1200, .index = 9 }.InRuns();
    Iconset set = SoundSet();
    for (int i = 0; i < 4; ++i)
        set.resources.insert(set.resources.end() - 2, { "tAIB", 3600 + i, record });
    set.resources.back().data = Join({ IndexRecord("appl", "date", 3500, 3501),
        IndexRecord("appl", "AAAA", 3600, 3601), IndexRecord("appl", "BBBB", 3602, 3603) });

    EXPECT_THAT(LinesOf(set),
        Contains("save: no resource can begin behind the first 16 MiB: nothing can be saved"));
}

TEST_F(ValidatePictures, AnotherIndexOfTheTransparentColourIsTold)
{
    // Indices 230 and 231 of Palm OS's table are black both.
    PlainBitmap bitmap{
        .width = 32, .height = 22, .index = 231, .corner = 230, .transparent = true
    };
    EXPECT_THAT(LinesOf(With(bitmap.Record())),
        ElementsAre("tAIB3500: its pixels of the palette index 231 become transparent: their "
                    "colour is that of the transparent index 230"));
    bitmap.index = 5;
    EXPECT_THAT(LinesOf(With(bitmap.Record())), IsEmpty());
}

TEST_F(ValidatePictures, WhatStandsBehindTheLastBitmapIsTold)
{
    const Bytes low = PlainBitmap{ .width = 32, .height = 22, .index = 1 }.Record(),
                high = PlainBitmap{ .index = 1, .high = true }.Record();
    EXPECT_THAT(LinesOf(With(Join({ low, Separator(), high }))),
        ElementsAre("tAIB3500: a high-density bitmap stands behind it, to which no link leads: a "
                    "save leaves it out"));
    EXPECT_THAT(LinesOf(With(Join({ low, { 1, 2, 3, 4 } }))),
        ElementsAre("tAIB3500: 4 bytes stand behind its last bitmap: a save leaves them out"));
    EXPECT_THAT(LinesOf(With(Join({ low, { 0, 0, 0, 0 } }))), IsEmpty());
}

TEST_F(ValidatePictures, APixelFormatThatIsNotReadIsTold)
{
    Bytes high = PlainBitmap{ .width = 8, .height = 4, .index = 1, .high = true }.Record();
    high[11] = 3; // indexed, low byte first
    const Bytes low = PlainBitmap{ .width = 4, .height = 2, .index = 1 }.Record(false);
    EXPECT_THAT(LinesOf(With(Join({ low, Separator(), high }))),
        ElementsAre("tAIB3500-d144: its pixel format is 3, and it is read as 0"));
    high[8] = 16;
    high[11] = 2; // 5-6-5, low byte first
    PutU16(high, 0, 4);
    EXPECT_THAT(LinesOf(With(Join({ low, Separator(), high }))),
        ElementsAre("tAIB3500-d144: its pixel format is 2, and it is read as 1"));
}

TEST_F(ValidatePictures, PackedPixelsThatEndTooEarlyHaveAPlace)
{
    Bytes record = PlainBitmap{ .width = 32, .height = 22 }.Record();
    PutU16(record, 6, 0x8000);
    record[13] = 2; // PackBits: a run of 129 in a row of 32
    record.resize(24);
    record[18] = 0x80;
    EXPECT_THAT(LinesOf(With(record)),
        ElementsAre("load: The file could not be read.",
            "tAIB3500: its packed pixels end too early or run beyond their rows: no file with it "
            "can be opened"));
}

TEST_F(ValidatePictures, AnyDepthIsKept)
{
    for (const int depth : { 1, 2, 4, 8, 16 })
        EXPECT_THAT(LinesOf(With(LowRecord(depth))), IsEmpty()) << depth;
    EXPECT_THAT(LinesOf(With(Join({ LowRecord(8, false), LowRecord(1) }))),
        ElementsAre("tAIB3500: it has 2 depths, of which only that of 1 bit is read and kept"));
}

TEST_F(ValidatePictures, OfManyMembersThoseThatAreOpenedAreJudged)
{
    // The last low-density record is the 13th one; the walk that counts them ends before it.
    Bytes family;
    for (int i = 0; i < 12; ++i)
        family = Join({ family, LowRecord(1, false) });
    family = Join({ family, LowRecord(4) });
    const std::vector<std::string> lines = LinesOf(With(family));
    EXPECT_THAT(lines, Contains("tAIB3500: it has more bitmaps than the 11 that are looked at"));
    EXPECT_THAT(lines, Contains(HasSubstr("of which only that of 4 bits is read and kept")));
}

} // namespace
} // namespace vypx::test
