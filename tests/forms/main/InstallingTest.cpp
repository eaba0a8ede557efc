#include "PicturesFixture.h"

#include <QLineEdit>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* NoWay = "Error! InstAide.dll is missing.";
constexpr const char* NoUser =
    "No Palm User ID has been set.\n"
    "Please add your Palm User ID in the Program Option Screen under the "
    "Setup menu.";
constexpr const char* WrongUser = "Error! The Palm User ID does not appear to be correct.\n"
                                  "Please check the Palm User ID in the Program Options screen.";
constexpr const char* AlreadyWaiting =
    "Error! An iconset with this filename is already waiting to be hotsynced.";
constexpr const char* Unknown =
    "Error! Unknown error while trying to send the iconset to the Palm Install tool.";

/// An iconset is open, and the ways to the handheld lie in folders of the test's own.
class Installing : public PicturesFixture {
protected:
    Installing()
    {
        qputenv("JPILOT_HOME", QByteArray::fromStdString(program.Path()));
        WriteText(program.File("AppList.dat"),
            "[Alpha]\nType=appl\nCreator={ALPH}\n[Beta]\nType=appl\nCreator={BETA}\n");
        WarnOverwrite = CreateBackup = false;
        PalmSyncFolder.clear();
        PalmUserID.clear();
        before = SetBytes();
    }
    ~Installing() override { qunsetenv("JPILOT_HOME"); }

    void SetUpPalmSync(const std::string& user = "Ada")
    {
        PalmSyncFolder = program.File("palm");
        PalmUserID = user;
        fs::create_directories(program.File("palm/Ada"));
    }
    void SetUpJPilot() { fs::create_directories(program.File(".jpilot")); }
    void Install() { Entry("mnuSaveandInstall").trigger(); }

    Bytes SetBytes() const { return ReadBytes(program.File("set.prc")); }
    Bytes Queued() const { return ReadBytes(program.File("palm/Ada/install/set.prc")); }
    bool IsQueued() const { return fs::exists(program.File("palm/Ada/install/set.prc")); }
    std::string JPilotsList() const { return ReadText(program.File(".jpilot/jpilot.install")); }
    void ExpectOnly(const QString& message)
    {
        EXPECT_EQ(Messages(), QStringList{ message });
        EXPECT_EQ(ask.beeps, 0);
        EXPECT_EQ(Note(), "");
    }

    Bytes before;
};

