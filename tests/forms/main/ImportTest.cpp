#include "IconsFixture.h"

#include "companion/BmpFile.h"
#include "document/PictureState.h"

#include <QDropEvent>
#include <QMimeData>

namespace vypx::test {

namespace {

/// Icons to bring pictures to, at 16 bits.
class Importing : public IconsFixture {
protected:
    Importing() { AutoCreateLowRes = false; }

    /// A BMP file of one colour, with another one at its top left corner.
    QString PictureFile(int width, int height, Rgb colour, const std::string& name = "new.bmp")
    {
        vypx::Picture picture(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture.Set(x, y, colour);
        picture.Set(0, 0, { 8, 16, 24 });
        return Written(EncodeBmp24(picture), name);
    }
    void Press(const QString& name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }
    void Import(const QString& button, const QString& path)
    {
        ask.Choose(path);
        Press(button);
    }
    QString Note()
    {
        const auto& note = Find<QLabel>("lblNote");
        return note.isVisible() ? note.text() : QString();
    }
    std::string Cell(const std::string& label, std::string IconRow::*cell)
    {
        return IconTable[*FindIconRow(label)].*cell;
    }
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

TEST_F(Importing, TheDialogOffersTheToldFilterAndAllThatCanBeLoaded)
{
    Click("Alpha (Large Icon)");
    ask.CancelDialog();

    Press("cmdImportLG");

    const QStringList filters = ask.opened.back().filters;
    ASSERT_EQ(filters.size(), 2);
    EXPECT_EQ(filters[0], "Image File (*.bmp *.jpg *.gif)");
    EXPECT_TRUE(filters[1].startsWith("All Pictures (*."));
    for (const char* pattern : { "*.bmp", "*.gif", "*.jpeg", "*.jpg", "*.png", "*.ppm", "*.xpm" })
        EXPECT_TRUE(filters[1].contains(pattern)) << pattern;
    EXPECT_FALSE(filters[1].contains("svg"));
    EXPECT_FALSE(filters[1].contains("pdf"));
}

TEST_F(Importing, TheDialogStartsInTheLastFolderAndKeepsIt)
{
    UseLastDirs = true;
    std::filesystem::create_directory(program.File("art"));
    LastDirImageLoad = program.File("art");
    Click("Alpha (Large Icon)");

    Import("cmdImportLG", PictureFile(2, 2, { 1, 2, 3 }));

    EXPECT_EQ(ask.opened.back().folder.toStdString(), program.File("art"));
    EXPECT_EQ(LastDirImageLoad, program.Path());
    EXPECT_NE(
        Settings().find("Last Directory for Image Load=" + program.Path()), std::string::npos);
}

TEST_F(Importing, AFolderThatIsGoneIsNotOffered)
{
    UseLastDirs = true;
    LastDirImageLoad = program.File("gone");
    Click("Alpha (Large Icon)");
    ask.CancelDialog();

    Press("cmdImportLG");

    EXPECT_EQ(ask.opened.back().folder, "");
}

TEST_F(Importing, ACancelMarksTheDocumentAndTellsNothing)
{
    Click("Alpha (Large Icon)");
    ask.CancelDialog();

    Press("cmdImportLG");

    EXPECT_TRUE(frame->windowTitle().contains('*'));
    EXPECT_FALSE(IsOn("cmdUndoLG"));
    EXPECT_FALSE(CanUse("mnuUndo_LG"));
    EXPECT_EQ(Note(), "");
    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "2 x 1 pixels");
}

TEST_F(Importing, AFileThatIsNoPictureIsToldInTheNote)
{
    Click("Alpha (Large Icon)");

    Import("cmdImportLG", Written(Hex("00 01 02 03"), "words.bmp"));

    EXPECT_TRUE(Note().startsWith("words.bmp was not imported: ")) << Note().toStdString();
    EXPECT_FALSE(IsOn("cmdUndoLG"));
    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "2 x 1 pixels");
    ask.CancelDialog();
    Press("cmdImportLG");
    EXPECT_EQ(Note(), ""); // of the command before
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

TEST_F(Importing, WhileTheDialogIsUpNoFilesCanBeDroppedAndNoPicturesRemoved)
{
    Click("Alpha (Large Icon)");
    QMimeData files;
    files.setUrls({ QUrl::fromLocalFile(program.File("other.prc").c_str()) });
    bool dropAccepted = true;
    ask.Choose(PictureFile(2, 2, { 1, 2, 3 }), [&] {
        QDragEnterEvent enter({ 5, 5 }, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(frame.get(), &enter);
        dropAccepted = enter.isAccepted();
        Entry("mnuRemoveHR").trigger();
    });

    Press("cmdImportLG");

    EXPECT_FALSE(dropAccepted);
    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "2 x 2 pixels");
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
