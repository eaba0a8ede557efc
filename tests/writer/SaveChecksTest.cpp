#include "writer/SaveChecks.h"
#include "document/IconStats.h"
#include "support/CompileFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

class SaveChecks : public Compiling { };

TEST_F(SaveChecks, SpeakInTheirOrder)
{
    const auto set = [](int total, int large, int small, int low, int high, int unknown) {
        StatTotal = total;
        StatLarge = large;
        StatSmall = small;
        StatLowRes = low;
        StatHighRes = high;
        StatUnknown = unknown;
    };
    FileLoaded = false;
    EXPECT_EQ(WhyNotSaved(), "No file loaded.");
    FileLoaded = true;
    set(0, 0, 0, 0, 0, 0);
    EXPECT_EQ(WhyNotSaved(), "Can't save. The iconset doesn't contain any icons.");
    set(1, 0, 0, 0, 0, 1);
    EXPECT_EQ(WhyNotSaved(), "Error! Can't save an iconset that only contains unknown icons.");
    set(1, 1, 0, 0, 0, 0);
    EXPECT_EQ(WhyNotSaved(), "Error! Iconset doesn't contain any images.");
    set(2, 1, 0, 0, 0, 1);
    EXPECT_EQ(
        WhyNotSaved(), "Error! Iconset must contain at least on normal icon that has images.");
    set(1, 0, 1, 0, 0, 0);
    EXPECT_EQ(WhyNotSaved(), "Error! Iconset doesn't contain any images.");
    set(1, 0, 1, 1, 0, 0);
    EXPECT_EQ(WhyNotSaved(), std::nullopt);
    set(1, 1, 0, 0, 1, 0);
    EXPECT_EQ(WhyNotSaved(), std::nullopt);
}

} // namespace
} // namespace vypx::test
