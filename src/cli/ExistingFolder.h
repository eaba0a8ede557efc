#pragma once

#include "platform/Platform.h"

#include <CLI/CLI.hpp>
#include <filesystem>

namespace vypx {

/// Check of an option that names a folder which is there. The parser's own takes no UTF-8 on
/// Windows.
inline const CLI::Validator ExistingFolder(
    [](const std::string& path) {
        std::error_code unknown;
        const bool exists = std::filesystem::is_directory(platform::NativePath(path), unknown);
        return exists ? std::string() : "Directory does not exist: " + path;
    },
    "DIR");

} // namespace vypx
