#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

/// A picture comes into a slot that has none.
class ImportEmpty : public EachSlot { };
INSTANTIATE_TEST_SUITE_P(Slots, ImportEmpty, ::testing::Values(&SlotLG, &SlotSM), SlotName);

constexpr Rgb White{ 255, 255, 255 };

TEST_P(ImportEmpty, FillsAnEmptySlot)
{
    Select(Large);

    ASSERT_EQ(Import(slot, Many(32, 22)), ImportResult::Stored);

    const std::string name = isLG ? "tAIB3500-d144.bmp" : "tAIB3500.bmp";
    EXPECT_EQ(Cell(slot, Large), name);
    EXPECT_EQ(slot.path, WorkPath(name));
    EXPECT_TRUE(slot.loaded);
    EXPECT_EQ(Stored(name), Many(32, 22));
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(Cell(other, Large), "NEW");
    EXPECT_EQ(other.path, "");
    EXPECT_FALSE(other.loaded);
    EXPECT_THAT(host.messages, ElementsAre());
    EXPECT_THAT(host.notes, ElementsAre());
}

TEST_P(ImportEmpty, LeavesNothingButThePictureInTheWorkingFolder)
{
    Select(Large);

    Import(slot, Many(3, 3));

    const std::map<std::string, Bytes> files = WorkFiles();
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(files.begin()->first, NameFor(slot, Large));
}

TEST_P(ImportEmpty, TakesTheColourOfTheTopLeftPixelAsTransparentColour)
{
    Select(Large);

    Import(slot, Many(4, 4, { 1, 2, 3 }));

    EXPECT_EQ(slot.Mask(), (Rgb{ 1, 2, 3 }));
    EXPECT_EQ(other.Mask(), Black);
    EXPECT_EQ(host.colours[slot.letters], (Rgb{ 1, 2, 3 }));
    const BitmapEntry& bitmap = BitmapOf(NameFor(slot, Large));
    EXPECT_EQ(bitmap.hasTransparent, 1);
    EXPECT_EQ(bitmap.index, std::nullopt) << "the index is for bitmaps from a file";
    EXPECT_EQ(bitmap.red, 1);
    EXPECT_EQ(bitmap.green, 2);
    EXPECT_EQ(bitmap.blue, 3);
}

TEST_P(ImportEmpty, DoesItsStepsInOrder)
{
    Select(Large);

    Import(slot, Many(4, 4));

    EXPECT_EQ(host.steps, StepsOfAnImport());
}

TEST_P(ImportEmpty, EnablesTheCommandsOfItsPicture)
{
    Select(Large);
    host.enabled.clear();

    Import(slot, Many(4, 4));

    ExpectCommandsOfANewPicture();
}

TEST_P(ImportEmpty, DoesNotEnableUndoOfTheOtherPanel)
{
    Fill(other, Large, Many(4, 4));
    Select(Large);

    Import(slot, Many(4, 4));

    EXPECT_TRUE(UndoIsOn(slot));
    EXPECT_FALSE(UndoIsOn(other));
}

TEST_P(ImportEmpty, MarksTheDocumentAndOffersUndoBeforeTheDialog)
{
    bool wasAsked = false;
    host.duringDialog = [&] {
        wasAsked = true;
        EXPECT_TRUE(IconsetChanged);
        EXPECT_TRUE(UndoIsOn(slot));
        EXPECT_TRUE(slot.wasEmpty);
        EXPECT_FALSE(slot.loaded);
    };
    Select(Large);

    Import(slot, Many(4, 4));

    EXPECT_TRUE(wasAsked);
}

