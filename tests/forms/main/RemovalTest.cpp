#include "PicturesFixture.h"

namespace vypx::test {

namespace {

/// All pictures of a slot are removed by a menu entry.
class RemovingAll : public PicturesFixture {
protected:
    void AnswerRemoval(QMessageBox::StandardButton button, const QString& entry)
    {
        ask.Answer(button);
        Entry(entry).trigger();
    }
};

TEST_F(RemovingAll, AllHighResPicturesAreRemovedAtAStroke)
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
    for (const char* button : { "cmdDelLG", "cmdUndoLG", "cmdCreateLowRes", "cmdSaveLG" })
        EXPECT_FALSE(IsOn(button)) << button;
    for (const char* button : { "cmdImportLG", "cmdImportSM", "cmdDelSM" })
        EXPECT_TRUE(IsOn(button)) << button;
    EXPECT_EQ(Text("lblC_RGB_LG"), "");
    EXPECT_TRUE(frame->windowTitle().contains('*'));
}

TEST_F(RemovingAll, AllLowResPicturesAreRemovedAtAStroke)
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

TEST_F(RemovingAll, AfterARemovalNoKeyGoesToAnotherPanel)
{
    frame->activateWindow();
    QTRY_VERIFY(frame->isActiveWindow());
    Click("Alpha (Large Icon)");
    Find<QPushButton>("cmdImportLG").setFocus();

    AnswerRemoval(QMessageBox::Yes, "mnuRemoveHR");

    EXPECT_EQ(QApplication::focusWidget(), &Nodes());
}

TEST_F(RemovingAll, NoKeepsAllPictures)
{
    AnswerRemoval(QMessageBox::No, "mnuRemoveLR");

    EXPECT_FALSE(IconsetChanged);
    EXPECT_TRUE(IsShown("frameSM"));
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::LowResFile), "tAIB3500.bmp");
}

TEST_F(RemovingAll, WithoutPicturesTheQuestionStillComes)
{
    AnswerRemoval(QMessageBox::Yes, "mnuRemoveHR");
    IconsetChanged = false;

    AnswerRemoval(QMessageBox::Yes, "mnuRemoveHR");

    EXPECT_EQ(ask.shown.size(), 2u);
    EXPECT_TRUE(IconsetChanged);
}

} // namespace

} // namespace vypx::test
