#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// Pastes that don't come to their end: a fault for whoever began, and the slot as it was.
class PasteFailures : public EachSlot {
protected:
    /// The words of the fault.
    std::string FaultOf(const std::function<void()>& paste)
    {
        try {
            paste();
        } catch (const PictureFault& fault) {
            return fault.what();
        }
        ADD_FAILURE() << "no fault";
        return {};
    }
    void ExpectNothingTold()
    {
        EXPECT_THAT(host.messages, ElementsAre());
        EXPECT_THAT(host.notes, ElementsAre()) << "the fault is told by whoever began";
        EXPECT_THAT(host.steps, Not(Contains("draw " + Letters())));
        EXPECT_THAT(host.steps, Not(Contains("colour " + Letters())));
        EXPECT_THAT(host.steps, Not(Contains("stats")));
    }
    void ExpectUsable()
    {
        EXPECT_EQ(Paste(slot, Many(5, 5)), ImportResult::Stored);
        EXPECT_EQ(Stored(Name()), Many(5, 5));
        EXPECT_EQ(WhyNot(), "");
    }
    std::string Name() const { return NameFor(slot, Large); }
};
INSTANTIATE_TEST_SUITE_P(Slots, PasteFailures, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(PasteFailures, APictureThatCanNotBeReadIsAFault)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    const auto before = State();
    host.clipboard = LoadedPicture{ .whyNot = "it is no picture" };

    EXPECT_EQ(FaultOf([&] { PasteAgain(slot); }),
        "The clipboard's picture was not pasted: it is no picture.");

    ExpectNothingTold();
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(Name()), Many(8, 8));
    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(UndoIsOn(slot)) << "nothing takes back what came before the clipboard";
    ExpectUsable();
}

TEST_P(PasteFailures, AfterAPictureThatCanNotBeReadThereIsNoneLeftOver)
{
    Select(Small);
    Import(slot, Many(6, 6));
    Select(Large);
    host.clipboard = LoadedPicture{ .whyNot = "it is no picture" };
    FaultOf([&] { PasteAgain(slot); });
    host.clipboard.reset();

    EXPECT_EQ(PasteAgain(slot), ImportResult::Cancelled);
}

TEST_P(PasteFailures, WithoutAWorkingFolderNothingFillsASlot)
{
    Select(Large);
    const auto before = State();
    std::filesystem::remove_all(WorkFolder());

    EXPECT_THAT(FaultOf([&] { Paste(slot, Many(4, 4)); }), HasSubstr(Name()));

    ExpectNothingTold();
    EXPECT_TRUE(State() == before);
    MakeFolder(WorkFolder());
    ExpectUsable();
}

TEST_P(PasteFailures, NothingIsTakenFromTheClipboardWhereTheOldPictureCanNotBeKept)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    host.Enable(slot.ofUndo, true); // of the change before
    const auto before = State();
    MakeFolder(WorkPath(Name() + ".bak"));
    WriteText(WorkPath(Name() + ".bak") + "/in the way", "x");

    EXPECT_THAT(FaultOf([&] { Paste(slot, Many(4, 4)); }), HasSubstr("undo"));

    EXPECT_THAT(host.steps, ElementsAre());
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(Name()), Many(8, 8));
    EXPECT_FALSE(UndoIsOn(slot));
}

TEST_P(PasteFailures, WithoutADepthNothingFillsAnEmptySlot)
{
    DefaultColorDepth = ColorDepth::Other;
    Select(Large);
    const auto before = State();

    EXPECT_THAT(FaultOf([&] { Paste(slot, Many(4, 4)); }), HasSubstr("no color depth"));

    EXPECT_TRUE(State() == before);
    EXPECT_TRUE(WorkFiles().empty());
}

TEST_P(PasteFailures, WithoutADepthAFilledSlotKeepsItsPicture)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    DefaultColorDepth = ColorDepth::Other;

    EXPECT_EQ(Paste(slot, Many(4, 4)), ImportResult::Stored);

    EXPECT_EQ(Stored(Name()), Many(8, 8));
    EXPECT_EQ(slot.Mask(), Many(8, 8).At(0, 0)) << "the picture that is there is read back";
}

TEST_P(PasteFailures, UndoAfterAFailureKeepsTheOldPicture)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    host.clipboard = LoadedPicture{ .whyNot = "it is no picture" };
    FaultOf([&] { PasteAgain(slot); });

    UndoChange(slot, host);

    EXPECT_EQ(Stored(Name()), Many(8, 8));
    EXPECT_EQ(Cell(slot, Large), Name());
    ExpectUsable();
}

} // namespace
} // namespace vypx::test
