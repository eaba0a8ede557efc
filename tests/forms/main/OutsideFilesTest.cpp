#include "OutsideFixture.h"

#include "forms/common/DisabledWindow.h"

#include <QMenu>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using testing::ElementsAre;

using OutsideFiles = FromOutside<Documents>;

TEST_F(OutsideFiles, AnIconsetIsOpenedWithoutADialog)
{
    PromptColorDepth = true; // which is for the commands of the menu

    EXPECT_TRUE(Take(Set()));

    EXPECT_TRUE(WaitUntilOpen());
    EXPECT_EQ(Status(2), "Palm Database Name = Set");
    EXPECT_TRUE(ask.opened.empty());
    EXPECT_FALSE(IconsetChanged);
}

TEST_F(OutsideFiles, ItIsNotOpenedBeforeWhoeverBroughtItKnows)
{
    EXPECT_TRUE(Take(Set()));

    EXPECT_FALSE(FileLoaded);
}

TEST_F(OutsideFiles, WithADocumentNoneIsTaken)
{
    MakeNew("Mine");

    EXPECT_FALSE(Taker().IsFree());
    EXPECT_FALSE(Take(Set()));
    RunEvents();

    EXPECT_EQ(DatabaseName, "Mine");
}

TEST_F(OutsideFiles, WhereOneWaitsNoFurtherOneIsTaken)
{
    EXPECT_TRUE(Take(Set("first.prc")));

    EXPECT_FALSE(Take(Set("second.prc")));

    EXPECT_TRUE(WaitUntilOpen("first.prc"));
}

TEST_F(OutsideFiles, OnceTheDocumentIsClosedOneIsTakenAgain)
{
    Take(Set("first.prc"));
    EXPECT_TRUE(WaitUntilOpen("first.prc"));
    Entry("mnuCloseIconset").trigger();

    EXPECT_TRUE(Take(Set("second.prc")));

    EXPECT_TRUE(WaitUntilOpen("second.prc"));
}

TEST_F(OutsideFiles, AWindowThatDisablesTheFormIsWaitedFor)
{
    auto window = std::make_unique<DisabledWindow>(*frame);
    EXPECT_TRUE(Take(Set()));
    RunEvents();
    EXPECT_FALSE(FileLoaded);

    window.reset();

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideFiles, OneThatComesInTheLastMomentToo)
{
    EXPECT_TRUE(Take(Set()));
    auto window = std::make_unique<DisabledWindow>(*frame);
    RunEvents();
    EXPECT_FALSE(FileLoaded);

    window.reset();

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideFiles, ABoxIsWaitedFor)
{
    QMessageBox box(frame.get());
    box.setModal(true);
    box.show();
    EXPECT_TRUE(Take(Set()));
    RunEvents();
    EXPECT_FALSE(FileLoaded);

    box.close();

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideFiles, AnOpenMenuIsWaitedFor)
{
    QMenu menu(frame.get());
    menu.addAction("one");
    menu.popup(frame->mapToGlobal(QPoint(50, 50)));
    EXPECT_TRUE(Take(Set()));
    RunEvents();
    EXPECT_FALSE(FileLoaded);

    menu.close();

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideFiles, WhereThereIsADocumentByThenTheFileIsGivenBack)
{
    Watch();
    auto window = std::make_unique<DisabledWindow>(*frame);
    Take(Set());
    window.reset();
    MakeNew("Mine");

    RunEvents();

    EXPECT_THAT(givenBack, ElementsAre(QString::fromStdString(program.File("set.prc"))));
    EXPECT_EQ(DatabaseName, "Mine");
}

TEST_F(OutsideFiles, ExitGivesTheWaitingFileBack)
{
    Watch();
    Take(Set());

    Entry("mnuExit").trigger();

    EXPECT_THAT(givenBack, ElementsAre(QString::fromStdString(program.File("set.prc"))));
    EXPECT_FALSE(Taker().IsFree());
    RunEvents();
    EXPECT_FALSE(FileLoaded);
}

TEST_F(OutsideFiles, AMissingFileIsToldAsByAnyLoadAndTheCopyIsFreeAgain)
{
    EXPECT_TRUE(Take(QString::fromStdString(program.File("gone.prc"))));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Find<QLabel>("lblNote").text().isEmpty(); }));

    EXPECT_EQ(Find<QLabel>("lblNote").text(), "gone.prc could not be read.");
    EXPECT_TRUE(Taker().IsFree());
}

TEST_F(OutsideFiles, ABrokenFileIsToldAndTheNextOneOpened)
{
    ask.Answer(QMessageBox::Ok);
    Take(Written(Bytes(200, 0), "broken.prc"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ask.shown.empty(); }));
    EXPECT_EQ(Messages(), QStringList("This file doesn't appear to be a valid Vantry IconSet"));

    EXPECT_TRUE(Take(Set()));

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideFiles, ADroppedFileThatWaitsForAnImportIsForgotten)
{
    DroppedFile = true;
    DroppedFileName = program.File("odd.xyz");

    Take(Set());

    EXPECT_TRUE(WaitUntilOpen());
    EXPECT_FALSE(DroppedFile);
}

TEST_F(OutsideFiles, AnEmptyPathAsksForNothing)
{
    EXPECT_TRUE(Take({}));
    RunEvents();

    EXPECT_TRUE(ask.opened.empty());
    EXPECT_FALSE(FileLoaded);
    EXPECT_TRUE(Taker().IsFree());
}

TEST_F(OutsideFiles, UnderADialogOfTheUsersOwnOpenItWaitsAndIsGivenBackAfterIt)
{
    Watch();
    const QString other = Set();
    ask.Choose(Set("own.prc"), [&] { EXPECT_TRUE(Take(other)); });

    Entry("mnuOpen").trigger();
    RunEvents();

    EXPECT_TRUE(IsOpen("own.prc"));
    EXPECT_THAT(givenBack, ElementsAre(other));
}

TEST_F(OutsideFiles, OneThatComesAmidALoadIsGivenBackAfterIt)
{
    Watch();
    Resource broken = Picture(3501); // a box comes up amid the load
    PutU16(broken.data, 10, 0x4000);
    const QString box =
        Written(Iconset{ .name = "Box", .resources = { Picture(3500), broken } }.File(), "box.prc");
    const QString other = Set();
    ask.Answer(QMessageBox::Ok, [&] {
        EXPECT_TRUE(Take(other));
        RunEvents();
        EXPECT_TRUE(givenBack.empty());
    });

    Open(box);
    RunEvents();

    EXPECT_TRUE(IsOpen("box.prc"));
    EXPECT_THAT(givenBack, ElementsAre(other));
}

} // namespace
} // namespace vypx::test
