#include "AppListFixture.h"

namespace vypx::test {

namespace {

constexpr auto Information = QMessageBox::Information;

class EditCatalogs : public AppListFixture {
protected:
    EditCatalogs() { OpenEditor(); }

    void ExpectPalmRefused(const QString& text, const QString& title = {},
        QMessageBox::Icon icon = QMessageBox::NoIcon)
    {
        const std::string before = PalmItems();
        PressAndExpect("cmdPalmSysApply", text, title, icon);
        EXPECT_EQ(PalmItems(), before);
    }
    void Select(const QStringList& names)
    {
        for (const QString& name : names)
            Choose(name, Qt::ControlModifier);
    }
};

class RemovedEntries : public EditCatalogs { };

TEST_F(RemovedEntries, AreThoseThatAreSelected)
{
    Choose("Beta Panel");

    Press("cmdDeleteApp");

    EXPECT_EQ(Names(), QStringList("Alpha"));
    EXPECT_EQ(Apps(), Section("Alpha", "ALPH"));
    Press("cmdDeleteApp");
    EXPECT_EQ(Names(), QStringList("Alpha")) << "nothing is selected";
}

TEST_F(RemovedEntries, LeaveACopyOfTheCatalogWhereTheyAreSeveral)
{
    const std::string before = Apps();
    Select({ "Alpha", "Beta Panel" });

    Press("cmdDeleteApp");

    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(ReadText(AppListFile() + ".bak"), before);
}

TEST_F(RemovedEntries, AreNeverThoseThatTheFilterHides)
{
    Select({ "Alpha", "Beta Panel" });
    Type("txtFilter", "beta");

    Press("cmdDeleteApp");

    EXPECT_EQ(Apps(), Section("Alpha", "ALPH"));
}

TEST_F(RemovedEntries, OfThePalmPageEmptyTheBoxes)
{
    ShowPalmPage();
    Press("optEditSys");
    Choose("Palm Clock");

    Press("cmdDeleteApp");

    EXPECT_EQ(Names(), QStringList("Palm Mail"));
    EXPECT_EQ(PalmItems(), Section("Palm Mail", "mail"));
    EXPECT_EQ(PalmTexts(), QStringList({ "", "", "" }));
}

TEST_F(RemovedEntries, ThatCannotBeRemovedAreToldEach)
{
    Select({ "Alpha", "Beta Panel" });
    Block(AppListFile());
    ask.Answer(Ok);
    ask.Answer(Ok);
    ask.AnswerFurther(Ok);

    Press("cmdDeleteApp");

    EXPECT_EQ(
        Messages().mid(0, 2), QStringList({ "Delete Section Failed.", "Delete Section Failed." }));
    EXPECT_EQ(ask.shown.front().icon, Information);
}

class PalmIcons : public EditCatalogs {
protected:
    PalmIcons() { ShowPalmPage(); }
};

TEST_F(PalmIcons, ANewOneGetsItsPrefixAndIsTold)
{
    TypePalm(" Notes ", "panl", "note");

    PressAndExpect("cmdPalmSysApply", "Icon has been added");

    EXPECT_EQ(Names(), QStringList({ "Palm Clock", "Palm Mail", "Palm Notes" }));
    EXPECT_NE(PalmItems().find("[Palm Notes]\nType=panl\nCreator={note}"), std::string::npos);
    EXPECT_EQ(List().currentItem()->text(), "Palm Notes");
}

TEST_F(PalmIcons, EnterInABoxAppliesOnce)
{
    TypePalm("Notes", "appl", "note");
    ask.Answer(Ok);
    auto& creator = Part<QLineEdit>("txtPalmSysCreat");

    QTest::keyClick(&creator, Qt::Key_Return);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&creator, &repeat);

