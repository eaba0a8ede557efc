#include "imaging/TransparencyEdit.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using Cells = std::array<std::optional<int>, 4>; // flag, red, green, blue

constexpr Rgb Old{ 10, 20, 30 };

Cells CellsOf(const BitmapEntry& bitmap)
{
    return { bitmap.hasTransparent, bitmap.red, bitmap.green, bitmap.blue };
}

/// An icon with both pictures is selected: in the slot under test one with a transparent colour.
class TransparencyEditTest : public EachSlot {
protected:
    TransparencyEditTest()
    {
        Fill(slot, Large, Many(8, 8), Old);
        Fill(other, Large, Many(7, 7), Rgb{ 1, 2, 3 });
        Fill(slot, Small, Many(6, 6));
        SelectAndDraw(Large);
        otherBefore = CellsOf(BitmapOf(NameFor(other, Large)));
    }

    /// As the window does.
    void SelectAndDraw(const std::string& label)
    {
        Select(label);
        for (const Slot* shown : { &SlotLG, &SlotSM }) {
            const BitmapEntry* const bitmap = BitmapAt(shown->path);
            shown->hasTransparent = bitmap && *bitmap->hasTransparent == 1;
        }
    }
    Cells Row(const std::string& label = Large) const
    {
        return CellsOf(BitmapOf(NameFor(slot, label)));
    }

    Cells otherBefore;
};
INSTANTIATE_TEST_SUITE_P(
    Slots, TransparencyEditTest, ::testing::Values(&SlotLG, &SlotSM), SlotName);

} // namespace

TEST_P(TransparencyEditTest, BeginsWithTheColourThatThePictureHas)
{
    const TransparencyEdit edit(slot);

    EXPECT_TRUE(edit.HadColour() && edit.HasColour() && edit.IsUsed());
    EXPECT_EQ(edit.Colour(), Old);
    EXPECT_EQ(Row(), (Cells{ 1, 10, 20, 30 }));
}

TEST_P(TransparencyEditTest, APickIsInTheDocumentAtOnce)
{
    TransparencyEdit edit(slot);

    edit.Pick({ 40, 50, 60 });

    EXPECT_EQ(Row(), (Cells{ 1, 40, 50, 60 }));
    EXPECT_EQ(slot.Mask(), (Rgb{ 40, 50, 60 }));
    EXPECT_TRUE(slot.hasTransparent);
    EXPECT_EQ(CellsOf(BitmapOf(NameFor(other, Large))), otherBefore);
    EXPECT_EQ(other.Mask(), (Rgb{ 1, 2, 3 }));
}

TEST_P(TransparencyEditTest, EveryRowOfTheFileFollowsAndNoOther)
{
    BitmapTable.push_back({ .file = NameFor(slot, Large), .hasTransparent = 1 });
    TransparencyEdit edit(slot);

    edit.Pick({ 40, 50, 60 });

    EXPECT_EQ(CellsOf(BitmapTable.back()), (Cells{ 1, 40, 50, 60 }));
    EXPECT_EQ(Row(Small), (Cells{ 0, {}, {}, {} }));

    edit.Cancel();

    EXPECT_EQ(CellsOf(BitmapTable.back()), (Cells{ 1, 10, 20, 30 })) << "the one on show";
}

TEST_P(TransparencyEditTest, ATypedComponentKeepsTheOtherTwo)
{
    TransparencyEdit edit(slot);

    edit.Type(&Rgb::green, 200);

    EXPECT_EQ(Row(), (Cells{ 1, 10, 200, 30 }));
    EXPECT_EQ(slot.Mask(), (Rgb{ 10, 200, 30 }));
}

TEST_P(TransparencyEditTest, OnPurposeATypedColourOfAPictureWithoutOneIsNotUsedByItself)
{
    SelectAndDraw(Small);
    TransparencyEdit edit(slot);

    edit.Type(&Rgb::red, 7);

    EXPECT_EQ(Row(Small), (Cells{ 0, 7, 0, 0 }));
    EXPECT_FALSE(slot.hasTransparent);
    EXPECT_TRUE(edit.HasColour());

    edit.Use();

    EXPECT_EQ(Row(Small), (Cells{ 1, 7, 0, 0 }));
    EXPECT_TRUE(slot.hasTransparent);
}

