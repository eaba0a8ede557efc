#pragma once

#include <optional>
#include <string>

namespace vypx {

/// What the command line says about the file to write.
struct SaveOptions {
    std::string out; ///< may be the file that was opened
    bool packed = false, dropUnknown = false;
    bool asTemplate = false;                                ///< `out` becomes a template
    std::optional<std::string> versionString, databaseName; ///< UTF-8
};

/// Writes the open document as Save As would, or as Export Template. What keeps it from being
/// written, and what will look otherwise in it, goes to standard error. The tool's exit code: 0:
/// `out` is complete; 1: it was not written.
int SaveIconset(const SaveOptions& options);

} // namespace vypx
