#include "AppListFixture.h"

#include "companion/BmpFile.h"
#include "document/PictureState.h"

namespace vypx::test {

namespace {

class Reload : public AppListFixture {
protected:
    void LoadTemplate()
    {
        Written(Iconset{ .name = "Set",
                    .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 0) },
                        Picture(3500) } }
                    .File(),
            "set.vpt");
        TemplateMode = true;
        ask.Choose(QString::fromStdString(program.File("set.vpt")));
        frame->Form().LoadFile();
        ASSERT_TRUE(FileLoaded);
        OpenEditor();
    }
    void ImportPicture()
    {
        AutoCreateLowRes = false;
        Nodes().setCurrentItem(Nodes().NodeOf("Alpha (Large Icon)"));
        ask.Choose(Written(EncodeBmp24(vypx::Picture(4, 4)), "new.bmp"));
        QTest::mouseClick(&Find<QPushButton>("cmdImportSM"), Qt::LeftButton);
    }
    void Save()
    {
        WarnOverwrite = CreateBackup = false;
        Entry("mnuSave").trigger();
        ASSERT_FALSE(IconsetChanged);
    }
    bool HasPicture() { return IconTable.at(0).LowResFile != NoImage; }
};

TEST_F(Reload, GivesAnUnknownIconItsName)
{
    OpenIconset();
    ASSERT_FALSE(NodeTexts().contains("Gamma (Large Icon)"));
    OpenEditor();
    ask.Choose(Prc("a.prc", PrcFile("Gamma", "appl", "GAMM")));
    Press("cmdAddSingle");

    Press("cmdApplyAndReload");

    EXPECT_TRUE(NodeTexts().contains("Gamma (Large Icon)"));
    EXPECT_TRUE(ask.shown.empty()) << "nothing was changed";
    EXPECT_EQ(ask.opened.size(), 2u) << "no file is asked for once more";
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_FALSE(SkipOpenDialog);
}

TEST_F(Reload, AsksBeforeAChangedDocumentIsLeft)
{
    OpenIconset();
    OpenEditor();
    IconsetChanged = true;
    bool wasHidden = false;
    ask.Answer(Ok, [&] { wasHidden = !Editor()->isVisible(); });

    Press("cmdApplyAndReload");

    ExpectBox("The current iconset has been modified.\n\nAre you sure you want to close it?",
        "Current Iconset Was Changed!", QMessageBox::Warning);
    EXPECT_EQ(ask.shown.back().buttons, Ok | Cancel);
    EXPECT_TRUE(wasHidden);
    EXPECT_TRUE(FileLoaded);
    EXPECT_FALSE(IconsetChanged);
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(Reload, CancelShowsTheEditorAgain)
{
    OpenIconset();
    OpenEditor();
    Type("txtFilter", "alp");
    IconTable[0].IconState = 0;
    IconsetChanged = true;
    ask.Answer(Cancel);

    Press("cmdApplyAndReload");

    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_EQ(Part<QLineEdit>("txtFilter").text(), "alp");
    EXPECT_EQ(IconTable[0].IconState, 0);
    EXPECT_TRUE(IconsetChanged);
    IconsetChanged = false;
    ask.CancelDialog();
    Entry("mnuOpen").trigger();
    EXPECT_EQ(ask.opened.size(), 2u) << "the next load asks for its file";
}

TEST_F(Reload, TakesTheDocumentsOwnFileThoughAnotherWasDropped)
{
    OpenIconset();
    OpenEditor();
    DroppedFile = true;
    DroppedFileName = program.File("picture.png");

    Press("cmdApplyAndReload");

    EXPECT_EQ(FileName, program.File("set.prc"));
    EXPECT_TRUE(FileLoaded);
}

TEST_F(Reload, AFileThatHasVanishedIsNoted)
{
    OpenIconset();
    OpenEditor();
    std::filesystem::remove(program.File("set.prc"));

    ask.Answer(QMessageBox::Cancel);
    Press("cmdApplyAndReload");
    EXPECT_EQ(Messages().back(),
        "The current iconset has been modified.\n\nAre you sure you want to close it?");
    EXPECT_TRUE(FileLoaded) << "it is nowhere else";

    ask.Answer(QMessageBox::Ok);
    Press("cmdApplyAndReload");

    EXPECT_EQ(Find<QLabel>("lblNote").text(), "set.prc could not be read.");
    EXPECT_FALSE(FileLoaded);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_FALSE(SkipOpenDialog);
}

TEST_F(Reload, ATemplateIsATemplateAgain)
{
    LoadTemplate();
    ASSERT_FALSE(HasPicture());

    Press("cmdApplyAndReload");

    EXPECT_TRUE(FileLoaded);
    EXPECT_FALSE(HasPicture());
    EXPECT_FALSE(TemplateMode) << "the next load reads an iconset";
}

TEST_F(Reload, ATemplateThatWasSavedIsAnIconsetWhateverItsEnding)
{
    LoadTemplate();
    ImportPicture();
    Save();

    Press("cmdApplyAndReload");

    EXPECT_EQ(FileName, program.File("set.vpt"));
    EXPECT_TRUE(HasPicture());
}

TEST_F(Reload, ATemplateThatWasSavedUnderAnotherNameIsAnIconset)
{
    LoadTemplate();
    ImportPicture();
    ask.SaveTo(QString::fromStdString(program.File("other.vpt")));
    Entry("mnuSaveAs").trigger();

    Press("cmdApplyAndReload");

    EXPECT_EQ(FileName, program.File("other.vpt"));
    EXPECT_TRUE(HasPicture());
}

TEST_F(Reload, ATemplateThatCouldNotBeSavedIsStillOne)
{
    LoadTemplate();
    ImportPicture();
    WarnOverwrite = CreateBackup = false;
    std::filesystem::remove(WorkPath(IconTable.at(0).LowResFile));
    Entry("mnuSave").trigger();
    ask.Answer(Ok);

    Press("cmdApplyAndReload");

    EXPECT_TRUE(FileLoaded);
    EXPECT_FALSE(HasPicture());
}

TEST_F(Reload, TheFileOfASaveAsThatFailedIsNoTemplate)
{
    LoadTemplate();
    ImportPicture();
    std::filesystem::remove(WorkPath(IconTable.at(0).LowResFile));
    std::filesystem::copy_file(program.File("set.vpt"), program.File("other.prc"));
    ask.SaveTo(QString::fromStdString(program.File("other.prc")));
    Entry("mnuSaveAs").trigger();
    ASSERT_TRUE(Find<QLabel>("lblNotSaved").isVisible());
    ask.Answer(Ok);

    Press("cmdApplyAndReload");

    EXPECT_EQ(FileName, program.File("other.prc"));
    EXPECT_TRUE(HasPicture()) << "that file is an iconset";
}

TEST_F(Reload, AnIconsetAfterATemplateIsNone)
{
    LoadTemplate();
    OpenIconset();
    OpenEditor();

    Press("cmdApplyAndReload");

    EXPECT_TRUE(HasPicture());
    LoadTemplate();
    Entry("mnuCloseIconset").trigger();
    EXPECT_FALSE(LoadedAsTemplate);
}

} // namespace
} // namespace vypx::test
