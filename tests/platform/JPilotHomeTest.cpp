#include "platform/JPilotHome.h"

#include "support/Variable.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

#ifdef _WIN32

TEST(JPilotHome, DoesNotExistOnWindows) { EXPECT_EQ(platform::JPilotHome(), ""); }

#else

TEST(JPilotHome, IsTheOneOfItsVariableElseTheUsers)
{
    const Variable home("HOME", "/home/ada");
    {
        const Variable own("JPILOT_HOME", "/srv/\xC3\xA4");
        EXPECT_EQ(platform::JPilotHome(), "/srv/\xC3\xA4");
    }
    for (const char* const none : { static_cast<const char*>(nullptr), "" }) {
        const Variable own("JPILOT_HOME", none);
        EXPECT_EQ(platform::JPilotHome(), "/home/ada");
    }
}

TEST(JPilotHome, IsNoneWhereTheUserHasNone)
{
    const Variable own("JPILOT_HOME", nullptr);
    for (const char* const none : { static_cast<const char*>(nullptr), "" }) {
        const Variable home("HOME", none);
        EXPECT_EQ(platform::JPilotHome(), "");
    }
}

#endif

} // namespace
} // namespace vypx::test
