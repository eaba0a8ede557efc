#include "WindowFixture.h"
#include "document/Product.h"
#include "document/RunCount.h"
#include "document/RunningCopies.h"
#include "support/CommonUser.h"

#include <QMdiSubWindow>

namespace vypx::test {

namespace {

class StartUp : public WindowFixture { };

TEST_F(StartUp, MakesTheWorkingFolder)
{
    Start();

    EXPECT_EQ(AppFolder, program.Path());
    EXPECT_EQ(WorkFolder(), program.File("temp"));
    EXPECT_TRUE(DirExists(program.File("temp")));
    EXPECT_EQ(InstanceNumber, 0);
}

TEST_F(StartUp, AnInstalledCopyWorksInTheUsersFolderWithTheShippedCatalogs)
{
    namespace fs = std::filesystem;
    const TempFolder root, user;
    WriteText(user.File("VYPX.ini"), "[Splash Screen]\nShow splash screen at startup=False\n");
    const std::string bin = root.File("bin");
    const fs::path data = (fs::path(bin) / DataFromPrograms).lexically_normal();
    fs::create_directories(bin);
    fs::create_directories(data);
    for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
        fs::copy_file(fs::path(VYPX_SHIPPED_DATA) / name, data / name);
    MDIForm1 installed(ask);

    installed.Start(QString::fromStdString(bin), QString::fromStdString(user.Path()));

    EXPECT_EQ(ProgramFolder, bin);
    EXPECT_EQ(AppFolder, user.Path());
    EXPECT_EQ(WorkFolder(), user.File("temp"));
    EXPECT_GT(PalmTable.size(), 1u);
    EXPECT_TRUE(fs::is_empty(bin));
    installed.close();
}

TEST_F(StartUp, KeepsAWorkingFolderThatIsThere)
{
    MakeFolder(program.File("temp"));
    WriteText(program.File("temp/notes.txt"), "mine");

    Start();

    EXPECT_EQ(ReadText(program.File("temp/notes.txt")), "mine");
}

TEST_F(StartUp, TheFirstCopyForgetsACountThatACrashLeft)
{
    WriteText(program.File("VYPX.ini"), "[Instance Count]\nRun Count=3\n");

    Start();

    EXPECT_EQ(WorkFolder(), program.File("temp"));
    EXPECT_EQ(ReadRunCount(), 0);
}

TEST_F(StartUp, GivesFurtherCopiesFoldersOfTheirOwn)
{
    Start();
    MDIForm1 second(ask), third(ask);

    second.Start(QString::fromStdString(program.Path()), {});
    EXPECT_EQ(InstanceNumber, 1);
    EXPECT_EQ(WorkFolder(), program.File("temp1"));
    EXPECT_TRUE(DirExists(program.File("temp1")));
    EXPECT_EQ(ReadRunCount(), 1);

    third.Start(QString::fromStdString(program.Path()), {});
    EXPECT_EQ(WorkFolder(), program.File("temp2"));
    EXPECT_EQ(ReadRunCount(), 2);
}

TEST_F(StartUp, OnPurposeAFourthCopyMayGetTheNumberOfOneThatLeft)
{
    RunningCopies first, third;
    first.Enter(program.Path());
    AppFolder = program.Path();
    WriteRunCount(0);
    Start(); // the second
    third.Enter(program.Path());
    WriteRunCount(2);

    frame->close();
    EXPECT_EQ(ReadRunCount(), 0) << "although the third still runs";

    MDIForm1 fourth(ask);
    fourth.Start(QString::fromStdString(program.Path()), {});
    EXPECT_EQ(WorkFolder(), program.File("temp1"));
}

TEST_F(StartUp, TheLastOfFiveCopiesDoesNotGetTheFolderOfTheThird)
{
    RunningCopies first, third, fourth;
    first.Enter(program.Path());
    Start(); // the second
    third.Enter(program.Path());
    frame->close();
    fourth.Enter(program.Path());

    MDIForm1 fifth(ask);
    fifth.Start(QString::fromStdString(program.Path()), {});

    EXPECT_EQ(third.FolderName(), "temp2");
    EXPECT_EQ(WorkFolder(), program.File("temp3"));
    EXPECT_EQ(InstanceNumber, 3);
    EXPECT_EQ(ReadRunCount(), 3);
}

TEST_F(StartUp, ACrashedCopyIsNotBelievedToRun)
{
    MakeFolder(program.File("temp"));
    WriteText(program.File("temp/in-use.lock"), "");

    Start();

    EXPECT_EQ(InstanceNumber, 0);
}

TEST_F(StartUp, ACountThatIsNoNumberIsNone)
{
    for (const char* count : { "many", "-4", "99999999999", "2147483647" }) {
        WriteText(
            program.File("VYPX.ini"), std::string("[Instance Count]\nRun Count=") + count + "\n");
        AppFolder = program.Path();
        EXPECT_EQ(ReadRunCount(), 0) << count;
    }
}

TEST_F(StartUp, ASettingsFileThatCannotBeWrittenIsToldAndTheStartGoesOn)
{
    MakeFolder(program.File("VYPX.ini")); // a folder in its place
    for (int boxes = 0; boxes < 3; ++boxes)
        ask.Answer(QMessageBox::Ok);

    Start();

    EXPECT_EQ(Messages(),
        QStringList({ "Failed to save value to TBQX.ini file.",
            "Failed to get value from VYPX.ini.", "Failed to get value from VYPX.ini." }));
    for (const Box& box : ask.shown) {
        EXPECT_EQ(box.icon, QMessageBox::Information);
        EXPECT_EQ(box.title, "VY Pixelworks");
    }
    EXPECT_EQ(WorkFolder(), program.File("temp"));
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(MainWinWidth, 14000);
}

TEST_F(StartUp, TheShippedCatalogsShowNoMessage)
{
    Start();

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_GT(PalmTable.size(), 80u);
    EXPECT_GE(VYTable.size(), 3u);
    EXPECT_EQ(AppTable.size(), 1u);
}

TEST_F(StartUp, MissingCatalogsAreToldInTheirOrderAndTheStartGoesOn)
{
    for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" }) {
        std::filesystem::remove(program.File(name));
        ask.Answer(QMessageBox::Ok);
    }

