#include "PicturesFixture.h"

namespace vypx::test {

namespace {

using Undoing = PicturesFixture;

TEST_F(Undoing, DeleteEmptiesThePanelAndItsTexts)
{
    Click("Alpha (Large Icon)");

    Press("cmdDelLG");

    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
    EXPECT_EQ(Text("lbl_LGsize"), "");
    EXPECT_EQ(Text("lblC_RGB_LG"), "");
    EXPECT_FALSE(IsShown("picColSwatchLG"));
    EXPECT_FALSE(IsShown("lblNoTransparentLG"));
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
    ImportBlack("cmdImportLG", 10, 10);

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

} // namespace

} // namespace vypx::test
