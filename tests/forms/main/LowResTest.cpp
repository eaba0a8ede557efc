#include "PicturesFixture.h"

namespace vypx::test {

namespace {

using MakingLowRes = PicturesFixture;

TEST_F(MakingLowRes, LowResIsMadeFromHighResAfterAQuestion)
{
    Click("Alpha (Large Icon)");
    ImportBlack("cmdImportLG", 64, 44);
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

TEST_F(MakingLowRes, CancelKeepsTheLowResPicture)
{
    Click("Alpha (Large Icon)");
    ask.Answer(QMessageBox::Cancel);

    Press("cmdCreateLowRes");

    EXPECT_EQ(Text("lbl_SMsize"), "2 x 1 pixels");
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(IsOn("cmdUndoSM"));
}

TEST_F(MakingLowRes, AnEmptyLowResSlotIsFilledWithoutAQuestion)
{
    Click("Alpha (Large Icon)");
    ImportBlack("cmdImportLG", 64, 44);
    Press("cmdDelSM");

    Press("cmdCreateLowRes");

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(Text("lbl_SMsize"), "32 x 22 pixels");
}

TEST_F(MakingLowRes, AHighResPictureWithoutAHalfLeavesANote)
{
    Click("Alpha (Large Icon)");
    ImportBlack("cmdImportLG", 1, 44);
    Press("cmdDelSM");

    Press("cmdCreateLowRes");

    EXPECT_EQ(Text("lblNote"),
        "There is no low-res picture: the high-res one is too small to be halved.");
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::LowResFile), "NEW");
    EXPECT_TRUE(IsOn("cmdUndoLG"));
    EXPECT_FALSE(IsOn("cmdUndoSM"));
}

TEST_F(MakingLowRes, AVanishedHighResPictureIsToldInABox)
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

} // namespace

} // namespace vypx::test
