#include "imaging/LowRes.h"
#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

/// Low-res pictures that are made: by themselves behind a high-res import, and by the command.
class LowResStep : public Pictures {
protected:
    LowResStep() { AutoCreateLowRes = true; }

    /// Squares of 2 x 2 pixels, so that every pixel of the half is told.
    static Picture Squares(int width, int height)
    {
        Picture picture(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture.Set(x, y, HalfOf(x / 2, y / 2));
        return picture;
    }
    static Rgb HalfOf(int x, int y) { return { x * 7, y * 11, 100 }; }
    static Picture HalfOfSquares(int width, int height)
    {
        Picture picture(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture.Set(x, y, HalfOf(x, y));
        return picture;
    }

    const std::string low = "tAIB3500.bmp", high = "tAIB3500-d144.bmp";
};

TEST_F(LowResStep, FillsBothPanelsByOneImport)
{
    Select(Sharing);

    EXPECT_EQ(Import(SlotLG, Squares(64, 44)), ImportResult::Stored);

    EXPECT_EQ(Stored(high), Squares(64, 44));
    EXPECT_EQ(Stored(low), HalfOfSquares(32, 22));
    for (const char* label : { Large, Sharing }) {
        EXPECT_EQ(Row(label).HighResFile, high);
        EXPECT_EQ(Row(label).LowResFile, low);
    }
    EXPECT_EQ(LowResPath, WorkPath(low));
    EXPECT_TRUE(LGloaded && SMloaded);
    EXPECT_EQ(SlotLG.Mask(), (Rgb{ 0, 0, 100 }));
    EXPECT_EQ(SlotSM.Mask(), (Rgb{ 0, 0, 100 }));
    EXPECT_TRUE(UndoIsOn(SlotLG) && UndoIsOn(SlotSM));
    EXPECT_FALSE(DroppedFile);
    EXPECT_EQ(StatHighRes, 2);
    EXPECT_EQ(StatLowRes, 2);
}

TEST_F(LowResStep, ComesBehindTheHighResPictureIsDrawn)
{
    Select(Large);

    Import(SlotLG, Squares(64, 44));

    EXPECT_THAT(host.steps,
        ElementsAre("choose", "load in.bmp", "folder", "colour LG", "draw LG", "load temp.bmp",
            "colour SM", "draw SM", "stats", "stats"));
}

TEST_F(LowResStep, EmptiesTheFolderThatTheDialogGave)
{
    Select(Large);

    Import(SlotLG, Squares(64, 44));

    EXPECT_EQ(LastDirImageLoad, "") << "its own import had no dialog";
}

TEST_F(LowResStep, IsForAnEmptyLowResSlotOnly)
{
    Fill(SlotSM, Large, Many(6, 6));
    Select(Large);
    const Bytes before = ReadBytes(WorkPath(low));

    Import(SlotLG, Squares(64, 44));

    EXPECT_EQ(Stored(high), Squares(64, 44));
    EXPECT_EQ(ReadBytes(WorkPath(low)), before);
    EXPECT_FALSE(UndoIsOn(SlotSM));
    EXPECT_EQ(LastDirImageLoad, folder.Path());
    EXPECT_EQ(WorkFiles().size(), 2u) << "no scratch picture";
}

TEST_F(LowResStep, FollowsAnImportIntoAFilledSlotToo)
{
    Fill(SlotLG, Large, Many(8, 8));
    Select(Large);

    Import(SlotLG, Squares(30, 20));

    EXPECT_EQ(Stored(low), HalfOfSquares(15, 10));
}

TEST_F(LowResStep, IsNoneWhileTheOptionIsOff)
{
    AutoCreateLowRes = false;
    Select(Large);

    Import(SlotLG, Squares(64, 44));

    EXPECT_EQ(Row(Large).LowResFile, "NEW");
    EXPECT_EQ(WorkFiles().size(), 1u);
}

TEST_F(LowResStep, IsNoneForALowResImport)
{
    Select(Large);

    Import(SlotSM, Squares(32, 22));

    EXPECT_EQ(Row(Large).HighResFile, "NEW");
    EXPECT_EQ(WorkFiles().size(), 1u);
}

TEST_F(LowResStep, ReducesTheHalfToTheDepth)
{
    DefaultColorDepth = ColorDepth::Bits4;
    Select(Large);

    Import(SlotLG, Many(64, 44));

    EXPECT_EQ(ReadBytes(WorkPath(low)).at(28), 4);
}

TEST_F(LowResStep, FollowsTheReturnFromTheCropWindow)
{
    Select(Large);
    Import(SlotLG, Many(100, 100));
    EXPECT_EQ(Row(Large).LowResFile, "NEW");
    WriteBytes(WorkPath("temp.bmp"), EncodeBmp24(Squares(64, 44)));
    CropResultReady = true;

    EXPECT_EQ(ImportLG(host), ImportResult::Stored);

    EXPECT_EQ(Stored(high), Squares(64, 44));
    EXPECT_EQ(Stored(low), HalfOfSquares(32, 22));
    EXPECT_FALSE(CropResultReady);
}

TEST_F(LowResStep, WithoutAHalfTheHighResImportGoesOn)
{
    Select(Sharing);

    EXPECT_EQ(Import(SlotLG, Many(1, 40)), ImportResult::Stored);

    EXPECT_EQ(Row(Large).HighResFile, high) << "every icon of the resource";
    EXPECT_EQ(Row(Sharing).HighResFile, high);
    EXPECT_EQ(Row(Sharing).LowResFile, "NEW");
    EXPECT_EQ(LowResPath, "");
    EXPECT_EQ(StatHighRes, 2) << "counted";
    EXPECT_TRUE(UndoIsOn(SlotLG));
    EXPECT_FALSE(UndoIsOn(SlotSM));
    EXPECT_FALSE(NamedFileExists(WorkPath("temp.bmp")));
    EXPECT_FALSE(DroppedFile);
    EXPECT_THAT(host.messages, ElementsAre());
    UndoChange(SlotLG, host);
    EXPECT_EQ(Row(Large).HighResFile, "NEW");
}

TEST_F(LowResStep, ThatFailsLeavesIconsOfOneResourceAlike)
{
    MakeFolder(WorkPath("temp.bmp"));
    WriteText(WorkPath("temp.bmp") + "/holds", "it");
    Select(Sharing);

    EXPECT_EQ(Import(SlotLG, Many(64, 44)), ImportResult::Stored);

    EXPECT_EQ(Row(Large).HighResFile, high);
    EXPECT_EQ(Row(Sharing).HighResFile, high);
    EXPECT_EQ(host.notes.size(), 1u);
    EXPECT_TRUE(UndoIsOn(SlotLG));
    EXPECT_EQ(Row(Large).LowResFile, "NEW");
    EXPECT_FALSE(DroppedFile) << "the next import asks for its file";
    EXPECT_EQ(WhyNot(), "");
}

TEST_F(LowResStep, LeavesItsSizeToTheNextUnknownIcon)
{
    Select(Unknown);
    TargetWidth = TargetHeight = 0;
    Import(SlotLG, Squares(60, 40));
    ASSERT_EQ(Stored("tAIB3601.bmp"), HalfOfSquares(30, 20));

    EXPECT_EQ(Import(SlotLG, Many(31, 20)), ImportResult::Cropping);
    EXPECT_EQ(Import(SlotLG, Many(30, 20)), ImportResult::Stored);
}

TEST_F(LowResStep, WithoutAHalfLeavesNoSizeToTheNextUnknownIcon)
{
    Fill(SlotLG, Large, Many(1, 40));
    Select(Large);
    ASSERT_FALSE(CreateLowRes(ColorDepth::Bits16));
    Select(UnknownSmall);

    EXPECT_EQ(Import(SlotLG, Many(31, 22)), ImportResult::Cropping);
    EXPECT_EQ(Import(SlotLG, Many(30, 22)), ImportResult::Stored);
}

TEST_F(LowResStep, OfTheCommandReplacesTheLowResPicture)
{
    Fill(SlotLG, Large, Many(64, 44));
    Fill(SlotSM, Large, Many(6, 6));
    Select(Large);

    ReplaceLowRes(host);

    EXPECT_EQ(Stored(low).Width(), 32);
    EXPECT_EQ(Stored(low + ".bak"), Many(6, 6));
    EXPECT_EQ(Stored(high), Many(64, 44));
    EXPECT_FALSE(SMWasEmpty);
    EXPECT_TRUE(UndoIsOn(SlotSM));
    EXPECT_FALSE(UndoIsOn(SlotLG));
    EXPECT_FALSE(DroppedFile);
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(LowResStep, OfTheCommandFillsAnEmptySlotAndLeavesTheScratchPicture)
{
    Fill(SlotLG, Small, Squares(31, 21));
    Select(Small);

    ReplaceLowRes(host);

    EXPECT_EQ(Stored("tAIB3501.bmp").Width(), 15);
    EXPECT_EQ(Stored("tAIB3501.bmp").Height(), 10);
    EXPECT_EQ(Stored("temp.bmp").Width(), 15) << "of the second call";
    EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), (PixelSize{ 15, 10 }))
        << "and not the size of the slot";
    EXPECT_EQ(Row(Small).LowResFile, "tAIB3501.bmp");
}

TEST_F(LowResStep, OfTheCommandSendsAForeignPictureToTheCropWindow)
{
    Fill(SlotLG, Large, Many(100, 80));
    Select(Large);
    const std::vector<IconRow> before = IconTable;

    ReplaceLowRes(host);

    EXPECT_THAT(host.steps, ElementsAre("load temp.bmp", "crop SM"));
    EXPECT_TRUE(CropForSM);
    EXPECT_FALSE(CropForLG);
    EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), (PixelSize{ 32, 22 }))
        << "what the crop window aims at: no second call";
    EXPECT_EQ(Stored("temp.bmp").Width(), 50);
    EXPECT_EQ(IconTable, before);
    EXPECT_FALSE(DroppedFile);
}

TEST_F(LowResStep, OfTheCommandWithoutAHalfChangesNothing)
{
    Fill(SlotLG, Large, Many(64, 1));
    Fill(SlotSM, Large, Many(6, 6));
    Select(Large);
    const auto before = State();

    ReplaceLowRes(host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(low), Many(6, 6));
    EXPECT_FALSE(UndoIsOn(SlotSM));
    EXPECT_FALSE(DroppedFile);
    EXPECT_THAT(host.steps, Not(Contains("draw SM")));
}

TEST_F(LowResStep, OfTheCommandWithoutItsPictureIsAFault)
{
    Fill(SlotLG, Large, Many(64, 44));
    Select(Large);
    std::filesystem::remove(HighResPath);
    const auto before = State();

    EXPECT_THROW(ReplaceLowRes(host), PictureFault);

    EXPECT_TRUE(State() == before);
    EXPECT_FALSE(DroppedFile) << "the next import asks for its file";
}

} // namespace
} // namespace vypx::test
