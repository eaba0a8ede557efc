#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Walking folders that may hold anything. Paths are UTF-8 and may be of any length where the
/// system can go there in steps (not on Windows).
namespace vypx::platform {

/// What tells one folder from another, whichever path or link leads to it.
struct FolderId {
    std::uint64_t volume = 0, file = 0;

    friend auto operator<=>(const FolderId&, const FolderId&) = default;
};

struct FolderEntry {
    std::string name;
    bool isFolder = false; ///< or a link to one
};

struct FolderListing {
    std::vector<FolderEntry> entries; ///< in no order, without "." and ".."
    bool isWhole = false;             ///< false: the folder, or the rest of it, can't be read
    bool wasStopped = false;          ///< by `goOn`; it is whole as far as it was read
};

/// How many entries are listed between two questions whether to go on.
inline constexpr std::size_t EntriesOfAStep = 256;

/// What a folder holds. `wanted` is asked before it is read: after a false it is whole and empty.
/// `goOn` is asked behind every EntriesOfAStep entries.
FolderListing ListFolder(
    const std::string& path, const std::function<bool(FolderId)>& wanted,
    const std::function<bool()>& goOn = [] { return true; });

/// The first bytes of a regular file, `most` of them or as many as it has; empty when it is none or
/// can't be read. Folders, pipes and devices are not even opened.
std::optional<std::vector<std::uint8_t>> ReadFileHead(const std::string& path, std::size_t most);

} // namespace vypx::platform
