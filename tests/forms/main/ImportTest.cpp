#include "PicturesFixture.h"

namespace vypx::test {

namespace {

/// Icons to bring pictures to, at 16 bits.
class Importing : public PicturesFixture {
protected:
    Importing() { AutoCreateLowRes = false; }
};

TEST_F(Importing, AChosenPictureIsStoredShownAndToldOf)
{
    Click("Alpha (Large Icon)");

    Import("cmdImportLG", PictureFile(64, 44, { 200, 100, 48 }));

    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "64 x 44 pixels");
    EXPECT_EQ(Find<QWidget>("picLG").size(), QSize(64, 44));
    EXPECT_EQ(Pixel("picLG", { 63, 43 }), QColor(200, 100, 48));
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(0, 0, 255)); // the corner is transparent
    EXPECT_EQ(Find<QLabel>("lblC_RGB_LG").text(), "8, 16, 24");
    EXPECT_EQ(Pixel("picColSwatchLG", { 3, 3 }), QColor(8, 16, 24));
    EXPECT_TRUE(IsOn("cmdUndoLG"));
    EXPECT_TRUE(CanUse("mnuUndo_LG"));
    EXPECT_FALSE(IsOn("cmdUndoSM"));
    EXPECT_TRUE(frame->windowTitle().contains('*'));
    EXPECT_EQ(Note(), "");
}

/// What comes back from the crop window is measured by the icon that is selected then.
TEST_F(Importing, ATooLargePictureThatComesBackIsToldInABox)
{
    Click("Alpha (Small Icon)");
    TargetWidth = 64;
    TargetHeight = 44;
    ImageFile = PictureFile(40, 20, { 1, 2, 3 }, "cut.bmp").toStdString();
    CropResultReady = true;
    ask.Answer(QMessageBox::Ok);

    Press("cmdImportLG");

    EXPECT_EQ(ask.shown.back().title, "Image Too Large!");
    EXPECT_EQ(ask.shown.back().text,
        "The width of the image your are trying to paste exceeds \n the the maximum size of a "
        "large "
        "Low Res Icon.\n\nThe maximum width for this icon is 32 pixels.\n\nThe image you are "
        "trying to paste is 40 pixels.");
    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "2 x 1 pixels");
}

TEST_F(Importing, AProjectOfHighResIconsGetsLowResPicturesToo)
{
    AutoCreateLowRes = true;
    Click("Alpha (Large Icon)");
    Press("cmdDelSM");
    Entry("mnuHideLowRes").trigger();

    Import("cmdImportLG", PictureFile(64, 44, { 96, 96, 96 }));

    EXPECT_FALSE(Find<QWidget>("frameSM").isVisible());
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::LowResFile), "tAIB3500.bmp");
}

TEST_F(Importing, ALargerPictureWaitsAndNothingElseChanges)
{
    Click("Beta (Large Icon)");

    Import("cmdImportLG", PictureFile(65, 44, { 1, 2, 3 }));

    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "NEW");
    EXPECT_TRUE(CropForLG);
    const std::optional<vypx::Picture> waiting =
        DecodeBmp(ByteView(ReadBytes(WorkPath("temp.bmp"))));
    ASSERT_TRUE(waiting);
    EXPECT_EQ(waiting->Width(), 65);
    EXPECT_FALSE(IsOn("cmdDelLG"));
}

TEST_F(Importing, AnEmptySlotGetsItsLowResPictureAsWell)
{
    AutoCreateLowRes = true;
    Click("Alpha (Large Icon)");
    Press("cmdDelLG");
    Press("cmdDelSM");

    Import("cmdImportLG", PictureFile(64, 44, { 96, 96, 96 }));

    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "64 x 44 pixels");
    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "32 x 22 pixels");
    EXPECT_TRUE(IsOn("cmdDelSM"));
    EXPECT_TRUE(IsOn("cmdUndoSM"));
    EXPECT_EQ(Cell("Alpha (Large Icon)", &IconRow::LowResFile), "tAIB3500.bmp");
}

TEST_F(Importing, AFilledLowResSlotStaysWithTheHighResImport)
{
    AutoCreateLowRes = true;
    Click("Alpha (Large Icon)");

    Import("cmdImportLG", PictureFile(64, 44, { 96, 96, 96 }));

    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "2 x 1 pixels");
}

TEST_F(Importing, ADocumentWithTheImportedPictureIsSavedAndOpenedAgain)
{
    Click("Beta (Large Icon)");
    Import("cmdImportLG", PictureFile(20, 10, { 255, 0, 0 }));
    WarnOverwrite = false;

    Entry("mnuSave").trigger();
    Open(QString::fromStdString(FileName));
    Click("Beta (Large Icon)");

    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "20 x 10 pixels");
    EXPECT_EQ(Pixel("picLG", { 19, 9 }), QColor(255, 0, 0));
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(0, 0, 255));
}

TEST_F(Importing, TheOpenDocumentsDepthCountsWhileAnotherIsChosen)
{
    Click("Beta (Large Icon)");
    PromptColorDepth = true;
    Entry("mnuNew").trigger();
    Find<QAbstractButton>("opt4Bit").click();

    Import("cmdImportLG", PictureFile(4, 4, { 255, 0, 0 }));

    EXPECT_EQ(Pixel("picLG", { 3, 3 }), QColor(255, 0, 0));
}

TEST_F(Importing, APictureAtFourBitsIsGrey)
{
    DefaultColorDepth = ColorDepth::Bits4;
    Click("Beta (Large Icon)");

    Import("cmdImportLG", PictureFile(4, 4, { 254, 255, 250 }));

    EXPECT_EQ(Pixel("picLG", { 3, 3 }), QColor(255, 255, 255));
    EXPECT_EQ(Find<QLabel>("lblC_RGB_LG").text(), "17, 17, 17");
}

TEST_F(Importing, AWorkingFolderThatIsGoneIsToldAndTheDocumentStays)
{
    Click("Beta (Large Icon)");
    const QString picture = PictureFile(4, 4, { 1, 2, 3 });
    std::filesystem::remove_all(WorkFolder());

    Import("cmdImportLG", picture);

    EXPECT_TRUE(Note().startsWith("tAIB3502-d144.bmp could not be stored: "))
        << Note().toStdString();
    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "NEW");
    EXPECT_FALSE(IsOn("cmdUndoLG"));
}

} // namespace

} // namespace vypx::test
