#include "WindowFixture.h"

#include "writer/CompileIconset.h"

#include <QAbstractButton>
#include <QLineEdit>

namespace vypx::test {

namespace {

class Saving : public WindowFixture {
protected:
    Saving()
    {
        WriteText(program.File("AppList.dat"), "[Alpha]\nType=appl\nCreator={ALPH}\n");
        Start();
        WarnOverwrite = false;
        SavingAs = false;
        OpenSet();
    }

    void OpenSet()
    {
        Open(Written(Iconset{ .name = "Set",
            .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 3501) }, Picture(3500),
                Picture(3501) } }
                         .File()));
    }
    std::string File(const std::string& name) { return program.File(name); }
    QString Path(const std::string& name) { return QString::fromStdString(program.File(name)); }
    QLabel& Note() { return Find<QLabel>("lblNotSaved"); }
};

TEST_F(Saving, SaveOverwritesTheFileAndKeepsABackup)
{
    const Bytes before = ReadBytes(File("set.prc"));
    IconsetChanged = true;

    Entry("mnuSave").trigger();

    EXPECT_NE(ReadBytes(File("set.prc")), before);
    EXPECT_EQ(ReadBytes(File("set.prc.bak")), before);
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(Note().isVisible());
}

TEST_F(Saving, IconsThatWillBeOrphansAreToldUntilTheirDocumentEnds)
{
    auto& told = Find<QLabel>("lblNote");
    for (const bool closes : { true, false }) {
        OpenSet();
        IconTable.push_back({ "Beta (Large Icon)", "Tbmp3600", "tAIB3500.bmp", "NEW", 1, "APP" });

        Entry("mnuSave").trigger();

        EXPECT_FALSE(IconsetChanged);
        EXPECT_FALSE(Note().isVisible()) << "the line of failed saves";
        EXPECT_TRUE(told.isVisible());
        EXPECT_TRUE(told.text().startsWith("1 icon ")) << told.text().toStdString();
        EXPECT_TRUE(told.text().contains("orphan"));

        if (closes)
            Entry("mnuCloseIconset").trigger();
        else {
            ask.Answer(QMessageBox::Ok);
            Open(Written(Bytes(20, 1), "short.prc"));
        }
        EXPECT_FALSE(told.isVisible());
    }
}

TEST_F(Saving, AFailedSaveTakesTheNoteOfTheOneBeforeAway)
{
    auto& told = Find<QLabel>("lblNote");
    DatabaseName.clear();
    Entry("mnuSave").trigger();
    EXPECT_TRUE(told.text().contains("name")) << told.text().toStdString();

    ask.SaveTo(Path("no/such/folder.prc"));
    Entry("mnuSaveAs").trigger();

    EXPECT_TRUE(Note().isVisible());
    EXPECT_FALSE(told.isVisible());
}

TEST_F(Saving, SaveAsksBeforeItOverwrites)
{
    WarnOverwrite = true;
    const Bytes before = ReadBytes(File("set.prc"));
    IconsetChanged = true;

    ask.Answer(QMessageBox::No);
    Entry("mnuSave").trigger();
    EXPECT_EQ(ReadBytes(File("set.prc")), before);
    EXPECT_TRUE(IconsetChanged);

    ask.Answer(QMessageBox::Yes);
    Entry("mnuSave").trigger();
    EXPECT_NE(ReadBytes(File("set.prc")), before);
    const Box& box = ask.shown.back();
    EXPECT_EQ(box.title, "Overwrite file?");
    EXPECT_EQ(box.text, "About to overwrite the existing file.\nAre you sure?");
    EXPECT_EQ(box.icon, QMessageBox::Warning);
    EXPECT_EQ(box.buttons, QMessageBox::Yes | QMessageBox::No);
}

TEST_F(Saving, SaveAsksNothingWhereNoFileStands)
{
    WarnOverwrite = true;
    std::filesystem::remove(File("set.prc"));

    Entry("mnuSave").trigger();

    EXPECT_TRUE(FileExists(File("set.prc")));
}

TEST_F(Saving, EachCheckStopsBothCommandsWithItsWords)
{
    for (const char* command : { "mnuSave", "mnuSaveAs" }) {
        OpenSet();
        for (IconRow& row : IconTable)
            row.LowResFile = "NEW";
        frame->Form().UpdateIconStats();
        ask.Answer(QMessageBox::Ok);
        Entry(command).trigger();
        EXPECT_EQ(Messages().back(), "Error! Iconset doesn't contain any images.");

        for (IconRow& row : IconTable)
            row.IconState = 0;
        frame->Form().UpdateIconStats();
        ask.Answer(QMessageBox::Ok);
        Entry(command).trigger();
        EXPECT_EQ(Messages().back(), "Can't save. The iconset doesn't contain any icons.");
    }
}

