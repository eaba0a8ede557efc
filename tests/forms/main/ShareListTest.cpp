#include "IconsFixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QScrollBar>

namespace vypx::test {

namespace {

const QString LongLabel = QString("A name as long as none of the others and longer than any list"
                                  " that stands beside the main form")
    + " (Large Icon)";

/// A document in which three applications have one picture, and a fourth one for both sizes.
class ShareList : public IconsFixture {
protected:
    ShareList()
    {
        const std::string longName = LongLabel.chopped(13).toStdString();
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "appl", "BETA", "" },
            { longName, "appl", "LONG", "" }, { "Delta", "appl", "DELT", "" } };
        Open(Written(Iconset{ .name = "Set",
                         .resources = { { "iTbl", 1000,
                                            Join({ IndexRecord("appl", "ALPH", 3500, 3501),
                                                IndexRecord("appl", "BETA", 3500, 0),
                                                IndexRecord("appl", "LONG", 3500, 0),
                                                IndexRecord("appl", "DELT", 3502, 3502) }) },
                             BothPictures(3500, true), BothPictures(3501, false),
                             BothPictures(3502, false) } }
                         .File(),
            "shares.prc"));
    }

    QListWidget& List() { return Find<QListWidget>("listShared"); }
    QStringList Listed()
    {
        QStringList texts;
        for (int i = 0; i < List().count(); ++i)
            texts << List().item(i)->text();
        return texts;
    }
    QPoint PlaceOf(const QString& label)
    {
        QListWidgetItem* const item = List().findItems(label, Qt::MatchExactly).value(0);
        if (!item)
            throw std::runtime_error("not listed: " + label.toStdString());
        List().scrollToItem(item);
        return List().visualItemRect(item).topLeft() + QPoint(6, 4);
    }
    void ClickEntry(const QString& label)
    {
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(label));
    }
    void PressEnterOn(const QString& label)
    {
        List().setFocus();
        List().setCurrentItem(List().findItems(label, Qt::MatchExactly).value(0));
        QTest::keyClick(&List(), Qt::Key_Return);
    }
    QString Selected() { return Nodes().selectedItems().value(0)->text(0); }
    int StateOf(const std::string& label) { return *IconTable[*FindIconRow(label)].IconState; }
    void Toggle()
    {
        Entry("mnuShowShared").trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void AddRow(const std::string& label)
    {
        IconTable.push_back({ label, "tAIB3500", "NEW", "NEW", 1, "APP" });
    }
    int ReachToTheRight()
    {
        QCoreApplication::processEvents();
        return List().horizontalScrollBar()->maximum();
    }
};

const QStringList Nothing;

} // namespace

TEST_F(ShareList, HasTheOtherIconsOfTheSelectedOnesPictures)
{
    Click("Alpha (Large Icon)");
    EXPECT_EQ(Listed(), QStringList({ "Beta (Large Icon)", LongLabel }));

    Click("Beta (Large Icon)");
    EXPECT_EQ(Listed(), QStringList({ "Alpha (Large Icon)", LongLabel }));

    Click("Delta (Small Icon)");
    EXPECT_EQ(Listed(), QStringList({ "Delta (Large Icon)" }));
}

TEST_F(ShareList, IsEmptyWhereNothingIsShared)
{
    EXPECT_EQ(Listed(), Nothing) << "nothing is selected";

    for (const QString alone : { "Alpha (Small Icon)", "Set" }) {
        Click("Alpha (Large Icon)");
        Click(alone);
        EXPECT_EQ(Listed(), Nothing) << alone.toStdString();
    }
}

TEST_F(ShareList, IsEmptyForTheRootUnderAnyName)
{
    Click("Alpha (Large Icon)");
    DatabaseName = "refused by the tree";

    Click("Set");

    EXPECT_EQ(Listed(), Nothing);
}

TEST_F(ShareList, AClickOnAnEntryDoesWhatOneOnItsNodeDoes)
{
    Click("Delta (Large Icon)");
    Find<QPushButton>("cmdDelLG").click();
    ASSERT_TRUE(IsOn("cmdUndoLG"));
    ASSERT_EQ(Find<QLabel>("lblLG_Size").text(), "Max 64 x 44");

    ClickEntry("Delta (Small Icon)");

    EXPECT_EQ(Selected(), "Delta (Small Icon)");
    EXPECT_EQ(SelectedNode, "Delta (Small Icon)");
    EXPECT_EQ(Find<QLabel>("lblLG_Size").text(), "Max 30 x 22");
    EXPECT_FALSE(IsOn("cmdUndoLG")) << "the end of undo";
    EXPECT_EQ(Listed(), QStringList({ "Delta (Large Icon)" }));
}

