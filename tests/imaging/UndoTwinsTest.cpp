#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

/// Undo of an import into a slot that had a picture: there the two slots differ.
class UndoTwins : public Pictures {
protected:
    const std::string low = "tAIB3500.bmp", high = "tAIB3500-d144.bmp";
};

TEST_F(UndoTwins, OfAHighResImportRestoresTheOldPicture)
{
    Fill(SlotLG, Large, Many(8, 8, { 1, 2, 3 }));
    Select(Large);
    const std::vector<IconRow> rows = IconTable;
    const std::map<std::string, Bytes> files = WorkFiles();
    Import(SlotLG, Many(4, 4));

    UndoChange(SlotLG, host);

    EXPECT_EQ(IconTable, rows);
    EXPECT_EQ(WorkFiles(), files);
    EXPECT_EQ(SlotLG.Mask(), (Rgb{ 1, 2, 3 }));
    EXPECT_FALSE(UndoIsOn(SlotLG));
}

TEST_F(UndoTwins, OfAHighResImportGoesBackOneStep)
{
    Fill(SlotLG, Large, Many(8, 8));
    Select(Large);
    Import(SlotLG, Many(4, 4));
    Import(SlotLG, Many(5, 5));

    UndoChange(SlotLG, host);

    EXPECT_EQ(Stored(high), Many(4, 4));
    EXPECT_FALSE(NamedFileExists(WorkPath(high + ".bak")));
}

TEST_F(UndoTwins, OfASecondHighResImportRestoresTheFirst)
{
    Select(Large);
    Import(SlotLG, Many(4, 4));
    ASSERT_TRUE(LGWasEmpty);
    Import(SlotLG, Many(5, 5));
    ASSERT_FALSE(LGWasEmpty);

    UndoChange(SlotLG, host);

    EXPECT_EQ(Stored(high), Many(4, 4));
    EXPECT_EQ(Row(Large).HighResFile, high);
}

TEST_F(UndoTwins, OfAHighResImportLeavesTheLowResPictureAlone)
{
    Fill(SlotLG, Large, Many(8, 8));
    Fill(SlotSM, Large, Many(6, 6));
    Select(Large);
    Import(SlotLG, Many(4, 4));

    UndoChange(SlotLG, host);

    EXPECT_EQ(Stored(low), Many(6, 6));
    EXPECT_EQ(Row(Large).LowResFile, low);
    EXPECT_EQ(LowResPath, WorkPath(low));
}

TEST_F(UndoTwins, OfALowResImportDoesNothingWithoutAHighResBackup)
{
    Fill(SlotLG, Large, Many(8, 8));
    Fill(SlotSM, Large, Many(6, 6));
    Select(Large);
    Import(SlotSM, Many(4, 4));
    ASSERT_FALSE(SMWasEmpty);
    const auto before = State();
    const std::map<std::string, Bytes> files = WorkFiles();
    host.steps.clear();
    host.enabled.clear();

    UndoChange(SlotSM, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(WorkFiles(), files);
    EXPECT_EQ(Stored(low + ".bak"), Many(6, 6)) << "it stays where it is";
    EXPECT_EQ(host.steps, std::vector<std::string>());
    EXPECT_TRUE(host.enabled.empty());
}

TEST_F(UndoTwins, OfALowResImportDoesNothingWithoutAHighResPicture)
{
    Fill(SlotSM, Large, Many(6, 6));
    Select(Large);
    Import(SlotSM, Many(4, 4));
    ASSERT_EQ(CurrentImageNameSM, "NEW");
    const auto before = State();

    UndoChange(SlotSM, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(low), Many(4, 4));
}

TEST_F(UndoTwins, OfALowResImportDoesNotSeeAHighResBackupOfADocumentBefore)
{
    Fill(SlotLG, Large, Many(8, 8));
    Fill(SlotSM, Large, Many(6, 6));
    WriteBytes(WorkPath(high + ".bak"), EncodeBmp24(Many(3, 3)));
    Select(Large);
    Import(SlotSM, Many(4, 4));
    const auto before = State();

    UndoChange(SlotSM, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(high), Many(8, 8));
    EXPECT_EQ(Stored(high + ".bak"), Many(3, 3));
}

/// Both slots name the high-res file then.
TEST_F(UndoTwins, OfALowResImportPutsTheHighResBackupIntoBothSlots)
{
    Fill(SlotLG, Large, Many(8, 8, { 1, 2, 3 }));
    Fill(SlotSM, Large, Many(6, 6));
    Select(Large);
    Import(SlotLG, Many(9, 9));
    Import(SlotSM, Many(4, 4));
    host.steps.clear();

    UndoChange(SlotSM, host);

    for (const char* label : { Large, Sharing }) {
        EXPECT_EQ(Row(label).LowResFile, high);
        EXPECT_EQ(Row(label).HighResFile, high);
    }
    EXPECT_EQ(LowResPath, WorkPath(high));
    EXPECT_EQ(HighResPath, WorkPath(high));
    EXPECT_EQ(Stored(high), Many(8, 8, { 1, 2, 3 })) << "the import is undone there";
    EXPECT_FALSE(NamedFileExists(WorkPath(high + ".bak")));
    EXPECT_EQ(Stored(low), Many(4, 4));
    EXPECT_EQ(Stored(low + ".bak"), Many(6, 6));
    EXPECT_EQ(SlotSM.Mask(), (Rgb{ 1, 2, 3 }));
    EXPECT_EQ(TransparentColour(BitmapOf(high)), (Rgb{ 1, 2, 3 }));
    EXPECT_EQ(host.colours["SM"], (Rgb{ 1, 2, 3 }));
    EXPECT_FALSE(UndoIsOn(SlotSM));
    EXPECT_EQ(host.steps, (std::vector<std::string>{ "colour SM", "stats" }));
}

TEST_F(UndoTwins, OfTheHighResImportFindsNothingAfterThat)
{
    Fill(SlotLG, Large, Many(8, 8));
    Fill(SlotSM, Large, Many(6, 6));
    Select(Large);
    Import(SlotLG, Many(9, 9));
    Import(SlotSM, Many(4, 4));
    UndoChange(SlotSM, host);
    const auto before = State();

    UndoChange(SlotLG, host);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(high), Many(8, 8));
}

