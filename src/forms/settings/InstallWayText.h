#pragma once

#include <QString>
#include <string>

namespace vypx {

/// Whether palm-sync is among the ways to the handheld on this system.
#ifdef Q_OS_WIN
inline constexpr bool HasPalmSync = false;
#else
inline constexpr bool HasPalmSync = true;
#endif

/// Tells which way "Save and Install" takes where `palmSyncFolder` (UTF-8, without blanks at its
/// ends) is the folder of palm-sync, and what is amiss.
QString InstallWayText(const std::string& palmSyncFolder);

} // namespace vypx