TEST_F(Saving, UnknownIconsAloneCannotBeSaved)
{
    Open(Written(Iconset{ .resources = { Picture(3500) } }.File(), "unknown.prc"));
    for (const char* command : { "mnuSave", "mnuSaveAs" }) {
        ask.Answer(QMessageBox::Ok);

        Entry(command).trigger();

        EXPECT_EQ(
            Messages().back(), "Error! Can't save an iconset that only contains unknown icons.");
    }
    EXPECT_FALSE(FileExists(File("unknown.prc.bak")));
}

TEST_F(Saving, ANewIconsetWithPicturesOfUnknownIconsOnlyCannotBeSaved)
{
    const Bytes index =
        Join({ IndexRecord("appl", "ALPH", 3500, 0), IndexRecord("appl", "WHO?", 3501, 0) });
    Open(Written(
        Iconset{ .resources = { { "iTbl", 1000, index }, Picture(3500), Picture(3501) } }.File()));
    FileName.clear();
    IconTable[0].LowResFile = "NEW";
    ASSERT_EQ(IconTable[1].IconKind, "UNKNOWN");
    frame->Form().UpdateIconStats();
    for (const char* command : { "mnuSave", "mnuSaveAs" }) {
        ask.Answer(QMessageBox::Ok);

        Entry(command).trigger();

        EXPECT_EQ(Messages().back(),
            "Error! Iconset must contain at least on normal icon that has images.");
    }
}

TEST_F(Saving, WithoutADocumentThereIsNothingToSave)
{
    ask.Answer(QMessageBox::Ok);
    Open(Written(Bytes(100, 0), "bad.prc"));
    ASSERT_FALSE(FileLoaded);
    for (const char* command : { "mnuSave", "mnuSaveAs" }) {
        ask.Answer(QMessageBox::Ok);

        Entry(command).trigger();

        EXPECT_EQ(Messages().back(), "No file loaded.");
    }
}

TEST_F(Saving, LeavesTheTreeTheTablesAndTheWorkingFilesAsTheyWere)
{
    Open(Written(Iconset{ .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 3501) },
                              Picture(3500), Picture(3501), Picture(3502) } }
                     .File()));
    KeepUnknown = false;
    Nodes().setCurrentItem(Nodes().NodeOf("Alpha (Small Icon)"));
    QTest::keyClick(&Nodes(), Qt::Key_R);
    const std::vector<IconRow> rows = IconTable;
    const QStringList nodes = NodeTexts();

    Entry("mnuSave").trigger();

    EXPECT_EQ(IconTable, rows);
    EXPECT_EQ(IconTable[1].IconState, 0) << "still marked";
    EXPECT_EQ(NodeTexts(), nodes);
    EXPECT_EQ(nodes.size(), 3) << "with the unknown icon, which stayed out of the file";
    for (const char* file : { "tAIB3500.bmp", "tAIB3501.bmp", "tAIB3502.bmp" })
        EXPECT_TRUE(FileExists(WorkPath(file))) << file;
    Open(Path("set.prc"));
    EXPECT_EQ(NodeTexts(), QStringList("Alpha (Large Icon)"));
}

TEST_F(Saving, SaveAsTakesTheNewNameItsFolderAndNoBackup)
{
    MakeFolder(File("sub"));
    IconsetChanged = true;
    ask.SaveTo(Path("sub/new.prc"));

    Entry("mnuSaveAs").trigger();

    EXPECT_EQ(FileName, File("sub/new.prc"));
    EXPECT_EQ(LastDirIconsetSave, File("sub"));
    EXPECT_EQ(Status(1), "Windows Filename = new.prc");
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(SavingAs);
    EXPECT_TRUE(FileExists(File("sub/new.prc")));
    EXPECT_NE(Settings().find("Last Directory for Iconset Save=" + File("sub") + "\n"),
        std::string::npos);
}

TEST_F(Saving, SaveAsOntoTheSameFileMakesNoBackup)
{
    ask.SaveTo(Path("set.prc"));

    Entry("mnuSaveAs").trigger();

    EXPECT_FALSE(FileExists(File("set.prc.bak")));
}

TEST_F(Saving, TheDialogStartsInTheLastFolderAndOnPurposeHasTheTemplatesEnding)
{
    LastDirIconsetSave = File("temp");
    ask.CancelSave();
    Entry("mnuSaveAs").trigger();

    ASSERT_EQ(ask.saved.size(), 1u);
    EXPECT_EQ(ask.saved[0].folder, Path("temp"));
    EXPECT_EQ(ask.saved[0].filters, QStringList("Vantry Iconset (*.prc *.pdb)"));
    EXPECT_EQ(ask.saved[0].defaultEnding, "vpt");

    const auto nextFolder = [&] {
        ask.CancelSave();
        Entry("mnuSaveAs").trigger();
        return ask.saved.back().folder;
    };
    const QString ofTheOpenFile = QString::fromStdString(program.Path());
    UseLastDirs = false;
    EXPECT_EQ(nextFolder(), ofTheOpenFile);
    UseLastDirs = true;
    LastDirIconsetSave = File("gone");
    EXPECT_EQ(nextFolder(), ofTheOpenFile);
    LastDirIconsetSave.clear();
    EXPECT_EQ(nextFolder(), ofTheOpenFile);
    FileName = File("gone/too.prc");
    EXPECT_EQ(nextFolder(), "");
}

