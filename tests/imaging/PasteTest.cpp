#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

/// The clipboard's picture comes into a slot.
class Paste : public EachSlot {
protected:
    std::string Name() const { return NameFor(slot, Large); }
};
INSTANTIATE_TEST_SUITE_P(Slots, Paste, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(Paste, FillsAnEmptySlot)
{
    Select(Large);

    ASSERT_EQ(EachSlot::Paste(slot, Many(32, 22)), ImportResult::Stored);

    EXPECT_EQ(Cell(slot, Large), Name());
    EXPECT_EQ(slot.path, WorkPath(Name()));
    EXPECT_TRUE(slot.loaded);
    EXPECT_EQ(Stored(Name()), Many(32, 22));
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(Cell(other, Large), "NEW");
    EXPECT_THAT(host.messages, ElementsAre());
    EXPECT_THAT(host.notes, ElementsAre());
    EXPECT_EQ(WhyNot(), "") << "it can be saved";
}

TEST_P(Paste, ReplacesThePictureOfAFilledSlot)
{
    Fill(slot, Large, Many(8, 8));
    const std::size_t rows = BitmapTable.size();
    Select(Large);

    ASSERT_EQ(EachSlot::Paste(slot, Many(5, 5)), ImportResult::Stored);

    EXPECT_EQ(Stored(Name()), Many(5, 5));
    EXPECT_EQ(Stored(Name() + ".bak"), Many(8, 8));
    EXPECT_EQ(BitmapTable.size(), rows);
}

TEST_P(Paste, DoesItsStepsInOrderWithoutADialogOrAFile)
{
    Select(Large);

    EachSlot::Paste(slot, Many(4, 4));

    EXPECT_THAT(
        host.steps, ElementsAre("clipboard", "colour " + Letters(), "draw " + Letters(), "stats"));
}

TEST_P(Paste, EnablesTheCommandsOfItsPicture)
{
    Select(Large);
    host.enabled.clear();

    EachSlot::Paste(slot, Many(4, 4));

    ExpectCommandsOfANewPicture();
}

TEST_P(Paste, LeavesTheFolderOfImportsAlone)
{
    LastDirImageLoad = "/some/where";
    Select(Large);

    EachSlot::Paste(slot, Many(4, 4));

    EXPECT_EQ(LastDirImageLoad, "/some/where");
}

TEST_P(Paste, MarksTheDocumentAndKeepsTheOldPictureBeforeTheClipboardIsRead)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    TargetWidth = TargetHeight = 7;
    bool wasRead = false;
    host.duringPaste = [&] {
        wasRead = true;
        EXPECT_TRUE(IconsetChanged);
        EXPECT_TRUE(UndoIsOn(slot));
        EXPECT_FALSE(slot.wasEmpty);
        EXPECT_EQ(Stored(Name() + ".bak"), Many(8, 8));
        EXPECT_EQ(TargetWidth, 7) << "the limits come when the picture is there";
    };

    EachSlot::Paste(slot, Many(4, 4));

    EXPECT_TRUE(wasRead);
    EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), slot.limitOfLarge);
}

TEST_P(Paste, UndoEmptiesASlotThatWasEmpty)
{
    Select(Large);
    EachSlot::Paste(slot, Many(4, 4));

    UndoChange(slot, host);

    EXPECT_EQ(Cell(slot, Large), "NEW");
    EXPECT_EQ(slot.path, "");
    EXPECT_FALSE(UndoIsOn(slot));
}

TEST_P(Paste, UndoBringsTheReplacedPictureBackInTheLowResSlotToo)
{
    Fill(SlotLG, Large, Many(8, 8));
    Fill(SlotSM, Large, Many(9, 9));
    const Picture before = isLG ? Many(8, 8) : Many(9, 9);
    Select(Large);
    EachSlot::Paste(slot, Many(4, 4));

    UndoChange(slot, host);

    EXPECT_EQ(slot.undoName, Name()) << "an import into the low-res slot names the high-res one";
    EXPECT_EQ(Stored(Name()), before);
    EXPECT_EQ(Cell(slot, Large), Name());
}

TEST_P(Paste, GoesToEveryIconThatSharesTheResourceWhereTheSlotWasEmpty)
{
    Select(Sharing);

    EachSlot::Paste(slot, Many(4, 4));

    EXPECT_EQ(Cell(slot, Sharing), Name());
    EXPECT_EQ(Cell(slot, Large), Name());
    EXPECT_EQ(Cell(slot, Small), "NEW");
}

TEST_P(Paste, ChangesNoCellOfOthersWhereTheSlotWasFilled)
{
    Fill(slot, Large, Many(8, 8));
    Cell(slot, Sharing) = "NEW";
    Select(Large);

    EachSlot::Paste(slot, Many(4, 4));

    EXPECT_EQ(Cell(slot, Sharing), "NEW");
}

