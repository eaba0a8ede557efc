#include "support/RowsFixture.h"

/// What becomes of pictures where an icon becomes one of the launcher.
namespace vypx::test {

namespace {

class AssignFiles : public RowsFixture {
protected:
    static constexpr const char* Icon = "Alpha (Large Icon)";
    static constexpr const char* Entry = "Start (Large Icon)";

    AssignFiles()
    {
        AddRow(Icon, "tAIB3500");
        Fill(SlotLG, Icon, Red);
        Fill(SlotSM, Icon, Blue);
        IconsetChanged = false;
    }

    static RowsOutcome Assign() { return ApplyAssignIcon(Request(Icon, Catalog::Launcher, Entry)); }
    /// The icon has its new names and the pictures that it had.
    static void ExpectMoved(Rgb high = Red, Rgb low = Blue)
    {
        EXPECT_EQ(Row(Entry).ResourceKey, "tAIB2000");
        EXPECT_EQ(Row(Entry).LowResFile, "tAIB2000.bmp");
        EXPECT_EQ(Row(Entry).HighResFile, "tAIB2000-d144.bmp");
        EXPECT_EQ(Seen(SlotLG, Entry), BytesOf(high));
        EXPECT_EQ(Seen(SlotSM, Entry), BytesOf(low));
    }
};

TEST_F(AssignFiles, PicturesAreMovedToTheNamesOfTheNewKey)
{
    ExpectDone(Assign(), Entry);

    ExpectMoved();
    EXPECT_FALSE(IsThere("tAIB3500.bmp") || IsThere("tAIB3500-d144.bmp"));
    EXPECT_EQ(FilesBelow(WorkFolder()).size(), 2u);
}

TEST_F(AssignFiles, WhatStandsBehindTheNumberOfAnIdLeadsNowhere)
{
    SetLauncher({ { Entry, "2000/../../outside" } });
    WriteBytes(folder.File("outside.bmp"), BytesOf({ 9, 9, 9 }));

    Assign();

    ExpectMoved();
    EXPECT_EQ(ReadBytes(folder.File("outside.bmp")), BytesOf({ 9, 9, 9 }));
    EXPECT_EQ(FilesBelow(folder.Path()).size(), 4u) << "two pictures, the catalog and that one";
}

TEST_F(AssignFiles, TransparentColoursGoWithThePictures)
{
    Assign();

    EXPECT_EQ(TransparentIn("tAIB2000-d144.bmp"), Red);
    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), Blue);
    for (const BitmapEntry& bitmap : BitmapTable)
        EXPECT_FALSE(bitmap.file.starts_with("tAIB3500")) << bitmap.file;
}

TEST_F(AssignFiles, EveryRowOfTheTableOfBitmapsFollows)
{
    SetTransparent("tAIB3500.bmp", { 1, 2, 3 });

    Assign();

    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), (Rgb{ 1, 2, 3 }));
    for (const BitmapEntry& bitmap : BitmapTable)
        EXPECT_NE(bitmap.file, "tAIB3500.bmp");
}

TEST_F(AssignFiles, ASlotWithoutAPictureStaysEmpty)
{
    IconTable[0].LowResFile = "NEW";
    WriteBytes(WorkPath("tAIB2000.bmp"), BytesOf({ 9, 9, 9 }));

    ExpectDone(Assign(), Entry);

    EXPECT_EQ(IconTable[0].LowResFile, "NEW");
    EXPECT_EQ(Seen(SlotLG, Entry), BytesOf(Red));
}

TEST_F(AssignFiles, AnEmptyCellStaysEmpty)
{
    IconTable[0].HighResFile = "";

    ExpectDone(Assign(), Entry);

    EXPECT_FALSE(ImageFileValid(IconTable[0].HighResFile));
    EXPECT_EQ(Seen(SlotSM, Entry), BytesOf(Blue));
}

TEST_F(AssignFiles, TheFileThatIsMovedIsTheOneThatTheCellNames)
{
    WritePicture("other.bmp", { 7, 7, 7 });
    IconTable[0].LowResFile = "other.bmp";

    ExpectDone(Assign(), Entry);

    ExpectMoved(Red, { 7, 7, 7 });
    EXPECT_FALSE(IsThere("other.bmp"));
    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), (Rgb{ 7, 7, 7 }));
}

TEST_F(AssignFiles, OldFilesOfTheNewNamesThatNobodyShowsAreReplaced)
{
    WritePicture("tAIB2000.bmp", { 9, 9, 9 });
    WritePicture("tAIB2000-d144.bmp", { 8, 8, 8 });

    ExpectDone(Assign(), Entry);

    ExpectMoved();
    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), Blue);
    EXPECT_EQ(TransparentIn("tAIB2000-d144.bmp"), Red);
}

TEST_F(AssignFiles, WhatTheTableSaidOfAnOldFileIsNotBelievedOfTheNewOne)
{
    std::erase_if(BitmapTable, [](const BitmapEntry& bitmap) { return !bitmap.file.empty(); });
    SetTransparent("tAIB2000.bmp", { 9, 9, 9 });
    SetTransparent("tAIB2000-d144.bmp", { 8, 8, 8 });

    Assign();

    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), std::nullopt);
    EXPECT_EQ(TransparentIn("tAIB2000-d144.bmp"), std::nullopt);
}

