#include "IconsFixture.h"

#include "companion/BmpFile.h"
#include "document/PictureState.h"

namespace vypx::test {

namespace {

/// Pictures that are deleted, brought back and removed.
class Undoing : public IconsFixture {
protected:
    void Press(const QString& name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }
    void Import(const QString& button, int width, int height)
    {
        ask.Choose(Written(EncodeBmp24(vypx::Picture(width, height)), "new.bmp"));
        Press(button);
    }
    bool IsShown(const QString& name) { return Find<QWidget>(name).isVisible(); }
    QString Text(const QString& name) { return Find<QLabel>(name).text(); }
    std::string Cell(const std::string& label, std::string IconRow::*cell)
    {
        return IconTable[*FindIconRow(label)].*cell;
    }
    void AnswerRemoval(QMessageBox::StandardButton button, const QString& entry)
    {
        ask.Answer(button);
        Entry(entry).trigger();
    }
};

TEST_F(Undoing, DeleteEmptiesThePanelAndItsTexts)
{
    Click("Alpha (Large Icon)");

    Press("cmdDelLG");

    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
    EXPECT_EQ(Text("lbl_LGsize"), "");
    EXPECT_EQ(Text("lblC_RGB_LG"), "");
    EXPECT_FALSE(IsShown("picColSwatchLG"));
    EXPECT_EQ(Text("lblLG_Size"), "Max 64 x 44");
    for (const char* button :
        { "cmdSaveLG", "cmdCopyClipLG", "cmdCreateLowRes", "cmdDelLG", "cmdChangeTC_LG" })
        EXPECT_FALSE(IsOn(button)) << button;
    EXPECT_TRUE(IsOn("cmdImportLG"));
    EXPECT_TRUE(IsOn("cmdUndoLG"));
    EXPECT_FALSE(IsOn("cmdUndoSM"));
    EXPECT_EQ(Text("lbl_SMsize"), "2 x 1 pixels"); // the other panel stays
    EXPECT_TRUE(frame->windowTitle().contains('*'));
}

TEST_F(Undoing, ThePictureIsThereAgainButShownWithTheNextSelection)
{
    Click("Alpha (Large Icon)");
    Press("cmdDelLG");

    Press("cmdUndoLG");

    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 0, 255");
    EXPECT_TRUE(IsOn("cmdDelLG"));
    EXPECT_TRUE(IsOn("cmdCreateLowRes"));
    EXPECT_FALSE(IsOn("cmdUndoLG"));
    EXPECT_FALSE(CanUse("mnuUndo_LG"));
    Click("Alpha (Small Icon)");
    Click("Alpha (Large Icon)");
    EXPECT_EQ(Find<QWidget>("picLG").size(), QSize(2, 1));
}

TEST_F(Undoing, TheMenuEntryUndoesAsWell)
{
    Click("Alpha (Large Icon)");
    Press("cmdDelSM");
    ASSERT_TRUE(CanUse("mnuUndo_SM"));

    Entry("mnuUndo_SM").trigger();

    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::LowResFile), "tAIB3500.bmp");
    EXPECT_FALSE(IsOn("cmdUndoSM"));
}

TEST_F(Undoing, AnImportIntoAnEmptySlotIsTakenOutAgain)
{
    AutoCreateLowRes = false;
    Click("Beta (Large Icon)");
    Import("cmdImportLG", 10, 10);

    Press("cmdUndoLG");

    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "NEW");
    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
    EXPECT_EQ(Text("lbl_LGsize"), "");
    EXPECT_FALSE(IsShown("picColSwatchLG"));
    for (const char* button : { "cmdSaveLG", "cmdCreateLowRes", "cmdDelLG", "cmdUndoLG" })
        EXPECT_FALSE(IsOn(button)) << button;
    EXPECT_TRUE(IsOn("cmdImportLG"));
}

