#include "DesktopFakes.h"

#include "forms/desktop/HandOver.h"

#include <QTimer>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using testing::ElementsAre;
using Kind = FakeCopies::Kind;

class HandOverTest : public ::testing::Test {
protected:
    /// The answers, in their order.
    void Place(const QString& path)
    {
        handOver.Place(
            { path, {} }, [this, path](bool placed) { answers << (placed ? "" : "not ") + path; });
    }

    FakeTaker own;
    FakeCopies copies;
    HandOver handOver{ own, copies };
    QStringList answers;
};

TEST_F(HandOverTest, AFreeCopyTakesTheFileItself)
{
    copies.copies = { { "other", Kind::Free } };

    Place("a.prc");
    copies.RunAll();

    EXPECT_THAT(own.taken, ElementsAre(OutsideFile{ "a.prc", {} }));
    EXPECT_TRUE(copies.AllFiles().isEmpty());
    EXPECT_EQ(answers, QStringList("a.prc"));
}

TEST_F(HandOverTest, OneWithADocumentGivesItToTheFirstFreeOne)
{
    own.isFree = false;
    copies.copies = { { "1", Kind::HasDocument }, { "2", Kind::Free }, { "3", Kind::Free } };

    Place("a.prc");
    copies.RunAll();

    EXPECT_EQ(copies.files["2"], QStringList("a.prc"));
    EXPECT_EQ(copies.AllFiles().size(), 1);
    EXPECT_EQ(copies.started, 0);
    EXPECT_EQ(copies.asked, QStringList({ "1", "2" })); // the third one hears nothing
}

TEST_F(HandOverTest, CopiesThatHangOrChangeTheirMindArePassedOver)
{
    own.isFree = false;
    copies.copies = { { "1", Kind::Hangs }, { "2", Kind::RefusesLate }, { "3", Kind::Free } };

    Place("a.prc");
    copies.RunAll();

    EXPECT_EQ(copies.AllFiles(), QStringList("a.prc"));
    EXPECT_EQ(copies.files["3"], QStringList("a.prc"));
}

TEST_F(HandOverTest, WhereNoneIsFreeOneIsStarted)
{
    own.isFree = false;
    copies.copies = { { "1", Kind::HasDocument } };

    Place("a.prc");
    copies.RunAll();

    EXPECT_EQ(copies.started, 1);
    EXPECT_EQ(copies.AllFiles(), QStringList("a.prc"));
    EXPECT_TRUE(own.told.isEmpty());
}

TEST_F(HandOverTest, TenFilesAtOnceComeToTenCopiesAFewAtATime)
{
    QStringList all;
    for (int i = 0; i < 10; ++i) {
        all << QString("%1.prc").arg(i);
        Place(all.back());
    }
    copies.RunAll();

    QStringList found = copies.AllFiles();
    ASSERT_EQ(own.taken.size(), 1u);
    found << own.taken[0].path;
    found.sort();
    EXPECT_EQ(found, all);
    for (const auto& [name, given] : copies.files)
        EXPECT_EQ(given.size(), 1) << name.toStdString();
    EXPECT_EQ(answers.size(), 10);
    EXPECT_LE(copies.mostStarting, 4);
    EXPECT_TRUE(handOver.IsIdle());
}

TEST_F(HandOverTest, AStartThatFailsIsToldAndNothingElseIsTried)
{
    own.isFree = false;
    copies.startsEndSo = { Copies::Started::Failed };

    Place("/tmp/a.prc");
    copies.RunAll();

    EXPECT_EQ(own.told,
        QStringList(
            "/tmp/a.prc was not opened: no further copy of VY Pixelworks could be started."));
    EXPECT_EQ(answers, QStringList("not /tmp/a.prc"));
    EXPECT_EQ(copies.started, 1);
}

TEST_F(HandOverTest, AStartedCopyThatGotAnotherFileFirstIsFollowedByAFurtherOne)
{
    own.isFree = false;
    copies.startsEndSo = { Copies::Started::Refused };

    Place("a.prc");
    copies.RunAll();

    EXPECT_EQ(copies.started, 2);
    EXPECT_EQ(copies.AllFiles(), QStringList("a.prc"));
    EXPECT_TRUE(own.told.isEmpty());
}

