#include "imaging/BulkRemoval.h"
#include "imaging/LowRes.h"
#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

/// Where one command for pictures meets another, or a failure its next step.
namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::Not;

using Meetings = Pictures;

const std::string InTheWay = "/in the way";

TEST_F(Meetings, AnIconThatBearsTheDatabasesNameIsTheOneThatChanges)
{
    Fill(SlotLG, Small, Many(3, 3));
    Fill(SlotLG, Large, Many(4, 4));
    Select(Small);
    DatabaseName = Large;
    Select(Large);
    ASSERT_EQ(SelectedNode, Small);

    EXPECT_EQ(Import(SlotLG, Plain(5, 5, Blue)), ImportResult::Stored);
    EXPECT_EQ(Stored("tAIB3500-d144.bmp"), Plain(5, 5, Blue));
    DeleteImage(SlotLG, host);
    EXPECT_EQ(Row(Large).HighResFile, "NEW");
    UndoChange(SlotLG, host);
    EXPECT_EQ(Row(Large).HighResFile, "tAIB3500-d144.bmp");

    EXPECT_EQ(Row(Small).HighResFile, "tAIB3501-d144.bmp");
    EXPECT_EQ(Stored("tAIB3501-d144.bmp"), Many(3, 3));
}

TEST_F(Meetings, ALowResPictureThatFailsIsToldApartFromOneThatCanNotBe)
{
    AutoCreateLowRes = true;
    Select(Large);
    EXPECT_EQ(Import(SlotLG, Many(1, 44)), ImportResult::Stored);
    EXPECT_THAT(host.steps, Not(Contains("no low-res")));

    Select(Small);
    std::filesystem::create_directories(WorkPath("tAIB3501.bmp" + InTheWay));
    EXPECT_EQ(Import(SlotLG, Many(30, 22)), ImportResult::Stored);
    EXPECT_THAT(host.steps, Contains("no low-res"));
    EXPECT_EQ(Row(Small).LowResFile, "NEW");
    EXPECT_EQ(Row(Small).HighResFile, "tAIB3501-d144.bmp");
}

/// Its scratch picture can't be made a second time.
class BlockingHost : public RecordingHost {
public:
    void Draw(const Slot& slot) override
    {
        RecordingHost::Draw(slot);
        if (&slot != &SlotSM)
            return;
        std::filesystem::remove(WorkPath("temp.bmp"));
        std::filesystem::create_directories(WorkPath("temp.bmp" + InTheWay));
    }
};

TEST_F(Meetings, ALowResPictureThatWasStoredIsNoFailure)
{
    Fill(SlotLG, Large, Many(64, 44));
    Select(Large);
    BlockingHost blocking;

    EXPECT_NO_THROW(ReplaceLowRes(blocking));

    EXPECT_EQ(Row(Large).LowResFile, "tAIB3500.bmp");
    EXPECT_TRUE(blocking.notes.empty());
}

TEST_F(Meetings, AStaleScratchPictureIsNotTakenForTheHalf)
{
    Fill(SlotLG, Large, Many(1, 44));
    Select(Large);
    std::filesystem::create_directories(WorkPath("temp.bmp" + InTheWay));

    EXPECT_THROW(ReplaceLowRes(host), PictureFault);

    EXPECT_EQ(Row(Large).LowResFile, "NEW");
    EXPECT_FALSE(DroppedFile);
}

TEST_F(Meetings, NoUndoOfTheOtherSlotBringsBackWhatWasDeletedBeforeARemoval)
{
    Fill(SlotLG, Large, Many(6, 6));
    Fill(SlotSM, Large, Many(3, 3));
    Select(Large);
    ASSERT_EQ(Import(SlotSM, Plain(4, 4, Blue)), ImportResult::Stored);
    DeleteImage(SlotLG, host);

    RemoveAllImages(SlotLG);
    ForgetPictureOnShow(SlotLG);
    UndoChange(SlotSM, host);

    EXPECT_EQ(Row(Large).LowResFile, "tAIB3500.bmp");
    EXPECT_EQ(Row(Large).HighResFile, "NEW");
    EXPECT_EQ(Stored("tAIB3500.bmp"), Plain(4, 4, Blue));
}

TEST_F(Meetings, APictureBeyondTheGuardIsRefusedAndUndoStays)
{
    Select(Small);
    ASSERT_EQ(Import(SlotLG, Many(31, 22)), ImportResult::Cropping);
    TargetWidth = 64;
    TargetHeight = 44;
    host.prepared[WorkPath("temp.bmp")] = { .pixels = Many(40, 20) };
    CropResultReady = true;

    EXPECT_EQ(Again(SlotLG), ImportResult::Refused);

    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_TRUE(host.messages[0].ends_with("is 40 pixels.|Image Too Large!"));
    EXPECT_TRUE(UndoIsOn(SlotLG));
    EXPECT_EQ(Row(Small).HighResFile, "NEW");
}

TEST_F(Meetings, OnlyOneImportWaitsForTheCropWindow)
{
    Select(Large);
    Import(SlotLG, Many(70, 70));
    Import(SlotSM, Many(70, 70));
    EXPECT_TRUE(CropForSM);
    EXPECT_FALSE(CropForLG);

    ClearSlots(); // another document begins
    EXPECT_FALSE(CropForSM);
}

TEST_F(Meetings, AnIconOfTheLauncherGetsTheHalfOfItsPicture)
{
    Fill(SlotLG, Launcher, Many(20, 10));
    Select(Launcher);

    ReplaceLowRes(host);

    EXPECT_EQ(Stored("Tbmp11000.bmp").Width(), 10);
    EXPECT_EQ(Row(Launcher).LowResFile, "Tbmp11000.bmp");
}

TEST_F(Meetings, TheNoteNamesTheDepthThatIsNone)
{
    SetDefaultColorDepth("Foo");
    Select(Large);

    EXPECT_EQ(Import(SlotLG, Many(4, 4)), ImportResult::Failed);

    EXPECT_THAT(host.notes,
        ::testing::ElementsAre("The picture could not be stored: Foo is no color depth."));
}

} // namespace

} // namespace vypx::test
