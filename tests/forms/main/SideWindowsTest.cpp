#include "IconsFixture.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::HasSubstr;

struct SideRow {
    const char* window;
    const char* entry;
    const char* section;
    const char* title;
};

const SideRow Shares{ "frmShareList", "mnuShowShared", "Shared Icons Window", "Shared Icons" };
const SideRow Preview{ "frmPreviewOpt", "mnuShowPrevOpt", "Preview Option Window", "BackColor" };
const SideRow Stats{ "frmIconStat", "mnuShowIconStats", "IconStatWindow", "Icon Stats" };

/// One of the side windows, found by its name as a user by its title.
class SideWindows : public WindowFixture, public ::testing::WithParamInterface<SideRow> {
protected:
    QMdiSubWindow* Window(const char* name = GetParam().window)
    {
        return frame->findChild<QMdiSubWindow*>(name);
    }
    QAction& Mark() { return Entry(GetParam().entry); }
    /// A section of the settings file, the lines behind its name.
    static std::string Section(const std::string& lines)
    {
        return std::string("[") + GetParam().section + "]\n" + lines;
    }
    void LetItGo() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    void Close()
    {
        Window()->close();
        LetItGo();
    }
    void Leave()
    {
        Entry("mnuExit").trigger();
        frame.reset();
    }
    QList<QMdiSubWindow*> FromBelow()
    {
        return Find<QMdiArea>("mdiArea").subWindowList(QMdiArea::StackingOrder);
    }
};

} // namespace

TEST_P(SideWindows, IsShownAtTheLeftEdgeByDefault)
{
    Start();

    ASSERT_NE(Window(), nullptr);
    EXPECT_TRUE(Window()->isVisible());
    EXPECT_EQ(Window()->windowTitle(), GetParam().title);
    EXPECT_EQ(Window()->pos(), QPoint(0, 7)) << "0 and 100 twips";
    EXPECT_TRUE(Mark().isChecked());
    EXPECT_EQ(frame->focusWidget(), &Nodes()) << "where it stays";
}

TEST_P(SideWindows, IsNotShownWhereItWasClosed)
{
    WriteSettings(Section("Visible=False\n"));

    Start();

    EXPECT_EQ(Window(), nullptr);
    EXPECT_FALSE(Mark().isChecked());
    EXPECT_TRUE(Mark().isEnabled());
    for (const SideRow& row : { Shares, Preview, Stats })
        EXPECT_EQ(Window(row.window) == nullptr, row.window == GetParam().window) << row.window;
}

TEST_P(SideWindows, ComesBackWhereItStood)
{
    Start();
    Window()->move(310, 45);

    Leave();
    EXPECT_THAT(Settings(), HasSubstr(Section("Visible=True\nX-Pos=4650\nY-Pos=675\n")));
    Start();

    EXPECT_EQ(Window()->pos(), QPoint(310, 45));
}

TEST_P(SideWindows, ClosedAtTheExitItKeepsItsPlaceInTheFile)
{
    WriteSettings(Section("X-Pos=3000\nY-Pos=600\n"));
    Start();
    Window()->move(310, 45);
    Close();

    Leave();

    EXPECT_THAT(Settings(), HasSubstr(Section("X-Pos=3000\nY-Pos=600\nVisible=False\n")));
}

TEST_P(SideWindows, APlaceBeyondTheFrameIsBroughtIntoReach)
{
    WriteSettings(Section("X-Pos=-30000\nY-Pos=32000\n"));

    Start();

    const QRect area(QPoint(), Find<QMdiArea>("mdiArea").viewport()->size());
    EXPECT_TRUE(area.intersects(Window()->geometry()));
}

TEST_P(SideWindows, AScrolledAreaDoesNotShiftThePlace)
{
    Start();
    Window()->move(40, 60);
    frame->resize(300, 300);
    QScrollBar& bar = *Find<QMdiArea>("mdiArea").verticalScrollBar();
    ASSERT_GT(bar.maximum(), 30);
    bar.setValue(30);
    ASSERT_EQ(Window()->y(), 30);

    Leave();

    EXPECT_THAT(Settings(), HasSubstr(Section("Visible=True\nX-Pos=600\nY-Pos=900\n")));
}

TEST_P(SideWindows, TheMenuEntryHidesAndShowsIt)
{
    Start();

    Mark().trigger();
    LetItGo();
    EXPECT_EQ(Window(), nullptr);
    EXPECT_FALSE(Mark().isChecked());

    Mark().trigger();
    EXPECT_TRUE(Window()->isVisible());
    EXPECT_TRUE(Mark().isChecked());
}

TEST_P(SideWindows, ItsFrameClosesItAndTheMarkFollows)
{
    Start();

    Close();

    EXPECT_EQ(Window(), nullptr);
    EXPECT_FALSE(Mark().isChecked());
}

TEST_P(SideWindows, ShownOnceMoreItStandsWhereItWas)
{
    Start();
    Window()->move(210, 90);
    Close();

    Mark().trigger();

    EXPECT_EQ(Window()->pos(), QPoint(210, 90));
}

TEST_P(SideWindows, StaysAboveTheMainForm)
{
    Start();
    Nodes().setFocus();
    QTest::mouseClick(&Nodes(), Qt::LeftButton);

    EXPECT_GT(FromBelow().indexOf(Window()),
        FromBelow().indexOf(static_cast<QMdiSubWindow*>(frame->Form().parentWidget())));
}

TEST_P(SideWindows, IsDisabledWithTheFrame)
{
    Start();

    frame->setEnabled(false);

    EXPECT_FALSE(Window()->isEnabled());
    EXPECT_FALSE(Window()->widget()->isEnabled());
}

TEST_P(SideWindows, IsInTheColourOfAllWindows)
{
    Start();

    EXPECT_EQ(Window()->widget()->grab().toImage().pixelColor(2, 2), QColor(224, 223, 227));
}

INSTANTIATE_TEST_SUITE_P(, SideWindows, ::testing::Values(Shares, Preview, Stats),
    [](const auto& test) { return std::string(test.param.window); });

namespace {

class AllSideWindows : public WindowFixture { };

} // namespace

TEST_F(AllSideWindows, LieInTheirOrderAtTheStart)
{
    Start();

    QStringList fromBelow;
    for (const QMdiSubWindow* window :
        Find<QMdiArea>("mdiArea").subWindowList(QMdiArea::StackingOrder))
        fromBelow << window->objectName();
    EXPECT_EQ(fromBelow.mid(1), QStringList({ Shares.window, Preview.window, Stats.window }));
}

} // namespace vypx::test
