#pragma once

#include "companion/PalmDatabase.h"

#include <stdexcept>
#include <string>
#include <system_error>

namespace vypx {

/// A save did not complete; the old file stands as it was. Says in words for the user what was in
/// the way: a file or a folder by its path, a working file by what it stands for.
class SaveFailure : public std::runtime_error {
public:
    /// `file` (UTF-8) can't be read or written, and why.
    SaveFailure(const std::string& file, const std::string& reason);
    /// The same for a failed ReplaceFile; names the folder where it is the folder that refuses.
    SaveFailure(const std::string& file, std::error_code error);
    explicit SaveFailure(const CompileFailure& failure);
};

} // namespace vypx
