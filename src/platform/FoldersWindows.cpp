#ifdef _WIN32

#include "platform/Folders.h"
#include "platform/Platform.h"
#include "platform/WideText.h"

#include <filesystem>
#include <fstream>

namespace vypx::platform {

namespace fs = std::filesystem;

FolderListing ListFolder(const std::string& path, const std::function<bool(FolderId)>& wanted,
    const std::function<bool()>& goOn)
{
    const std::optional<FileIdentity> identity = IdentityOf(path);
    if (!identity)
        return {};
    FolderListing listing{ .entries = {}, .isWhole = true };
    if (!wanted({ identity->volume, identity->file }))
        return listing;
    std::error_code error;
    for (fs::directory_iterator entry(NativePath(path), error), end;
         !error && entry != end && !listing.wasStopped; entry.increment(error)) {
        std::error_code unknown;
        listing.entries.push_back(
            { Utf8FromWide(std::wstring_view(entry->path().filename().native())),
                entry->is_directory(unknown) });
        listing.wasStopped = listing.entries.size() % EntriesOfAStep == 0 && !goOn();
    }
    listing.isWhole = !error;
    return listing;
}

std::optional<std::vector<std::uint8_t>> ReadFileHead(const std::string& path, std::size_t most)
{
    const fs::path native = NativePath(path);
    std::error_code error;
    if (!fs::is_regular_file(native, error))
        return std::nullopt;
    std::ifstream file(native, std::ios::binary);
    if (!file)
        return std::nullopt;
    std::vector<std::uint8_t> bytes(most);
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(most));
    if (file.bad())
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

} // namespace vypx::platform

#endif
