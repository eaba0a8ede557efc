#include "IconsFixture.h"

namespace vypx::test {

namespace {

/// Two icons of Alpha with both pictures, one of Beta with its low-res one, and an orphan.
class IconStat : public IconsFixture {
protected:
    /// Behind the captions, from the top.
    std::vector<int> Counts()
    {
        std::vector<int> counts;
        for (const QString name : { "Icons", "Large", "Small", "HighRes", "LowRes", "Unknown" })
            counts.push_back(Find<QLabel>("lblTotal" + name).text().section('=', 1).toInt());
        return counts;
    }
    void Press(const QString& button) { Find<QPushButton>(button).click(); }
};

using Counted = std::vector<int>;

} // namespace

TEST_F(IconStat, ShowsEachCountBehindItsCaption)
{
    EXPECT_EQ(Find<QLabel>("lblTotalIcons").text(), "Total Icons = 3");
    EXPECT_EQ(Find<QLabel>("lblTotalLarge").text(), "Large Icons = 2");
    EXPECT_EQ(Find<QLabel>("lblTotalSmall").text(), "Small Icons = 1");
    EXPECT_EQ(Find<QLabel>("lblTotalHighRes").text(), "High Res Images = 2");
    EXPECT_EQ(Find<QLabel>("lblTotalLowRes").text(), "Low Res Images = 3");
    EXPECT_EQ(Find<QLabel>("lblTotalUnknown").text(), "Unknown Icons = 0");
    EXPECT_TRUE(Find<QGroupBox>("frameIconCnt").isAncestorOf(&Find<QLabel>("lblTotalUnknown")));
}

TEST_F(IconStat, CountsNothingBeforeADocument)
{
    frame.reset();
    ResetDocument();

    Start();

    EXPECT_EQ(Counts(), Counted({ 0, 0, 0, 0, 0, 0 }));
}

TEST_F(IconStat, CountsAnIconThatNoCatalogKnows)
{
    Open(Written(Iconset{ .resources = { { "iTbl", 1000, IndexRecord("appl", "ZZZZ", 3500, 0) },
                              Picture(3500) } }
                     .File(),
        "unknown.prc"));

    EXPECT_EQ(Counts(), Counted({ 1, 0, 0, 0, 0, 1 }));
}

TEST_F(IconStat, FollowsAMarkAndItsEnd)
{
    Click("Alpha (Large Icon)");

    Press("cmdRemoveIcon");
    EXPECT_EQ(Counts(), Counted({ 2, 1, 1, 1, 2, 0 }));

    Press("cmdRemoveIcon");
    EXPECT_EQ(Counts(), Counted({ 3, 2, 1, 2, 3, 0 }));
}

TEST_F(IconStat, FollowsWhatIsCleared)
{
    Click("Beta (Large Icon)");
    Press("cmdRemoveIcon");
    ask.Answer(QMessageBox::Ok);

    Press("cmdClrDeleted");

    EXPECT_EQ(Counts(), Counted({ 2, 1, 1, 2, 2, 0 }));
}

TEST_F(IconStat, FollowsADeletedPicture)
{
    Click("Alpha (Large Icon)");

    Press("cmdDelLG");

    EXPECT_EQ(Counts(), Counted({ 3, 2, 1, 1, 3, 0 }));
}

TEST_F(IconStat, CountsNothingOnceTheDocumentIsClosed)
{
    Entry("mnuCloseIconset").trigger();

    EXPECT_EQ(Counts(), Counted({ 0, 0, 0, 0, 0, 0 }));
}

TEST_F(IconStat, ShownOnceMoreItHasTheCountsOfNow)
{
    Entry("mnuShowIconStats").trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Click("Alpha (Large Icon)");
    Press("cmdRemoveIcon");

    Entry("mnuShowIconStats").trigger();

    EXPECT_EQ(Counts(), Counted({ 2, 1, 1, 1, 2, 0 }));
}

TEST_F(IconStat, ItsEntryCountsAnew)
{
    Entry("mnuShowIconStats").trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    IconTable.front().IconState = 0;

    Entry("mnuShowIconStats").trigger();

    EXPECT_EQ(Counts().front(), 2);
    EXPECT_TRUE(CanUse("cmdClrDeleted"));
}

TEST_F(IconStat, HasRoomForEveryCountAndNoMore)
{
    auto& window = Find<QWidget>("frmIconStat");
    const QSize size = window.size();
    Find<QLabel>("lblTotalHighRes").setText("High Res Images = 20000");
    QCoreApplication::processEvents();
    window.resize(400, 400);

    EXPECT_EQ(window.size(), size);
    const auto& contents = Find<QWidget>("iconStatContents");
    EXPECT_EQ(contents.size(), contents.sizeHint());
    EXPECT_LE(contents.width(), window.contentsRect().width());
}

} // namespace vypx::test
