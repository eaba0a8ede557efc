#include "AppListFixture.h"

namespace vypx::test {

namespace {

class EditAppList : public AppListFixture {
protected:
    EditAppList() { OpenEditor(); }

    QStringList Captions(const QStringList& names)
    {
        QStringList captions;
        for (const QString& name : names)
            captions << Part<QAbstractButton>(name).text();
        return captions;
    }
    /// Every text of the window that is no button's.
    QStringList Labels()
    {
        QStringList texts;
        for (const QLabel* label : Editor()->findChildren<QLabel*>())
            texts << label->text();
        for (const QGroupBox* group : Editor()->findChildren<QGroupBox*>())
            texts << group->title();
        return texts;
    }
};

TEST_F(EditAppList, CaptionsStandLetterForLetter)
{
    EXPECT_EQ(Editor()->windowTitle(), "Edit Application List");
    EXPECT_EQ(
        Captions({ "opt_Apps", "opt_PalmSys", "cmdGetAppsAuto", "cmdAddPrcByFolder", "cmdAddSingle",
            "cmdManual", "cmdDeleteApp", "optNewSys", "cmdApplyAndReload", "cmdStopSearch" }),
        QStringList({ "Applications", "Palm System", "Automatic Search", "Search in Folder....",
            "Select PRC File....", "Enter App Manually", "Remove Selected App", "New Icon",
            "Apply and Reload Iconset", "&Stop" }));
    for (const char* text :
        { "Recommended Methods", "Palm +", "Palm system icons can only be entered manually. ",
            "Type and Creator are CASE SENSITIVE!", "Icon Name (\"Palm\" added automatically)",
            "Type", "Creator", "Search for an icon", "Creator ID", "Searching for applications....",
            "Current iconset must be closed before applications can be removed.",
            "NOTE: If you add an application and have an iconset loaded,",
            "you must reload the iconset to reset any icons maked as \"Unknown\"." })
        EXPECT_TRUE(Labels().contains(text)) << text;
}

TEST_F(EditAppList, StandsAtHundredTwipsInTheProgramsColour)
{
    EXPECT_EQ(Editor()->pos(), QPoint(7, 7));
    EXPECT_EQ(Editor()->palette().color(QPalette::Window), QColor(224, 223, 227));
    EXPECT_FALSE(Editor()->isModal());
}

TEST_F(EditAppList, BeginsWithTheApplicationsAndNewIcon)
{
    EXPECT_TRUE(Part<QRadioButton>("opt_Apps").isChecked());
    EXPECT_TRUE(Part<QRadioButton>("optNewSys").isChecked());
    EXPECT_EQ(Names(), QStringList({ "Alpha", "Beta Panel" }));
    EXPECT_FALSE(IsSeen("frmPalmSys"));
    EXPECT_FALSE(IsSeen("lblSearching"));
    EXPECT_FALSE(IsSeen("cmdStopSearch"));
    EXPECT_TRUE(IsOn("cmdHelp"));
}

TEST_F(EditAppList, ReadsTheFileThatAnotherProgramHasChanged)
{
    Press("cmdAppEditDone");
    EXPECT_EQ(Editor(), nullptr);
    WriteText(AppListFile(), Section("Other", "OTHR"));

    OpenEditor();

    EXPECT_EQ(Names(), QStringList("Other"));
}

TEST_F(EditAppList, AMissingCatalogIsToldAndTheListIsEmpty)
{
    Press("cmdAppEditDone");
    std::filesystem::remove(AppListFile());
    ask.Answer(Ok);

    OpenEditor();

    ExpectBox("Error! Can't find Applist.dat.");
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(EditAppList, ASecondClickBringsTheMinimisedWindowBack)
{
    QDialog* const window = Editor();
    Type("txtFilter", "alp");
    window->showMinimized();

    OpenEditor();

    EXPECT_EQ(Editor(), window);
    EXPECT_FALSE(window->isMinimized());
    EXPECT_EQ(Part<QLineEdit>("txtFilter").text(), "alp");
}

TEST_F(EditAppList, OpeningItCountsTheIconsAnew)
{
    OpenIconset(); // which closes it
    IconTable[0].IconLabel = "marked";
    IconTable[0].IconState = 0;

    OpenEditor();

    EXPECT_TRUE(CanUse("cmdClrDeleted"));
}

TEST_F(EditAppList, ThePalmPageShowsItsFrameAndDisablesTheButtonsThatAdd)
{
    ShowPalmPage();

    EXPECT_EQ(Names(), QStringList({ "Palm Clock", "Palm Mail" }));
    EXPECT_TRUE(IsSeen("frmPalmSys"));
    for (const char* name : { "cmdGetAppsAuto", "cmdAddPrcByFolder", "cmdAddSingle", "cmdManual" })
        EXPECT_FALSE(IsOn(name)) << name;
    EXPECT_TRUE(IsOn("cmdDeleteApp"));
}

TEST_F(EditAppList, ThePageOfApplicationsComesBackWithEmptyBoxes)
{
    ShowPalmPage();
    TypePalm("Clock", "appl", "clck");

    Press("opt_Apps");

    EXPECT_EQ(Names(), QStringList({ "Alpha", "Beta Panel" }));
    EXPECT_FALSE(IsSeen("frmPalmSys"));
    for (const char* name : { "cmdGetAppsAuto", "cmdAddPrcByFolder", "cmdAddSingle", "cmdManual" })
        EXPECT_TRUE(IsOn(name)) << name;
    ShowPalmPage();
    EXPECT_EQ(PalmTexts(), QStringList({ "", "", "" }));
}

TEST_F(EditAppList, APageSwitchReadsTheFile)
{
    WriteText(PalmAppFile(), Section("Palm Other", "othr"));

    ShowPalmPage();

    EXPECT_EQ(Names(), QStringList("Palm Other"));
    std::filesystem::remove(PalmAppFile());
    Press("opt_Apps");
    ask.Answer(Ok);
    ShowPalmPage();
    ExpectBox("Error! Can't find PalmApp.dat.");
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(EditAppList, AClickInEditModeShowsTheEntryWithoutItsPrefix)
{
    ShowPalmPage();
    Choose("Palm Mail");
    EXPECT_EQ(PalmTexts(), QStringList({ "", "", "" })) << "not for a new icon";

    Press("optEditSys");
    EXPECT_EQ(PalmTexts(), QStringList({ "Mail", "appl", "mail" })) << "of the current entry";
    Choose("Palm Clock");

    EXPECT_EQ(PalmTexts(), QStringList({ "Clock", "appl", "clck" }));
}

TEST_F(EditAppList, AClickOnTheSameEntryTakesBackWhatWasTyped)
{
    ShowPalmPage();
    Press("optEditSys");
    Choose("Palm Clock");
    Type("txtPalmSysName", "Other");

    Choose("Palm Clock");

    EXPECT_EQ(PalmTexts(), QStringList({ "Clock", "appl", "clck" }));
}

TEST_F(EditAppList, ArrowKeysShowTheEntryLikeAClick)
{
    ShowPalmPage();
    Press("optEditSys");
    Choose("Palm Clock");

    QTest::keyClick(&List(), Qt::Key_Down);

    EXPECT_EQ(PalmTexts(), QStringList({ "Mail", "appl", "mail" }));
}

TEST_F(EditAppList, AClickShowsWhatTheFileSays)
{
    ShowPalmPage();
    Press("optEditSys");
    WriteText(PalmAppFile(), "[Palm Clock]\nType=panl\nCreator=ABCDEF\n");

    Choose("Palm Clock");

    EXPECT_EQ(PalmTexts(), QStringList({ "Clock", "panl", "BCDE" }));
}

TEST_F(EditAppList, NewIconEmptiesTheBoxes)
{
    ShowPalmPage();
    Press("optEditSys");
    Choose("Palm Clock");

    Press("optNewSys");

    EXPECT_EQ(PalmTexts(), QStringList({ "", "", "" }));
}

TEST_F(EditAppList, EditModeOnThePageOfApplicationsReadsNothing)
{
    ShowPalmPage();
    Press("optEditSys");
    Press("opt_Apps");

    Choose("Alpha");

    ShowPalmPage();
    EXPECT_EQ(PalmTexts(), QStringList({ "", "", "" }));
}

TEST_F(EditAppList, TheFilterNarrowsTheListAndCountsWhatIsShown)
{
    Type("txtFilter", "PANEL");

    EXPECT_EQ(Names(), QStringList("Beta Panel"));
    EXPECT_EQ(Part<QLabel>("lblShown").text(), "1 of 2 shown");
    QTest::keyClick(&Part<QLineEdit>("txtFilter"), Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget() ? Editor()->focusWidget() : &List(), &List());
}

TEST_F(EditAppList, EnterAndDeleteDoNothingInTheList)
{
    Choose("Alpha");
    const std::string before = Apps();

    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Delete })
        QTest::keyClick(&List(), key);

    EXPECT_EQ(Apps(), before);
    EXPECT_NE(Editor(), nullptr);
    EXPECT_EQ(Names().size(), 2);
}

TEST_F(EditAppList, BoxesForTypeAndCreatorHoldFourCharactersOfLatin1)
{
    ShowPalmPage();
    for (const char* name : { "txtPalmSysType", "txtPalmSysCreat", "txtIconSearch" }) {
        Type(name, QString::fromUtf8("a\u0416b\u00e9de"));
        EXPECT_EQ(Part<QLineEdit>(name).text(), QString::fromUtf8("ab\u00e9d")) << name;
    }
}

} // namespace
} // namespace vypx::test
