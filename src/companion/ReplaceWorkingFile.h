#pragma once

#include "companion/WorkingFile.h"

#include <functional>
#include <string>
#include <system_error>

namespace vypx {

/// Replaces or makes the file `path` in one step by what `write` writes at the path that it is
/// given: a new file beside it, `path` with ".new.bmp" behind it, which is then renamed. After a
/// failure, or when `write` throws, the old file stands as it was and nothing beside it.
std::error_code ReplaceWorkingFile(const std::string& path,
    const std::function<std::error_code(const std::string& newPath)>& write);

} // namespace vypx
