#include "platform/JPilotHome.h"

#ifndef _WIN32
#include <cstdlib>
#endif

namespace vypx::platform {

std::string JPilotHome()
{
#ifndef _WIN32
    for (const char* const name : { "JPILOT_HOME", "HOME" })
        if (const char* const value = std::getenv(name); value && *value)
            return value;
#endif
    return {};
}

} // namespace vypx::platform
