#include "imaging/Undo.h"
#include "support/CommonUser.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// Imports that don't come to their end: the document stays as it was, and usable.
class ImportFailures : public EachSlot {
protected:
    /// Nothing was said in a box, one note tells of `what`, undo is over and the document marked.
    void ExpectFailureExit(const std::string& what)
    {
        EXPECT_THAT(host.messages, ElementsAre());
        EXPECT_THAT(host.notes, ElementsAre(HasSubstr(what)));
        EXPECT_FALSE(UndoIsOn(slot));
        EXPECT_TRUE(IconsetChanged);
        EXPECT_THAT(host.steps, Not(Contains("draw " + Letters())));
        EXPECT_THAT(host.steps, Not(Contains("colour " + Letters())));
    }
    /// A picture can come in, and the document can be saved.
    void ExpectUsable()
    {
        EXPECT_EQ(Import(slot, Many(5, 5)), ImportResult::Stored);
        EXPECT_EQ(Stored(NameFor(slot, Large)), Many(5, 5));
        EXPECT_EQ(WhyNot(), "");
        EXPECT_THAT(SavedKeys(), Contains("tAIB3500"));
    }
    std::string Name() const { return NameFor(slot, Large); }
};
INSTANTIATE_TEST_SUITE_P(Slots, ImportFailures, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(ImportFailures, ACancelLeavesTheDocumentMarkedAndSaysNothing)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    const auto before = State();

    EXPECT_EQ(Again(slot), ImportResult::Cancelled);

    EXPECT_TRUE(State() == before);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_FALSE(UndoIsOn(slot));
    EXPECT_THAT(host.steps, ElementsAre("choose"));
    EXPECT_EQ(Stored(Name() + ".bak"), Many(8, 8));
    EXPECT_FALSE(slot.wasEmpty);
    EXPECT_EQ(slot.undoName, Row(Large).HighResFile);
}

TEST_P(ImportFailures, ASourceThatIsGoneFails)
{
    Select(Large);
    const auto before = State();
    host.choice = folder.File("in.bmp");
    WriteBytes(host.choice, EncodeBmp24(Many(4, 4)));
    host.duringLoad = [&](const std::string&) { std::filesystem::remove(host.choice); };

    EXPECT_EQ(Again(slot), ImportResult::Failed);

    ExpectFailureExit("in.bmp");
    EXPECT_THAT(host.notes[0], HasSubstr("it is not there"));
    EXPECT_TRUE(State() == before);
    EXPECT_TRUE(slot.wasEmpty);
    host.duringLoad = [](const std::string&) {};
    ExpectUsable();
}

TEST_P(ImportFailures, ASourceThatIsNoPictureFails)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    const auto before = State();
    host.choice = folder.File("in.bmp");
    WriteText(host.choice, "no picture");

    EXPECT_EQ(Again(slot), ImportResult::Failed);

    ExpectFailureExit("in.bmp");
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(Name()), Many(8, 8));
    EXPECT_EQ(Stored(Name() + ".bak"), Many(8, 8));
    ExpectUsable();
}

TEST_P(ImportFailures, ADroppedFileThatIsNoPictureFails)
{
    Select(Large);
    const auto before = State();
    DroppedFile = true;
    DroppedFileName = folder.File("dropped.bmp");

    EXPECT_EQ(Again(slot), ImportResult::Failed);

    ExpectFailureExit("dropped.bmp");
    EXPECT_TRUE(State() == before);
    DroppedFile = false;
    host.notes.clear();
    ExpectUsable();
}

TEST_P(ImportFailures, ADroppedFileThatIsNamedLikeNoPictureIsNotLoadedAndFailsOnce)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    const auto before = State();
    DroppedFile = true;
    DroppedFileName = folder.File("dropped.dat");
    WriteBytes(DroppedFileName, EncodeBmp24(Many(4, 4)));
    host.takesDropped = false;

    EXPECT_EQ(Again(slot), ImportResult::Failed);

    ExpectFailureExit("dropped.dat");
    EXPECT_TRUE(State() == before);
    EXPECT_THAT(host.steps, Not(Contains("load dropped.dat")));
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(Stored(Name() + ".bak"), Many(8, 8));
    EXPECT_FALSE(DroppedFile) << "the next import asks for its file";
    ExpectUsable();
}