TEST_F(ShareList, AClickedEntryShowsThePicturesOfItsIcon)
{
    Click("Alpha (Small Icon)");
    AddRow("Other (Large Icon)");
    IconTable.back().ResourceKey = "tAIB3501";
    IconTable.back().LowResFile = "tAIB3502.bmp";
    frame->Form().RebuildTree();
    Click("Alpha (Small Icon)");
    ASSERT_FALSE(Find<QWidget>("picLG").size().isEmpty());

    ClickEntry("Other (Large Icon)");

    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty()) << "it has none";
    EXPECT_FALSE(Find<QWidget>("picSM").size().isEmpty());
    EXPECT_TRUE(LowResPath.ends_with("tAIB3502.bmp"));
}

TEST_F(ShareList, AKeyAfterAClickIsMeantForTheNewIcon)
{
    Click("Alpha (Large Icon)");

    ClickEntry("Beta (Large Icon)");
    QTest::keyClick(frame->focusWidget(), Qt::Key_R);

    EXPECT_EQ(StateOf("Beta (Large Icon)"), 0);
    EXPECT_EQ(StateOf("Alpha (Large Icon)"), 1);
}

TEST_F(ShareList, TheNodeComesIntoView)
{
    for (int i = 0; i < 100; ++i)
        IconTable.push_back({ "Filler " + std::to_string(i), "tAIB1", "NEW", "NEW", 1, "APP" });
    AddRow("Zebra (Large Icon)");
    frame->Form().RebuildTree();
    Click("Alpha (Large Icon)");
    const QRect area = Nodes().viewport()->rect();
    ASSERT_FALSE(
        area.contains(Nodes().visualItemRect(Nodes().NodeOf("Zebra (Large Icon)")).center()));

    ClickEntry("Zebra (Large Icon)");

    EXPECT_TRUE(
        area.contains(Nodes().visualItemRect(Nodes().NodeOf("Zebra (Large Icon)")).center()));
}

TEST_F(ShareList, EnterOnAnEntrySelectsItToo)
{
    Click("Alpha (Large Icon)");

    PressEnterOn("Beta (Large Icon)");

    EXPECT_EQ(Selected(), "Beta (Large Icon)");
    EXPECT_EQ(Listed(), QStringList({ "Alpha (Large Icon)", LongLabel }));
}

TEST_F(ShareList, AnEnterThatIsHeldActsOnce)
{
    Click("Alpha (Large Icon)");
    PressEnterOn("Beta (Large Icon)");
    List().setFocus();
    List().setCurrentRow(0);

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QCoreApplication::sendEvent(&List(), &repeat);

    EXPECT_EQ(Selected(), "Beta (Large Icon)");
}

TEST_F(ShareList, ADoubleClickGoesOneStepOnly)
{
    Click("Delta (Large Icon)");
    const QPoint place = PlaceOf("Delta (Small Icon)");
    QWidget& target = *List().viewport();

    QTest::mouseClick(&target, Qt::LeftButton, {}, place);
    ASSERT_EQ(Listed(), QStringList({ "Delta (Large Icon)" })) << "now at that place";
    QMouseEvent second(QEvent::MouseButtonDblClick, place, target.mapToGlobal(place),
        Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &second);
    QTest::mouseRelease(&target, Qt::LeftButton, {}, place);

    EXPECT_EQ(Selected(), "Delta (Small Icon)");
}

TEST_F(ShareList, OtherButtonsAndEmptyGroundSelectNothing)
{
    Click("Delta (Large Icon)");
    const QPoint place = PlaceOf("Delta (Small Icon)");

    QTest::mouseClick(List().viewport(), Qt::RightButton, {}, place);
    QTest::mouseClick(
        List().viewport(), Qt::LeftButton, {}, List().viewport()->rect().bottomRight());

    EXPECT_EQ(Selected(), "Delta (Large Icon)");
}

TEST_F(ShareList, AnEntryWithoutANodeDoesNothing)
{
    Click("Alpha (Large Icon)");
    AddRow("Ghost (Large Icon)");
    frame->Form().UpdateIconStats();
    const QStringList listed = Listed();
    ASSERT_EQ(listed.last(), "Ghost (Large Icon)");

    ClickEntry("Ghost (Large Icon)");

    EXPECT_EQ(Selected(), "Alpha (Large Icon)");
    EXPECT_EQ(SelectedNode, "Alpha (Large Icon)");
    EXPECT_EQ(Listed(), listed);
}

TEST_F(ShareList, FollowsARecountWithoutAnotherClick)
{
    Click("Alpha (Large Icon)");
    IconTable[*FindIconRow("Beta (Large Icon)")].ResourceKey = "tAIB9999";

    frame->Form().UpdateIconStats();

    EXPECT_EQ(Listed(), QStringList({ LongLabel }));
}