TEST_F(Undoing, AnotherIconEndsIt)
{
    Click("Alpha (Large Icon)");
    Press("cmdDelLG");

    Click("Beta (Large Icon)");
    Click("Alpha (Large Icon)");

    EXPECT_FALSE(IsOn("cmdUndoLG"));
    EXPECT_FALSE(CanUse("mnuUndo_LG"));
}

TEST_F(Undoing, AnotherDocumentEndsIt)
{
    Click("Alpha (Large Icon)");
    Press("cmdDelLG");
    IconsetChanged = false;

    Open(QString::fromStdString(FileName));
    Click("Alpha (Large Icon)");

    EXPECT_FALSE(IsOn("cmdUndoLG"));
    EXPECT_TRUE(IsOn("cmdDelLG"));
}

TEST_F(Undoing, APictureWithoutABackupIsNotDeleted)
{
    Click("Alpha (Large Icon)");
    const std::string backup = WorkPath("tAIB3500-d144.bmp.bak");
    std::filesystem::create_directories(backup + "/in the way");
    ask.Answer(QMessageBox::Ok);

    Press("cmdDelLG");

    EXPECT_TRUE(ask.shown.back().text.startsWith("The picture was not changed."));
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::HighResFile), "tAIB3500-d144.bmp");
    EXPECT_EQ(Find<QWidget>("picLG").size(), QSize(2, 1));
    EXPECT_TRUE(IsOn("cmdDelLG"));
    EXPECT_FALSE(IsOn("cmdUndoLG"));
}

TEST_F(Undoing, TheNextPressOfAKeyUsesNoOtherCommand)
{
    frame->activateWindow();
    QTRY_VERIFY(frame->isActiveWindow());
    Click("Alpha (Large Icon)");
    Find<QPushButton>("cmdDelLG").setFocus();

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); // disables its own button

    EXPECT_EQ(QApplication::focusWidget(), &Nodes());
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::HighResFile), "NEW");
}

TEST_F(Undoing, LowResIsMadeFromHighResAfterAQuestion)
{
    Click("Alpha (Large Icon)");
    Import("cmdImportLG", 64, 44);
    ask.Answer(QMessageBox::Ok);

    Press("cmdCreateLowRes");

    const Box& box = ask.shown.back();
    EXPECT_EQ(box.text, "Are you sure you want to replace the current low res image?");
    EXPECT_EQ(box.title, "Replace Low Res Image?");
    EXPECT_EQ(box.icon, QMessageBox::Warning);
    EXPECT_EQ(box.buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(Text("lbl_SMsize"), "32 x 22 pixels");
    EXPECT_TRUE(std::filesystem::exists(WorkPath("temp.bmp")));
}

TEST_F(Undoing, CancelKeepsTheLowResPicture)
{
    Click("Alpha (Large Icon)");
    ask.Answer(QMessageBox::Cancel);

    Press("cmdCreateLowRes");

    EXPECT_EQ(Text("lbl_SMsize"), "2 x 1 pixels");
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(IsOn("cmdUndoSM"));
}

TEST_F(Undoing, AnEmptyLowResSlotIsFilledWithoutAQuestion)
{
    Click("Alpha (Large Icon)");
    Import("cmdImportLG", 64, 44);
    Press("cmdDelSM");

    Press("cmdCreateLowRes");

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(Text("lbl_SMsize"), "32 x 22 pixels");
}

TEST_F(Undoing, AHighResPictureWithoutAHalfLeavesANote)
{
    Click("Alpha (Large Icon)");
    Import("cmdImportLG", 1, 44);
    Press("cmdDelSM");

    Press("cmdCreateLowRes");

    EXPECT_EQ(Text("lblNote"),
        "There is no low-res picture: the high-res one is too small to be halved.");
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::LowResFile), "NEW");
    EXPECT_TRUE(IsOn("cmdUndoLG"));
    EXPECT_FALSE(IsOn("cmdUndoSM"));
}

