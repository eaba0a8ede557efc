#include "OutsideFixture.h"

#include "forms/common/DisabledWindow.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using OutsideTexts = FromOutside<Documents>;

TEST_F(OutsideTexts, AMinimisedWindowComesUp)
{
    frame->showMinimized();

    Take(Set());

    EXPECT_TRUE(WaitUntilOpen());
    EXPECT_FALSE(frame->isMinimized());
}

TEST_F(OutsideTexts, TheWindowComesUpToShowWhatTheFileWaitsFor)
{
    const DisabledWindow window(*frame);
    frame->showMinimized();

    Take(Set());

    EXPECT_FALSE(frame->isMinimized());
}

TEST_F(OutsideTexts, AMessageWaitsAsAFileDoesAndSoDoTheFurtherOnes)
{
    auto window = std::make_unique<DisabledWindow>(*frame);
    Taker().Tell("one");
    Taker().Tell("two");
    Taker().Tell("two");
    RunEvents();
    EXPECT_TRUE(ask.shown.empty());
    ask.Answer(QMessageBox::Ok);

    window.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ask.shown.empty(); }));

    EXPECT_EQ(Messages(), QStringList("one\n\ntwo"));
}

TEST_F(OutsideTexts, AFileThatCameUnderAMessageIsOpenedAfterIt)
{
    Taker().Tell("Incorrect file type.");
    ask.Answer(QMessageBox::Ok, [&] { EXPECT_TRUE(Take(Set())); });

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideTexts, ManyMessagesAreOneBoxThatSaysHowManyMoreThereAre)
{
    for (int i = 1; i <= 25; ++i)
        Taker().Tell(QString("text %1").arg(i));
    ask.Answer(QMessageBox::Ok);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ask.shown.empty(); }));

    const QString box = Messages().value(0);
    EXPECT_TRUE(box.contains("text 1\n\n"));
    EXPECT_TRUE(box.endsWith("text 20\n\nand 5 more"));
}

TEST_F(OutsideTexts, MessagesOfManyLinesDoNotMakeABoxHigherThanAScreen)
{
    for (int i = 1; i <= 20; ++i)
        Taker().Tell(QString("text %1").arg(i) + QString("\nx").repeated(10));
    ask.Answer(QMessageBox::Ok);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ask.shown.empty(); }));

    const QString box = Messages().value(0);
    EXPECT_TRUE(box.startsWith("text 1\n"));
    EXPECT_LE(box.count('\n'), 45);
    EXPECT_TRUE(box.endsWith(QString("and %1 more").arg(20 - box.count("text "))));
}

} // namespace
} // namespace vypx::test
