#pragma once

#include "install/InstallWay.h"

#include <functional>

namespace vypx {

/// Gives a request to the helper and its reply back, see InstAideTalk.h; empty or cut where the
/// helper failed.
using InstAideHelper = std::function<std::string(const std::string& request)>;

/// The queue of the Palm Install Tool, by a helper. No or a broken reply: Unknown, and both texts
/// stay as they were.
std::unique_ptr<InstallWay> MakeInstAideWay(InstAideHelper helper);

/// The same by `vypx-instaide.exe` of the program's folder, which gets 30 seconds; null where there
/// is no `InstAide.dll`. On Windows only.
std::unique_ptr<InstallWay> MakeInstAideWay(const std::string& programFolder);

} // namespace vypx
