#include "GreetingFixture.h"

#include "forms/greeting/frmTip.h"
#include "forms/main/Form1.h"
#include "forms/settings/frmProgOptions.h"

#include <QCheckBox>
#include <deque>

namespace vypx::test {

namespace {

class TipTest : public GreetingFixture {
protected:
    TipTest() { StartWith({}); }

    /// The window over tips, with these numbers in the place of random ones.
    void Open(std::deque<double> numbers = { 0.0 })
    {
        m_numbers = std::move(numbers);
        m_tip = new frmTip(
            program.Path(),
            [this] {
                const double number = m_numbers.front();
                if (m_numbers.size() > 1)
                    m_numbers.pop_front();
                return number;
            },
            frame->Form());
        m_tip->show();
    }
    QString Shown() { return In<QLabel>(Tip(), "lblTipText").text(); }

    static constexpr const char* Missing =
        "That the TIPOFDAY.TXT file was not found? \n"
        "Create a text file named TIPOFDAY.TXT using NotePad with 1 tip per line. "
        "Then place it in the same directory as the application. ";

private:
    std::deque<double> m_numbers;
    frmTip* m_tip = nullptr;
};

TEST_F(TipTest, SaysWhatItIs)
{
    Open();

    EXPECT_EQ(Tip()->windowTitle(), "Tip of the Day");
    EXPECT_EQ(In<QLabel>(Tip(), "Label1").text(), "Did you know...");
    EXPECT_EQ(In<QCheckBox>(Tip(), "chkLoadTipsAtStartup").text(), "&Show Tips at Startup");
    EXPECT_EQ(In<QPushButton>(Tip(), "cmdNextTip").text(), "&Next Tip");
    EXPECT_EQ(Tip()->grab().toImage().pixelColor(2, 2), QColor(224, 223, 227));
}

TEST_F(TipTest, TheNumbersPickTheTipsAndTheSameMayComeTwice)
{
    WriteTips("one\ntwo\nthree\nfour\n");
    Open({ 0.5, 0.5, 0.99, 0.0 });

    QStringList shown{ Shown() };
    for (int i = 0; i < 3; ++i) {
        Click(Tip(), "cmdNextTip");
        shown << Shown();
    }

    EXPECT_EQ(shown, QStringList({ "three", "three", "four", "one" }));
}

TEST_F(TipTest, WithoutItsFileItTellsHowToMakeOneAndTheNextIsTheSame)
{
    std::filesystem::remove(program.File("TIPOFDAY.TXT"));
    Open();
    EXPECT_EQ(Shown(), Missing);

    Click(Tip(), "cmdNextTip");

    EXPECT_EQ(Shown(), Missing);
}

TEST_F(TipTest, AFileWithOneLineShowsThatLineAlways)
{
    Open({ 0.99, 0.0, 0.5 });

    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Shown(), "The only tip");
        Click(Tip(), "cmdNextTip");
    }
}

TEST_F(TipTest, AFileWithoutTipsShowsNone)
{
    WriteTips("\n \n");
    Open();
    Click(Tip(), "cmdNextTip");

    EXPECT_EQ(Shown(), "");
}

TEST_F(TipTest, AFileThatHasGoneMeanwhileStillHasItsTips)
{
    WriteTips("one\ntwo\n");
    Open({ 0.0, 0.9 });
    std::filesystem::remove(program.File("TIPOFDAY.TXT"));

    Click(Tip(), "cmdNextTip");

    EXPECT_EQ(Shown(), "two");
}

TEST_F(TipTest, TagsAreTextAndALongTipDoesNotChangeTheSize)
{
    WriteTips("<b>short</b>\n" + std::string(5000, 'x') + " " + std::string(5000, 'y') + "\n");
    Open({ 0.0, 0.9 });
    const QSize before = Tip()->size();
    EXPECT_EQ(In<QLabel>(Tip(), "lblTipText").textFormat(), Qt::PlainText);

    Click(Tip(), "cmdNextTip");
    QCoreApplication::processEvents();

    EXPECT_EQ(Tip()->size(), before);
}

TEST_F(TipTest, ItsBoxWritesTheSettingAtOnce)
{
    SaveShowTipsAtStartup(true);
    Open();

    Click(Tip(), "chkLoadTipsAtStartup");
    EXPECT_FALSE(ShowTipsAtStartup());
    Click(Tip(), "chkLoadTipsAtStartup");
    EXPECT_TRUE(ShowTipsAtStartup());
}

TEST_F(TipTest, TheOptionsThatStandOpenFollowItsBox)
{
    SaveShowTipsAtStartup(true);
    Entry("mnuOptions").trigger();
    const auto& box = In<QCheckBox>(Window("frmProgOptions"), "chkShowTips");
    ASSERT_TRUE(box.isChecked());
    Entry("mnuTips").trigger();

    Click(Tip(), "chkLoadTipsAtStartup");

    EXPECT_FALSE(box.isChecked());
}

TEST_F(TipTest, AskedForTwiceThereIsOne)
{
    Entry("mnuTips").trigger();
    Entry("mnuTips").trigger();

    EXPECT_EQ(frame->findChildren<QDialog*>("frmTip").size(), 1);
}

} // namespace
} // namespace vypx::test
