#include "PicturesFixture.h"

namespace vypx::test {

namespace {

/// The buttons that write a picture to a file of the user's.
class ExportingPictures : public PicturesFixture {
protected:
    QString Target() const { return QString::fromStdString(program.File("out.bmp")); }
    std::string FolderInSettings()
    {
        const std::string key = "Last Directory for Image Save=", text = Settings();
        const std::size_t begin = text.find(key) + key.size();
        return text.substr(begin, text.find_first_of("\r\n", begin) - begin);
    }
};

TEST_F(ExportingPictures, WriteEachPanelsOwnPicture)
{
    Click("Alpha (Large Icon)");
    Import("cmdImportLG", PictureFile(64, 44, { 200, 100, 48 }));
    for (const auto& [button, size] :
        { std::pair{ "cmdSaveLG", QSize(64, 44) }, std::pair{ "cmdSaveSM", QSize(2, 1) } }) {
        ask.SaveTo(Target());

        Press(button);

        EXPECT_EQ(QImage(Target()).size(), size) << button;
    }
    EXPECT_EQ(Note(), "");
}

TEST_F(ExportingPictures, TheDialogOffersBmpAndTheFolderUsedLast)
{
    Click("Alpha (Large Icon)");
    ask.SaveTo(Target());
    Press("cmdSaveLG");
    EXPECT_EQ(ask.saved.back().filters, QStringList("Windows BMP (*.bmp)"));
    EXPECT_EQ(ask.saved.back().defaultEnding, "bmp");
    EXPECT_EQ(ask.saved.back().folder, "");
    EXPECT_EQ(FolderInSettings(), program.Path());

    ask.CancelSave();
    Press("cmdSaveSM");
    EXPECT_EQ(ask.saved.back().folder, QString::fromStdString(program.Path()));

    UseLastDirs = false;
    ask.CancelSave();
    Press("cmdSaveSM");
    EXPECT_EQ(ask.saved.back().folder, "");
}

TEST_F(ExportingPictures, AFolderThatHasGoneIsNotOffered)
{
    LastDirImageSave = program.File("gone");
    Click("Alpha (Large Icon)");
    ask.CancelSave();

    Press("cmdSaveLG");

    EXPECT_EQ(ask.saved.back().folder, "");
}

TEST_F(ExportingPictures, ACancelTellsAndChangesNothing)
{
    LastDirImageSave = "before";
    Click("Alpha (Large Icon)");
    const QString title = frame->windowTitle();
    ask.CancelSave();

    Press("cmdSaveLG");

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(Note(), "");
    EXPECT_EQ(LastDirImageSave, "before");
    EXPECT_EQ(frame->windowTitle(), title); // an export changes no document
}

TEST_F(ExportingPictures, AFileThatHasGoneIsToldInABox)
{
    Click("Alpha (Large Icon)");
    std::filesystem::remove(HighResPath);
    ask.SaveTo(Target());
    ask.Answer(QMessageBox::Ok);

    Press("cmdSaveLG");

    EXPECT_EQ(ask.shown.back().text, "Error saving image.");
    EXPECT_FALSE(QFile::exists(Target()));
}

TEST_F(ExportingPictures, TheWorkingFolderIsRefusedInABox)
{
    Click("Alpha (Large Icon)");
    ask.SaveTo(QString::fromStdString(HighResPath));
    ask.Answer(QMessageBox::Ok);

    Press("cmdSaveLG");

    EXPECT_TRUE(ask.shown.back().text.startsWith("The picture was not exported: "));
}

TEST_F(ExportingPictures, WhatCantBeWrittenStandsInTheNote)
{
    Click("Alpha (Large Icon)");
    ask.SaveTo(QString::fromStdString(program.File("missing/out.bmp")));

    Press("cmdSaveLG");

    EXPECT_TRUE(Note().startsWith("The picture was not exported: ")) << Note().toStdString();
    ask.SaveTo(Target());
    Press("cmdSaveLG");
    EXPECT_EQ(Note(), ""); // of the command before
}

TEST_F(ExportingPictures, AnEmptySlotHasNothingToExport)
{
    Click("Beta (Large Icon)");

    EXPECT_FALSE(IsOn("cmdSaveLG"));
}

} // namespace

} // namespace vypx::test