TEST_P(Paste, TakesTheReducedColourOfTheTopLeftPixelAsTransparentColour)
{
    DefaultColorDepth = ColorDepth::Bits4;
    Select(Large);

    EachSlot::Paste(slot, Plain(3, 1, { 200, 30, 30 })); // mean 86.7, the nearest grey is 85

    EXPECT_EQ(Stored(Name()).At(0, 0), (Rgb{ 85, 85, 85 }));
    EXPECT_EQ(slot.Mask(), (Rgb{ 85, 85, 85 }));
    EXPECT_EQ(host.colours[slot.letters], (Rgb{ 85, 85, 85 }));
    EXPECT_EQ(BitmapOf(Name()).hasTransparent, 1);
}

TEST_P(Paste, TransparentPixelsGetAColourThatNoOpaqueOneHas)
{
    Picture pixels = Plain(2, 2, { 9, 9, 9 }); // transparent
    pixels.Set(1, 1, { 200, 100, 0 });
    Select(Large);

    EachSlot::Paste(slot, MaskedPicture{ .pixels = pixels, .transparent = Rgb{ 9, 9, 9 } });

    EXPECT_EQ(Stored(Name()).At(1, 1), (Rgb{ 200, 100, 0 }));
    EXPECT_EQ(Stored(Name()).At(0, 1), (Rgb{ 255, 0, 255 }));
}

TEST_P(Paste, OnlyAHighResPictureMakesTheLowResOneAsWell)
{
    AutoCreateLowRes = true;
    Select(Large);

    EachSlot::Paste(slot, Plain(8, 6, { 1, 2, 3 }));

    EXPECT_EQ(Stored("tAIB3500.bmp"), isLG ? Plain(4, 3, { 1, 2, 3 }) : Plain(8, 6, { 1, 2, 3 }));
    EXPECT_EQ(Cell(SlotLG, Large), isLG ? "tAIB3500-d144.bmp" : "NEW");
    EXPECT_FALSE(DroppedFile);
}

TEST_P(Paste, TakesWhatPassedThroughBeforeWhereTheClipboardHasNoPicture)
{
    Select(Small);
    Import(slot, Many(6, 6));
    Select(Large);

    ASSERT_EQ(PasteAgain(slot), ImportResult::Stored);

    EXPECT_EQ(Stored(Name()), Many(6, 6));
}

TEST_P(Paste, EndsQuietlyWhereThereIsNoPictureAtAll)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    TargetWidth = 7;
    const auto before = State();

    EXPECT_EQ(PasteAgain(slot), ImportResult::Cancelled);

    EXPECT_TRUE(State() == before);
    EXPECT_THAT(host.steps, ElementsAre("clipboard"));
    EXPECT_EQ(TargetWidth, 7);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(UndoIsOn(slot));
    UndoChange(slot, host);
    EXPECT_EQ(Stored(Name()), Many(8, 8)) << "the undo has nothing else to go back to";
}

TEST_P(Paste, UndoOfAPasteOfNothingLeavesAnEmptySlotEmpty)
{
    Select(Large);
    PasteAgain(slot);

    UndoChange(slot, host);

    EXPECT_EQ(Cell(slot, Large), "NEW");
    EXPECT_EQ(WhyNot(), "");
}

TEST_P(Paste, LeavesADroppedFileThatWaitsForAnImport)
{
    Select(Large);
    DroppedFile = true;
    DroppedFileName = folder.File("dropped.txt");

    ASSERT_EQ(EachSlot::Paste(slot, Many(4, 4)), ImportResult::Stored);

    EXPECT_EQ(Stored(Name()), Many(4, 4));
    EXPECT_TRUE(DroppedFile);
}

TEST_P(Paste, IsNoReturnFromTheCropWindow)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    CropResultReady = true;

    EachSlot::Paste(slot, Many(4, 4));

    EXPECT_EQ(Stored(Name()), Many(4, 4));
    EXPECT_EQ(Stored(Name() + ".bak"), Many(8, 8)) << "no step is left out";
    EXPECT_TRUE(CropResultReady);
}

TEST_P(Paste, IsRefusedWhereTheIconHasNeitherANameNorTheMark)
{
    Select(Missing);
    const auto before = State();

    EXPECT_EQ(EachSlot::Paste(slot, Many(4, 4)), ImportResult::Refused);

    EXPECT_THAT(host.messages, ElementsAre("Error saving image.|"));
    EXPECT_TRUE(State() == before);
    EXPECT_THAT(host.steps, Not(Contains("draw " + Letters())));
}

TEST_P(Paste, IsRefusedWhereTheWorkingFileHasGone)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    std::filesystem::remove(slot.path);

    EXPECT_EQ(EachSlot::Paste(slot, Many(4, 4)), ImportResult::Refused);

    EXPECT_THAT(host.messages, ElementsAre("Error saving image.|"));
    EXPECT_TRUE(slot.wasEmpty);
}

} // namespace
} // namespace vypx::test
