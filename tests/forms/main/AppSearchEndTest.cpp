#include "SearchRunFixture.h"

namespace vypx::test {

namespace {

class AppSearchEnd : public SearchRunFixture {
protected:
    AppSearchEnd() { OpenEditor(); }
};

TEST_F(AppSearchEnd, TheStopButtonEndsItAndKeepsWhatWasFound)
{
    PutApplications(Many);
    int found = 0;
    AmidTheWalk([&] {
        found = SearchFoundCount;
        Press("cmdStopSearch");
    });

    SearchInFolder();

    EXPECT_GT(found, 0);
    EXPECT_LT(found, Many);
    EXPECT_EQ(NewApplications(), found);
    EXPECT_EQ(Names().size(), 2 + NewApplications());
    EXPECT_TRUE(CanUsePart("cmdAddPrcByFolder"));
    SearchInFolder();
    EXPECT_EQ(NewApplications(), Many) << "the next one is not stopped";
}

TEST_F(AppSearchEnd, AllThatTheStoppedWalkHasFoundIsAdded)
{
    Prc("a.prc", PrcFile("New A", "appl", "NEWA"));
    Prc("b.prc", PrcFile("New B", "appl", "NEWB"));
    // So much that events come before the walk is through.
    std::filesystem::create_directory_symlink("/usr", program.File("palm/c"));
    Prc("d.prc", PrcFile("New D", "appl", "NEWD"));
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (!PathOnShow().endsWith("b.prc"))
            return;
        watch.stop();
        Press("cmdStopSearch");
    });
    watch.start(0);

    SearchInFolder();

    EXPECT_EQ(Names(), QStringList({ "Alpha", "Beta Panel", "New A", "New B" }));
}

TEST_F(AppSearchEnd, AStopWhileFilesAreReadKeepsThoseThatWere)
{
    PutApplications(Many);
    AmidTheWalk([&] {
        Amid([&] { // the next turn: that of the first file that was read
            EXPECT_EQ(PathOnShow(), "");
            Press("cmdStopSearch");
        });
    });

    SearchInFolder();

    EXPECT_EQ(SearchFoundCount, Many);
    EXPECT_EQ(NewApplications(), 1);
}

TEST_F(AppSearchEnd, EscapeEndsItAndAHeldOneDoesNotCloseTheWindow)
{
    PutApplications(Many);
    Amid([&] {
        QTest::keyClick(Part<QListWidget>("ComboAppList").viewport(), Qt::Key_Escape);
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(Editor(), &repeat);
    });

    SearchInFolder();

    EXPECT_LT(NewApplications(), Many);
    ASSERT_NE(Editor(), nullptr);
    QTest::keyClick(Editor(), Qt::Key_Escape);
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(AppSearchEnd, ClosingTheWindowEndsItFirst)
{
    PutApplications(Many);
    Press("cmdManual");
    Amid([&] {
        Editor()->close();
        QCoreApplication::processEvents();
        EXPECT_TRUE(Editor() && Editor()->isVisible()) << "it is in use";
    });

    SearchInFolder();

    EXPECT_LT(NewApplications(), Many);
    EXPECT_GT(NewApplications(), 0);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Manual(), nullptr);
    OpenEditor();
    EXPECT_TRUE(CanUsePart("cmdAddPrcByFolder"));
}

/// Every way out of the program, amid a search.
class ExitAmidASearch : public SearchRunFixture, public testing::WithParamInterface<const char*> {
protected:
    void Leave()
    {
        const std::string way = GetParam();
        if (way == "mnuExit")
            Entry("mnuExit").trigger();
        else if (way == "frame")
            frame->close();
        else
            Find<QWidget>("Form1").close();
    }
};

TEST_P(ExitAmidASearch, EndsItFirst)
{
    OpenEditor();
    PutApplications(Many);
    Amid([&] {
        Leave();
        Leave(); // in a hurry
        EXPECT_FALSE(HasEnded());
        EXPECT_NE(Editor(), nullptr);
    });

    SearchInFolder();

    EXPECT_TRUE(HasEnded());
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_LT(NewApplications(), Many);
    EXPECT_GT(NewApplications(), 0) << "what was found is added";
}

INSTANTIATE_TEST_SUITE_P(ByEveryWay, ExitAmidASearch, testing::Values("mnuExit", "frame", "form"),
    [](const auto& way) { return std::string(way.param); });

} // namespace
} // namespace vypx::test
