#include "AppListFixture.h"

namespace vypx::test {

namespace {

class AddSingleFile : public AppListFixture {
protected:
    AddSingleFile() { OpenEditor(); }

    void AddSingle(const QString& path)
    {
        ask.Choose(path);
        Press("cmdAddSingle");
    }
    /// The file is refused with this one box.
    void ExpectRefused(const QString& path, const QString& text, const QString& title = {})
    {
        const std::string before = Apps();
        ask.shown.clear();
        ask.Answer(Ok);
        AddSingle(path);
        ExpectBox(text, title);
        EXPECT_EQ(Apps(), before);
    }
};

TEST_F(AddSingleFile, IsChosenByAFilterForApplications)
{
    ask.CancelDialog();
    Press("cmdAddSingle");

    EXPECT_EQ(ask.opened.back().filters, QStringList("Palm application (*.prc)"));
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(AddSingleFile, IsInTheListAndTheFileAtOnce)
{
    AddSingle(Prc("a.prc", PrcFile("Gamma", "panl", "GAMM")));

    EXPECT_EQ(Names(), QStringList({ "Alpha", "Beta Panel", "Gamma Panel" }));
    EXPECT_NE(Apps().find("[Gamma Panel]\nType=appl\nCreator={GAMM}"), std::string::npos);
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(AddSingleFile, IsRefusedInTheseWords)
{
    ExpectRefused(Prc("a.txt", PrcFile("Gamma")), "Incorrect file type.");
    ExpectRefused(
        Prc("a.prc", PrcFile("Gamma", "libr")), "The selected file isn't an application.");
    ExpectRefused(Prc("b.prc", PrcFile("Gamma", "appl", "gamm")),
        "This is a Palm System file. Can't add the selected file.");
    ExpectRefused(Prc("d.prc", PrcFile("Gamma", "appl", "ALPH")),
        "The file you have selected has the same Creator ID as the application: \n\n\"Alpha\"\n\n"
        "You will need to delete the application \"Alpha\" first to install this application.",
        "Creator ID Already Exists!");
    WriteText(PalmAppFile(), Section("Palm Clock", "CLCK"));
    ShowPalmPage();
    Press("opt_Apps");
    ExpectRefused(Prc("c.prc", PrcFile("Gamma", "appl", "CLCK")),
        "Error adding this application. The Palm system icon \"Palm Clock\" has the same Creator "
        "ID.");
}

TEST_F(AddSingleFile, ThatHasVanishedOrIsTooShortIsPassedOverSilently)
{
    AddSingle(PalmFolder() + "/gone.prc");
    AddSingle(Prc("short.prc", Bytes(67, 'a')));

    EXPECT_EQ(Names().size(), 2);
}

TEST_F(AddSingleFile, WithAKnownNameInItsNameAsksBeforeItIsAdded)
{
    const QString path = Prc("a.prc", PrcFile("My alpha", "appl", "GAMM"));
    ask.Answer(Cancel);
    AddSingle(path);
    ExpectBox("The application name you have entered already exists.\n"
              "Press OK to overwrite the existing application.",
        "Application Already Exists!", QMessageBox::Warning);
    EXPECT_EQ(ask.shown.back().buttons, Ok | Cancel);
    EXPECT_EQ(Names().size(), 2);

    ask.Answer(Ok);
    AddSingle(path);

    EXPECT_EQ(Names(), QStringList({ "Alpha", "Beta Panel", "My alpha" }));
}

TEST_F(AddSingleFile, ThatCannotBeWrittenIsTold)
{
    Block(AppListFile());
    ask.Answer(Ok);
    ask.AnswerFurther(Ok); // nor can it be read

    AddSingle(Prc("a.prc", PrcFile("Gamma")));

    EXPECT_EQ(ask.shown.front().text, "Failed to save value.");
    EXPECT_EQ(ask.shown.front().icon, QMessageBox::Information);
}

class DroppedFiles : public AddSingleFile { };

TEST_F(DroppedFiles, AreAddedOneByOne)
{
    ask.Answer(Ok); // the second has the creator of the first

    EXPECT_TRUE(Drop({ Prc("a.prc", PrcFile("Gamma", "appl", "GAMM")),
        Prc("b.PRC", PrcFile("Delta", "appl", "GAMM")), Prc("c.txt", PrcFile("Text")),
        Prc("d.prc", PrcFile("Epsilon", "appl", "EPSI")) }));

    EXPECT_EQ(Names(), QStringList({ "Alpha", "Beta Panel", "Gamma", "Epsilon" }));
    EXPECT_EQ(ask.shown.back().title, "Creator ID Already Exists!");
}

TEST_F(DroppedFiles, AreRefusedWithoutAnApplicationAmongThemAndOnThePalmPage)
{
    EXPECT_FALSE(Drop({ Prc("c.txt", PrcFile("Text")) }));
    ShowPalmPage();
    EXPECT_FALSE(Drop({ Prc("a.prc", PrcFile("Gamma")) }));
    EXPECT_EQ(Apps().find("Gamma"), std::string::npos);
}

} // namespace
} // namespace vypx::test
