#pragma once

#include <string>

namespace vypx {

/// What the command line says about a search for applications. UTF-8.
struct ScanOptions {
    std::string folder;    ///< that is searched
    std::string appFolder; ///< folder with the catalogs
};

/// Searches a folder as the application list editor does, adds what is new to `AppList.dat`, and
/// prints one JSON object:
///
///   files              each .prc file in the order of the paths' bytes: path, result ("added" or
///                      "passed over"), why it was passed over, and the entry of the catalogs that
///                      was added or is in the way
///   unreadableFolders  paths of folders that could not be read
///   messages           texts of the boxes, in order
///
/// Bytes of entries are Latin-1 code points; what is no UTF-8 in a path is replaced.
/// 0: what was new was added, or nothing was; 1: it could not be written; 2: there is no such
/// folder.
int Scan(const ScanOptions& options);

} // namespace vypx
