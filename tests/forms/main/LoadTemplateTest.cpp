#include "TemplatesFixture.h"

namespace vypx::test {

namespace {

using LoadTemplate = TemplatesFixture;

TEST_F(LoadTemplate, BringsTheIconsWithEverySlotEmpty)
{
    Load(TheTemplate());

    ExpectTheTemplateIsOpen();
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(LastFilter(), LoadFilter);
    EXPECT_EQ(NodeTexts(), QStringList("Gamma (Large Icon)"));
    EXPECT_EQ(Nodes().NodeOf("Gamma (Large Icon)")->foreground(0).color(), QColor(Qt::blue));
    EXPECT_EQ(Status(1), "Windows Filename = t.vpt");
    EXPECT_EQ(Status(2), "Palm Database Name = Temp");
    EXPECT_FALSE(IconsetChanged);
    EXPECT_EQ(StatTotal, 1);
    EXPECT_EQ(StatLowRes + StatHighRes, 0);
    for (const char* name : { "mnuRemoveLR", "mnuRemoveHR", "mnuCloseIconset", "mnuSave",
             "mnuSaveAs", "mnuExportTemplate", "cmdAddIcon", "mnuLoadTemplate" })
        EXPECT_TRUE(CanUse(name)) << name;

    PicturesFixture::Click("Gamma (Large Icon)");
    EXPECT_TRUE(IsOn("cmdImportLG"));
    EXPECT_FALSE(IsOn("cmdDelLG"));
    EXPECT_EQ(Text("lbl_LGsize"), "");
}

TEST_F(LoadTemplate, NeedsNoDocument)
{
    Entry("mnuCloseIconset").trigger();

    Load(TheTemplate());

    ExpectTheTemplateIsOpen();
}

TEST_F(LoadTemplate, TellsWhatItWaitsFor)
{
    Bytes file = Iconset{
        .name = "Temp",
        .resources = { Picture(3600), Picture(3601),
            { "iTbl", 1000, IndexRecord("appl", "GAMM", 3600, 0) } }
    }.File();
    for (std::size_t i = 84; i < 88; ++i) // the first picture ends before it begins: a box tells
        std::swap(file[i], file[i + 10]);
    QString working;
    ask.Answer(QMessageBox::Ok, [&] {
        if (IsShown("lblWorking"))
            working = Text("lblWorking");
    });
    ask.Answer(QMessageBox::Ok);

    Load(Written(file, "slow.vpt"));

    EXPECT_EQ(Messages(),
        QStringList({ "Error reading file.", "Error Number 0. Problem reading file." }));
    EXPECT_EQ(working, "Getting Template, please wait....");
    EXPECT_FALSE(IsShown("lblWorking"));
    EXPECT_FALSE(HasPictures());
}

TEST_F(LoadTemplate, AsksAboutChangesAlsoWhereNoIconHasAPicture)
{
    for (IconRow& row : IconTable)
        row.LowResFile = row.HighResFile = "NEW";
    Change();
    frame->Form().UpdateIconStats();
    ASSERT_EQ(StatLowRes + StatHighRes, 0);
    ask.Answer(QMessageBox::Cancel);

    Entry("mnuLoadTemplate").trigger();

    ASSERT_EQ(ask.shown.size(), 1u);
    const Box& box = ask.shown[0];
    EXPECT_EQ(box.text, Question);
    EXPECT_EQ(box.title, "Save Changes?");
    EXPECT_EQ(box.icon, QMessageBox::Information);
    EXPECT_EQ(box.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(RootText(), "Set");
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(LoadTemplate, AsksNothingWithoutChangesOrWithoutADocument)
{
    Load(TheTemplate());
    EXPECT_TRUE(ask.shown.empty());

    Entry("mnuCloseIconset").trigger();
    IconsetChanged = true;
    Load(TheTemplate());

    EXPECT_TRUE(ask.shown.empty());
    ExpectTheTemplateIsOpen();
}

TEST_F(LoadTemplate, OnPurposeYesSavesNothingAndSaysSo)
{
    Change();
    const Bytes file = ReadBytes(program.File("set.prc"));
    const std::vector<IconRow> rows = IconTable;
    ask.Answer(QMessageBox::Yes);
    ask.Answer(QMessageBox::Ok);

    Entry("mnuLoadTemplate").trigger();

    EXPECT_EQ(Messages(), QStringList({ Question, NotInThisVersion }));
    EXPECT_EQ(ask.shown.back().buttons, QMessageBox::Ok);
    EXPECT_EQ(ask.opened.size(), 1u) << "that of the iconset";
    ExpectTheIconsetIsOpen();
    EXPECT_EQ(IconTable, rows);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(ReadBytes(program.File("set.prc")), file);
}

TEST_F(LoadTemplate, CancelKeepsTheDocument)
{
    Change();
    const std::vector<IconRow> rows = IconTable;
    ask.Answer(QMessageBox::Cancel);

    Entry("mnuLoadTemplate").trigger();

    EXPECT_EQ(Messages(), QStringList(Question));
    EXPECT_EQ(ask.opened.size(), 1u);
    ExpectTheIconsetIsOpen();
    EXPECT_EQ(IconTable, rows);
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(LoadTemplate, NoLeavesTheChangesBehind)
{
    Change();
    ask.Answer(QMessageBox::No);

    Load(TheTemplate());

    EXPECT_EQ(Messages(), QStringList(Question));
    ExpectTheTemplateIsOpen();
    EXPECT_FALSE(IconsetChanged);
}

TEST_F(LoadTemplate, WithTheDepthPromptItGoesThroughThatWindow)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();
    ASSERT_NE(DepthWindow(), nullptr);
    EXPECT_EQ(ask.opened.size(), 1u) << "no dialog yet";
    Find<QAbstractButton>("opt8Bit").click();
    ask.Choose(TheTemplate());

    PressDone();

    EXPECT_EQ(DepthWindow(), nullptr);
    EXPECT_EQ(LastFilter(), LoadFilter);
    ExpectTheTemplateIsOpen();
    EXPECT_EQ(Text("lblTargetCD"), "8-Bit");
}

TEST_F(LoadTemplate, TheDialogStartsInTheLastFolderWhereThatIsWanted)
{
    const QString folder = QString::fromStdString(program.File("templates"));
    std::filesystem::create_directory(program.File("templates"));
    LastDirIconsetLoad = program.File("templates");
    const auto start = [&] {
        ask.CancelDialog();
        Entry("mnuLoadTemplate").trigger();
        return ask.opened.back().folder;
    };

    UseLastDirs = true;
    EXPECT_EQ(start(), folder);
    UseLastDirs = false;
    EXPECT_NE(start(), folder);
    UseLastDirs = true;
    std::filesystem::remove(program.File("templates"));
    EXPECT_NE(start(), folder);
}

TEST_F(LoadTemplate, RemembersItsFolder)
{
    std::filesystem::create_directory(program.File("templates"));
    WriteBytes(program.File("templates/t.VPT"), Gamma().File());

    Load(PathOf("templates/t.VPT"));

    EXPECT_EQ(RootText(), "Temp") << "in any letter case";
    EXPECT_EQ(LastDirIconsetLoad, program.File("templates"));
}

TEST_F(LoadTemplate, SwitchesTheRenamingOfTheDatabaseOff)
{
    PicturesFixture::Click("Set");
    ASSERT_TRUE(IsOn("cmdChangeDataBaseName"));
    ask.CancelDialog();

    Entry("mnuLoadTemplate").trigger();

    EXPECT_FALSE(IsOn("cmdChangeDataBaseName"));
    ExpectTheIconsetIsOpen();
}

TEST_F(LoadTemplate, EachFileThatIsNoneHasItsWords)
{
    Iconset wrongType = Gamma(), wrongCreator = Gamma();
    wrongType.type = wrongType.creator = "XXXX";
    wrongCreator.creator = "XXXX";
    const std::tuple<Bytes, const char*, const char*> cases[] = {
        { Gamma().File(), "set.pdb", "Incorrect file type." },
        { Bytes(20, 1), "short.vpt", "Error! Invalid file!" },
        { wrongType.File(), "type.vpt", "This file doesn't appear to be a valid Vantry IconSet" },
        { wrongCreator.File(), "creator.vpt",
            "This file doesn't appear to be a valid VYPX Template File" },
    };
    for (const auto& [file, name, words] : cases) {
        ask.Answer(QMessageBox::Ok);

        Load(Written(file, name));

        EXPECT_EQ(Messages().back(), words) << name;
        EXPECT_EQ(FileLoaded, name == std::string("set.pdb"));
    }
}

TEST_F(LoadTemplate, ACopyOfAnIconsetLosesItsPictures)
{
    std::filesystem::copy_file(program.File("set.prc"), program.File("copy.vpt"));

    Load(PathOf("copy.vpt"));

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_FALSE(HasPictures());
    EXPECT_TRUE(NodeTexts().contains("Beta (Large Icon)"));
}

TEST_F(LoadTemplate, WithoutAPictureItIsNeitherSavedNorExported)
{
    Load(TheTemplate());
    const Bytes file = ReadBytes(program.File("t.vpt"));
    for (const char* command : { "mnuSave", "mnuSaveAs", "mnuExportTemplate" }) {
        ask.Answer(QMessageBox::Ok);
        Entry(command).trigger();
    }

    EXPECT_EQ(Messages(),
        QStringList({ "Error! Iconset doesn't contain any images.",
            "Error! Iconset doesn't contain any images.",
            "Can't save. The iconset doesn't contain any icons." }));
    EXPECT_EQ(ReadBytes(program.File("t.vpt")), file);
}

TEST_F(LoadTemplate, OnPurposeSaveWritesOverTheTemplateOnceItHasAPicture)
{
    WarnOverwrite = true;
    Load(TheTemplate());
    PicturesFixture::Click("Gamma (Large Icon)");
    Import("cmdImportLG", PictureFile(64, 44, { 200, 0, 0 }));
    ask.Answer(QMessageBox::Yes);

    Entry("mnuSave").trigger();

    EXPECT_EQ(Messages(), QStringList("About to overwrite the existing file.\nAre you sure?"));
    EXPECT_EQ(FileName, program.File("t.vpt"));
    EXPECT_FALSE(LoadedAsTemplate) << "the file is an iconset now";
    EXPECT_FALSE(IconsetChanged);
    std::filesystem::copy_file(program.File("t.vpt"), program.File("saved.prc"));
    Open(PathOf("saved.prc"));
    EXPECT_EQ(NodeTexts(), QStringList("Gamma (Large Icon)"));
    EXPECT_EQ(Cell("Gamma (Large Icon)", &IconRow::HighResFile), "tAIB3600-d144.bmp");
    EXPECT_EQ(Cell("Gamma (Large Icon)", &IconRow::LowResFile), "NEW");
}

} // namespace
} // namespace vypx::test
