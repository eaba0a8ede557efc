#include "PicturesFixture.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>

namespace vypx::test {

namespace {

/// Icons to bring pictures to, at 16 bits.
class ChoosingPictures : public PicturesFixture {
protected:
    ChoosingPictures() { AutoCreateLowRes = false; }
};

TEST_F(ChoosingPictures, TheDialogOffersTheToldFilterAndAllThatCanBeLoaded)
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

TEST_F(ChoosingPictures, TheDialogStartsInTheLastFolderAndKeepsIt)
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

TEST_F(ChoosingPictures, AFolderThatIsGoneIsNotOffered)
{
    UseLastDirs = true;
    LastDirImageLoad = program.File("gone");
    Click("Alpha (Large Icon)");
    ask.CancelDialog();

    Press("cmdImportLG");

    EXPECT_EQ(ask.opened.back().folder, "");
}

TEST_F(ChoosingPictures, FoldersAreNotKeptWhereThatIsNotWanted)
{
    UseLastDirs = false;
    LastDirImageLoad = program.Path();
    Click("Alpha (Large Icon)");
    ask.CancelDialog();

    Press("cmdImportLG");

    EXPECT_EQ(ask.opened.back().folder, "");
}

TEST_F(ChoosingPictures, ALargePictureShowsTheBusyNoteAndTakesNoKeys)
{
    Click("Alpha (Large Icon)");
    const QString picture = PictureFile(2000, 1001, { 1, 2, 3 });
    bool wasBusy = false;
    QTimer::singleShot(0, [&] {
        wasBusy = Find<QLabel>("lblWorking").isVisible();
        QCoreApplication::postEvent(
            &Nodes(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier));
    });

    Import("cmdImportLG", picture);

    EXPECT_TRUE(wasBusy);
    EXPECT_FALSE(Find<QLabel>("lblWorking").isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(Nodes().currentItem()->text(0), "Alpha (Large Icon)");
    EXPECT_TRUE(CropForLG);
}

TEST_F(ChoosingPictures, ASmallPictureShowsNoBusyNote)
{
    Click("Alpha (Large Icon)");
    bool wasBusy = false;
    QTimer::singleShot(0, [&] { wasBusy = Find<QLabel>("lblWorking").isVisible(); });

    Import("cmdImportLG", PictureFile(64, 44, { 1, 2, 3 }));
    QCoreApplication::processEvents();

    EXPECT_FALSE(wasBusy);
}

TEST_F(ChoosingPictures, ACancelMarksTheDocumentAndTellsNothing)
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

TEST_F(ChoosingPictures, AFileThatIsNoPictureIsToldInTheNote)
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

TEST_F(ChoosingPictures, WhileTheDialogIsUpNoFilesCanBeDroppedAndNoPicturesRemoved)
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

} // namespace

} // namespace vypx::test
