#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

/// Undo of what holds for both slots.
class Undo : public EachSlot {
protected:
    const std::string name = NameFor(slot, Large);

    std::set<Command> Stored() const { return { slot.ofStored.begin(), slot.ofStored.end() }; }
    std::set<Command> StoredAndUndo() const
    {
        std::set<Command> commands = Stored();
        commands.insert(slot.ofUndo.begin(), slot.ofUndo.end());
        return commands;
    }
};
INSTANTIATE_TEST_SUITE_P(Slots, Undo, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(Undo, OfAnImportIntoAnEmptySlotEmptiesItInEveryRowOfTheResource)
{
    Select(Sharing);
    const std::vector<IconRow> before = IconTable;
    Import(slot, Many(4, 4));
    ASSERT_TRUE(slot.wasEmpty);
    ASSERT_NE(IconTable, before);

    UndoChange(slot, host);

    EXPECT_EQ(IconTable, before);
    EXPECT_EQ(Cell(slot, Large), "NEW");
    EXPECT_EQ(slot.path, "");
    EXPECT_FALSE(slot.wasEmpty);
}

TEST_P(Undo, OfAnImportIntoAnEmptySlotTakesThePictureOffThePanel)
{
    Select(Large);
    Import(slot, Many(4, 4));
    host.steps.clear();
    host.enabled.clear();

    UndoChange(slot, host);

    EXPECT_THAT(host.steps, ElementsAre("clear " + Letters(), "draw " + Letters(), "stats"));
    EXPECT_EQ(host.Told(false), StoredAndUndo());
    EXPECT_EQ(host.Told(true), std::set<Command>());
}

TEST_P(Undo, OfAnImportIntoAnEmptySlotCounts)
{
    Select(Large);
    Import(slot, Many(4, 4));

    UndoChange(slot, host);

    EXPECT_EQ(isLG ? StatHighRes : StatLowRes, 0);
    EXPECT_EQ(Tree.Find(Large)->colour, Blue);
}

TEST_P(Undo, OfAnImportIntoAnEmptySlotSparesTheOtherSlot)
{
    Fill(other, Large, Many(7, 7));
    Select(Large);
    const std::string path = other.path;
    Import(slot, Many(4, 4));

    UndoChange(slot, host);

    EXPECT_EQ(Cell(other, Large), NameFor(other, Large));
    EXPECT_EQ(other.path, path);
    EXPECT_TRUE(other.loaded);
    EXPECT_TRUE(host.IsOn(other.ofStored[0]));
}

TEST_P(Undo, NeitherSetsNorClearsTheChangeMark)
{
    Select(Large);
    Import(slot, Many(4, 4));
    UndoChange(slot, host);
    EXPECT_TRUE(IconsetChanged) << "emptying";
    Import(slot, Many(4, 4));
    IconsetChanged = false;
    UndoChange(slot, host);
    EXPECT_FALSE(IconsetChanged) << "emptying";

    Fill(slot, Small, Many(4, 4));
    Select(Small);
    DeleteImage(slot, host);
    UndoChange(slot, host);
    EXPECT_TRUE(IconsetChanged) << "restoring";
    DeleteImage(slot, host);
    IconsetChanged = false;
    UndoChange(slot, host);
    EXPECT_FALSE(IconsetChanged) << "restoring";
}

TEST_P(Undo, OfADeletionBringsThePictureBackToEveryRowOfTheResource)
{
    Fill(slot, Large, Many(8, 8));
    Select(Sharing);
    const std::vector<IconRow> rows = IconTable;
    const std::map<std::string, Bytes> files = WorkFiles();
    DeleteImage(slot, host);
    ASSERT_NE(IconTable, rows);
    ASSERT_FALSE(slot.wasEmpty);
    WriteText(WorkPath(name), "whatever"); // the backup is what comes back

    UndoChange(slot, host);

    EXPECT_EQ(IconTable, rows);
    EXPECT_EQ(WorkFiles(), files) << "the backup is consumed";
    EXPECT_EQ(slot.path, WorkPath(name));
    EXPECT_TRUE(slot.loaded);
    EXPECT_EQ(isLG ? StatHighRes : StatLowRes, 2);
}

TEST_P(Undo, ThatRestoresDoesNotDraw)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    DeleteImage(slot, host);
    host.steps.clear();
    host.enabled.clear();

    UndoChange(slot, host);

    EXPECT_THAT(host.steps, Not(Contains("draw " + Letters())));
    EXPECT_THAT(host.steps, Contains("colour " + Letters()));
    EXPECT_EQ(host.steps.back(), "stats");
    EXPECT_EQ(host.Told(true), Stored());
    EXPECT_EQ(host.Told(false), std::set<Command>(slot.ofUndo.begin(), slot.ofUndo.end()));
}

