#include "WindowFixture.h"

#include <QContextMenuEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>

namespace vypx::test {

namespace {

constexpr const char* Preview = "frmPreviewOpt";
constexpr const char* Stats = "frmIconStat";
constexpr const char* Shares = "frmShareList";

class ArrangeTest : public WindowFixture {
protected:
    static std::string Closed(const std::string& section) { return section + "\nVisible=False\n"; }

    QMdiSubWindow& Window(const char* name) { return Find<QMdiSubWindow>(name); }
    QMdiSubWindow& Child() { return *static_cast<QMdiSubWindow*>(frame->Form().parentWidget()); }
    QRect View() { return Find<QMdiArea>("mdiArea").viewport()->rect(); }
    void Arrange() { Entry("mnuArrangeWin").trigger(); }
    std::vector<QRect> Places()
    {
        std::vector<QRect> places{ frame->geometry(), Child().geometry() };
        for (const char* name : { Preview, Stats, Shares })
            places.push_back(Window(name).geometry());
        return places;
    }
    /// Frame around the form and a column of that width, in pixels.
    int FrameWidth(int column) { return Child().width() + column + 20; }
};

TEST_F(ArrangeTest, StacksTheSideWindowsBesideTheForm)
{
    Start();
    Child().move(50, 30);
    Window(Preview).move(300, 300);

    Arrange();

    EXPECT_EQ(Child().pos(), QPoint(0, 0));
    const int column = Child().width();
    EXPECT_EQ(Window(Preview).pos(), QPoint(column, 0));
    EXPECT_EQ(Window(Stats).pos(), QPoint(column, Window(Preview).height()));
    EXPECT_EQ(
        Window(Shares).pos(), QPoint(column, Window(Preview).height() + Window(Stats).height()));
    for (const char* name : { Preview, Stats, Shares })
        EXPECT_TRUE(View().contains(Window(name).geometry())) << name;
    EXPECT_EQ(frame->width(), FrameWidth(Window(Stats).width()));
}

TEST_F(ArrangeTest, ClosedWindowsLeaveNoGapAndTheFrameFollowsTheRest)
{
    Start();
    Window(Stats).close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    Arrange();

    EXPECT_EQ(Window(Shares).pos(), QPoint(Child().width(), Window(Preview).height()));
    EXPECT_EQ(frame->width(), FrameWidth(Window(Preview).width()));
}

TEST_F(ArrangeTest, WithoutSideWindowsTheFrameFitsTheForm)
{
    WriteSettings(Closed("[Preview Option Window]") + Closed("[IconStatWindow]")
        + Closed("[Shared Icons Window]"));
    Start();

    Arrange();

    EXPECT_EQ(frame->width(), FrameWidth(0));
}

TEST_F(ArrangeTest, PressedTwiceItChangesNothingMore)
{
    Start();
    frame->resize(1200, 860);
    Arrange();
    const std::vector<QRect> once = Places();
    EXPECT_LT(frame->height(), 860) << "not what the form fills, but what it needs";

    Arrange();

    EXPECT_EQ(Places(), once);
}

TEST_F(ArrangeTest, AMaximisedFrameKeepsItsSize)
{
    Start();
    frame->showMaximized();
    QCoreApplication::processEvents();
    const QRect before = frame->geometry();
    Window(Preview).move(300, 300);

    Arrange();

    EXPECT_TRUE(frame->isMaximized());
    EXPECT_EQ(frame->geometry(), before);
    EXPECT_EQ(Window(Preview).pos(), QPoint(Child().width(), 0));
}

TEST_F(ArrangeTest, TheFrameNeverExceedsTheScreen)
{
    Start();
    Child().resize(1200, 500);
    frame->move(400, 500);

    Arrange();

    EXPECT_TRUE(frame->screen()->availableGeometry().contains(frame->frameGeometry()));
}

TEST_F(ArrangeTest, AWindowThatWouldBeOutOfTheViewComesIntoIt)
{
    Start();
    Child().resize(1270, 500);

    Arrange();

    for (const char* name : { Preview, Stats, Shares }) {
        EXPECT_GE(Window(name).x(), 0) << name;
        EXPECT_LE(Window(name).geometry().right(), View().right()) << name;
    }
}

TEST_F(ArrangeTest, AFirstStartArranges)
{
    WriteSettings("[Splash Screen]\nShow splash screen at startup=False\n");

    StartAsItIs();

    EXPECT_EQ(Window(Preview).pos(), QPoint(Child().width(), 0));
    EXPECT_EQ(frame->width(), FrameWidth(Window(Stats).width()));
}

TEST_F(ArrangeTest, AnyPlaceOrSizeInTheFileMakesALaterStart)
{
    for (const std::string place :
        { "[Preview Option Window]\nX-Pos=0\n", "[IconStatWindow]\nY-Pos=100\n",
            "[Shared Icons Window]\nX-Pos=0\n", "[Main Window Size]\nHeight=9800\n" }) {
        WriteSettings("[Splash Screen]\nShow splash screen at startup=False\n" + place);

        StartAsItIs();

        EXPECT_EQ(Window(Preview).pos(), QPoint(0, 7)) << place;
    }
}

TEST_F(ArrangeTest, EachSideWindowHasItInTheMenuOfItsGround)
{
    Start();
    for (const char* name : { Preview, Stats, Shares }) {
        QMdiSubWindow& side = Window(name);
        auto* const menu = side.findChild<QMenu*>();
        auto* const entry = side.findChild<QAction*>("mnuArrangeWindows");
        ASSERT_NE(entry, nullptr) << name;
        EXPECT_EQ(menu->title(), "&Window");
        EXPECT_EQ(entry->text(), "&Arrange Windows");
        side.move(30, 60);
        QContextMenuEvent rightClick(
            QContextMenuEvent::Mouse, { 3, 3 }, side.widget()->mapToGlobal(QPoint(3, 3)));
        QCoreApplication::sendEvent(side.widget(), &rightClick);
        EXPECT_TRUE(menu->isVisible()) << name;

        QTest::keyClick(menu, Qt::Key_A);

        EXPECT_FALSE(menu->isVisible());
        EXPECT_EQ(side.x(), Child().width()) << name;
    }
}

} // namespace
} // namespace vypx::test
