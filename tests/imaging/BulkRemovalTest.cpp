#include "imaging/BulkRemoval.h"

#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

/// All pictures of one slot go.
class BulkRemoval : public EachSlot {
protected:
    BulkRemoval()
    {
        for (const char* label : { Large, Small, Unknown })
            for (const Slot* each : { &SlotLG, &SlotSM })
                Fill(*each, label, Many(8, 8), Rgb{ 12, 34, 56 });
    }

    /// As the command does, once it is confirmed.
    void Remove()
    {
        RemoveAllImages(slot);
        ForgetPictureOnShow(slot);
    }
    std::vector<std::string> Files() const
    {
        std::vector<std::string> files;
        for (const BitmapEntry& entry : BitmapTable)
            files.push_back(entry.file);
        return files;
    }
};
INSTANTIATE_TEST_SUITE_P(Slots, BulkRemoval, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(BulkRemoval, MarksEveryIconOfTheSlotAsEmpty)
{
    std::vector<IconRow> expected = IconTable;
    for (IconRow& row : expected)
        row.*slot.fileCell = "NEW";
    IconsetChanged = false;

    Remove();

    EXPECT_EQ(IconTable, expected);
    EXPECT_TRUE(IconsetChanged);
}

TEST_P(BulkRemoval, KeepsTheRowsOfTheOtherSlotAsTheyAre)
{
    std::vector<BitmapEntry> expected;
    int shade = 0;
    for (BitmapEntry& entry : BitmapTable) {
        if (entry.file.empty())
            continue;
        entry.hasTransparent = shade % 2;
        entry.index = entry.depth = ++shade;
        entry.red = 2 * shade;
        entry.green.reset();
        entry.blue = 3 * shade;
        if ((entry.file.find("-d144") != std::string::npos) != isLG)
            expected.push_back(entry);
    }
    expected.emplace_back();

    Remove();

    EXPECT_EQ(BitmapTable, expected) << "one row for a resource that two icons share, one empty";
}

TEST_P(BulkRemoval, TakesEveryRowOfAFile)
{
    const BitmapEntry twin = BitmapOf(NameFor(slot, Large));
    BitmapTable.insert(BitmapTable.begin() + 3, twin);
    ++BitmapRow;

    Remove();

    EXPECT_EQ(Files(),
        (std::vector{ NameFor(other, Large), NameFor(other, Small), NameFor(other, Unknown),
            std::string() }));
}

TEST_P(BulkRemoval, DropsEmptiedAndSpareRowsAlike)
{
    BitmapTable[0].file.clear(); // as of a picture that was dropped at the load
    BitmapTable.resize(12);

    Remove();

    EXPECT_EQ(BitmapTable.size(), isLG ? 4u : 3u);
    EXPECT_EQ(BitmapTable.back(), BitmapEntry());
}

TEST_P(BulkRemoval, LetsTheNextImportUseTheFreeRow)
{
    Remove();
    Select(Small);

    ASSERT_EQ(Import(slot, Many(4, 4)), ImportResult::Stored);

    EXPECT_EQ(Files(),
        (std::vector{ NameFor(other, Large), NameFor(other, Small), NameFor(other, Unknown),
            NameFor(slot, Small), std::string() }));
}

TEST_P(BulkRemoval, LeavesTheWorkingFiles)
{
    const std::map<std::string, Bytes> before = WorkFiles();

    Remove();

    EXPECT_EQ(WorkFiles(), before);
}

TEST_P(BulkRemoval, TakesThePictureOnShowAndNoOther)
{
    Select(Large);
    ASSERT_TRUE(slot.hasTransparent);

    Remove();

    EXPECT_EQ(slot.path, "");
    EXPECT_FALSE(slot.loaded);
    EXPECT_FALSE(slot.hasTransparent);
    EXPECT_EQ(other.path, WorkPath(NameFor(other, Large)));
    EXPECT_TRUE(other.loaded);
}

TEST_P(BulkRemoval, IsBeyondUndoOfADeletion)
{
    Select(Large);
    DeleteImage(slot, host);
    Remove();
    const auto before = State();
    const std::map<std::string, Bytes> files = WorkFiles();
    host.steps.clear();

    UndoChange(slot, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(WorkFiles(), files);
    EXPECT_EQ(host.steps, std::vector<std::string>());
}

TEST_P(BulkRemoval, IsBeyondUndoOfAnImport)
{
    AddIcon("Beta (Small Icon)", "tAIB3505");
    Select("Beta (Small Icon)");
    Import(slot, Many(4, 4));
    Remove();
    const auto before = State();
    host.steps.clear();

    UndoChange(slot, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(host.steps, std::vector<std::string>());
}

TEST_P(BulkRemoval, LeavesUndoOfTheOtherSlot)
{
    Select(Large);
    DeleteImage(other, host);

    Remove();
    UndoChange(other, host);

    EXPECT_EQ(Cell(other, Large), NameFor(other, Large));
    EXPECT_EQ(Stored(NameFor(other, Large)), Many(8, 8));
}

TEST_P(BulkRemoval, OfADocumentWithoutPicturesMarksAndRewritesToo)
{
    for (IconRow& row : IconTable)
        row.LowResFile = row.HighResFile = "NEW";
    BitmapTable.assign(5, {});
    BitmapRow = 0;
    const std::vector<IconRow> before = IconTable;
    IconsetChanged = false;

    Remove();

    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(IconTable, before);
    EXPECT_EQ(BitmapTable, std::vector<BitmapEntry>(1));
}

TEST_P(BulkRemoval, MarksIconsToBeRemovedToo)
{
    Row(Small).IconState = 0;

    Remove();

    EXPECT_EQ(Cell(slot, Small), "NEW");
}

/// A high-density record stands behind a mark of 16 bytes whose pixel size is 255, to which the
/// low-density record before leads.
TEST_P(BulkRemoval, ThenASavedFamilyHasOneRecord)
{
    ASSERT_EQ(WhyNot(), "");
    for (const Resource& resource : Saved()) {
        if (resource.type != "tAIB")
            continue;
        ASSERT_NE(ByteView(resource.data).U16(10), 0) << "both densities";
    }

    Remove();

    ASSERT_EQ(WhyNot(), "");
    EXPECT_THAT(
        SavedKeys(), ElementsAre("tAIB3500", "tAIB3501", "tAIB3601", "tver1000", "iTbl1000"));
    for (const Resource& resource : Saved()) {
        if (resource.type != "tAIB")
            continue;
        const ByteView family(resource.data);
        if (isLG) {
            EXPECT_EQ(family.U8(9), 2) << "version of a low-density record";
            EXPECT_EQ(family.U16(10), 0) << "nothing follows: no separator, no other record";
        }
    }
    ASSERT_EQ(Load(FileName), LoadResult::Opened);
    for (const char* label : { Large, Small }) {
        EXPECT_EQ(Cell(slot, label), "NEW");
        EXPECT_EQ(Cell(other, label), NameFor(other, label));
    }
    EXPECT_EQ(isLG ? StatHighRes : StatLowRes, 0);
}

TEST_P(BulkRemoval, ForgetsThePictureOnShow)
{
    Select(Large);
    DeleteImage(other, host);

    ForgetPictureOnShow(slot);

    EXPECT_EQ(slot.path, "");
    EXPECT_FALSE(slot.loaded);
    EXPECT_EQ(Cell(slot, Large), NameFor(slot, Large)) << "the document has it still";
}

class BulkRemovalOfHighRes : public Pictures { };

/// Undo of a low-res import goes by the name of the high-res picture.
TEST_F(BulkRemovalOfHighRes, LeavesNoBackupToUndoOfTheOtherSlot)
{
    Fill(SlotLG, Large, Many(8, 8));
    Fill(SlotSM, Large, Many(8, 8));
    Select(Large);
    Import(SlotLG, Many(4, 4));
    Import(SlotSM, Many(5, 5));
    RemoveAllImages(SlotLG);
    ForgetPictureOnShow(SlotLG);
    const auto before = State();

    UndoChange(SlotSM, host);

    EXPECT_TRUE(State() == before);
}

} // namespace
} // namespace vypx::test
