#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

/// Where a picture comes from, and which folder is remembered.
class ImportSources : public EachSlot {
protected:
    /// A file that waits to be taken instead of one from the dialog.
    void Drop(const Picture& picture)
    {
        DroppedFile = true;
        DroppedFileName = folder.File("dropped.bmp");
        WriteBytes(DroppedFileName, EncodeBmp24(picture));
    }
    /// The crop window is done: the scratch picture is what it made.
    ImportResult ReturnFromCrop(const Picture& picture)
    {
        WriteBytes(ScratchPath(), EncodeBmp24(picture));
        CropResultReady = true;
        return Again(slot);
    }
    static std::string ScratchPath() { return WorkPath("temp.bmp"); }
};
INSTANTIATE_TEST_SUITE_P(Slots, ImportSources, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(ImportSources, TheDialogsFolderIsRemembered)
{
    LastDirImageLoad = "/elsewhere";
    Select(Large);

    Import(slot, Many(4, 4));

    EXPECT_EQ(LastDirImageLoad, folder.Path());
    EXPECT_EQ(std::count(host.steps.begin(), host.steps.end(), "folder"), 1);
}

TEST_P(ImportSources, TheFolderIsRememberedWhetherOrNotItIsUsed)
{
    UseLastDirs = false;
    Select(Large);

    Import(slot, Many(4, 4));

    EXPECT_EQ(LastDirImageLoad, folder.Path());
}

TEST_P(ImportSources, TheFolderIsKnownWhenTheSettingsAreWritten)
{
    struct Host : RecordingHost {
        std::string atThatTime;
        void FolderRemembered() override { atThatTime = LastDirImageLoad; }
    } own;
    own.choice = folder.File("in.bmp");
    WriteBytes(own.choice, EncodeBmp24(Many(4, 4)));
    Select(Large);

    isLG ? ImportLG(own) : ImportSM(own);

    EXPECT_EQ(own.atThatTime, folder.Path());
}

TEST_P(ImportSources, ACancelOrAFailureKeepsTheFolder)
{
    LastDirImageLoad = "/elsewhere";
    Select(Large);

    EXPECT_EQ(Again(slot), ImportResult::Cancelled);
    EXPECT_EQ(LastDirImageLoad, "/elsewhere");

    host.choice = folder.File("missing.bmp");
    EXPECT_EQ(Again(slot), ImportResult::Failed);
    EXPECT_EQ(LastDirImageLoad, "/elsewhere");
    EXPECT_THAT(host.steps, Not(Contains("folder")));
}

TEST_P(ImportSources, ADroppedFileNeedsNoDialogAndEmptiesTheFolder)
{
    LastDirImageLoad = "/elsewhere";
    Drop(Many(4, 4, { 1, 2, 3 }));
    Select(Large);

    EXPECT_EQ(Again(slot), ImportResult::Stored);

    EXPECT_EQ(Stored(NameFor(slot, Large)), Many(4, 4, { 1, 2, 3 }));
    EXPECT_EQ(LastDirImageLoad, "");
    EXPECT_THAT(host.steps,
        ElementsAre("load dropped.bmp", "colour " + Letters(), "draw " + Letters(), "stats"));
    EXPECT_EQ(ImageFile, DroppedFileName);
    EXPECT_TRUE(DroppedFile) << "whoever set it takes it back";
}

TEST_P(ImportSources, ADroppedFileReplacesAPicture)
{
    Fill(slot, Large, Many(9, 9));
    Drop(Many(4, 4));
    Select(Large);

    EXPECT_EQ(Again(slot), ImportResult::Stored);

    EXPECT_EQ(Stored(NameFor(slot, Large)), Many(4, 4));
    EXPECT_EQ(Stored(NameFor(slot, Large) + ".bak"), Many(9, 9));
}

TEST_P(ImportSources, APictureTooLargeWaitsForTheCropWindowWithNothingElseChanged)
{
    LastDirImageLoad = "/elsewhere";
    Select(Large);
    const auto before = State();
    const auto flag = [](bool lg) { return lg ? CropForLG : CropForSM; };

    EXPECT_EQ(Import(slot, Many(65, 44)), ImportResult::Cropping);

    EXPECT_TRUE(flag(isLG));
    EXPECT_FALSE(flag(!isLG));
    slot.cropFor = false;
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(WorkFiles().size(), 1u) << "under one form of its name";
    EXPECT_EQ(Stored("temp.bmp"), Many(65, 44));
    EXPECT_EQ(ReadBytes(ScratchPath()).at(28), 24) << "bits, at whatever depth";
    EXPECT_EQ(ImageFile, ScratchPath());
    EXPECT_EQ(LastDirImageLoad, "/elsewhere");
    EXPECT_THAT(host.steps, ElementsAre("choose", "load in.bmp", "crop " + Letters()));
    EXPECT_THAT(host.messages, ElementsAre());
    EXPECT_THAT(host.notes, ElementsAre());
    EXPECT_TRUE(UndoIsOn(slot));
    EXPECT_TRUE(IconsetChanged);
}

TEST_P(ImportSources, TheScratchPictureIsNotReduced)
{
    DefaultColorDepth = ColorDepth::Bits4;
    Select(Large);

    Import(slot, Many(65, 45));

    EXPECT_EQ(Stored("temp.bmp"), Many(65, 45));
}

TEST_P(ImportSources, AFilledSlotKeepsItsPictureWhileTheCropWindowStands)
{
    Fill(slot, Large, Many(9, 9));
    Select(Large);

    Import(slot, Many(200, 100));

    EXPECT_EQ(Stored(NameFor(slot, Large)), Many(9, 9));
    EXPECT_EQ(Stored(NameFor(slot, Large) + ".bak"), Many(9, 9));
    EXPECT_FALSE(slot.wasEmpty);
}

TEST_P(ImportSources, ALaterPictureReplacesTheScratchPicture)
{
    Select(Large);
    Import(slot, Many(200, 100));
    Import(slot, Many(70, 90));

    EXPECT_EQ(Stored("temp.bmp"), Many(70, 90));
}

TEST_P(ImportSources, TheReturnFromTheCropWindowStoresWhatItMade)
{
    Select(Large);
    Import(slot, Many(65, 44));
    host.steps.clear();

    EXPECT_EQ(ReturnFromCrop(Many(30, 20, { 1, 2, 3 })), ImportResult::Stored);

    EXPECT_FALSE(CropResultReady);
    EXPECT_EQ(Stored(NameFor(slot, Large)), Many(30, 20, { 1, 2, 3 }));
    EXPECT_EQ(Cell(slot, Large), NameFor(slot, Large));
    EXPECT_EQ(slot.Mask(), (Rgb{ 1, 2, 3 }));
    EXPECT_THAT(host.steps,
        ElementsAre("load temp.bmp", "colour " + Letters(), "draw " + Letters(), "stats"));
}

TEST_P(ImportSources, TheReturnFromTheCropWindowEmptiesTheFolder)
{
    Select(Large);
    Import(slot, Many(4, 4));
    ASSERT_NE(LastDirImageLoad, "");
    Import(slot, Many(65, 44));

    ReturnFromCrop(Many(30, 20));

    EXPECT_EQ(LastDirImageLoad, "");
}

TEST_P(ImportSources, TheReturnFromTheCropWindowTakesNoSecondBackup)
{
    Fill(slot, Large, Many(9, 9));
    Select(Large);
    Import(slot, Many(65, 44));
    WriteText(WorkPath(NameFor(slot, Large) + ".bak"), "as it was left");
    slot.wasEmpty = true;
    slot.undoName = "as it was left";
    host.enabled.clear();
    TargetWidth = 31;
    TargetHeight = 21;

    EXPECT_EQ(ReturnFromCrop(Many(30, 20)), ImportResult::Stored);

    EXPECT_EQ(ReadText(WorkPath(NameFor(slot, Large) + ".bak")), "as it was left");
    EXPECT_TRUE(slot.wasEmpty);
    EXPECT_EQ(slot.undoName, "as it was left");
    EXPECT_FALSE(host.enabled.contains(slot.ofUndo[0]));
    EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), (PixelSize{ 31, 21 }));
}

