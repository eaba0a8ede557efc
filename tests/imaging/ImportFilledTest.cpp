#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

/// A picture takes the place of another one.
class ImportFilled : public EachSlot {
protected:
    ImportFilled()
        : name(NameFor(slot, Large))
    {
        Fill(slot, Large, Many(8, 6, { 90, 80, 70 }));
        oldBytes = ReadBytes(WorkPath(name));
    }

    const std::string name;
    Bytes oldBytes;
};
INSTANTIATE_TEST_SUITE_P(Slots, ImportFilled, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(ImportFilled, KeepsTheNameAndTheRows)
{
    Select(Large);
    const std::vector<IconRow> before = IconTable;

    ASSERT_EQ(Import(slot, Many(10, 9)), ImportResult::Stored);

    EXPECT_EQ(IconTable, before);
    EXPECT_EQ(slot.path, WorkPath(name));
    EXPECT_TRUE(slot.loaded);
    EXPECT_EQ(Stored(name), Many(10, 9));
    EXPECT_EQ(BitmapTable.size(), 2u) << "no new row";
    EXPECT_EQ(IconsetChanged, true);
}

TEST_P(ImportFilled, KeepsTheOldPictureUnderBak)
{
    Select(Large);

    Import(slot, Many(10, 9));

    EXPECT_EQ(ReadBytes(WorkPath(name + ".bak")), oldBytes);
    EXPECT_FALSE(slot.wasEmpty);
    EXPECT_EQ(WorkFiles().size(), 2u);
}

TEST_P(ImportFilled, TakesTheBackupBeforeTheUserHasChosen)
{
    WriteText(WorkPath(name + ".bak"), "an older one");
    bool wasAsked = false;
    host.duringDialog = [&] {
        wasAsked = true;
        EXPECT_EQ(ReadBytes(WorkPath(name + ".bak")), oldBytes);
        EXPECT_FALSE(slot.wasEmpty);
    };
    Select(Large);

    EXPECT_EQ(Again(slot), ImportResult::Cancelled);

    EXPECT_TRUE(wasAsked);
    EXPECT_EQ(ReadBytes(WorkPath(name + ".bak")), oldBytes) << "it stays";
}

TEST_P(ImportFilled, GivesEveryRowOfItsFileTheTransparentColour)
{
    BitmapTable.insert(BitmapTable.begin(), { .file = "tAIB9.bmp", .hasTransparent = 0 });
    BitmapTable.insert(
        BitmapTable.begin() + 2, { .file = name, .hasTransparent = 0, .index = 7, .depth = 8 });
    BitmapRow += 2;
    Select(Large);

    Import(slot, Many(10, 9, { 1, 2, 3 }));

    ASSERT_EQ(BitmapTable.size(), 4u);
    EXPECT_EQ(BitmapTable[0].hasTransparent, 0) << "another file";
    for (const std::size_t row : { 1u, 2u }) {
        EXPECT_EQ(BitmapTable[row].hasTransparent, 1);
        EXPECT_EQ(TransparentColour(BitmapTable[row]), (Rgb{ 1, 2, 3 }));
    }
    EXPECT_EQ(slot.Mask(), (Rgb{ 1, 2, 3 }));
    EXPECT_EQ(host.colours[slot.letters], (Rgb{ 1, 2, 3 }));
}

TEST_P(ImportFilled, WithoutARowOfItsFileOnlyTheMaskIsNew)
{
    BitmapTable.assign(1, {});
    BitmapRow = 0;
    Select(Large);

    Import(slot, Many(10, 9, { 1, 2, 3 }));

    EXPECT_EQ(slot.Mask(), (Rgb{ 1, 2, 3 }));
    EXPECT_EQ(BitmapTable, std::vector<BitmapEntry>(1));
    EXPECT_THAT(host.steps, Not(Contains("colour " + Letters())));
}

TEST_P(ImportFilled, OtherIconsOfTheResourceKeepTheirCells)
{
    Cell(slot, Sharing) = "NEW";
    Select(Large);

    Import(slot, Many(10, 9));

    EXPECT_EQ(Cell(slot, Sharing), "NEW") << "only a new picture goes to all of them";
}

TEST_P(ImportFilled, DrawsAndCounts)
{
    Select(Large);

    Import(slot, Many(10, 9));

    EXPECT_EQ(host.steps, StepsOfAnImport());
    EXPECT_EQ(isLG ? StatHighRes : StatLowRes, 2);
}

TEST_P(ImportFilled, RemembersTheHighResNameForUndoInBothSlots)
{
    Row(Large).LowResFile = "low.bmp";
    Row(Large).HighResFile = "high.bmp";
    WriteBytes(WorkPath("low.bmp"), oldBytes);
    WriteBytes(WorkPath("high.bmp"), oldBytes);
    Select(Large);

    Import(slot, Many(10, 9));

    // Not a slip: ImportSM remembers the high-res one as well.
    EXPECT_EQ(slot.undoName, "high.bmp");
    EXPECT_EQ(other.undoName, "");
}

TEST_P(ImportFilled, OfSeveralRowsWithTheLabelTheLastNamesTheFile)
{
    IconTable.push_back(Row(Large));
    IconTable.back().HighResFile = IconTable.back().LowResFile = "last.bmp";
    Row(Large).HighResFile = Row(Large).LowResFile = name;
    BitmapTable.insert(BitmapTable.begin(), { .file = "last.bmp", .hasTransparent = 0 });
    ++BitmapRow;
    Select(Large);

    Import(slot, Many(10, 9, { 1, 2, 3 }));

    EXPECT_EQ(slot.undoName, "last.bmp");
    EXPECT_EQ(slot.path, WorkPath(name)) << "but the file on show is written";
    EXPECT_EQ(TransparentColour(BitmapOf("last.bmp")), (Rgb{ 1, 2, 3 }));
    EXPECT_EQ(BitmapOf(name).hasTransparent, 0);
}

TEST_P(ImportFilled, WithoutADepthThePictureStaysAndItsCornerIsTheMask)
{
    DefaultColorDepth = ColorDepth::Other;
    Select(Large);

    EXPECT_EQ(Import(slot, Many(10, 9, { 1, 2, 3 })), ImportResult::Stored);

    EXPECT_EQ(ReadBytes(WorkPath(name)), oldBytes);
    EXPECT_EQ(slot.Mask(), (Rgb{ 90, 80, 70 }));
    EXPECT_EQ(TransparentColour(BitmapOf(name)), (Rgb{ 90, 80, 70 }));
    EXPECT_THAT(host.steps, Contains("draw " + Letters()));
}

TEST_P(ImportFilled, WhoseFileIsGoneIsRefused)
{
    Select(Large);
    std::filesystem::remove(WorkPath(name));
    const auto before = State();

    EXPECT_EQ(Import(slot, Many(10, 9)), ImportResult::Refused);

    EXPECT_THAT(host.messages, ElementsAre("Error saving image.|"));
    EXPECT_THAT(host.notes, ElementsAre());
    EXPECT_TRUE(State() == before);
    EXPECT_TRUE(WorkFiles().empty());
    EXPECT_TRUE(slot.wasEmpty) << "there was no picture";
    EXPECT_TRUE(UndoIsOn(slot)) << "no failure exit: the box ends it";
    EXPECT_TRUE(IconsetChanged);
}

TEST_P(ImportFilled, WhoseFileGoesWhileTheDialogStandsIsRefused)
{
    host.duringDialog = [&] { std::filesystem::remove(WorkPath(name)); };
    Select(Large);
    const auto before = State();

    EXPECT_EQ(Import(slot, Many(10, 9)), ImportResult::Refused);

    EXPECT_THAT(host.messages, ElementsAre("Error saving image.|"));
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(ReadBytes(WorkPath(name + ".bak")), oldBytes);
}

TEST_P(ImportFilled, ASlotWithNeitherNameNorMarkIsRefused)
{
    Select(Missing);
    const auto before = State();

    EXPECT_EQ(Import(slot, Many(10, 9)), ImportResult::Refused);

    EXPECT_THAT(host.messages, ElementsAre("Error saving image.|"));
    EXPECT_TRUE(State() == before);
}

TEST_P(ImportFilled, ASlotWithNeitherNameNorMarkTakesADroppedFile)
{
    Select(Missing);
    DroppedFile = true;
    DroppedFileName = folder.File("dropped.bmp");
    WriteBytes(DroppedFileName, EncodeBmp24(Many(10, 9)));

    EXPECT_EQ(Again(slot), ImportResult::Stored);

    EXPECT_EQ(Cell(slot, Missing), NameFor(slot, Missing));
    EXPECT_EQ(Stored(NameFor(slot, Missing)), Many(10, 9));
}

} // namespace
} // namespace vypx::test
