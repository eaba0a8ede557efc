#include "imaging/Undo.h"
#include "support/CommonUser.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

/// A picture is taken out of its icon.
class Delete : public EachSlot {
protected:
    Delete()
        : name(NameFor(slot, Large))
    {
        Fill(slot, Large, Many(8, 8));
        Fill(other, Large, Many(7, 7));
        oldBytes = ReadBytes(WorkPath(name));
    }

    const std::string name;
    Bytes oldBytes;
};
INSTANTIATE_TEST_SUITE_P(Slots, Delete, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(Delete, EmptiesTheSlotInEveryRowOfTheResource)
{
    Select(Sharing);
    IconsetChanged = false;

    DeleteImage(slot, host);

    EXPECT_EQ(Cell(slot, Large), "NEW");
    EXPECT_EQ(Cell(slot, Sharing), "NEW");
    EXPECT_EQ(Cell(other, Large), NameFor(other, Large));
    EXPECT_EQ(slot.path, "");
    EXPECT_FALSE(slot.loaded);
    EXPECT_EQ(other.path, WorkPath(NameFor(other, Large)));
    EXPECT_TRUE(other.loaded);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(isLG ? StatHighRes : StatLowRes, 0);
    EXPECT_EQ(isLG ? StatLowRes : StatHighRes, 2);
}

TEST_P(Delete, SparesOtherIcons)
{
    Fill(slot, Small, Many(3, 3));
    Select(Large);

    DeleteImage(slot, host);

    EXPECT_EQ(Cell(slot, Small), NameFor(slot, Small));
}

TEST_P(Delete, LeavesTheWorkingFileAndACopy)
{
    Select(Large);

    DeleteImage(slot, host);

    EXPECT_EQ(ReadBytes(WorkPath(name)), oldBytes);
    EXPECT_EQ(ReadBytes(WorkPath(name + ".bak")), oldBytes);
    EXPECT_EQ(WorkFiles().size(), 3u);
}

TEST_P(Delete, ReplacesAnOlderBackup)
{
    WriteText(WorkPath(name + ".bak"), "an older one");
    Select(Large);

    DeleteImage(slot, host);

    EXPECT_EQ(ReadBytes(WorkPath(name + ".bak")), oldBytes);
}

TEST_P(Delete, RemembersItsOwnFileForUndo)
{
    Select(Large);

    DeleteImage(slot, host);

    EXPECT_EQ(slot.undoName, name) << "the low-res one as well, other than an import";
    EXPECT_FALSE(slot.wasEmpty);
    EXPECT_TRUE(UndoIsOn(slot));
    EXPECT_FALSE(UndoIsOn(other));
}

TEST_P(Delete, TakesThePictureAndItsCommandsOffThePanel)
{
    Select(Large);
    host.enabled.clear();

    DeleteImage(slot, host);

    EXPECT_THAT(host.steps, ElementsAre("clear " + Letters(), "stats"));
    EXPECT_EQ(host.Told(false),
        isLG ? (std::set{ Command::ExportLG, Command::CopyLG, Command::CreateLowRes,
            Command::DeleteLG, Command::ChangeColourLG })
             : (std::set{
                 Command::ExportSM, Command::CopySM, Command::DeleteSM, Command::ChangeColourSM }));
    EXPECT_EQ(host.Told(true), std::set<Command>(slot.ofUndo.begin(), slot.ofUndo.end()));
    EXPECT_THAT(host.messages, ElementsAre());
    EXPECT_THAT(host.notes, ElementsAre());
}

TEST_P(Delete, ThenASaveLeavesThePictureOut)
{
    Fill(slot, Small, Many(3, 3));
    Select(Large);

    DeleteImage(SlotLG, host);
    DeleteImage(SlotSM, host);

    EXPECT_EQ(WhyNot(), "");
    EXPECT_THAT(SavedKeys(), ElementsAre("tAIB3501", "tver1000", "iTbl1000"));
}

TEST_P(Delete, OfAPictureWhoseFileIsGoneEmptiesTheSlot)
{
    Select(Large);
    std::filesystem::remove(WorkPath(name));

    DeleteImage(slot, host);

    EXPECT_EQ(Cell(slot, Large), "NEW");
    EXPECT_EQ(Cell(slot, Sharing), "NEW");
    EXPECT_EQ(slot.path, "");
    EXPECT_FALSE(slot.loaded);
    EXPECT_FALSE(NamedFileExists(WorkPath(name + ".bak")));
    EXPECT_TRUE(slot.wasEmpty);
    EXPECT_EQ(WhyNot(), "") << "the document can be saved again";
}

TEST_P(Delete, OfAPictureWhoseFileIsGoneCanBeUndoneWithoutHarm)
{
    Select(Large);
    std::filesystem::remove(WorkPath(name));
    DeleteImage(slot, host);

    UndoChange(slot, host);

    EXPECT_EQ(Cell(slot, Large), "NEW");
    EXPECT_EQ(slot.path, "");
    EXPECT_FALSE(UndoIsOn(slot));
    EXPECT_EQ(WhyNot(), "");
}

/// A backup that an earlier change made is no content of a file that is gone.
TEST_P(Delete, OfAPictureWhoseFileIsGoneRestoresNoOlderBackup)
{
    Select(Large);
    Import(slot, Many(4, 4));
    ASSERT_TRUE(NamedFileExists(WorkPath(name + ".bak")));
    std::filesystem::remove(WorkPath(name));

    DeleteImage(slot, host);
    UndoChange(slot, host);

    EXPECT_EQ(Cell(slot, Large), "NEW");
}

TEST_P(Delete, WithoutABackupDeletesNothing)
{
    Select(Large);
    MakeFolder(WorkPath(name + ".bak"));
    WriteText(WorkPath(name + ".bak") + "/holds", "it");
    const auto before = State();
    host.steps.clear();

    EXPECT_THROW(DeleteImage(slot, host), PictureFault);

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(ReadBytes(WorkPath(name)), oldBytes);
    EXPECT_EQ(host.steps, std::vector<std::string>()) << "the panel shows it still";
    EXPECT_TRUE(host.IsOn(slot.ofStored[0]));
    EXPECT_EQ(WhyNot(), "");
    std::filesystem::remove_all(WorkPath(name + ".bak"));
    DeleteImage(slot, host);
    EXPECT_EQ(Cell(slot, Large), "NEW") << "once more, when it can be";
}

#ifndef _WIN32
TEST_P(Delete, WhereTheFolderCanNotBeWrittenDeletesNothing)
{
    Select(Large);
    const auto before = State();
    {
        const CommonUser common;
        EXPECT_THROW(DeleteImage(slot, host), PictureFault);
    }

    EXPECT_TRUE(State() == before);
    EXPECT_EQ(WorkFiles().size(), 2u) << "both pictures and nothing else";
}
#endif

TEST_P(Delete, TouchesNoBackupOutsideOfTheWorkingFolder)
{
    const std::filesystem::path here = std::filesystem::current_path();
    std::filesystem::current_path(platform::NativePath(folder.Path()));
    WriteText(folder.File(name + ".bak"), "somebody else's");
    Select(Large);

    DeleteImage(slot, host);
    std::filesystem::current_path(here);

    EXPECT_EQ(ReadText(folder.File(name + ".bak")), "somebody else's");
}

TEST_P(Delete, OfTheLastOfSeveralRowsWithTheLabelNamesTheFile)
{
    IconTable.push_back(Row(Large));
    IconTable.back().HighResFile = IconTable.back().LowResFile = "last.bmp";
    WriteBytes(WorkPath("last.bmp"), EncodeBmp24(Many(2, 2)));
    Select(Large);

    DeleteImage(slot, host);

    EXPECT_EQ(slot.undoName, "last.bmp");
    EXPECT_EQ(Stored("last.bmp.bak"), Many(2, 2));
    EXPECT_EQ(IconTable.back().*slot.fileCell, "NEW");
    EXPECT_EQ(Cell(slot, Large), "NEW");
}

TEST_P(Delete, ThenAnImportFillsTheSlotAnew)
{
    Select(Large);
    DeleteImage(slot, host);

    EXPECT_EQ(Import(slot, Many(4, 4)), ImportResult::Stored);

    EXPECT_EQ(Cell(slot, Large), name);
    EXPECT_EQ(Cell(slot, Sharing), name);
    EXPECT_EQ(Stored(name), Many(4, 4));
    EXPECT_TRUE(slot.wasEmpty) << "undo empties it";
}

} // namespace
} // namespace vypx::test