TEST_P(ImportSources, TheReturnFromTheCropWindowMarksTheDocument)
{
    Select(Large);
    Import(slot, Many(65, 44));
    IconsetChanged = false; // as after a save while the window stood

    ReturnFromCrop(Many(30, 20));

    EXPECT_TRUE(IconsetChanged);
}

TEST_P(ImportSources, APictureThatComesBackTooLargeIsCutAgain)
{
    Select(Large);
    Import(slot, Many(200, 100));
    host.steps.clear();

    EXPECT_EQ(ReturnFromCrop(Many(100, 100)), ImportResult::Cropping);

    EXPECT_FALSE(CropResultReady);
    EXPECT_THAT(host.steps, Contains("crop " + Letters()));
    EXPECT_EQ(Stored("temp.bmp"), Many(100, 100));
}

TEST_P(ImportSources, AMissingScratchPictureFailsTheReturn)
{
    Select(Large);
    Import(slot, Many(65, 44));
    slot.cropFor = false;
    const auto before = State();
    std::filesystem::remove(ScratchPath());
    CropResultReady = true;

    EXPECT_EQ(Again(slot), ImportResult::Failed);

    EXPECT_FALSE(CropResultReady);
    EXPECT_FALSE(UndoIsOn(slot));
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(host.notes.size(), 1u);
}

TEST_P(ImportSources, TransparentPixelsStaySoThroughTheCropWindow)
{
    Picture pixels = Plain(70, 50, { 20, 40, 60 });
    pixels.Set(0, 0, { 254, 0, 255 });
    Select(Large);
    Import(slot, MaskedPicture{ .pixels = pixels, .transparent = Rgb{ 254, 0, 255 } });
    ASSERT_EQ(ScratchTransparent, (Rgb{ 254, 0, 255 }));
    Picture cut = Plain(3, 3, { 20, 40, 60 });
    cut.Set(0, 0, { 254, 0, 255 });
    cut.Set(2, 2, { 254, 0, 255 });

    ReturnFromCrop(cut);

    const Picture stored = Stored(NameFor(slot, Large));
    EXPECT_EQ(stored.At(0, 0), (Rgb{ 255, 0, 255 }));
    EXPECT_EQ(stored.At(2, 2), (Rgb{ 255, 0, 255 }));
    EXPECT_EQ(stored.At(1, 1), (Rgb{ 20, 40, 60 }));
}

TEST_P(ImportSources, AnOpaquePictureLeavesNoTransparentColourBehind)
{
    ScratchTransparent = Rgb{ 1, 2, 3 }; // of a picture before
    Select(Large);
    Import(slot, Many(70, 50));
    EXPECT_EQ(ScratchTransparent, std::nullopt);

    ReturnFromCrop(Plain(3, 3, { 1, 2, 3 }));

    EXPECT_EQ(Stored(NameFor(slot, Large)), Plain(3, 3, { 1, 2, 3 }));
}

TEST_P(ImportSources, AnotherPictureIsNotMaskedByTheScratchOne)
{
    ScratchTransparent = Rgb{ 1, 2, 3 };
    Select(Large);

    Import(slot, Plain(3, 3, { 1, 2, 3 }));

    EXPECT_EQ(Stored(NameFor(slot, Large)), Plain(3, 3, { 1, 2, 3 }));
}

} // namespace
} // namespace vypx::test