TEST_F(Undoing, AVanishedHighResPictureIsToldInABox)
{
    Click("Alpha (Large Icon)");
    Press("cmdDelSM");
    std::filesystem::remove(HighResPath);
    ask.Answer(QMessageBox::Ok);

    Press("cmdCreateLowRes");

    EXPECT_EQ(
        ask.shown.back().text, "The picture was not changed.\nThe high-res picture can't be read.");
    EXPECT_FALSE(DroppedFile);
    Click("Beta (Large Icon)"); // and goes on
    EXPECT_EQ(Text("lbl_SMsize"), "1 x 1 pixels");
}

TEST_F(Undoing, AllHighResPicturesAreRemovedAtAStroke)
{
    Click("Alpha (Large Icon)");

    AnswerRemoval(QMessageBox::Yes, "mnuRemoveHR");

    const Box& box = ask.shown.back();
    EXPECT_EQ(box.text,
        "Please check the VYPX help to make sure you don't need any high-res icons.\n\nAre you "
        "sure you would you like to erase all of the high-res images now?");
    EXPECT_EQ(box.title, "Erase all the high res images?");
    EXPECT_EQ(box.icon, QMessageBox::Information);
    EXPECT_EQ(box.buttons, QMessageBox::Yes | QMessageBox::No);
    for (const IconRow& row : IconTable)
        EXPECT_EQ(row.HighResFile, "NEW") << row.IconLabel;
    EXPECT_FALSE(IsShown("frameLG"));
    EXPECT_TRUE(IsShown("frameSM"));
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked()); // the wrong way round, as it should be
    EXPECT_FALSE(Entry("mnuShowBoth").isChecked());
    EXPECT_FALSE(Entry("mnuHideHighRes").isChecked());
    EXPECT_FALSE(HighResOnly || LowResOnly);
    EXPECT_EQ(Text("lbl_LGsize"), "");
    EXPECT_EQ(HighResPath, "");
    EXPECT_FALSE(IsOn("cmdDelLG"));
    EXPECT_FALSE(IsOn("cmdUndoLG"));
    EXPECT_TRUE(IsOn("cmdImportSM"));
    EXPECT_TRUE(frame->windowTitle().contains('*'));
}

TEST_F(Undoing, AllLowResPicturesAreRemovedAtAStroke)
{
    Click("Alpha (Large Icon)");
    Press("cmdDelSM"); // whose undo ends

    AnswerRemoval(QMessageBox::Yes, "mnuRemoveLR");

    EXPECT_EQ(ask.shown.back().text,
        "Please check the VYPX help to make sure you don't need to include any low-res "
        "icons.\n\nAre you sure you would you like to erase all of the low res images now?");
    EXPECT_EQ(ask.shown.back().title, "Erase all the low res images?");
    EXPECT_TRUE(IsShown("frameLG"));
    EXPECT_FALSE(IsShown("frameSM"));
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked());
    EXPECT_FALSE(IsOn("cmdUndoSM"));
    EXPECT_FALSE(CanUse("mnuUndo_SM"));
    EXPECT_TRUE(IsOn("cmdDelLG"));
}

TEST_F(Undoing, NoKeepsAllPictures)
{
    AnswerRemoval(QMessageBox::No, "mnuRemoveLR");

    EXPECT_FALSE(IconsetChanged);
    EXPECT_TRUE(IsShown("frameSM"));
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::LowResFile), "tAIB3500.bmp");
}

TEST_F(Undoing, WithoutPicturesTheQuestionStillComes)
{
    AnswerRemoval(QMessageBox::Yes, "mnuRemoveHR");
    IconsetChanged = false;

    AnswerRemoval(QMessageBox::Yes, "mnuRemoveHR");

    EXPECT_EQ(ask.shown.size(), 2u);
    EXPECT_TRUE(IconsetChanged);
}

} // namespace

} // namespace vypx::test
