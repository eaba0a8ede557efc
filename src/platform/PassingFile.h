#pragma once

#include <filesystem>
#include <vector>

/// Names of the files that ReplaceFile writes first and then gives the name of their target.
namespace vypx::platform {

/// Beside `target`, under its name, the number of this process, one that no other call gets, and
/// ".vypx-new": "set.prc.4711-1.vypx-new". A long name is cut, so that none has more than 255 units
/// of the system's.
std::filesystem::path NewPassingFile(const std::filesystem::path& target);

/// Those that stand beside `target`, whichever process made them; the numbers may be missing.
/// Targets whose long names are cut to the same text share theirs. None in a folder that can't be
/// read.
std::vector<std::filesystem::path> PassingFilesOf(const std::filesystem::path& target);

} // namespace vypx::platform