TEST_F(Saving, ACancelledDialogChangesNothing)
{
    IconsetChanged = true;
    ask.CancelSave();

    Entry("mnuSaveAs").trigger();

    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(FileName, File("set.prc"));
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_TRUE(SavingAs) << "as it was at the moment";

    Entry("mnuSave").trigger();
    EXPECT_TRUE(FileExists(File("set.prc.bak"))) << "a save to a known name clears it";
}

TEST_F(Saving, AFailedSaveShowsNoBoxButANoteThatStays)
{
    const Bytes before = ReadBytes(File("set.prc"));
    std::filesystem::remove(WorkPath("tAIB3501.bmp"));
    IconsetChanged = true;

    Entry("mnuSave").trigger();

    EXPECT_EQ(ReadBytes(File("set.prc")), before);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_TRUE(Note().isVisible());
    EXPECT_TRUE(Note().text().startsWith("The iconset was not saved."));
    EXPECT_TRUE(Note().text().contains("The low-res picture of Alpha (Small Icon)"));

    WriteBytes(WorkPath("tAIB3501.bmp"), ReadBytes(WorkPath("tAIB3500.bmp")));
    Entry("mnuSave").trigger();
    EXPECT_FALSE(Note().isVisible()) << "until the next save succeeds";
}

TEST_F(Saving, OnPurposeAFailedSaveAsLeavesTheDocumentChanged)
{
    IconsetChanged = true;
    ask.SaveTo(Path("no/such/folder.prc"));

    Entry("mnuSaveAs").trigger();

    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(Note().isVisible());
    EXPECT_TRUE(SavingAs) << "as it was at the moment";
    EXPECT_EQ(FileName, File("no/such/folder.prc"));
    EXPECT_EQ(Status(1), "Windows Filename = folder.prc");
}

TEST_F(Saving, OnPurposeAFirstSaveWithoutANameIsToldAndGoesOn)
{
    FileName.clear();
    IconsetChanged = true;
    ask.SaveTo("");
    ask.Answer(QMessageBox::Ok);

    Entry("mnuSave").trigger();

    EXPECT_EQ(Messages(), QStringList("Can't save. Filename not specified."));
    EXPECT_FALSE(IconsetChanged);
    EXPECT_TRUE(Note().isVisible()) << "a file without a name can't be written";

    ask.SaveTo("");
    Entry("mnuSaveAs").trigger();
    EXPECT_EQ(ask.shown.size(), 1u) << "Save As says nothing";
}

TEST_F(Saving, OnPurposeAFailedFirstSaveLeavesANewDocumentUnchanged)
{
    FileName.clear();
    IconsetChanged = true;
    ask.SaveTo(Path("no/such/folder.prc"));

    Entry("mnuSave").trigger();

    EXPECT_FALSE(IconsetChanged);
    EXPECT_TRUE(Note().isVisible());
}

TEST_F(Saving, SavingANewIconsetAsksForItsName)
{
    FileName.clear();
    ask.SaveTo(Path("first.prc"));

    Entry("mnuSave").trigger();

    EXPECT_EQ(FileName, File("first.prc"));
    EXPECT_TRUE(FileExists(File("first.prc")));
    EXPECT_EQ(Status(1), "Windows Filename = first.prc");
    EXPECT_FALSE(SavingAs);
}

TEST_F(Saving, TheWholeRoad)
{
    Nodes().setCurrentItem(Nodes().NodeOf("Alpha (Small Icon)"));
    QTest::keyClick(&Nodes(), Qt::Key_R);
    ask.SaveTo(Path("saved.prc"));
    Entry("mnuSaveAs").trigger();
    Entry("mnuCloseIconset").trigger();
    EXPECT_EQ(Nodes().Root(), nullptr);

    Open(Path("saved.prc"));

    EXPECT_EQ(Nodes().Root()->text(0), "Set");
    EXPECT_EQ(NodeTexts(), QStringList("Alpha (Large Icon)")) << "the marked icon stayed out";
    Nodes().setCurrentItem(Nodes().Root()->child(0));
    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "1 x 1 pixels");
    EXPECT_TRUE(ask.shown.empty());
}

} // namespace
} // namespace vypx::test