TEST_F(Installing, WithoutAWayNothingIsSaved)
{
    IconsetChanged = true;
    ask.Answer(QMessageBox::Ok);

    Install();

    ExpectOnly(NoWay);
    EXPECT_EQ(SetBytes(), before);
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(Installing, WithoutAUserNothingIsSavedWhereTheWayNeedsOne)
{
    SetUpPalmSync("");
    ask.Answer(QMessageBox::Ok);

    Install();

    ExpectOnly(NoUser);
    EXPECT_EQ(SetBytes(), before);
}

TEST_F(Installing, PalmSyncGetsACopyOfWhatWasSaved)
{
    SetUpPalmSync();
    IconsetChanged = true;

    Install();

    EXPECT_EQ(Messages(), QStringList());
    EXPECT_NE(SetBytes(), before) << "it was saved first";
    EXPECT_EQ(Queued(), SetBytes());
    EXPECT_EQ(ask.beeps, 1);
    EXPECT_FALSE(IconsetChanged);
    EXPECT_TRUE(Note().startsWith("set.prc is queued.")) << Note().toStdString();
    EXPECT_TRUE(Note().contains(QString::fromStdString(program.File("palm/Ada/install"))));
    EXPECT_TRUE(Note().contains("HotSync"));
    EXPECT_FALSE(Note().contains("Nothing was saved"));
}

TEST_F(Installing, OnceMoreItReplacesItsOwnCopy)
{
    SetUpPalmSync();
    Install();
    PicturesFixture::Click("Alpha (Large Icon)");
    ImportBlack("cmdImportSM", 32, 22);
    const Bytes first = Queued();

    Install();

    EXPECT_EQ(ask.beeps, 2);
    EXPECT_NE(Queued(), first);
    EXPECT_EQ(Queued(), SetBytes());
}

TEST_F(Installing, JPilotGetsALineAndNeedsNoUser)
{
    SetUpJPilot();

    Install();

    EXPECT_EQ(Messages(), QStringList());
    EXPECT_EQ(JPilotsList(), program.File("set.prc") + "\n");
    EXPECT_EQ(ask.beeps, 1);
    EXPECT_TRUE(Note().contains("J-Pilot"));
}

TEST_F(Installing, PalmSyncCountsBeforeJPilotAndJPilotWhereItsFolderHasGone)
{
    SetUpPalmSync();
    SetUpJPilot();

    Install();
    EXPECT_TRUE(IsQueued());
    EXPECT_FALSE(fs::exists(program.File(".jpilot/jpilot.install")));

    fs::remove_all(program.File("palm"));
    Install();
    EXPECT_EQ(JPilotsList(), program.File("set.prc") + "\n");
}

TEST_F(Installing, ANoToOverwritingQueuesTheOldFile)
{
    SetUpPalmSync();
    WarnOverwrite = true;
    IconsetChanged = true;
    ask.Answer(QMessageBox::No);

    Install();

    EXPECT_EQ(SetBytes(), before);
    EXPECT_EQ(Queued(), before);
    EXPECT_EQ(ask.beeps, 1);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(Note().contains("it is the file as it stands on disk")) << Note().toStdString();
}

TEST_F(Installing, ASaveThatTheChecksRefuseQueuesTheOldFile)
{
    SetUpPalmSync();
    for (const QString& entry : { QString("mnuRemoveLR"), QString("mnuRemoveHR") }) {
        ask.Answer(QMessageBox::Yes);
        Entry(entry).trigger();
    }
    ask.shown.clear();
    ask.Answer(QMessageBox::Ok);

    Install();

    EXPECT_EQ(Messages(), QStringList{ "Error! Iconset doesn't contain any images." });
    EXPECT_EQ(Queued(), before);
    EXPECT_EQ(ask.beeps, 1);
}

TEST_F(Installing, ASaveThatFailsQueuesNothingAndShowsNoBox)
{
    SetUpPalmSync();
    FileName = program.File("missing/set.prc");

    Install();

    EXPECT_EQ(Messages(), QStringList());
    EXPECT_FALSE(IsQueued());
    EXPECT_EQ(ask.beeps, 0);
    EXPECT_TRUE(IsShown("lblNotSaved"));
}

TEST_F(Installing, AnOldFileStaysWhereItIsWhenItsSaveFails)
{
    SetUpPalmSync();
    CreateBackup = true;
    fs::create_directory(program.File("set.prc.bak")); // which no backup can replace

    Install();

    EXPECT_EQ(Messages(), QStringList());
    EXPECT_EQ(SetBytes(), before);
    EXPECT_FALSE(IsQueued()) << "a failed save ends the command";
    EXPECT_TRUE(IsShown("lblNotSaved"));
}

TEST_F(Installing, ANewIconsetIsNamedFirst)
{
    SetUpPalmSync();
    FileName.clear();
    ask.SaveTo(QString::fromStdString(program.File("Fresh.PRC")));

    Install();

    EXPECT_EQ(FileName, program.File("Fresh.PRC"));
    EXPECT_EQ(ReadBytes(program.File("palm/Ada/install/Fresh.prc")),
        ReadBytes(program.File("Fresh.PRC")));
    EXPECT_EQ(Status(1), "Windows Filename = Fresh.PRC");
}

TEST_F(Installing, ACancelledDialogForANewIconsetEndsItWithoutAWord)
{
    SetUpPalmSync();
    FileName.clear();
    ask.CancelSave();

    Install();

    EXPECT_EQ(Messages(), QStringList());
    EXPECT_FALSE(fs::exists(program.File("palm/Ada/install")));
    EXPECT_EQ(ask.beeps, 0);
}

TEST_F(Installing, AUserWithoutAFolderIsTold)
{
    for (const char* user : { "Bob", "..", "Ada/../../palm/Ada" }) {
        SetUpPalmSync(user);
        ask.shown.clear();
        ask.Answer(QMessageBox::Ok);

        Install();

        ExpectOnly(WrongUser);
        EXPECT_FALSE(IsQueued());
    }
}

TEST_F(Installing, AnotherIconsetOfThatNameThatWaitsStays)
{
    SetUpPalmSync();
    const Bytes other = Iconset{ .name = "Other", .resources = { Picture(3500) } }.File();
    fs::create_directories(program.File("palm/Ada/install"));
    WriteBytes(program.File("palm/Ada/install/set.prc"), other);
    ask.Answer(QMessageBox::Ok);

    Install();

    ExpectOnly(AlreadyWaiting);
    EXPECT_EQ(Queued(), other);
    EXPECT_NE(SetBytes(), before) << "the iconset is saved all the same";
    EXPECT_FALSE(IconsetChanged);
}

TEST_F(Installing, AnEmptyTemplateIsToldToBeOne)
{
    SetUpPalmSync();
    fs::copy_file(program.File("set.prc"), program.File("set.vpt"));
    ask.Choose(QString::fromStdString(program.File("set.vpt")));
    Entry("mnuLoadTemplate").trigger();
    ask.Answer(QMessageBox::Ok);

    Install();

    EXPECT_EQ(Messages(), QStringList{ "Error! Iconset doesn't contain any images." });
    EXPECT_EQ(ReadBytes(program.File("palm/Ada/install/set.vpt.prc")), before);
    EXPECT_TRUE(Note().contains("It is a template")) << Note().toStdString();
}

TEST_F(Installing, AFileThatWasRefusedIsNotSent)
{
    SetUpPalmSync();
    const QString alien = Written(Bytes(100, 1), "alien.prc");
    ask.Answer(QMessageBox::Ok); // it is no iconset
    Open(alien);
    ASSERT_FALSE(FileLoaded);
    ask.Answer(QMessageBox::Ok);

    Install();

    EXPECT_EQ(Messages().back(), "No file loaded.");
    EXPECT_FALSE(fs::exists(program.File("palm/Ada/install")));
    EXPECT_EQ(ask.beeps, 0);
}

TEST_F(Installing, ANameThatIsStillBeingTypedIsSavedFirst)
{
    SetUpPalmSync();
    Nodes().setCurrentItem(Nodes().Root());
    Press("cmdChangeDataBaseName");
    auto* const editor = Nodes().findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    editor->setText("Typed");

    Install();

    EXPECT_EQ(DatabaseName, "Typed");
    const Bytes queued = Queued();
    EXPECT_EQ(std::string(queued.begin(), queued.begin() + 5), "Typed");
}

TEST_F(Installing, AnyOtherFailureIsUnknown)
{
    SetUpJPilot();
    fs::create_directory(program.File(".jpilot/jpilot.install"));
    ask.Answer(QMessageBox::Ok);

    Install();

    ExpectOnly(Unknown);
    EXPECT_TRUE(FileLoaded);
}

TEST_F(Installing, AFileThatVanishesAmidTheCommandEndsIt)
{
    SetUpPalmSync();
    WarnOverwrite = true;
    ask.Answer(QMessageBox::No, [&] { fs::remove(program.File("set.prc")); });

    Install();

    EXPECT_FALSE(IsQueued());
    EXPECT_EQ(ask.beeps, 0);
}

TEST_F(Installing, WhatIsToldOfAQueuedFileGoesWithTheNextSaveAndTheDocument)
{
    SetUpPalmSync();
    Install();
    EXPECT_NE(Note(), "");
    Entry("mnuSave").trigger();
    EXPECT_EQ(Note(), "");

    Install();
    EXPECT_NE(Note(), "");
    Entry("mnuCloseIconset").trigger();
    EXPECT_EQ(Note(), "");
    EXPECT_FALSE(CanUse("mnuSaveandInstall"));
}

} // namespace
} // namespace vypx::test
