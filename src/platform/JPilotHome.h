#pragma once

#include <string>

namespace vypx::platform {

/// The folder that J-Pilot takes for the user's home, by its own rule: `$JPILOT_HOME`, else
/// `$HOME`, an empty variable counting as none. UTF-8; empty where there is no home, and on
/// Windows. The variable is that other program's and has to be read to find its files: this program
/// has none of its own.
std::string JPilotHome();

} // namespace vypx::platform
