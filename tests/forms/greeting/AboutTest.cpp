#include "GreetingFixture.h"

#include "forms/greeting/SystemInformation.h"
#include "forms/greeting/frmAbout.h"
#include "forms/main/Form1.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::HasSubstr;

constexpr const char* Unavailable = "System Information Is Unavailable At This Time";

class AboutTest : public GreetingFixture {
protected:
    AboutTest() { StartWith({}); }

    /// The window on a system that has this program, or none; one that can't be run fails.
    void Open(const std::optional<std::string>& tool, bool canRun = true, const QString& facts = {})
    {
        auto* const window = new frmAbout({ .tool = [tool] { return tool; },
                                              .run =
                                                  [this, canRun](const QString& path) {
                                                      run << path;
                                                      return canRun;
                                                  },
                                              .information = [facts] { return facts; } },
            ask, frame->Form());
        window->show();
    }
    QDialog* Information() { return Window("frmSystemInfo"); }
    QString Facts() { return In<QPlainTextEdit>(Information(), "txtSystemInfo").toPlainText(); }

    QStringList run;
};

TEST_F(AboutTest, TellsTitleVersionAndWhatItIsFor)
{
    Entry("mnuAbout").trigger();

    EXPECT_EQ(About()->windowTitle(), "About VY Pixelworks");
    EXPECT_EQ(In<QLabel>(About(), "lblTitle").text(), "VY Pixelworks");
    EXPECT_EQ(In<QLabel>(About(), "lblVersion").text(), "Version 2.0.0");
    EXPECT_EQ(In<QLabel>(About(), "lblDescription").text(), "Creates custom iconsets for Vantry");
    EXPECT_EQ(In<QPushButton>(About(), "cmdSysInfo").text(), "&System Info...");
    EXPECT_EQ(About()->grab().toImage().pixelColor(2, 2), QColor(224, 223, 227));
}

TEST_F(AboutTest, TheSystemsOwnProgramIsRun)
{
    Open("C:\\Tools of mine\\info.exe");

    Click(About(), "cmdSysInfo");

    EXPECT_EQ(run, QStringList("C:\\Tools of mine\\info.exe"));
    EXPECT_EQ(Information(), nullptr);
}

TEST_F(AboutTest, WhereNothingCanBeToldItSaysSo)
{
    Open(std::nullopt);
    ask.Answer(QMessageBox::Ok);

    Click(About(), "cmdSysInfo");

    EXPECT_EQ(Messages(), QStringList(Unavailable));
}

TEST_F(AboutTest, AProgramThatDoesNotStartIsToldInTheSameWords)
{
    Open("C:\\info.exe", false);
    ask.Answer(QMessageBox::Ok);

    Click(About(), "cmdSysInfo");

    EXPECT_EQ(Messages(), QStringList(Unavailable));
}

TEST_F(AboutTest, WithoutSuchAProgramAWindowOfOurOwnTellsTheFacts)
{
    Open(std::nullopt, true, "Fact: 1\nFact: 2");

    Click(About(), "cmdSysInfo");
    Click(About(), "cmdSysInfo");

    EXPECT_EQ(Facts(), "Fact: 1\nFact: 2");
    EXPECT_TRUE(Information()->isEnabled());
    EXPECT_EQ(About()->findChildren<QDialog*>("frmSystemInfo").size(), 1);
    EXPECT_FALSE(In<QPushButton>(Information(), "cmdCopy").text().isEmpty());
}

TEST_F(AboutTest, CopyPutsAllFactsOnTheClipboard)
{
    Open(std::nullopt, true, "Fact: 1\nFact: 2");
    Click(About(), "cmdSysInfo");

    Click(Information(), "cmdCopy");

    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Fact: 1\nFact: 2");
}

TEST_F(AboutTest, TheFactsCloseByEscapeAndByTheirButtonAndWithTheWindow)
{
    Open(std::nullopt, true, "Fact: 1");

    Click(About(), "cmdSysInfo");
    Press(Information(), Qt::Key_Escape);
    EXPECT_EQ(Information(), nullptr);
    EXPECT_NE(About(), nullptr);

    Click(About(), "cmdSysInfo");
    Click(Information(), "cmdClose");
    EXPECT_EQ(Information(), nullptr);

    Click(About(), "cmdSysInfo");
    Click(About(), "cmdOK");
    EXPECT_EQ(Information(), nullptr);
    EXPECT_TRUE(CanUseMain());
}

TEST_F(AboutTest, TheFactsAreThoseThatAReportNeeds)
{
    AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "appl", "BETA", "" } };

    const std::string facts = SystemInformation().toStdString();

    EXPECT_THAT(facts, HasSubstr("VY Pixelworks: 2.0.0\n"));
    EXPECT_THAT(facts, HasSubstr("Qt: 6."));
    EXPECT_THAT(facts, HasSubstr("Window system: offscreen\n"));
    EXPECT_THAT(facts, HasSubstr("Screen: 1280 x 900 at 100 %, 96 dpi\n"));
    EXPECT_THAT(facts, HasSubstr("Data folder: " + program.Path() + "\n"));
    EXPECT_THAT(facts, HasSubstr("Working folder: " + program.File("temp") + "\n"));
    EXPECT_THAT(facts, HasSubstr("Settings file: " + program.File("VYPX.ini") + "\n"));
    EXPECT_THAT(facts, HasSubstr("AppList.dat: 2 entries\n"));
    EXPECT_THAT(facts, HasSubstr("Free space: "));
}

} // namespace
} // namespace vypx::test
