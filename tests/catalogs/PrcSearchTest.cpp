#include "catalogs/PrcSearch.h"

#include "support/CommonUser.h"
#include "support/SearchFixture.h"
#include "support/Skips.h"

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PrcSearch : public Searching {
protected:
    WalkEnd Walk() { return SearchPrcFiles(listener); }
    static void Touch(const std::string& name) { Put(name, {}); }
    /// What was found, from SearchFolder on.
    static std::vector<std::string> Found()
    {
        std::vector<std::string> names;
        for (const std::string& path : listPRC) {
            names.push_back(path.substr(SearchRoot.size()));
            std::replace(names.back().begin(), names.back().end(), platform::PathSeparator, '/');
        }
        return names;
    }
};

TEST_F(PrcSearch, FindsFilesInAllFoldersByTheirEnding)
{
    Touch("one.prc");
    Touch("sub/deep/two.PRC");
    Touch("sub/three.Prc");
    Touch("sub/four.pdb");
    Touch("prc");
    Touch("five.prc.bak");

    const WalkEnd end = Walk();

    EXPECT_THAT(Found(), ElementsAre("one.prc", "sub/deep/two.PRC", "sub/three.Prc"));
    EXPECT_THAT(end.unreadable, IsEmpty());
    EXPECT_FALSE(end.wasStopped);
    EXPECT_THAT(listener.texts, IsEmpty());
}

TEST_F(PrcSearch, TellsEachPathAndTheEnd)
{
    Touch("a.prc");
    Touch("b/c.prc");

    Walk();

    EXPECT_THAT(listener.found, ElementsAre(InPalm("a.prc"), InPalm("b/c.prc"), "(end)"));
}

TEST_F(PrcSearch, CountsMatchesAndAllEntries)
{
    SearchFoundCount = SearchFileCount = 99;
    Touch("a.prc");
    Touch("b.txt");
    Touch("c/d.prc");
    Touch(".e/f.prc");

    Walk();

    EXPECT_EQ(SearchFoundCount, 2);
    EXPECT_EQ(SearchFileCount, 5) << "a, b, c, d and .e";
}

TEST_F(PrcSearch, TheRootEndsInOneSeparator)
{
    Touch("a.prc");
    const std::string root = SearchFolder + platform::PathSeparator;

    Walk();
    EXPECT_EQ(SearchRoot, root);

    SearchFolder = root;
    listPRC.clear();
    Walk();
    EXPECT_EQ(SearchRoot, root);
    EXPECT_THAT(listPRC, ElementsAre(root + "a.prc"));
}

TEST_F(PrcSearch, FoldersThatBeginWithAFullStopAreNotEnteredButFilesCount)
{
    Touch(".hidden/a.prc");
    Touch("..odd/b.prc");
    Touch(".c.prc");
    Touch("sub.folder/d.prc");

    Walk();

    EXPECT_THAT(Found(), ElementsAre(".c.prc", "sub.folder/d.prc"));
}

TEST_F(PrcSearch, ARootThatBeginsWithAFullStopIsEntered)
{
    Touch(".hidden/a.prc");
    SearchFolder = InPalm(".hidden");

    Walk();

    EXPECT_THAT(Found(), ElementsAre("a.prc"));
}

TEST_F(PrcSearch, AFolderNamedLikeAFileIsEntered)
{
    Touch("folder.prc/a.prc");

    Walk();

    EXPECT_THAT(Found(), ElementsAre("folder.prc/a.prc"));
}

/// "-" and "." stand before "/", digits and letters behind it.
TEST_F(PrcSearch, WholePathsComeInTheOrderOfTheirBytes)
{
    for (const char* const name : { "a/x.prc", "a-b/x.prc", "a.prc", "a0.prc", "B.prc", "a/b/y.prc",
             "a.d/x.prc", "\xC3\xA9.prc", "z.prc" })
        Touch(name);

    Walk();

    std::vector<std::string> sorted = listPRC;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(listPRC, sorted);
    if (platform::PathSeparator != '/')
        GTEST_SKIP() << "another separator, and so another order";
    EXPECT_THAT(Found(),
        ElementsAre("B.prc", "a-b/x.prc", "a.d/x.prc", "a.prc", "a/b/y.prc", "a/x.prc", "a0.prc",
            "z.prc", "\xC3\xA9.prc"));
}

TEST_F(PrcSearch, EachFolderIsVisitedOnceWhateverLinksLeadToIt)
{
    SKIP_WITHOUT_LINKS();
    Touch("b/a.prc");
    fs::create_directory_symlink(SearchFolder, InPalm("b/loop"));
    fs::create_directory_symlink(InPalm("b"), InPalm("a-link"));
    fs::create_directory_symlink(InPalm("self"), InPalm("self"));
    const TempFolder elsewhere;
    WriteText(elsewhere.File("c.prc"), "");
    fs::create_directory_symlink(elsewhere.Path(), InPalm("out"));

    const WalkEnd end = Walk();

    EXPECT_THAT(Found(), ElementsAre("a-link/a.prc", "out/c.prc"));
    EXPECT_THAT(end.unreadable, IsEmpty());
}

