#include "DocumentFixture.h"
#include "GreetingFixture.h"

#include "document/IconStats.h"
#include "forms/common/DisabledWindow.h"
#include "forms/common/FileTaker.h"

#include <QCheckBox>
#include <QMenu>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using testing::ElementsAre;

/// A file of one large icon.
Bytes OneIcon(const std::string& name)
{
    return Iconset{
        .name = name,
        .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 0) }, Picture(3500) }
    }.File();
}

/// Files that come from outside into the program as `Base` has it.
template <typename Base>
class FromOutside : public Base {
protected:
    bool Take(const QString& path) { return Taker().Take({ path, {} }); }
    FileTaker& Taker() { return this->frame->Form().FilesFromOutside(); }
    /// Collects what is given back from now on.
    void Watch()
    {
        QObject::connect(&Taker(), &FileTaker::GivenBack,
            [this](const OutsideFile& file) { givenBack.push_back(file.path); });
    }
    QString Set(const std::string& name = "set.prc") { return this->Written(OneIcon("Set"), name); }
    bool IsOpen(const std::string& name = "set.prc")
    {
        return FileLoaded && FileName == this->program.File(name);
    }
    /// Long enough for everything that looks at times.
    static void RunEvents() { QTest::qWait(700); }
    bool WaitUntilOpen(const std::string& name = "set.prc")
    {
        return QTest::qWaitFor([&] { return IsOpen(name); });
    }

    std::vector<QString> givenBack;
};

using OutsideFiles = FromOutside<Documents>;
using OutsideFilesAtStart = FromOutside<GreetingFixture>;

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

TEST_F(OutsideFiles, ATemplateComesWithEverySlotEmpty)
{
    Take(Set("t.vpt"));

    EXPECT_TRUE(WaitUntilOpen("t.vpt"));
    EXPECT_EQ(StatTotal, 1);
    EXPECT_EQ(StatHighRes + StatLowRes, 0);
    EXPECT_TRUE(LoadedAsTemplate);
    EXPECT_TRUE(ask.opened.empty());
}

TEST_F(OutsideFiles, ATemplateAsksForTheDepthFirst)
{
    PromptColorDepth = true;
    Take(Set("t.vpt"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasWindow("frmSelectCDepth"); }));
    EXPECT_FALSE(FileLoaded);
    EXPECT_FALSE(Taker().IsFree()); // that window is about this file

    Click("cmdDoneCDepth");

    EXPECT_TRUE(WaitUntilOpen("t.vpt"));
    EXPECT_TRUE(LoadedAsTemplate);
    EXPECT_TRUE(ask.opened.empty());
}

TEST_F(OutsideFiles, ATemplateWhoseDepthIsGivenUpIsForgotten)
{
    PromptColorDepth = true;
    Take(Set("t.vpt"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasWindow("frmSelectCDepth"); }));

    Find<QDialog>("frmSelectCDepth").close();

    EXPECT_TRUE(Taker().IsFree());
    ask.CancelDialog();
    PromptColorDepth = false;
    Entry("mnuLoadTemplate").trigger(); // which asks as ever
    EXPECT_EQ(ask.opened.size(), 1u);
}

TEST_F(OutsideFiles, OpenInsteadOfTheTemplateAsksForAFile)
{
    PromptColorDepth = true;
    Take(Set("t.vpt"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasWindow("frmSelectCDepth"); }));

    Entry("mnuOpen").trigger();
    ask.Choose(Set("mine.prc"));
    Click("cmdDoneCDepth");

    EXPECT_TRUE(IsOpen("mine.prc"));
    EXPECT_FALSE(LoadedAsTemplate);
}

TEST_F(OutsideFiles, ADroppedFileThatWaitsForAnImportIsForgotten)
{
    DroppedFile = true;
    DroppedFileName = program.File("odd.xyz");

    Take(Set());

    EXPECT_TRUE(WaitUntilOpen());
    EXPECT_FALSE(DroppedFile);
}

TEST_F(OutsideFiles, AMinimisedWindowComesUp)
{
    frame->showMinimized();

    Take(Set());

    EXPECT_TRUE(WaitUntilOpen());
    EXPECT_FALSE(frame->isMinimized());
}

TEST_F(OutsideFiles, TheWindowComesUpToShowWhatTheFileWaitsFor)
{
    const DisabledWindow window(*frame);
    frame->showMinimized();

    Take(Set());

    EXPECT_FALSE(frame->isMinimized());
}

TEST_F(OutsideFiles, AMessageWaitsAsAFileDoesAndSoDoTheFurtherOnes)
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

TEST_F(OutsideFiles, AFileThatCameUnderAMessageIsOpenedAfterIt)
{
    Taker().Tell("Incorrect file type.");
    ask.Answer(QMessageBox::Ok, [&] { EXPECT_TRUE(Take(Set())); });

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideFilesAtStart, SplashSearchAndTipAreWaitedFor)
{
    bool taken = false;
    QTimer::singleShot(0, [&] { taken = Take(Set()); });
    StartWith({ .splash = true, .search = true, .tip = true });
    RunEvents();
    ASSERT_NE(Splash(), nullptr);
    EXPECT_FALSE(FileLoaded);

    Press(Splash(), Qt::Key_Space);
    RunEvents();
    EXPECT_TRUE(taken);
    EXPECT_TRUE(HasSearched());
    ASSERT_NE(Tip(), nullptr);
    EXPECT_FALSE(FileLoaded);

    Click(Tip(), "cmdOK");

    EXPECT_TRUE(WaitUntilOpen());
}

TEST_F(OutsideFilesAtStart, AFileAmidTheSearchOfAStartIsOpenedAfterIt)
{
    bool taken = false, wasLoaded = true;
    AmidTheSearch([&] {
        taken = Take(Set());
        QCoreApplication::processEvents();
        wasLoaded = FileLoaded;
    });

    StartWith({ .search = true });

    EXPECT_TRUE(taken);
    EXPECT_FALSE(wasLoaded);
    EXPECT_TRUE(WaitUntilOpen());
    EXPECT_TRUE(HasSearched());
}

TEST_F(OutsideFilesAtStart, ExitAmidTheSearchGivesTheFileBack)
{
    AmidTheSearch([&] {
        Watch();
        EXPECT_TRUE(Take(Set()));
        frame->Form().ExitProgram();
        EXPECT_FALSE(Taker().IsFree()); // though the search still runs
    });

    StartWith({ .search = true });

    EXPECT_THAT(givenBack, ElementsAre(QString::fromStdString(program.File("set.prc"))));
    EXPECT_FALSE(FileLoaded);
}

} // namespace
} // namespace vypx::test
