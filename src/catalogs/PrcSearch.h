#pragma once

#include "catalogs/SearchListener.h"
#include "platform/Registry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The first stage of a search for Palm applications: a walk through folders that fills listPRC.
/// Paths are UTF-8.
namespace vypx {

/// An automatic search runs: its root is PalmDesktopPath, else SearchFolder.
inline bool StartupSearchRunning = false;
inline std::string SearchFolder; ///< chosen by the user; empty: none
inline std::string PalmDesktopPath;
/// The second stage may run.
inline bool ScanHasNew = false;
inline std::string SearchRoot;                          ///< ends in a separator
inline constexpr std::string_view SearchSpec = "*.prc"; ///< in any letter case
inline constexpr bool SearchRecurse = true;
inline std::int32_t SearchFoundCount = 0; ///< files that matched
inline std::int32_t SearchFileCount = 0;  ///< entries of folders that were looked at
/// What was found, in the order of the paths' bytes. Emptied by who begins a search.
inline std::vector<std::string> listPRC;

/// How a walk ended.
struct WalkEnd {
    std::vector<std::string> unreadable; ///< folders that could not be read, or not wholly
    bool wasStopped = false;
};

/// Fills listPRC by a walk from PalmDesktopPath or SearchFolder. An automatic search begins with
/// GetDesktopPath and does nothing where ScanHasNew is false. A root without a name is a failure
/// that is told.
WalkEnd SearchPrcFiles(SearchListener& listener);

/// Sets PalmDesktopPath and ScanHasNew: by the values of the Palm Desktop's key, or where there is
/// no such key by the setting PalmDesktopFolder, which must name a folder. `key` is for tests.
void GetDesktopPath(SearchListener& listener);
void GetDesktopPath(SearchListener& listener, const std::optional<platform::RegistryValues>& key);

/// What a search in a folder finds is always added; where the Palm Desktop's key is, on purpose,
/// only after an automatic search has found values in it. `key` is for tests.
void AllowFolderSearch();
void AllowFolderSearch(const std::optional<platform::RegistryValues>& key);

/// Walks the folder `root`, which ends in a separator, and all below it but those whose names begin
/// with a full stop. Each is visited once, by the first path that leads to it in the order of the
/// paths' bytes. Depth and length of paths have no bound. Folders that can't be read are told in
/// one box at the end.
WalkEnd WalkFolder(const std::string& root, SearchListener& listener);

} // namespace vypx
