#include "SearchRunFixture.h"

namespace vypx::test {

namespace {

class AppSearchTest : public SearchRunFixture {
protected:
    AppSearchTest() { OpenEditor(); }
};

TEST_F(AppSearchTest, TheAutomaticOneAddsWhatThePalmDesktopFolderHas)
{
    PalmDesktopFolder = program.File("palm");
    Prc("a.prc", PrcFile("Gamma", "panl", "GAMM"));
    Prc("b.prc", PrcFile("Library", "libr", "LIBR"));

    Press("cmdGetAppsAuto");

    EXPECT_EQ(Names(), QStringList({ "Alpha", "Beta Panel", "Gamma Panel" }));
    EXPECT_NE(Apps().find("[Gamma Panel]\nType=panl\nCreator={GAMM}"), std::string::npos);
    EXPECT_TRUE(ask.shown.empty()) << "the outcome is not told";
    EXPECT_FALSE(StartupSearchRunning);
}

TEST_F(AppSearchTest, TheAutomaticOneWithoutAFolderDoesAndSaysNothing)
{
    for (const std::string& folder : { std::string(), program.File("missing") }) {
        PalmDesktopFolder = folder;
        Press("cmdGetAppsAuto");
        EXPECT_EQ(Names().size(), 2);
    }
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(AppSearchTest, TheFolderIsAskedForAndAllInItIsAdded)
{
    PutApplications(3);

    SearchInFolder();

    EXPECT_EQ(ask.folders.back().title, "Select a Folder");
    EXPECT_EQ(NewApplications(), 3);
    EXPECT_EQ(Names().size(), 5);
}

TEST_F(AppSearchTest, ACancelledFolderDialogSearchesNothing)
{
    PutApplications(3);
    SearchFolder = program.File("palm");
    ask.ChooseFolder({});

    Press("cmdAddPrcByFolder");

    EXPECT_EQ(SearchFolder, "");
    EXPECT_EQ(Names().size(), 2);
    EXPECT_FALSE(IsSeen("lblSearching"));
}

TEST_F(AppSearchTest, AFolderThatHasGoneIsToldOnce)
{
    std::filesystem::remove(program.File("palm"));
    ask.Answer(Ok);

    SearchInFolder();

    ExpectBox("Error searching for prc files.");
    EXPECT_TRUE(CanUsePart("cmdAddPrcByFolder"));
}

TEST_F(AppSearchTest, ShowsThatItRunsAndThePathItHasReached)
{
    PutApplications(Many);
    QString path;
    AmidTheWalk([&] {
        path = PathOnShow();
        EXPECT_TRUE(IsSeen("lblSearching"));
        EXPECT_TRUE(IsSeen("cmdStopSearch"));
        EXPECT_FALSE(Find<QLabel>("lblSearchingApp").isVisible());
    });

    SearchInFolder();

    EXPECT_TRUE(path.endsWith("app0.prc")) << path.toStdString();
    EXPECT_EQ(PathOnShow(), "");
    EXPECT_FALSE(IsSeen("lblSearching"));
    EXPECT_FALSE(IsSeen("cmdStopSearch"));
    EXPECT_EQ(NewApplications(), Many);
}

TEST_F(AppSearchTest, ALongPathIsCutInItsMiddle)
{
    std::string folder = "palm";
    for (int i = 0; i < 3; ++i)
        folder += "/" + std::string(60, 'x');
    std::filesystem::create_directories(program.File(folder));
    WriteText(program.File(folder + "/the-last.prc"), "");
    QString path;
    AmidTheWalk([&] {
        path = PathOnShow();
        const auto& label = Part<QLabel>("lblSearchingFolder");
        EXPECT_LE(label.fontMetrics().horizontalAdvance(path), label.width());
    });
    const int width = Editor()->width();
    ask.ChooseFolder(QString::fromStdString(program.File(folder)));

    Press("cmdAddPrcByFolder");

    EXPECT_TRUE(path.startsWith("/") && path.endsWith("last.prc")) << path.toStdString();
    EXPECT_TRUE(path.contains(QChar(0x2026)));
    EXPECT_EQ(Editor()->width(), width);
}

TEST_F(AppSearchTest, DisablesWhatMustNotHappenAmidIt)
{
    PutApplications(Many);
    Press("cmdManual");
    const QStringList ofEditor{ "opt_Apps", "opt_PalmSys", "cmdGetAppsAuto", "cmdAddPrcByFolder",
        "cmdAddSingle", "cmdManual", "cmdDeleteApp", "cmdSearchIcon", "cmdAppEditDone" };
    const QStringList ofForm{ "mnuNew", "mnuOpen", "mnuLoadTemplate" };
    Amid([&] {
        for (const QString& name : ofEditor)
            EXPECT_FALSE(CanUsePart(name)) << name.toStdString();
        for (const QString& name : ofForm)
            EXPECT_FALSE(CanUse(name)) << name.toStdString();
        EXPECT_FALSE(In(Manual(), "cmdAppApply").isEnabled());
        EXPECT_TRUE(CanUse("mnuOptions"));
        EXPECT_TRUE(CanUsePart("cmdStopSearch"));
        EXPECT_TRUE(CanUsePart("ComboAppList"));
    });

    SearchInFolder();

    for (const QString& name : ofEditor)
        EXPECT_TRUE(CanUsePart(name)) << name.toStdString();
    for (const QString& name : ofForm)
        EXPECT_TRUE(CanUse(name)) << name.toStdString();
    EXPECT_TRUE(In(Manual(), "cmdAppApply").isEnabled());
    EXPECT_FALSE(CanUse("mnuCloseIconset")) << "there is no document";
}

TEST_F(AppSearchTest, KeepsTheOpenDocumentOpen)
{
    OpenIconset();
    OpenEditor();
    PutApplications(Many);
    Amid([&] {
        EXPECT_FALSE(CanUse("mnuCloseIconset"));
        EXPECT_FALSE(CanUsePart("cmdApplyAndReload"));
        EXPECT_TRUE(CanUse("mnuSave"));
        frame->activateWindow();
        QTest::keyClick(frame.get(), Qt::Key_W, Qt::ControlModifier);
        EXPECT_TRUE(FileLoaded);
    });

    SearchInFolder();

    EXPECT_TRUE(CanUse("mnuCloseIconset"));
    EXPECT_TRUE(CanUsePart("cmdApplyAndReload"));
    EXPECT_FALSE(CanUsePart("cmdDeleteApp"));
}

TEST_F(AppSearchTest, RefusesDropsOnEveryWindow)
{
    PutApplications(Many);
    const QStringList parts{ "frameLG", "TreeView1", "Form1" };
    Amid([&] {
        EXPECT_FALSE(TakesFiles(*frame));
        for (const QString& part : parts)
            EXPECT_FALSE(TakesFiles(Find<QWidget>(part))) << part.toStdString();
        EXPECT_FALSE(TakesFiles(*Editor()));
    });

    SearchInFolder();

    EXPECT_TRUE(TakesFiles(*frame));
    EXPECT_TRUE(TakesFiles(*Editor()));
}

TEST_F(AppSearchTest, AFileDroppedAMomentBeforeItIsNotOpened)
{
    PutApplications(Many);
    const QString other =
        Written(Iconset{ .name = "Other", .resources = { Picture(3600) } }.File(), "other.prc");
    QMimeData files;
    files.setUrls({ QUrl::fromLocalFile(other) });
    QDragEnterEvent enter({ 2, 2 }, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(frame.get(), &enter);
    QDropEvent drop({ 2, 2 }, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(frame.get(), &drop);

    SearchInFolder(); // in whose events the drop is served

    EXPECT_FALSE(FileLoaded);
    EXPECT_NE(Editor(), nullptr);
}

TEST_F(AppSearchTest, LetsTreeAndPicturesBeUsed)
{
    OpenIconset();
    OpenEditor();
    PutApplications(Many);
    Amid([&] {
        Nodes().setCurrentItem(Nodes().NodeOf("Alpha (Large Icon)"));
        QTest::mouseClick(&Find<QPushButton>("cmdDelSM"), Qt::LeftButton);
        QTest::keyClick(&Nodes(), Qt::Key_R);
    });

    SearchInFolder();

    const IconRow& row = IconTable[*FindIconRow("Alpha (Large Icon)")];
    EXPECT_EQ(row.LowResFile, NoImage);
    EXPECT_EQ(row.IconState, 0);
    EXPECT_EQ(NewApplications(), Many);
}

TEST_F(AppSearchTest, LetsAnotherCommandAskItsQuestionAndThenGoesOn)
{
    OpenIconset();
    OpenEditor();
    PutApplications(Many);
    ask.SaveTo(QString::fromStdString(program.File("saved.prc")));
    Amid([&] { Entry("mnuSaveAs").trigger(); });

    SearchInFolder();

    EXPECT_TRUE(FileExists(program.File("saved.prc")));
    EXPECT_EQ(NewApplications(), Many);
}

TEST_F(AppSearchTest, AWindowThatLeadsToAnotherDocumentWaitsForItsEnd)
{
    PutApplications(Many);
    PromptColorDepth = true;
    Entry("mnuOpen").trigger();
    PromptColorDepth = false;
    Entry("mnuNew").trigger();
    Amid([&] {
        EXPECT_FALSE(Dialog("frmSelectCDepth")->isEnabled());
        EXPECT_FALSE(Dialog("frmNewIconset")->isEnabled());
    });

    SearchInFolder();

    EXPECT_TRUE(Dialog("frmSelectCDepth")->isEnabled());
    EXPECT_TRUE(Dialog("frmNewIconset")->isEnabled());
}

TEST_F(AppSearchTest, ASecondPressOfTheKeyInAHurryDoesNothing)
{
    PutApplications(Many);
    PalmDesktopFolder = program.File("palm");
    Amid([&] { QTest::keyClick(Editor()->focusWidget(), Qt::Key_Space); });
    auto& button = Part<QPushButton>("cmdGetAppsAuto");
    button.setFocus();

    QTest::keyClick(&button, Qt::Key_Space);

    EXPECT_EQ(NewApplications(), Many) << "it was neither stopped nor begun again";
    EXPECT_EQ(SearchFoundCount, Many);
}

TEST_F(AppSearchTest, AnOpenAddIconWindowOffersWhatItHasFound)
{
    OpenIconset();
    QTest::mouseClick(&Find<QPushButton>("cmdAddIcon"), Qt::LeftButton);
    auto& offered = In<QListWidget>(Dialog("frmAddIcon"), "ComboAppListIcon");
    OpenEditor();
    PutApplications(1);

    SearchInFolder();

    EXPECT_EQ(offered.findItems("New 1000", Qt::MatchExactly).size(), 1);
}

} // namespace
} // namespace vypx::test
