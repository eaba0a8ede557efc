#include "TemplatesFixture.h"

#include "writer/CompileIconset.h"

namespace vypx::test {

namespace {

class ExportingTemplates : public TemplatesFixture {
protected:
    QLabel& NotSaved() { return Find<QLabel>("lblNotSaved"); }
};

TEST_F(ExportingTemplates, WriteTheIconsWithoutPicturesAndLeaveTheDocumentAlone)
{
    CreateBackup = true;
    LastDirIconsetSave = "kept";
    TheTemplate();
    const Bytes iconset = ReadBytes(program.File("set.prc"));
    const std::vector<IconRow> rows = IconTable;
    const std::vector<BitmapEntry> bitmaps = BitmapTable;
    for (const bool changed : { false, true }) {
        IconsetChanged = changed;

        Export(PathOf("t.vpt"));

        EXPECT_EQ(IconsetChanged, changed);
        ExpectTheIconsetIsOpen();
        EXPECT_EQ(IconTable, rows);
        EXPECT_EQ(BitmapTable, bitmaps);
        EXPECT_EQ(LastDirIconsetSave, "kept");
        EXPECT_EQ(TemplatePath, program.File("t.vpt"));
        EXPECT_FALSE(ExportingTemplate);
        EXPECT_EQ(Status(1), "Windows Filename = set.prc");
        EXPECT_FALSE(LoadedAsTemplate);
    }
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_FALSE(NotSaved().isVisible());
    EXPECT_EQ(ReadBytes(program.File("set.prc")), iconset);
    EXPECT_FALSE(FileExists(program.File("set.prc.bak")));
    EXPECT_FALSE(FileExists(program.File("t.vpt.bak")));

    IconsetChanged = false;
    Load(PathOf("t.vpt"));
    EXPECT_EQ(NodeTexts(),
        QStringList({ "Alpha (Large Icon)", "Alpha (Small Icon)", "Beta (Large Icon)" }))
        << "and no orphan";
    EXPECT_FALSE(HasPictures());
    EXPECT_EQ(RootText(), "Set");
}

TEST_F(ExportingTemplates, TheDialogSaysWhatItWrites)
{
    ask.CancelSave();

    Entry("mnuExportTemplate").trigger();

    ASSERT_EQ(ask.saved.size(), 1u);
    EXPECT_EQ(ask.saved[0].filters, QStringList("VYPX Template (*.vpt)"));
    EXPECT_EQ(ask.saved[0].defaultEnding, "vpt");
    EXPECT_TRUE(ask.saved[0].addsEnding);
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_FALSE(NotSaved().isVisible());
    ExpectTheIconsetIsOpen();
    EXPECT_EQ(TemplatePath, "");
}

TEST_F(ExportingTemplates, OnPurposeTheDialogStartsInTheLastFolderWhateverTheOptionSays)
{
    std::filesystem::create_directory(program.File("sets"));
    LastDirIconsetSave = program.File("sets");
    const auto start = [&] {
        ask.CancelSave();
        Entry("mnuExportTemplate").trigger();
        return ask.saved.back().folder;
    };

    for (const bool option : { true, false }) {
        UseLastDirs = option;
        EXPECT_EQ(start(), PathOf("sets")) << option;
    }
    std::filesystem::remove(program.File("sets"));
    EXPECT_NE(start(), PathOf("sets"));
    LastDirIconsetSave.clear();
    EXPECT_NE(start(), PathOf("sets"));
}

TEST_F(ExportingTemplates, EachCheckHasItsWords)
{
    FileLoaded = false;
    ask.Answer(QMessageBox::Ok);
    Entry("mnuExportTemplate").trigger();
    EXPECT_EQ(Messages().back(), "No file loaded");

    FileLoaded = true;
    for (IconRow& row : IconTable)
        row.LowResFile = row.HighResFile = "NEW";
    frame->Form().UpdateIconStats();
    ask.Answer(QMessageBox::Ok);
    Entry("mnuExportTemplate").trigger();
    EXPECT_EQ(Messages().back(), "Can't save. The iconset doesn't contain any icons.");

    StatTotal = 0;
    StatLowRes = 1;
    ask.Answer(QMessageBox::Ok);
    Entry("mnuExportTemplate").trigger();
    EXPECT_EQ(Messages().back(), "Can't save. You must add some icons first.");
    EXPECT_TRUE(ask.saved.empty());
}

TEST_F(ExportingTemplates, ANewIconsetHasNoIconsYet)
{
    Entry("mnuNew").trigger();
    NameIt("Mine");
    ask.Answer(QMessageBox::Ok);

    Entry("mnuExportTemplate").trigger();

    EXPECT_EQ(Messages(), QStringList("Can't save. The iconset doesn't contain any icons."));
}

TEST_F(ExportingTemplates, CannotBeChosenWithoutADocument)
{
    Entry("mnuCloseIconset").trigger();
    EXPECT_FALSE(CanUse("mnuExportTemplate"));
    EXPECT_TRUE(CanUse("mnuLoadTemplate"));
}

TEST_F(ExportingTemplates, TheOpenIconsetIsNotWrittenOver)
{
    const Bytes before = ReadBytes(program.File("set.prc"));
    std::filesystem::create_symlink(program.File("set.prc"), program.File("link.vpt"));
    std::filesystem::create_hard_link(program.File("set.prc"), program.File("twin.vpt"));
    for (const char* name : { "link.vpt", "twin.vpt", "./set.prc" }) {
        ask.Answer(QMessageBox::Ok);

        Export(PathOf(name));

        EXPECT_FALSE(ask.shown.back().text.isEmpty()) << name;
        EXPECT_EQ(ask.shown.back().buttons, QMessageBox::Ok);
        EXPECT_EQ(ReadBytes(program.File("set.prc")), before) << name;
        EXPECT_FALSE(NotSaved().isVisible()) << name;
    }
    EXPECT_TRUE(std::filesystem::is_symlink(program.File("link.vpt")));
    ExpectTheIconsetIsOpen();
}

TEST_F(ExportingTemplates, TheTemplateThatWasLoadedMayBeWrittenOverUntilItIsSaved)
{
    Load(TheTemplate());
    PicturesFixture::Click("Gamma (Large Icon)");
    Import("cmdImportLG", PictureFile(64, 44, { 200, 0, 0 }));
    const Bytes before = ReadBytes(program.File("t.vpt"));

    Export(PathOf("t.vpt"));

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_NE(ReadBytes(program.File("t.vpt")), before);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(HasPictures());

    Entry("mnuSave").trigger();
    const Bytes saved = ReadBytes(program.File("t.vpt"));
    ask.Answer(QMessageBox::Ok);
    Export(PathOf("t.vpt"));
    EXPECT_EQ(ask.shown.size(), 1u);
    EXPECT_EQ(ReadBytes(program.File("t.vpt")), saved) << "an iconset with its picture";
}

TEST_F(ExportingTemplates, AfterASaveAsTheLoadedTemplateIsAFileLikeAnyOther)
{
    Load(TheTemplate());
    PicturesFixture::Click("Gamma (Large Icon)");
    Import("cmdImportLG", PictureFile(64, 44, { 200, 0, 0 }));
    ask.SaveTo(PathOf("mine.prc"));
    Entry("mnuSaveAs").trigger();
    const Bytes saved = ReadBytes(program.File("mine.prc"));

    Export(PathOf("t.vpt"));
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(TemplatePath, program.File("t.vpt"));

    ask.Answer(QMessageBox::Ok);
    Export(PathOf("mine.prc"));
    EXPECT_EQ(ask.shown.size(), 1u);
    EXPECT_EQ(ReadBytes(program.File("mine.prc")), saved);
}

TEST_F(ExportingTemplates, AFailureIsTold)
{
    for (const bool changed : { true, false }) {
        IconsetChanged = changed;

        Export(PathOf("no/such/t.vpt"));

        EXPECT_TRUE(ask.shown.empty());
        EXPECT_TRUE(NotSaved().isVisible());
        EXPECT_TRUE(NotSaved().text().contains("such")) << NotSaved().text().toStdString();
        EXPECT_EQ(IconsetChanged, changed);
        ExpectTheIconsetIsOpen();
        EXPECT_FALSE(ExportingTemplate);
    }
    EXPECT_FALSE(FileExists(program.File("no")));

    PicturesFixture::Click("Alpha (Large Icon)");
    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
    Entry("mnuSave").trigger();
    EXPECT_TRUE(NotSaved().isVisible()) << "the template is not written yet";
    Open(PathOf("set.prc"));
    EXPECT_TRUE(HasPictures()) << "an iconset was saved";
    EXPECT_FALSE(NotSaved().isVisible()) << "it was the other document's";
}

TEST_F(ExportingTemplates, ASuccessTakesTheNoteOfAFailedOneAway)
{
    Export(PathOf("no/such/t.vpt"));
    ASSERT_TRUE(NotSaved().isVisible());

    Export(PathOf("t.vpt"));

    EXPECT_FALSE(NotSaved().isVisible());
}

/// A save that failed is still not done when a template was written.
TEST_F(ExportingTemplates, WhatASaveHadToTellIsToldOn)
{
    IconTable.push_back({ "Delta (Large Icon)", "Tbmp3600", "tAIB3500.bmp", "NEW", 1, "APP" });
    Entry("mnuSave").trigger();
    const QString told = Note();
    ASSERT_TRUE(told.contains("orphan"));

    Export(PathOf("out.vpt"));

    EXPECT_TRUE(Note().startsWith(told)) << Note().toStdString();
    EXPECT_TRUE(Note().contains("out.vpt"));
}

TEST_F(ExportingTemplates, TheNoteOfAFailedSaveStays)
{
    ask.SaveTo(PathOf("no/such/set.prc"));
    Entry("mnuSaveAs").trigger();
    ASSERT_TRUE(NotSaved().isVisible());
    const QString note = NotSaved().text();

    Export(PathOf("t.vpt"));

    EXPECT_TRUE(NotSaved().isVisible());
    EXPECT_EQ(NotSaved().text(), note);
}

} // namespace
} // namespace vypx::test