TEST_P(TransparencyEditTest, WithoutAColourOnHandThereIsNothingToUse)
{
    SelectAndDraw(Small);
    TransparencyEdit edit(slot);

    edit.Use();

    EXPECT_FALSE(edit.HadColour() || edit.HasColour() || edit.IsUsed());
    EXPECT_EQ(Row(Small), (Cells{ 0, {}, {}, {} }));
}

TEST_P(TransparencyEditTest, NoneKeepsTheColourForWhenItIsUsedAgain)
{
    TransparencyEdit edit(slot);

    edit.UseNone();

    EXPECT_EQ(Row(), (Cells{ 0, 10, 20, 30 }));
    EXPECT_FALSE(slot.hasTransparent);

    edit.Use();

    EXPECT_EQ(Row(), (Cells{ 1, 10, 20, 30 }));
    EXPECT_TRUE(slot.hasTransparent);
}

TEST_P(TransparencyEditTest, CancelBringsEveryCellBack)
{
    const std::vector<BitmapEntry> before = BitmapTable;
    TransparencyEdit edit(slot);
    edit.Pick({ 40, 50, 60 });
    edit.Type(&Rgb::blue, 255);
    edit.UseNone();

    edit.Cancel();

    EXPECT_EQ(BitmapTable, before);
    EXPECT_EQ(slot.Mask(), Old);
}

TEST_P(TransparencyEditTest, OnPurposeCancelLeavesAPictureWithoutAColourWithBlackUnused)
{
    SelectAndDraw(Small);
    TransparencyEdit edit(slot);
    edit.Pick({ 40, 50, 60 });

    edit.Cancel();

    EXPECT_EQ(Row(Small), (Cells{ 0, 0, 0, 0 }));
    EXPECT_EQ(slot.Mask(), Rgb{});
    EXPECT_FALSE(slot.hasTransparent);
}

TEST_P(TransparencyEditTest, AColourThatIsOnlyAnIndexComesBackAsItsColour)
{
    for (BitmapEntry& bitmap : BitmapTable)
        if (bitmap.file == NameFor(slot, Large))
            bitmap = { .file = bitmap.file, .hasTransparent = 1, .index = 1, .depth = 1 };
    SelectAndDraw(Large);
    TransparencyEdit edit(slot);
    ASSERT_EQ(edit.Colour(), Rgb{}) << "a record of one bit: 1 is black";

    edit.Pick({ 40, 50, 60 });
    edit.Cancel();

    EXPECT_EQ(Row(), (Cells{ 1, 0, 0, 0 }));
}

TEST_P(TransparencyEditTest, ItStaysWithItsFileWhenAnotherIconIsSelected)
{
    TransparencyEdit edit(slot);
    edit.Pick({ 40, 50, 60 });
    SelectAndDraw(Small);
    const Rgb maskOfSmall = slot.Mask();

    EXPECT_FALSE(edit.IsOnShow());
    edit.Cancel();

    EXPECT_EQ(Row(), (Cells{ 1, 10, 20, 30 }));
    EXPECT_EQ(Row(Small), (Cells{ 0, {}, {}, {} }));
    EXPECT_EQ(slot.Mask(), maskOfSmall);
    EXPECT_FALSE(slot.hasTransparent);
}

TEST_P(TransparencyEditTest, WithoutItsDocumentItWritesNothing)
{
    TransparencyEdit edit(slot);
    ForgetDocument();
    ClearSlots();
    const std::vector<BitmapEntry> rows = BitmapTable;
    const Rgb mask = slot.Mask();
    const bool flag = slot.hasTransparent;

    edit.UseNone();
    edit.Pick({ 40, 50, 60 });
    edit.UseNone();
    edit.Type(&Rgb::red, 1);

    EXPECT_EQ(BitmapTable, rows);
    EXPECT_EQ(slot.Mask(), mask);
    EXPECT_EQ(slot.hasTransparent, flag);

    edit.Cancel();

    EXPECT_EQ(BitmapTable, rows);
    EXPECT_EQ(slot.Mask(), mask);
    EXPECT_EQ(slot.hasTransparent, flag);
}

TEST_P(TransparencyEditTest, AFileWithoutARowHasNoColour)
{
    std::erase_if(BitmapTable,
        [&](const BitmapEntry& bitmap) { return bitmap.file == NameFor(slot, Large); });
    SelectAndDraw(Large);
    const std::vector<BitmapEntry> rows = BitmapTable;

    TransparencyEdit edit(slot);
    EXPECT_FALSE(edit.HadColour());
    edit.Pick({ 40, 50, 60 });

    EXPECT_EQ(BitmapTable, rows);
}

} // namespace vypx::test