TEST_F(AssignFiles, FilesThatHaveTheNamesAlreadyStay)
{
    IconTable.clear();
    Tree.Clear();
    Tree.SetRoot(Root);
    AddRow(Icon, "tAIB2000", KindUnknown);
    Fill(SlotLG, Icon, Red);
    Fill(SlotSM, Icon, Blue);

    ExpectDone(Assign(), Entry);

    ExpectMoved();
    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), Blue);
    EXPECT_EQ(TransparentIn("tAIB2000-d144.bmp"), Red);
}

TEST_F(AssignFiles, PicturesThatOthersShowAreCopied)
{
    AddRow("Gamma (Large Icon)", "tAIB3500");
    AddRow("tAIB3500 (Orphan) ", "tAIB3500", KindDelete, 0);
    for (IconRow& row : IconTable) {
        row.LowResFile = "tAIB3500.bmp";
        row.HighResFile = "tAIB3500-d144.bmp";
    }
    const IconRow gamma = IconTable[1], orphan = IconTable[2];

    ExpectDone(Assign(), Entry);

    ExpectMoved();
    EXPECT_EQ(IconTable[1], gamma);
    EXPECT_EQ(IconTable[2], orphan);
    EXPECT_EQ(Seen(SlotLG, "Gamma (Large Icon)"), BytesOf(Red));
    EXPECT_EQ(Seen(SlotSM, "Gamma (Large Icon)"), BytesOf(Blue));
    for (const char* name : { "tAIB2000-d144.bmp", "tAIB3500-d144.bmp" })
        EXPECT_EQ(TransparentIn(name), Red) << name;
    for (const char* name : { "tAIB2000.bmp", "tAIB3500.bmp" })
        EXPECT_EQ(TransparentIn(name), Blue) << name;
}

TEST_F(AssignFiles, ACopyHasARowOfItsOwnAmongTheBitmaps)
{
    AddRow("Gamma (Large Icon)", "tAIB3500");
    IconTable[1].LowResFile = "tAIB3500.bmp";
    Assign();
    const auto rowsOf = [](const std::string& name) {
        return std::count_if(BitmapTable.begin(), BitmapTable.end(),
            [&](const BitmapEntry& bitmap) { return bitmap.file == name; });
    };

    EXPECT_EQ(rowsOf("tAIB3500.bmp"), 1);
    EXPECT_EQ(rowsOf("tAIB2000.bmp"), 1);
    EXPECT_EQ(rowsOf("tAIB3500-d144.bmp"), 0) << "this one was moved";
    EXPECT_EQ(rowsOf("tAIB2000-d144.bmp"), 1);
    EXPECT_FALSE(IsThere("tAIB3500-d144.bmp"));
    // The next picture that comes in takes a free row.
    WritePicture("next.bmp", { 1, 1, 1 });
    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), Blue);
    EXPECT_LE(static_cast<std::size_t>(BitmapRow), BitmapTable.size());
}

TEST_F(AssignFiles, OneFileInBothSlotsBecomesTwo)
{
    IconTable[0].LowResFile = "tAIB3500-d144.bmp";

    ExpectDone(Assign(), Entry);

    ExpectMoved(Red, Red);
    EXPECT_EQ(TransparentIn("tAIB2000.bmp"), Red);
    EXPECT_EQ(TransparentIn("tAIB2000-d144.bmp"), Red);
}

TEST_F(AssignFiles, OneFileInBothSlotsWithTheNewNameIsCopied)
{
    IconTable[0].ResourceKey = "tAIB2000";
    WritePicture("tAIB2000-d144.bmp", { 3, 3, 3 });
    IconTable[0].LowResFile = IconTable[0].HighResFile = "tAIB2000-d144.bmp";

    ExpectDone(Assign(), Entry);

    ExpectMoved({ 3, 3, 3 }, { 3, 3, 3 });
}

TEST_F(AssignFiles, NamesThatStandInEachOthersPlaceLoseNoPicture)
{
    WritePicture("tAIB2000-d144.bmp", { 3, 3, 3 });
    WritePicture("tAIB2000.bmp", { 6, 6, 6 });
    IconTable[0].LowResFile = "tAIB2000-d144.bmp";
    IconTable[0].HighResFile = "tAIB2000.bmp";

    const RowsOutcome outcome = Assign();

    const std::string label = IconTable[0].IconLabel;
    EXPECT_EQ(Seen(SlotSM, label), BytesOf({ 3, 3, 3 })) << outcome.message;
    EXPECT_EQ(Seen(SlotLG, label), BytesOf({ 6, 6, 6 }));
    EXPECT_EQ(TransparentIn(IconTable[0].LowResFile), (Rgb{ 3, 3, 3 }));
    EXPECT_EQ(TransparentIn(IconTable[0].HighResFile), (Rgb{ 6, 6, 6 }));
}

} // namespace
} // namespace vypx::test
