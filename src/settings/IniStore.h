#pragma once

#include "settings/IniText.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace vypx {

/// Largest ini file that is read, in bytes. A larger one has no sections and can't be written.
inline constexpr std::size_t MaxIniSize = 64u << 20;

/// The text of the ini file at `path` (UTF-8) as it stands on the disk now; without sections where
/// there is no such file or it can't be read. A file that has not changed since the last look is
/// not parsed again, so a look-up costs one question to the file system.
std::shared_ptr<const IniText> ReadIni(const std::string& path);
/// The same, but null where there is a file that can't be read.
std::shared_ptr<const IniText> ReadIniOrNull(const std::string& path);

/// Whether there is a file at `path` that can be read.
bool IniIsThere(const std::string& path);

/// From now on `text` is what stands at `path`, whatever the disk has there: reads see it, edits
/// change it in memory alone and succeed.
void HoldIni(const std::string& path, std::string_view text);

/// Applies `edit` to the file's text and replaces the file in one step; makes the file if it is
/// missing. Two programs that edit one file at once don't lose each other's changes: they take
/// turns by the lock "ini.lock" in its folder, where that can be made. False, and the old file
/// stands, when `edit` says false, when there is a file that can't be read, and when writing fails.
bool EditIni(const std::string& path, const std::function<bool(IniText&)>& edit);

} // namespace vypx
