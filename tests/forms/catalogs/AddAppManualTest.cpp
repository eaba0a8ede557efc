#include "AppListFixture.h"

namespace vypx::test {

namespace {

class AddAppManual : public AppListFixture {
protected:
    AddAppManual()
    {
        OpenEditor();
        Press("cmdManual");
    }

    QLineEdit& Text(const QString& name) { return In<QLineEdit>(Manual(), name); }
    void Fill(const QString& name, const QString& creator, const QString& type)
    {
        TypeOver(Text("txtAppName"), name);
        TypeOver(Text("txtCreatorID"), creator);
        TypeOver(Text("txtTypeID"), type);
    }
    void ExpectRefused(const QString& name, const QString& creator, const QString& type,
        const QString& text, QMessageBox::Icon icon = QMessageBox::NoIcon)
    {
        const std::string before = Apps();
        Fill(name, creator, type);
        ask.shown.clear();
        ask.Answer(Ok);
        PressInManual("cmdAppApply");
        ExpectBox(text, {}, icon);
        EXPECT_EQ(Apps(), before);
        ASSERT_NE(Manual(), nullptr) << "it stays open";
    }
};

TEST_F(AddAppManual, CaptionsStandLetterForLetter)
{
    QStringList texts;
    for (const QLabel* label : Manual()->findChildren<QLabel*>())
        texts << label->text();

    EXPECT_EQ(Manual()->windowTitle(), "Enter Application Info");
    for (const char* text : { "Application Name", "Creator ID", "Type ID", "Warning!",
             "Adding apps manually isn't recommended unless you are",
             "ABSOLUTELY sure you know the CreatorID and App name." })
        EXPECT_TRUE(texts.contains(text)) << text;
    EXPECT_EQ(Manual()->palette().color(QPalette::Window), QColor(224, 223, 227));
    EXPECT_FALSE(Manual()->isModal());
}

TEST_F(AddAppManual, AddsWhatIsTypedAndCloses)
{
    Fill("Gamma  ", "GAMM", "panl");

    PressInManual("cmdAppApply");

    EXPECT_EQ(Manual(), nullptr);
    EXPECT_EQ(Names(), QStringList({ "Alpha", "Beta Panel", "Gamma Panel" }));
    EXPECT_NE(Apps().find("[Gamma Panel]\nType=panl\nCreator={GAMM}"), std::string::npos);
}

TEST_F(AddAppManual, RefusesInTheseWords)
{
    ExpectRefused("", "", "", "Invalid application name entered");
    ExpectRefused("Gamma", "GAM", "", "The Creator ID needs to be at least 4 characters.");
    ExpectRefused("Gamma", "", "", "The Creator ID needs to be at least 4 characters.");
    ExpectRefused("Gamma", "GAMM", "app", "The Type ID needs to be at least 4 characters.");
    ExpectRefused("Gamma", "GAMM", "Appl", "The Type ID needs to be either \"appl\" or \"panl\".");
    const QString taken = "The application name already exists, please use a different name.";
    ExpectRefused("ALPHA", "GAMM", "appl", taken);
    ExpectRefused("beta", "GAMM", "panl", taken);
    ExpectRefused("palm mail", "GAMM", "appl", taken);
    ExpectRefused("Gamma", "mail", "appl",
        "Error. The Palm System icon \"Palm Mail\" has the same Creator ID as the one you have "
        "entered.");
    ExpectRefused("Gamma", "ALPH", "appl",
        "The Creator ID you have entered is already being used by the application: \n\n\"Alpha\""
        "\n\nYou will need to delete the application \"Alpha\" first to install this application.",
        QMessageBox::Critical);
}

TEST_F(AddAppManual, AFailedWriteIsToldAndClosesItAllTheSame)
{
    Fill("Gamma", "GAMM", "appl");
    Block(AppListFile());
    ask.AnswerFurther(Ok);

    PressInManual("cmdAppApply");

    EXPECT_EQ(ask.shown.front().text, "Failed to save value.");
    EXPECT_EQ(ask.shown.front().icon, QMessageBox::Information);
    EXPECT_EQ(Manual(), nullptr);
}

TEST_F(AddAppManual, BoxesForIdsHoldFourCharacters)
{
    for (const char* name : { "txtCreatorID", "txtTypeID" }) {
        TypeOver(Text(name), "abcdef");
        EXPECT_EQ(Text(name).text(), "abcd") << name;
    }
}

TEST_F(AddAppManual, EnterAppliesAndAHeldOneDoesNot)
{
    Fill("Gamma", "GAMM", "appl");
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&Text("txtTypeID"), &repeat);
    ASSERT_NE(Manual(), nullptr);

    QTest::keyClick(&Text("txtTypeID"), Qt::Key_Return);

    EXPECT_EQ(Manual(), nullptr);
    EXPECT_TRUE(Names().contains("Gamma"));
}

TEST_F(AddAppManual, CancelAndEscapeAddNothing)
{
    const std::string before = Apps();
    Fill("Gamma", "GAMM", "appl");
    PressInManual("cmdAppManualCancel");
    EXPECT_EQ(Manual(), nullptr);
    Press("cmdManual");
    EXPECT_EQ(Text("txtAppName").text(), "") << "it begins anew";
    QTest::keyClick(Manual(), Qt::Key_Escape);

    EXPECT_EQ(Manual(), nullptr);
    EXPECT_EQ(Apps(), before);
}

TEST_F(AddAppManual, ASecondClickKeepsWhatWasTyped)
{
    Fill("Gamma", "GAMM", "appl");

    Press("cmdManual");

    EXPECT_EQ(Text("txtAppName").text(), "Gamma");
}

TEST_F(AddAppManual, AddsToTheApplicationsThoughThePalmPageIsOnShow)
{
    ShowPalmPage();
    Fill("Gamma", "GAMM", "appl");

    PressInManual("cmdAppApply");

    EXPECT_EQ(Names(), QStringList({ "Palm Clock", "Palm Mail" }));
    Press("opt_Apps");
    EXPECT_TRUE(Names().contains("Gamma"));
}

} // namespace
} // namespace vypx::test