/// Twenty levels of two links each would be a million paths.
TEST_F(PrcSearch, LinksThatMultiplyPathsDoNotMultiplyTheWork)
{
    SKIP_WITHOUT_LINKS();
    for (int level = 0; level < 20; ++level) {
        const std::string next = "level" + std::to_string(level + 1);
        Touch(next + "/file.prc");
        fs::create_directories(InPalm("level" + std::to_string(level)));
        for (const char* const link : { "/x", "/y" })
            fs::create_directory_symlink(
                InPalm(next), InPalm("level" + std::to_string(level) + link));
    }

    Walk();

    EXPECT_EQ(SearchFoundCount, 20);
}

/// 1200 levels, and paths of 4,800 bytes: more than the system takes at once.
TEST_F(PrcSearch, DepthAndLengthOfPathsHaveNoBound)
{
    SKIP_WITHOUT_LONG_PATHS();
    const fs::path before = fs::current_path();
    fs::current_path(SearchFolder);
    constexpr int Levels = 1200;
    for (int level = 0; level < Levels; ++level) {
        fs::create_directory("abc");
        fs::current_path("abc");
    }
    WriteBytes("deep.prc", PrcFile("Deep"));
    fs::current_path(before);

    const SearchEnd end = Search();

    EXPECT_THAT(end.walk.unreadable, IsEmpty());
    ASSERT_EQ(listPRC.size(), 1u);
    EXPECT_EQ(listPRC[0].size(), SearchRoot.size() + 4 * Levels + 8);
    EXPECT_EQ(Apps(), Entry("Deep", "ABCD"));
}

#ifndef _WIN32

TEST_F(PrcSearch, FoldersThatCannotBeReadAreToldInOneBox)
{
    fs::permissions(folder.Path(), fs::perms::all);
    Touch("a.prc");
    Touch("closed1/b.prc");
    Touch("closed2/c.prc");
    Touch("d/e.prc");
    fs::permissions(InPalm("closed1"), fs::perms::none);
    fs::permissions(InPalm("closed2"), fs::perms::none);
    WalkEnd end;
    {
        const CommonUser common;
        end = Walk();
    }
    fs::permissions(InPalm("closed1"), fs::perms::all);
    fs::permissions(InPalm("closed2"), fs::perms::all);

    EXPECT_THAT(Found(), ElementsAre("a.prc", "d/e.prc"));
    EXPECT_THAT(listener.texts, ElementsAre("Error searching for prc files."));
    EXPECT_EQ(listener.boxes.at(0).icon, CatalogBox::Icon::None);
    EXPECT_EQ(listener.boxes.at(0).title, "");
    EXPECT_THAT(end.unreadable, ElementsAre(InPalm("closed1") + "/", InPalm("closed2") + "/"));
}

#endif

TEST_F(PrcSearch, ARootThatIsNotThereIsToldLikeAnyFolder)
{
    fs::remove(SearchFolder);

    const WalkEnd end = Walk();

    EXPECT_THAT(listener.texts, ElementsAre("Error searching for prc files."));
    EXPECT_THAT(end.unreadable, ElementsAre(SearchRoot));
}

TEST_F(PrcSearch, ARootWithoutANameIsNotTheWholeDisk)
{
    SearchFolder.clear();

    Walk();

    EXPECT_THAT(listener.texts, ElementsAre("Error searching for Palm Apps."));
    EXPECT_THAT(listener.found, IsEmpty());
    EXPECT_THAT(listPRC, IsEmpty());
}

TEST_F(PrcSearch, TheListIsNotEmptiedByTheWalk)
{
    listPRC = { "before" };
    Touch("a.prc");

    Walk();

    EXPECT_THAT(listPRC, ElementsAre("before", InPalm("a.prc")));
}

TEST_F(PrcSearch, AStopEndsTheListOfALargeFolder)
{
    for (int i = 0; i < 300; ++i)
        Touch("a" + std::to_string(i) + ".prc");
    listener.stops = true;

    const WalkEnd end = Walk();

    EXPECT_TRUE(end.wasStopped);
    EXPECT_THAT(listener.found, ElementsAre("(end)")) << "events run while the folder is listed";
    EXPECT_THAT(end.unreadable, IsEmpty());
}

TEST_F(PrcSearch, AStopKeepsWhatWasFoundSoFar)
{
    for (int i = 0; i < 5; ++i)
        Touch("a" + std::to_string(i) + ".prc");
    listener.stops = true;

    const WalkEnd end = Walk();

    EXPECT_TRUE(end.wasStopped);
    EXPECT_THAT(Found(), ElementsAre("a0.prc")) << "events run at the first step";
    EXPECT_EQ(listener.found.back(), "(end)");
}

} // namespace
} // namespace vypx::test
