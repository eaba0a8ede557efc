#include "catalogs/AddPrcFiles.h"

#include "support/SearchFixture.h"

#include <chrono>
#include <thread>

namespace vypx::test {

namespace {

/// Lets more than a sixtieth of a second go by at each file that is found, so that events run
/// there.
class SlowSearch : public RecordingSearch {
public:
    std::function<void()> atFile = [] {}, atEnd = [] {};

    void PathFound(std::string_view path) override
    {
        RecordingSearch::PathFound(path);
        atFile();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    void WalkEnded() override
    {
        RecordingSearch::WalkEnded();
        atEnd();
    }
};

/// Whole searches of the files 1.prc to 5.prc that are stopped.
class SearchStop : public Searching {
protected:
    SearchStop()
    {
        for (int i = 1; i <= 5; ++i)
            Put(std::to_string(i) + ".prc", PrcFile(NameOf(i), "appl", "AAA" + std::to_string(i)));
        ScanHasNew = true;
    }

    static std::string NameOf(int i) { return "App " + std::to_string(i); }
    static std::string Entries(int last)
    {
        std::string entries;
        for (int i = 1; i <= last; ++i)
            entries += Entry(NameOf(i), "AAA" + std::to_string(i));
        return entries;
    }
    bool HasFound(std::size_t files) const { return slow.found.size() >= files; }

    SlowSearch slow;
};

TEST_F(SearchStop, OneAmidTheWalkAddsAllThatItHasFound)
{
    slow.atFile = [&] { slow.stops = HasFound(3); };

    const SearchEnd end = SearchAndAdd(slow);

    EXPECT_TRUE(end.walk.wasStopped);
    EXPECT_FALSE(end.add.wasStopped);
    EXPECT_EQ(end.add.files.size(), 3u);
    EXPECT_EQ(Apps(), Entries(3));
}

TEST_F(SearchStop, ASecondOneEndsTheSecondStage)
{
    slow.atFile = [&] { slow.stops = HasFound(3); };
    slow.atEnd = [&] { slow.events = [&] { slow.stops = true; }; };

    const SearchEnd end = SearchAndAdd(slow);

    EXPECT_TRUE(end.walk.wasStopped);
    EXPECT_TRUE(end.add.wasStopped);
    EXPECT_EQ(Apps(), Entries(1));
}

TEST_F(SearchStop, OneAmidTheSecondStageAddsWhatIsNewSoFar)
{
    slow.atEnd = [&] { slow.events = [&] { slow.stops = true; }; };

    const SearchEnd end = SearchAndAdd(slow);

    EXPECT_FALSE(end.walk.wasStopped);
    EXPECT_TRUE(end.add.wasStopped);
    EXPECT_EQ(Apps(), Entries(1));
}

} // namespace
} // namespace vypx::test