TEST_F(HandOverTest, ButNotForEver)
{
    own.isFree = false;
    copies.startsEndSo.assign(50, Copies::Started::Refused);

    Place("a.prc");
    copies.RunAll();

    EXPECT_LE(copies.started, 5);
    EXPECT_EQ(own.told,
        QStringList("a.prc was not opened: each copy of VY Pixelworks that was started for it got "
                    "another file first."));
    EXPECT_EQ(answers, QStringList("not a.prc"));
}

TEST_F(HandOverTest, AFileThatWaitedInVainGoesToAnotherCopy)
{
    Place("a.prc");
    copies.copies = { { "1", Kind::Free } };

    emit own.GivenBack(own.taken.at(0));
    copies.RunAll();

    EXPECT_EQ(copies.files["1"], QStringList("a.prc"));
}

TEST_F(HandOverTest, ItIsAtWorkUntilTheLastFileIsPlaced)
{
    own.isFree = false;
    Place("a.prc");
    Place("b.prc");
    EXPECT_FALSE(handOver.IsIdle());

    copies.RunAll();

    EXPECT_TRUE(handOver.IsIdle());
}

TEST_F(HandOverTest, CopiesThatHangWithTheirFileHoldNoOthersUp)
{
    own.isFree = false;
    for (const char* const name : { "1", "2", "3", "4", "5" })
        copies.copies[name] = Kind::NeverTakes;
    for (int i = 0; i < 5; ++i) {
        Place(QString("%1.prc").arg(i));
        copies.RunAll();
        copies.copies[QString::number(i + 1)] = Kind::HasDocument; // has a file by now
    }
    copies.copies["6"] = Kind::Free;

    Place("last.prc");
    copies.RunAll();

    EXPECT_EQ(copies.AllFiles(), QStringList("last.prc"));
    EXPECT_EQ(answers, QStringList("last.prc"));
}

TEST_F(HandOverTest, StartedCopiesThatHangHoldNoOthersUp)
{
    own.isFree = false;
    copies.startedHang = true;
    for (int i = 0; i < 10; ++i)
        Place(QString("%1.prc").arg(i));

    copies.RunAll();

    EXPECT_EQ(copies.started, 10);
    EXPECT_LE(copies.mostStarting, 4);
}

TEST_F(HandOverTest, AtTheEndItWaitsForWhatIsUnderWay)
{
    own.isFree = false;
    for (const char* const path : { "a.prc", "b.prc" })
        Place(path);
    QTimer::singleShot(0, [&] { copies.RunAll(); });

    handOver.Finish({});

    EXPECT_EQ(answers.size(), 2);
    EXPECT_TRUE(own.told.isEmpty());
}

TEST_F(HandOverTest, AtTheEndWhatNobodyAnswersIsTold)
{
    own.isFree = false;
    copies.copies = { { "1", Kind::NeverTakes } };
    Place("/tmp/a.prc");
    copies.RunAll();

    handOver.Finish({ .answers = 1 }); // where all are sent it does not wait for long

    EXPECT_EQ(own.told,
        QStringList("No copy of VY Pixelworks has answered that it opens:\n\n/tmp/a.prc"));
    EXPECT_EQ(answers, QStringList("not /tmp/a.prc"));
    EXPECT_TRUE(handOver.IsIdle());
}

TEST_F(HandOverTest, AtTheEndSoIsWhatStillLooksForACopy)
{
    own.isFree = false;
    for (int i = 0; i < 12; ++i)
        Place(QString("%1.prc").arg(i, 2, 10, QChar('0')));

    handOver.Finish({ .all = 1 });

    ASSERT_EQ(own.told.size(), 1);
    EXPECT_TRUE(own.told[0].contains("\n09.prc\nand 2 more"));
    EXPECT_EQ(answers.size(), 12);
    copies.RunAll(); // too late
    EXPECT_TRUE(copies.AllFiles().isEmpty());
    EXPECT_EQ(copies.started, 0);
    EXPECT_EQ(answers.size(), 12);
}

} // namespace
} // namespace vypx::test