TEST_P(Undo, ThatRestoresShowsThePictureAtTheNextSelection)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    DeleteImage(slot, host);
    UndoChange(slot, host);

    const SelectionEffects effects = Select(Large);

    EXPECT_TRUE(isLG ? effects.lg.draw : effects.sm.draw);
}

TEST_P(Undo, ThatRestoresWhenTheWorkingFileIsGone)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    DeleteImage(slot, host);
    std::filesystem::remove(WorkPath(name));

    UndoChange(slot, host);

    EXPECT_EQ(Pictures::Stored(name), Many(8, 8));
    EXPECT_EQ(Cell(slot, Large), name);
}

TEST_P(Undo, ThatRestoresTakesTheMaskFromTheCornerWhereThereWasNone)
{
    Fill(slot, Large, Many(8, 8, { 40, 50, 60 }));
    Select(Large);
    ASSERT_FALSE(slot.hasTransparent);
    DeleteImage(slot, host);

    UndoChange(slot, host);

    EXPECT_EQ(BitmapOf(name).hasTransparent, 1);
    EXPECT_EQ(TransparentColour(BitmapOf(name)), (Rgb{ 40, 50, 60 }));
    EXPECT_EQ(slot.Mask(), (Rgb{ 40, 50, 60 }));
    EXPECT_EQ(host.colours[slot.letters], (Rgb{ 40, 50, 60 }));
}

TEST_P(Undo, ThatRestoresTakesTheMaskFromTheCornerWhateverItWas)
{
    Fill(slot, Large, Many(8, 8, { 40, 50, 60 }), Rgb{ 0, 255, 0 });
    Select(Large);
    DeleteImage(slot, host);
    slot.hasTransparent = false; // as a draw of the empty panel leaves it

    UndoChange(slot, host);

    EXPECT_EQ(TransparentColour(BitmapOf(name)), (Rgb{ 40, 50, 60 }));
    EXPECT_EQ(slot.Mask(), (Rgb{ 40, 50, 60 }));
    EXPECT_TRUE(slot.hasTransparent);
}

TEST_P(Undo, ASecondOneFindsNothing)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    DeleteImage(slot, host);
    UndoChange(slot, host);
    EXPECT_FALSE(UndoIsOn(slot));
    const auto before = State();
    const std::map<std::string, Bytes> files = WorkFiles();
    host.steps.clear();
    host.enabled.clear();

    UndoChange(slot, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(WorkFiles(), files);
    EXPECT_EQ(host.steps, std::vector<std::string>());
    EXPECT_TRUE(host.enabled.empty());
}

TEST_P(Undo, ASecondOneAfterEmptyingFindsNothing)
{
    Select(Large);
    Import(slot, Many(4, 4));
    UndoChange(slot, host);
    EXPECT_FALSE(UndoIsOn(slot));
    const auto before = State();
    host.steps.clear();

    UndoChange(slot, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(host.steps, std::vector<std::string>());
}

TEST_P(Undo, OfADeletionOfAnImportedPictureRestoresIt)
{
    Select(Large);
    Import(slot, Many(4, 4, { 9, 8, 7 }));
    DeleteImage(slot, host);
    const BitmapEntry bitmap = BitmapOf(name);

    UndoChange(slot, host);

    EXPECT_EQ(Cell(slot, Large), name);
    EXPECT_EQ(Pictures::Stored(name), Many(4, 4, { 9, 8, 7 }));
    EXPECT_EQ(BitmapOf(name), bitmap);
}

TEST_P(Undo, SeesNoBackupsOfADocumentBefore)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    WriteBytes(WorkPath(name + ".bak"), EncodeBmp24(Many(3, 3)));
    slot.undoName = name;
    const auto before = State();

    UndoChange(slot, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Pictures::Stored(name), Many(8, 8));
    EXPECT_EQ(Pictures::Stored(name + ".bak"), Many(3, 3));
}

TEST_P(Undo, EndsWhenAnotherIconsetIsLoaded)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    DeleteImage(slot, host);
    ASSERT_EQ(
        Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0) }), Icon(3500) } }
                 .File()),
        LoadResult::Opened);
    ASSERT_EQ(Labels(), std::vector<std::string>{ Large });
    Select(Large);
    const auto before = State();
    const std::map<std::string, Bytes> files = WorkFiles();
    ASSERT_TRUE(files.contains(name + ".bak")) << "a load deletes pictures only";

    UndoChange(slot, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(WorkFiles(), files);
    EXPECT_EQ(host.steps, std::vector<std::string>());
}

TEST_P(Undo, OfAnEmptySlotEndsWhenAnotherIconsetIsLoaded)
{
    Select(Large);
    Import(slot, Many(4, 4));
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0) }), Icon(3500) } }
             .File());
    Select(Large);
    const auto before = State();

    UndoChange(slot, host);

    EXPECT_TRUE(State() == before);
}

} // namespace
} // namespace vypx::test
