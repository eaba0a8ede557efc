#include "catalogs/SearchListener.h"

#include "support/SearchFixture.h"

namespace vypx::test {

namespace {

TEST(SearchPaceTest, RunsEventsAtOnceAndThenSixtyTimesASecond)
{
    RecordingSearch listener;
    int turns = 0;
    listener.events = [&] { ++turns; };
    std::chrono::steady_clock::time_point now;
    SearchPace pace(listener, [&] { return now; });

    EXPECT_TRUE(pace.Step());
    EXPECT_EQ(turns, 1);
    for (int millisecond = 1; millisecond <= 1000; ++millisecond) {
        now += std::chrono::milliseconds(1);
        pace.Step();
    }
    EXPECT_GE(turns, 55);
    EXPECT_LE(turns, 61);
}

TEST(SearchPaceTest, ThePauseBeginsWhenTheEventsAreDone)
{
    RecordingSearch listener;
    int turns = 0;
    std::chrono::steady_clock::time_point now;
    listener.events = [&] {
        ++turns;
        now += std::chrono::seconds(5); // a box that the user read
    };
    SearchPace pace(listener, [&] { return now; });

    pace.Step();
    pace.Step();

    EXPECT_EQ(turns, 1);
}

TEST(SearchPaceTest, AsksForAStopOnlyWhenEventsRan)
{
    RecordingSearch listener;
    std::chrono::steady_clock::time_point now;
    SearchPace pace(listener, [&] { return now; });
    EXPECT_TRUE(pace.Step());

    listener.stops = true;
    EXPECT_TRUE(pace.Step());
    now += std::chrono::seconds(1);
    EXPECT_FALSE(pace.Step());
}

} // namespace
} // namespace vypx::test