    Start();

    EXPECT_EQ(Messages(),
        QStringList({ "Error! Can't find VY_Icons.dat.", "Error! Can't find Applist.dat.",
            "Error! Can't find PalmApp.dat." }));
    EXPECT_TRUE(frame->isVisible());
}

TEST_F(StartUp, TellsOfTwoApplicationsWithOneCreatorAndGoesOn)
{
    WriteText(program.File("AppList.dat"),
        "[Ant]\nType=appl\nCreator={SAME}\n[Bee]\nType=appl\nCreator={SAME}\n");
    ask.Answer(QMessageBox::Ok);
    ask.Answer(QMessageBox::Ok);

    Start();

    ASSERT_EQ(ask.shown.size(), 2u);
    EXPECT_TRUE(ask.shown[0].text.startsWith(
        "An icon with a duplicate Creator ID was found in the Application List."));
    EXPECT_EQ(ask.shown[1].text,
        "After you have corrected this error, you will need to close and restart VY Pixelworks.");
    EXPECT_TRUE(frame->isVisible());
}

TEST_F(StartUp, DisablesWhatNeedsADocument)
{
    Start();

    for (const QString name : { "mnuCloseIconset", "mnuSave", "mnuSaveandInstall", "mnuSaveAs",
             "mnuExportTemplate", "mnuRemoveLR", "mnuRemoveHR", "mnuPasteLG", "mnuPasteSM" })
        EXPECT_FALSE(Entry(name).isEnabled()) << name.toStdString();
}

TEST_F(StartUp, ShowsBothPanelsAndTheDepth)
{
    WriteSettings("[Default Color Depth]\nUser Color Depth=8-Bit\n");

    Start();

    EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "8-Bit");
    EXPECT_TRUE(Find<QWidget>("frameLG").isVisible());
    EXPECT_TRUE(Find<QWidget>("frameSM").isVisible());
    EXPECT_TRUE(Entry("mnuShowBoth").isChecked());
}

TEST_F(StartUp, ShowsOnlyTheHighResPanelByOption)
{
    WriteSettings("[Resolution]\nDefault Icon Res=High Res Only\n");

    Start();

    EXPECT_TRUE(Find<QWidget>("frameLG").isVisible());
    EXPECT_FALSE(Find<QWidget>("frameSM").isVisible());
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked());
}

TEST_F(StartUp, ShowsOnlyTheLowResPanelByOption)
{
    WriteSettings("[Resolution]\nDefault Icon Res=Low Res Only\n");

    Start();

    EXPECT_FALSE(Find<QWidget>("frameLG").isVisible());
    EXPECT_TRUE(Find<QWidget>("frameSM").isVisible());
    EXPECT_TRUE(Entry("mnuHideHighRes").isChecked());
}

TEST_F(StartUp, TheFrameTakesItsSizeInTwips)
{
    WriteSettings("[Main Window Size]\nWidth=15000\nHeight=10500\n");

    Start();

    EXPECT_EQ(frame->size(), QSize(1000, 700));
}