TEST_P(ImportFailures, WithoutAWorkingFolderNothingFillsASlot)
{
    Select(Large);
    const auto before = State();
    std::filesystem::remove_all(WorkFolder());

    EXPECT_EQ(Import(slot, Many(4, 4)), ImportResult::Failed);

    ExpectFailureExit(Name());
    EXPECT_TRUE(State() == before);
    MakeFolder(WorkFolder());
    ExpectUsable();
}

TEST_P(ImportFailures, WithoutAWorkingFolderAFilledSlotIsRefused)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    const auto before = State();
    std::filesystem::remove_all(WorkFolder());

    EXPECT_EQ(Import(slot, Many(4, 4)), ImportResult::Refused);

    EXPECT_THAT(host.messages, ElementsAre("Error saving image.|"));
    EXPECT_TRUE(State() == before);
}

TEST_P(ImportFailures, AFileThatCanNotBeMadeFails)
{
    Select(Large);
    const auto before = State();
    MakeFolder(WorkPath(Name()));

    EXPECT_EQ(Import(slot, Many(4, 4)), ImportResult::Failed);

    ExpectFailureExit(Name());
    EXPECT_TRUE(State() == before);
    EXPECT_TRUE(WorkFiles().empty()) << "nothing is left beside it";
    std::filesystem::remove(WorkPath(Name()));
    ExpectUsable();
}

#ifndef _WIN32
TEST_P(ImportFailures, AFileThatCanNotBeReplacedStays)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    const auto before = State();
    std::optional<CommonUser> common; // who may read the working folder and not write it
    host.duringLoad = [&](const std::string&) { common.emplace(); };

    const ImportResult result = Import(slot, Many(4, 4));
    common.reset();

    EXPECT_EQ(result, ImportResult::Failed);
    ExpectFailureExit(Name());
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(Name()), Many(8, 8));
    EXPECT_EQ(WorkFiles().size(), 2u) << "the picture and its backup";
}
#endif

TEST_P(ImportFailures, AScratchPictureThatCanNotBeWrittenFails)
{
    Select(Large);
    const auto before = State();
    MakeFolder(WorkPath("temp.bmp"));

    EXPECT_EQ(Import(slot, Many(70, 70)), ImportResult::Failed);

    ExpectFailureExit("temp.bmp");
    EXPECT_TRUE(State() == before) << "the crop flags too";
    EXPECT_THAT(host.steps, Not(Contains("crop " + Letters())));
    ExpectUsable();
}

TEST_P(ImportFailures, ABackupThatCanNotBeWrittenIsAFault)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    const auto before = State();
    MakeFolder(WorkPath(Name() + ".bak"));
    WriteText(WorkPath(Name() + ".bak") + "/holds", "it");

    EXPECT_THROW(Import(slot, Many(4, 4)), PictureFault);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(Name()), Many(8, 8));
    EXPECT_EQ(host.steps, std::vector<std::string>()) << "not even the dialog came";
    std::filesystem::remove_all(WorkPath(Name() + ".bak"));
    ExpectUsable();
}

/// The undo controls of a backup that could not be made must not restore an older one.
TEST_P(ImportFailures, AnUndoAfterABackupThatFailedRestoresNothing)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    MakeFolder(WorkPath(Name() + ".bak"));
    WriteText(WorkPath(Name() + ".bak") + "/holds", "it");
    EXPECT_THROW(Import(slot, Many(4, 4)), PictureFault);
    const auto before = State();

    try {
        UndoChange(slot, host);
    } catch (const PictureFault&) { // the folder in its place
    }

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(Stored(Name()), Many(8, 8));
}

TEST_P(ImportFailures, ASecondImportAfterAFailureWorksAsTheFirst)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    host.choice = folder.File("missing.bmp");
    Again(slot);

    EXPECT_EQ(Import(slot, Many(4, 4)), ImportResult::Stored);

    EXPECT_TRUE(UndoIsOn(slot));
    EXPECT_EQ(Stored(Name() + ".bak"), Many(8, 8));
}

} // namespace
} // namespace vypx::test
