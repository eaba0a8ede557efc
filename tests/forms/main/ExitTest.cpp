#include "WindowFixture.h"
#include "document/RunCount.h"
#include "document/RunningCopies.h"

#include <QLineEdit>
#include <QMdiSubWindow>

namespace vypx::test {

namespace {

class Exit : public WindowFixture {
protected:
    Exit()
    {
        Start();
        for (const char* name : { "a.bmp", "A.BMP.BAK", "c.Bin", "keep.txt" })
            WriteText(WorkPath(name), "x");
    }

    /// Working files are gone and no window stands: the program has been left.
    void ExpectLeft()
    {
        EXPECT_FALSE(FileExists(WorkPath("a.bmp")));
        EXPECT_FALSE(FileExists(WorkPath("A.BMP.BAK")));
        EXPECT_FALSE(FileExists(WorkPath("c.Bin")));
        EXPECT_TRUE(FileExists(WorkPath("keep.txt")));
        EXPECT_TRUE(DirExists(WorkFolder()));
        EXPECT_FALSE(frame->isVisible());
    }
};

TEST_F(Exit, DeletesWorkingFilesAndKeepsTheFolder)
{
    Entry("mnuExit").trigger();

    ExpectLeft();
}

TEST_F(Exit, TheFramesCloseButtonLeavesToo)
{
    EXPECT_TRUE(frame->close());

    ExpectLeft();
}

TEST_F(Exit, TheFormsCloseButtonLeavesToo)
{
    frame->findChild<QMdiSubWindow*>()->close();

    ExpectLeft();
}

TEST_F(Exit, OnPurposeAsksNothingAboutUnsavedChanges)
{
    FileLoaded = IconsetChanged = true;

    Entry("mnuExit").trigger();

    ExpectLeft();
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(Exit, TheFolderOfACopyWithANumberStaysWithoutItsWorkingFiles)
{
    MDIForm1 second(ask);
    second.Start(QString::fromStdString(program.Path()), {});
    WriteText(WorkPath("a.bmp"), "x");

    second.close();

    EXPECT_TRUE(DirExists(program.File("temp1")));
    EXPECT_FALSE(FileExists(program.File("temp1/a.bmp")));
    EXPECT_TRUE(FileExists(program.File("temp/a.bmp"))) << "the first copy's files are its own";
}

TEST_F(Exit, ACopyWithANumberHandsItBack)
{
    MDIForm1 second(ask);
    second.Start(QString::fromStdString(program.Path()), {});

    second.close();

    EXPECT_EQ(ReadRunCount(), 0);
}

TEST_F(Exit, TheFirstCopyLeavesTheCountAlone)
{
    WriteRunCount(2);

    Entry("mnuExit").trigger();

    EXPECT_EQ(ReadRunCount(), 2);
}

TEST_F(Exit, ACountThatCannotBeHandedBackIsTold)
{
    InstanceNumber = 1;
    std::filesystem::remove(program.File("VYPX.ini"));
    MakeFolder(program.File("VYPX.ini"));
    ask.Answer(QMessageBox::Ok);
    ask.Answer(QMessageBox::Ok);

    Entry("mnuExit").trigger();

    EXPECT_EQ(Messages(),
        QStringList(
            { "Failed to get value from VYPX.ini.", "Failed to save value to TBQX.ini file." }));
    ExpectLeft();
}

TEST_F(Exit, TheOptionsOnTheScreenAreTakenOverAndSavedOnce)
{
    Entry("mnuOptions").trigger();
    Find<QLineEdit>("txtVstring").setText("4.00");
    std::filesystem::remove(program.File("VYPX.ini"));
    MakeFolder(program.File("VYPX.ini"));
    ask.Answer(QMessageBox::Ok);

    Entry("mnuExit").trigger();

    EXPECT_EQ(Messages(), QStringList("Failed to save value to TBQX.ini file."));
    EXPECT_EQ(VersionString, "4.00");
    ExpectLeft();
}

TEST_F(Exit, FreesTheCopysPlace)
{
    Entry("mnuExit").trigger();
    RunningCopies next;

    next.Enter(program.Path());

    EXPECT_FALSE(next.AnotherRan());
}

TEST_F(Exit, DeletesNothingOutsideOfTheWorkingFolderNorFoldersInIt)
{
    MakeFolder(WorkPath("album.bmp"));
    WriteText(program.File("mine.bmp"), "x");
    WriteText(program.File("mine.bak"), "x");

    Entry("mnuExit").trigger();

    EXPECT_TRUE(DirExists(program.File("temp/album.bmp")));
    EXPECT_TRUE(FileExists(program.File("mine.bmp")));
    EXPECT_TRUE(FileExists(program.File("mine.bak")));
}

TEST_F(Exit, TheNextStartFindsTheFirstPlaceFree)
{
    Entry("mnuExit").trigger();

    Start();

    EXPECT_EQ(InstanceNumber, 0);
    EXPECT_EQ(WorkFolder(), program.File("temp"));
}

} // namespace
} // namespace vypx::test