TEST_F(StartUp, TheFormStandsInTheFramesCorner)
{
    Start();

    EXPECT_EQ(frame->findChild<QMdiSubWindow*>()->pos(), QPoint(0, 0));
}

TEST_F(StartUp, TheTreeIsEmptyAndHasTheFocus)
{
    Start();

    EXPECT_EQ(Nodes().Root(), nullptr);
    EXPECT_EQ(frame->focusWidget(), &Nodes());
}

TEST_F(StartUp, AProgramFolderThatCannotBeWrittenGivesWayToTheUsers)
{
    frame = std::make_unique<MDIForm1>(ask);
    for (int missingCatalogs = 0; missingCatalogs < 3; ++missingCatalogs)
        ask.Answer(QMessageBox::Ok);

    frame->Start(QString::fromStdString(program.File("missing/program")),
        QString::fromStdString(program.File("user")));

    EXPECT_EQ(AppFolder, program.File("user"));
    EXPECT_TRUE(DirExists(program.File("user/temp")));
}

TEST_F(StartUp, AWorkingFolderThatCannotBeMadeIsNotCaught)
{
    namespace fs = std::filesystem;
    frame = std::make_unique<MDIForm1>(ask);
    fs::permissions(program.Path(), fs::perms::all);
    fs::permissions(program.Path(),
        fs::perms::all
            & ~(fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write));
    for (int box = 0; box < 3; ++box) // settings that can't be kept
        ask.Answer(QMessageBox::Ok);
    {
        const CommonUser common;
        EXPECT_THROW(frame->Start(QString::fromStdString(program.Path()), {}),
            std::filesystem::filesystem_error);
    }
    fs::permissions(program.Path(), fs::perms::all);
}

TEST_F(StartUp, AfterACopyEndedWithoutAnExitTheNextOneIsTheFirstAgain)
{
    Start();
    WriteText(WorkPath("left.bmp"), "x");
    frame.reset(); // as a crash: the system frees its place, and nothing else is done

    Start();

    EXPECT_EQ(WorkFolder(), program.File("temp"));
    EXPECT_TRUE(FileExists(WorkPath("left.bmp"))) << "the next load deletes it";
}

#ifndef _WIN32

TEST_F(StartUp, TheUsersFolderIsFilledFromAProgramFolderThatCanOnlyBeRead)
{
    namespace fs = std::filesystem;
    const TempFolder home;
    fs::permissions(home.Path(), fs::perms::all);
    WriteText(program.File("PalmApp.dat"), "[Shipped]\nType={appl}\nCreator={ship}\n");
    fs::permissions(program.Path(), fs::perms(0555));
    const auto start = [&] {
        frame = std::make_unique<MDIForm1>(ask);
        frame->Start(
            QString::fromStdString(program.Path()), QString::fromStdString(home.File("data")));
        frame->close();
    };
    {
        const CommonUser user;

        start();
        EXPECT_EQ(AppFolder, home.File("data"));
        EXPECT_EQ(ReadText(home.File("data/PalmApp.dat")), ReadText(program.File("PalmApp.dat")));
        EXPECT_TRUE(FileExists(home.File("data/VYPX.ini")));
        EXPECT_FALSE(DirExists(program.File("temp")));

        WriteText(home.File("data/PalmApp.dat"), "[Mine]\nType={appl}\nCreator={mine}\n");
        start();
        EXPECT_EQ(ReadText(home.File("data/PalmApp.dat")).substr(0, 6), "[Mine]");
        frame.reset();
    }
    fs::permissions(program.Path(), fs::perms(0755));
}

#endif

TEST_F(StartUp, ACatalogWithTooManyNamesIsToldInANote)
{
    std::string catalog;
    for (int i = 0; i < 1100; ++i)
        catalog += "[Item " + std::to_string(1000 + i) + "]\nID=" + std::to_string(i) + "\n";
    WriteText(program.File("VY_Icons.dat"), catalog);

    Start();

    const auto& note = Find<QLabel>("lblNote");
    EXPECT_TRUE(note.isVisible());
    EXPECT_TRUE(note.text().contains("of the 1100 names in VY_Icons.dat"))
        << note.text().toStdString();
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(StartUp, AFileInTheWayOfTheFirstFolderDoesNotKeepTheProgramFromStarting)
{
    WriteText(program.File("temp"), "a file");

    Start();

    EXPECT_TRUE(DirExists(WorkFolder()));
    EXPECT_NE(WorkFolder(), program.File("temp"));
}

} // namespace
} // namespace vypx::test