TEST_F(ShareList, WhatIsClearedGoes)
{
    Click("Beta (Large Icon)");
    Find<QPushButton>("cmdRemoveIcon").click();
    EXPECT_EQ(Listed(), QStringList({ "Alpha (Large Icon)", LongLabel })) << "only marked";
    ask.Answer(QMessageBox::Ok);

    Find<QPushButton>("cmdClrDeleted").click();
    EXPECT_EQ(Listed(), Nothing) << "nothing is selected";

    Click("Alpha (Large Icon)");
    EXPECT_EQ(Listed(), QStringList({ LongLabel }));
}

TEST_F(ShareList, EmptiesWithItsDocument)
{
    Click("Alpha (Large Icon)");

    Entry("mnuCloseIconset").trigger();

    EXPECT_EQ(Listed(), Nothing);
}

TEST_F(ShareList, AnotherDocumentBeginsWithAnEmptyOne)
{
    Click("Alpha (Large Icon)");

    Open(Written(Iconset{ .resources = { Picture(3500) } }.File(), "other.prc"));

    EXPECT_EQ(Listed(), Nothing);
}

TEST_F(ShareList, IsEmptyFromTheBeginningOfALoad)
{
    Click("Alpha (Large Icon)");
    Resource broken = Picture(3501); // its chain breaks, which a box tells amid the load
    PutU16(broken.data, 10, 0x4000);
    QStringList amid{ "not asked" };
    ask.Answer(QMessageBox::Ok, [&] { amid = Listed(); });

    Open(Written(Iconset{ .resources = { broken } }.File(), "box.prc"));

    EXPECT_EQ(amid, Nothing);
}

TEST_F(ShareList, AFileThatCannotBeReadLeavesItEmpty)
{
    Click("Alpha (Large Icon)");
    ask.Answer(QMessageBox::Ok);

    Open(Written(Bytes(100, 1), "broken.prc"));

    EXPECT_EQ(Listed(), Nothing);
}

TEST_F(ShareList, ShownOnceMoreItHasTheIconsOfNow)
{
    Click("Alpha (Large Icon)");
    Toggle();
    Click("Delta (Large Icon)");

    Toggle();

    EXPECT_EQ(Listed(), QStringList({ "Delta (Small Icon)" }));
}

TEST_F(ShareList, ALongLabelMakesItScrollSideways)
{
    Click("Alpha (Large Icon)");

    const int reach = ReachToTheRight();
    EXPECT_GT(reach, 0);
    EXPECT_TRUE(List().horizontalScrollBar()->isVisible());
    const int text = List().parentWidget()->fontMetrics().horizontalAdvance(LongLabel);
    const int scrollBar = List().style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    EXPECT_EQ(reach + List().viewport()->width(), text + scrollBar + 2);
}

TEST_F(ShareList, OnceTheLongLabelIsGoneItScrollsNoMore)
{
    Click("Alpha (Large Icon)");
    ASSERT_GT(ReachToTheRight(), 0);

    Click("Delta (Large Icon)");
    EXPECT_EQ(ReachToTheRight(), 0);

    Click("Alpha (Large Icon)");
    Click("Set");
    EXPECT_EQ(ReachToTheRight(), 0);
}

TEST_F(ShareList, OnPurposeALongListShowsItsEnd)
{
    for (int i = 0; i < 40; ++i)
        AddRow("Sharer " + std::to_string(i));

    Click("Alpha (Large Icon)");
    QCoreApplication::processEvents();

    const QScrollBar& bar = *List().verticalScrollBar();
    EXPECT_GT(bar.maximum(), 0);
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(ShareList, TheUserCanMakeItLarger)
{
    auto& window = Find<QMdiSubWindow>("frmShareList");
    const QSize before = window.size();
    const int list = List().height();
    const QPoint corner(window.width() - 2, window.height() - 2);
    const auto move = [&](const QPoint& place, Qt::MouseButtons buttons) {
        QMouseEvent event(
            QEvent::MouseMove, place, window.mapToGlobal(place), Qt::NoButton, buttons, {});
        QCoreApplication::sendEvent(&window, &event);
    };

    move(corner, Qt::NoButton);
    QTest::mousePress(&window, Qt::LeftButton, {}, corner);
    move(corner + QPoint(60, 40), Qt::LeftButton);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, corner + QPoint(60, 40));
    QCoreApplication::processEvents();

    EXPECT_EQ(window.size(), before + QSize(60, 40));
    EXPECT_EQ(List().height(), list + 40);

    Toggle();
    Toggle();
    EXPECT_EQ(Find<QWidget>("frmShareList").size(), before + QSize(60, 40));
}

TEST_F(ShareList, TakesNoInputWhileTheFrameIsDisabled)
{
    Click("Alpha (Large Icon)");
    const QPoint place = PlaceOf("Beta (Large Icon)");
    frame->setEnabled(false);

    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);

    EXPECT_EQ(Selected(), "Alpha (Large Icon)");
}

} // namespace vypx::test