TEST_P(ImportEmpty, GoesToEveryIconThatSharesTheResource)
{
    Select(Sharing);

    Import(slot, Many(4, 4));

    EXPECT_EQ(Cell(slot, Sharing), NameFor(slot, Large));
    EXPECT_EQ(Cell(slot, Large), NameFor(slot, Large));
    EXPECT_EQ(Cell(slot, Small), "NEW");
    EXPECT_EQ(isLG ? StatHighRes : StatLowRes, 2) << "they are counted when all have it";
    EXPECT_EQ(isLG ? StatLowRes : StatHighRes, 0);
    EXPECT_EQ(Tree.Find(Large)->colour, Black);
    EXPECT_EQ(Tree.Find(Small)->colour, Blue) << "still without pictures";
}

TEST_P(ImportEmpty, AddsARowBehindThoseOfBitmapTable)
{
    Fill(SlotLG, Small, Many(5, 5));
    Fill(SlotSM, Small, Many(6, 6));
    const std::vector<BitmapEntry> before = BitmapTable;
    Select(Large);

    Import(slot, Many(4, 4));

    ASSERT_EQ(BitmapTable.size(), 4u);
    EXPECT_EQ(BitmapTable[0], before[0]);
    EXPECT_EQ(BitmapTable[1], before[1]);
    EXPECT_EQ(BitmapTable[2].file, NameFor(slot, Large));
    EXPECT_EQ(BitmapTable[3], BitmapEntry());
}

TEST_P(ImportEmpty, UsesTheRowBehindTheLastFilledOneThoughMoreAreEmpty)
{
    Fill(SlotLG, Small, Many(5, 5));
    Fill(SlotSM, Small, Many(6, 6));
    BitmapTable[1].file.clear(); // as of a picture that was dropped at the load: still a filled one
    BitmapTable.resize(6);       // as after a load that decoded fewer bitmaps than it had counted
    Select(Large);

    Import(slot, Many(4, 4));

    ASSERT_GE(BitmapTable.size(), 4u);
    EXPECT_EQ(BitmapTable[1].file, "");
    EXPECT_EQ(BitmapTable[2].file, NameFor(slot, Large));
    for (std::size_t row = 3; row < BitmapTable.size(); ++row)
        EXPECT_EQ(BitmapTable[row], BitmapEntry());
}

TEST_P(ImportEmpty, PutsTheNextPictureIntoTheNextRow)
{
    Select(Large);
    Import(slot, Many(4, 4));
    Select(Small);
    Import(slot, Many(4, 4));

    ASSERT_EQ(BitmapTable.size(), 3u);
    EXPECT_EQ(BitmapTable[0].file, NameFor(slot, Large));
    EXPECT_EQ(BitmapTable[1].file, NameFor(slot, Small));
    EXPECT_EQ(BitmapTable[2], BitmapEntry());
}

TEST_P(ImportEmpty, WorksInANewIconsetToo)
{
    BitmapTable.assign(1, {});
    IconTable = { { Large, "tAIB3500", "NEW", "NEW", 1, "APP" } };
    Select(Large);

    ASSERT_EQ(Import(slot, Many(4, 4)), ImportResult::Stored);

    EXPECT_EQ(BitmapTable.size(), 2u);
    EXPECT_EQ(WhyNot(), "");
    EXPECT_THAT(SavedKeys(), ElementsAre("tAIB3500", "tver1000", "iTbl1000"));
}

/// Bits per pixel of a working file, as its header says.
int BitsOfFile(const std::string& name) { return ReadBytes(WorkPath(name)).at(28); }

TEST_P(ImportEmpty, StoresGreysAt4BitsAndTakesTheReducedMask)
{
    DefaultColorDepth = ColorDepth::Bits4;
    Select(Large);
    Picture picture = Plain(3, 1, { 200, 30, 30 }); // mean 86.7, the nearest grey is 85
    picture.Set(1, 0, { 254, 254, 250 });

    Import(slot, picture);

    const std::string name = NameFor(slot, Large);
    EXPECT_EQ(BitsOfFile(name), 4);
    EXPECT_EQ(Stored(name).At(0, 0), (Rgb{ 85, 85, 85 }));
    EXPECT_EQ(Stored(name).At(1, 0), White);
    EXPECT_EQ(slot.Mask(), (Rgb{ 85, 85, 85 }));
    EXPECT_EQ(BitmapOf(name).green, 85);
}

