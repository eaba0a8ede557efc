#pragma once

#include <string>

namespace vypx {

/// The folder that the program works in: the one that it stands in if files can be written there,
/// else the user's own folder for its data, which is made and at every start given the shipped
/// files that it never had. Both are paths without a separator at their end. Where neither can be
/// written, it is the program's: the program starts, and each write tells its own failure.
std::string ResolveAppFolder(const std::string& programFolder, const std::string& userFolder);

} // namespace vypx
