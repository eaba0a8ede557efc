#include "DesktopFakes.h"

#include "forms/desktop/DesktopCalls.h"
#include "forms/desktop/FileEvents.h"

#include <QCoreApplication>
#include <QFileOpenEvent>
#include <gmock/gmock.h>
#include <memory>

namespace vypx::test {

namespace {

using testing::ElementsAre;
using Kind = FakeCopies::Kind;

class DesktopCallsTest : public ::testing::Test {
protected:
    explicit DesktopCallsTest(bool startedByDesktop = false)
        : calls(own, handOver, copies, startedByDesktop)
    {
    }

    void Open(const QStringList& uris, const Activation& activation = {})
    {
        calls.Open(uris, activation, Answer());
        copies.RunAll();
    }
    void Activate(const Activation& activation = {}) { calls.Activate(activation, Answer()); }
    DesktopCalls::Answer Answer()
    {
        return [this](const QString& error) { answers << error; };
    }
    QStringList Taken() const
    {
        QStringList paths;
        for (const OutsideFile& file : own.taken)
            paths << file.path;
        return paths;
    }

    FakeTaker own;
    FakeCopies copies;
    HandOver handOver{ own, copies };
    DesktopCalls calls;
    QStringList answers;
};

class StartedByDesktop : public DesktopCallsTest {
protected:
    StartedByDesktop()
        : DesktopCallsTest(true)
    {
    }
};

const QStringList Done(QString(""));

TEST_F(DesktopCallsTest, EachFileOfACallIsAFileOfItsOwn)
{
    Open({ "file:///tmp/a.prc", "file:///tmp/b.PDB", "file:///tmp/c.vpt" });

    EXPECT_EQ(Taken(), QStringList("/tmp/a.prc"));
    EXPECT_EQ(copies.AllFiles(), QStringList({ "/tmp/b.PDB", "/tmp/c.vpt" }));
    EXPECT_EQ(answers, Done);
}

TEST_F(DesktopCallsTest, WhatBringsAWindowUpCountsForTheFirstFile)
{
    Open({ "file:///a.prc", "file:///b.prc" }, { "token-1", "id-1" });

    EXPECT_THAT(own.taken, ElementsAre(OutsideFile{ "/a.prc", { "token-1", "id-1" } }));
}

TEST_F(DesktopCallsTest, AnotherEndingIsTold)
{
    Open({ "file:///tmp/photo.png", "file:///tmp/a.prc" });

    EXPECT_EQ(own.told, QStringList("Incorrect file type."));
    EXPECT_EQ(Taken(), QStringList("/tmp/a.prc"));
}

TEST_F(DesktopCallsTest, WhatIsNoFileOfThisComputerIsToldAndAnsweredAndTheRestOpened)
{
    Open({ "https://example.invalid/x.prc", "file:///tmp/a.prc", "/tmp/b.prc" });

    const QString text = "Only files of this computer can be opened, not:\n\n"
                         "https://example.invalid/x.prc\n/tmp/b.prc";
    EXPECT_EQ(own.told, QStringList(text));
    EXPECT_EQ(Taken(), QStringList("/tmp/a.prc"));
    EXPECT_EQ(answers, QStringList(text));
}

TEST_F(DesktopCallsTest, ANameThatIsNoTextHasATextOfItsOwn)
{
    Open({ "file:///tmp/%ff.prc", "http://x/a.prc" });

    const QStringList texts{ "Only files of this computer can be opened, not:\n\nhttp://x/a.prc",
        "Names that are not in UTF-8 can't be read:\n\nfile:///tmp/%ff.prc" };
    EXPECT_EQ(own.told, texts);
    EXPECT_EQ(answers, QStringList(texts.join("\n\n")));
}

TEST_F(DesktopCallsTest, ABoxNeverGetsLongerThanAScreen)
{
    Open(QStringList(90, "http://" + QString(100000, 'x')));

    ASSERT_EQ(own.told.size(), 1);
    EXPECT_LT(own.told[0].size(), 3000);
    EXPECT_TRUE(own.told[0].endsWith("and 80 more"));
}

TEST_F(DesktopCallsTest, TooManyFilesAreRefusedAsAWhole)
{
    Open(QStringList(101, "file:///a.prc"));

    EXPECT_EQ(own.told, QStringList("No more than 100 files can be opened at once."));
    EXPECT_TRUE(Taken().isEmpty());
    EXPECT_EQ(copies.started, 0);
    EXPECT_EQ(answers, own.told);
}

TEST_F(DesktopCallsTest, AnAnswerComesOnlyWhenTheFileIsPlaced)
{
    own.isFree = false;
    calls.Open({ "file:///a.prc" }, {}, Answer());
    EXPECT_TRUE(answers.isEmpty());

    copies.RunAll();

    EXPECT_EQ(answers, Done);
}

TEST_F(DesktopCallsTest, AFileThatCouldNotBePlacedIsAnsweredAsAnError)
{
    own.isFree = false;
    copies.startsEndSo = { Copies::Started::Failed };

    Open({ "file:///a.prc" });

    EXPECT_EQ(answers, QStringList("/a.prc was not opened."));
}

TEST_F(DesktopCallsTest, ActivateStartsAFurtherCopy)
{
    Activate({ "token-2", "id-2" });

    EXPECT_THAT(copies.startedEmpty, ElementsAre(Activation{ "token-2", "id-2" }));
    EXPECT_TRUE(own.cameUp.empty());
    EXPECT_EQ(answers, Done);
}

TEST_F(DesktopCallsTest, OpenWithoutFilesIsActivate)
{
    Open({});

    EXPECT_EQ(copies.startedEmpty.size(), 1u);
    EXPECT_EQ(answers, Done);
}

TEST_F(DesktopCallsTest, AnActivateThatFailsIsToldAndAnswered)
{
    copies.canStart = false;

    Activate();

    EXPECT_EQ(own.told, QStringList("No further copy of VY Pixelworks could be started."));
    EXPECT_EQ(answers, own.told);
}

TEST_F(StartedByDesktop, TheFirstActivateBringsThisCopyUpAndTheNextStartsOne)
{
    Activate({ "first", {} });
    EXPECT_THAT(own.cameUp, ElementsAre(Activation{ "first", {} }));
    EXPECT_TRUE(copies.startedEmpty.empty());

    Activate({ "second", {} });

    EXPECT_THAT(copies.startedEmpty, ElementsAre(Activation{ "second", {} }));
}

TEST_F(StartedByDesktop, AnOpenIsTheCallItWasStartedFor)
{
    Open({ "file:///a.prc" });
    EXPECT_EQ(Taken(), QStringList("/a.prc"));

    Activate();

    EXPECT_EQ(copies.startedEmpty.size(), 1u);
}

TEST_F(StartedByDesktop, ACallThatAnotherCopyHeardIsNotWaitedFor)
{
    calls.ForgetStart();

    Activate();

    EXPECT_EQ(copies.startedEmpty.size(), 1u);
}

class FileEventsTest : public ::testing::Test {
protected:
    void Send(QFileOpenEvent event)
    {
        QCoreApplication::sendEvent(qApp, &event);
        copies.RunAll();
    }

    FakeTaker own;
    FakeCopies copies;
    FileEvents events{ own, copies };
};

TEST_F(FileEventsTest, TheFirstFileIsOpenedHereAndTheNextInAnotherCopy)
{
    Send(QFileOpenEvent(QString("/tmp/first.prc")));
    Send(QFileOpenEvent(QUrl::fromLocalFile("/tmp/the second.vpt")));

    EXPECT_THAT(own.taken, ElementsAre(OutsideFile{ "/tmp/first.prc", {} }));
    EXPECT_EQ(copies.AllFiles(), QStringList("/tmp/the second.vpt"));
}

TEST_F(FileEventsTest, AnotherEndingIsTold)
{
    Send(QFileOpenEvent(QString("/tmp/photo.png")));

    EXPECT_TRUE(own.taken.empty());
    EXPECT_EQ(own.told, QStringList("Incorrect file type."));
}

} // namespace
} // namespace vypx::test
