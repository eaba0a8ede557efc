#pragma once

#include <string>

namespace vypx {

/// What the command line says about the iconset to open and where.
struct OpenOptions {
    std::string file;             ///< the iconset or template
    std::string appFolder;        ///< folder with the catalogs
    std::string workFolder;       ///< for the working pictures; absent or empty
    std::string depth = "16-Bit"; ///< "4-Bit", "8-Bit" or "16-Bit"
    std::string only;             ///< "high", "low" or empty
    bool asTemplate = false;
};

/// Opens the iconset and prints the document as JSON to standard output, messages included.
/// 0: a document was opened; 1: none was; 2: the working folder has files in it or can't be made.
int Dump(const OpenOptions& options);

} // namespace vypx