TEST_F(UndoTwins, OfALowResImportThatFilledAnEmptySlotEmptiesIt)
{
    Fill(SlotLG, Large, Many(8, 8));
    Select(Large);
    Import(SlotLG, Many(9, 9)); // a high-res backup is there
    Import(SlotSM, Many(4, 4));

    UndoChange(SlotSM, host);

    EXPECT_EQ(Row(Large).LowResFile, "NEW");
    EXPECT_EQ(Row(Large).HighResFile, high);
    EXPECT_EQ(Stored(high), Many(9, 9));
    EXPECT_TRUE(host.IsOn(Command::CreateLowRes)) << "the high-res picture's own";
}

TEST_F(UndoTwins, EachPanelHasItsOwnStep)
{
    Select(Large);
    Import(SlotLG, Many(9, 9));
    Import(SlotSM, Many(4, 4));
    EXPECT_TRUE(UndoIsOn(SlotLG) && UndoIsOn(SlotSM));

    UndoChange(SlotLG, host);
    EXPECT_EQ(Row(Large).HighResFile, "NEW");
    EXPECT_EQ(Row(Large).LowResFile, low);
    EXPECT_TRUE(UndoIsOn(SlotSM));
    EXPECT_FALSE(host.IsOn(Command::CreateLowRes));

    UndoChange(SlotSM, host);
    EXPECT_EQ(Row(Large).LowResFile, "NEW");
}

/// What undo can't restore it does not half restore.
class UndoFails : public EachSlot { };
INSTANTIATE_TEST_SUITE_P(Slots, UndoFails, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(UndoFails, OnABackupThatIsNoPicture)
{
    Fill(slot, Large, Many(8, 8));
    const std::string name = NameFor(slot, Large);
    Select(Large);
    DeleteImage(slot, host);
    WriteText(WorkPath(name + ".bak"), "no picture");
    const auto before = State();
    const std::map<std::string, Bytes> files = WorkFiles();

    EXPECT_THROW(UndoChange(slot, host), PictureFault);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(WorkFiles(), files);
    EXPECT_EQ(Import(slot, Many(4, 4)), ImportResult::Stored) << "the slot is usable";
    EXPECT_EQ(WhyNot(), "");
}

TEST_P(UndoFails, WhereTheWorkingFileCanNotBeReplaced)
{
    Fill(slot, Large, Many(8, 8));
    const std::string name = NameFor(slot, Large);
    Select(Large);
    DeleteImage(slot, host);
    std::filesystem::remove(WorkPath(name));
    MakeFolder(WorkPath(name));
    WriteText(WorkPath(name) + "/holds", "it");
    const auto before = State();

    EXPECT_THROW(UndoChange(slot, host), PictureFault);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(name + ".bak"), Many(8, 8));
    std::filesystem::remove_all(WorkPath(name));
    UndoChange(slot, host);
    EXPECT_EQ(Stored(name), Many(8, 8)) << "once more, when it can be";
}

} // namespace
} // namespace vypx::test