    ExpectBox("Icon has been added");
}

TEST_F(PalmIcons, ANewOneIsRefusedInTheseWords)
{
    TypePalm("  ", "", "");
    ExpectPalmRefused("An icon name is required");
    TypePalm("clock", "", "");
    ExpectPalmRefused("This Palm system icon name already exists, please use a different name or "
                      "use the edit function.");
    TypePalm("Notes", "app", "");
    ExpectPalmRefused("The Type field must contain 4 characters");
    TypePalm("Notes", "libr", "");
    ExpectPalmRefused(
        "The Palm Type is needs to be either appl or panl.", "Unusual Entry", Information);
    EXPECT_EQ(ask.shown.back().buttons, Ok | Cancel);
    TypePalm("Notes", "appl", "not");
    ExpectPalmRefused("The Creator field must contain 4 characters");
    TypePalm("Notes", "appl", QString::fromUtf8("not\u00e9"));
    ExpectPalmRefused("Error! The Creator field contains an invalid character.");
    TypePalm("Notes", "appl", "mail");
    ExpectPalmRefused("Error! The icon \"Palm Mail\", has the same Creator ID as the one you have "
                      "entered.");
}

TEST_F(PalmIcons, ChecksWalkEntriesThatTheFilterHides)
{
    Type("txtFilter", "clock");
    TypePalm("Mail", "appl", "note");
    ExpectPalmRefused("This Palm system icon name already exists, please use a different name or "
                      "use the edit function.");
    TypePalm("Notes", "appl", "mail");
    ExpectPalmRefused("Error! The icon \"Palm Mail\", has the same Creator ID as the one you have "
                      "entered.");
}

TEST_F(PalmIcons, AnEditRenamesTheEntryAndCanGoOn)
{
    Press("optEditSys");
    Choose("Palm Clock");
    Type("txtPalmSysName", "Alarm");
    Press("cmdPalmSysApply");
    EXPECT_EQ(Names().size(), 2);
    EXPECT_TRUE(Names().contains("Palm Alarm"));
    EXPECT_EQ(PalmTexts(), QStringList({ "Alarm", "appl", "clck" }));

    Type("txtPalmSysCreat", "alrm");
    Press("cmdPalmSysApply");

    EXPECT_EQ(Names().size(), 2);
    EXPECT_NE(PalmItems().find("[Palm Alarm]\nType=appl\nCreator={alrm}"), std::string::npos);
    EXPECT_TRUE(ask.shown.empty()) << "an edit tells nothing";
}

TEST_F(PalmIcons, AnEditOfAnEntryThatTheFilterHidesByNowChangesThatEntry)
{
    Press("optEditSys");
    Choose("Palm Clock");
    Type("txtFilter", "mail");
    Type("txtPalmSysName", "Alarm");

    Press("cmdPalmSysApply");

    Type("txtFilter", "");
    EXPECT_EQ(Names().size(), 2);
    EXPECT_TRUE(Names().contains("Palm Alarm"));
}

TEST_F(PalmIcons, AnEditIsRefusedInTheseWords)
{
    Press("optEditSys");
    Choose("Palm Clock");
    TypePalm("MAIL", "appl", "clck");
    ExpectPalmRefused("Error! An icon with that name already exists.");
    WriteText(
        PalmAppFile(), Section("Palm Clock", "clck") + "[Palm Mail]\nType=appl\nCreator=mail\n");
    TypePalm("Clock", "appl", "mail");
    ExpectPalmRefused("Error! The icon \"Palm Mail\", has the same Creator ID as the one you have "
                      "entered.");
}

TEST_F(PalmIcons, OnPurposeAnEditMayEndWithTwoEntriesOfOneCreator)
{
    Press("optEditSys");
    Choose("Palm Clock");
    Type("txtPalmSysCreat", "mail");

    Press("cmdPalmSysApply");

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_NE(PalmItems().find("[Palm Clock]\nType=appl\nCreator={mail}"), std::string::npos);
}

TEST_F(PalmIcons, WithoutTheirFileTheyAreToldAndTheFileIsMade)
{
    std::filesystem::remove(PalmAppFile());
    TypePalm("Notes", "appl", "note");
    ask.Answer(Ok);
    ask.Answer(Ok);

    Press("cmdPalmSysApply");

    EXPECT_EQ(
        Messages(), QStringList({ "Error! Can't find PalmApp.dat file.", "Icon has been added" }));
    EXPECT_EQ(Names(), QStringList("Palm Notes"));
}

TEST_F(PalmIcons, ThatCannotBeWrittenAreTold)
{
    Block(PalmAppFile());
    TypePalm("Notes", "appl", "note");
    ask.AnswerFurther(Ok);

    Press("cmdPalmSysApply");

    EXPECT_TRUE(Messages().contains("Delete Section Failed."));
    EXPECT_FALSE(Messages().contains("Icon has been added"));
}

class IconSearch : public EditCatalogs { };

TEST_F(IconSearch, TellsWhichListHasTheCreator)
{
    Type("txtIconSearch", "BETA");
    PressAndExpect("cmdSearchIcon",
        "The icon \"Beta Panel\" has the Creator ID you have entered.\n"
        "It is located in the Applications Icon list.");
    Type("txtIconSearch", "mail");
    PressAndExpect("cmdSearchIcon",
        "The icon \"Palm Mail\" has the Creator ID you have entered.\n"
        "It is located in the Palm System Icon list.");
    Type("txtIconSearch", "beta");
    PressAndExpect("cmdSearchIcon", "The Creator ID you have entered wasn't found.");
}

TEST_F(IconSearch, RefusesInTheseWords)
{
    Type("txtIconSearch", "abc");
    PressAndExpect("cmdSearchIcon", "The Creator field must contain 4 characters");
    Type("txtIconSearch", QString::fromUtf8("abc\u00e9"));
    PressAndExpect("cmdSearchIcon", "Error! The Creator field can contains an invalid character.");
}

TEST_F(IconSearch, GoesOnWithoutTheFiles)
{
    std::filesystem::remove(AppListFile());
    std::filesystem::remove(PalmAppFile());
    Type("txtIconSearch", "abcd");
    ask.AnswerFurther(Ok);

    QTest::keyClick(&Part<QLineEdit>("txtIconSearch"), Qt::Key_Enter);

    EXPECT_EQ(Messages(),
        QStringList({ "Error! Can't find PalmApp.dat file.", "Error! Can't find AppList.dat file.",
            "The Creator ID you have entered wasn't found." }));
}

} // namespace
} // namespace vypx::test