TEST_P(ImportEmpty, StoresSystemColoursAt8BitsAndTakesTheReducedMask)
{
    DefaultColorDepth = ColorDepth::Bits8;
    Select(Large);

    Import(slot, Plain(3, 2, { 250, 10, 60 }));

    const std::string name = NameFor(slot, Large);
    EXPECT_EQ(BitsOfFile(name), 8);
    EXPECT_EQ(Stored(name), Plain(3, 2, { 255, 0, 51 }));
    EXPECT_EQ(slot.Mask(), (Rgb{ 255, 0, 51 }));
}

TEST_P(ImportEmpty, KeepsEveryColourAt16Bits)
{
    DefaultColorDepth = ColorDepth::Bits16;
    Select(Large);

    Import(slot, Plain(3, 2, { 250, 10, 60 }));

    EXPECT_EQ(BitsOfFile(NameFor(slot, Large)), 24);
    EXPECT_EQ(slot.Mask(), (Rgb{ 250, 10, 60 })) << "the reduction comes with the save";
}

TEST_P(ImportEmpty, AWhiteCornerGivesWhiteAtEveryDepth)
{
    const char* icons[] = { Large, Small, Unknown };
    int next = 0;
    for (const ColorDepth depth : { ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16 }) {
        DefaultColorDepth = depth;
        Select(icons[next++]);
        Import(slot, Many(4, 4, White));
        EXPECT_EQ(slot.Mask(), White) << BitsOf(depth);
    }
}

TEST_P(ImportEmpty, WithoutADepthNothingFillsAnEmptySlot)
{
    DefaultColorDepth = ColorDepth::Other;
    Select(Large);
    const auto before = State();

    EXPECT_EQ(Import(slot, Many(4, 4)), ImportResult::Failed);

    EXPECT_TRUE(State() == before);
    EXPECT_TRUE(WorkFiles().empty());
    EXPECT_FALSE(UndoIsOn(slot));
    EXPECT_EQ(host.notes.size(), 1u);
    EXPECT_THAT(host.messages, ElementsAre());
    EXPECT_THAT(host.steps, ::testing::Not(::testing::Contains("draw " + Letters())));
}

TEST_P(ImportEmpty, TransparentPixelsGetAColourThatNoOpaqueOneHas)
{
    Picture pixels = Plain(2, 2, { 255, 0, 255 }); // opaque
    pixels.Set(1, 1, { 9, 9, 9 });                 // transparent
    Select(Large);

    Import(slot, MaskedPicture{ .pixels = pixels, .transparent = Rgb{ 9, 9, 9 } });

    const Picture stored = Stored(NameFor(slot, Large));
    EXPECT_EQ(stored.At(0, 0), (Rgb{ 255, 0, 255 }));
    EXPECT_NE(stored.At(1, 1), (Rgb{ 255, 0, 255 }));
    EXPECT_EQ(slot.Mask(), (Rgb{ 255, 0, 255 })) << "of the top left pixel, transparent or not";
}

TEST_P(ImportEmpty, TransparentPixelsAreMagentaWhereThatIsFree)
{
    Picture pixels = Plain(2, 2, { 9, 9, 9 }); // transparent
    pixels.Set(1, 1, { 200, 100, 0 });
    Select(Large);

    Import(slot, MaskedPicture{ .pixels = pixels, .transparent = Rgb{ 9, 9, 9 } });

    EXPECT_EQ(Stored(NameFor(slot, Large)).At(1, 1), (Rgb{ 200, 100, 0 }));
    EXPECT_EQ(Stored(NameFor(slot, Large)).At(0, 1), (Rgb{ 255, 0, 255 }));
    EXPECT_EQ(slot.Mask(), (Rgb{ 255, 0, 255 }));
}

} // namespace
} // namespace vypx::test
