#include "platform/Platform.h"

#include <algorithm>
#include <fstream>
#include <utility>

namespace vypx::platform {

namespace fs = std::filesystem;

fs::path NativePath(std::string_view utf8)
{
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string Utf8Path(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return { text.begin(), text.end() };
}

std::optional<std::vector<std::uint8_t>> ReadWholeFile(
    const std::string& path, std::uintmax_t limit)
{
    const fs::path native = NativePath(path);
    std::error_code error;
    if (!fs::is_regular_file(native, error))
        return std::nullopt;
    const std::uintmax_t size = fs::file_size(native, error);
    if (error || size > limit)
        return std::nullopt;
    std::ifstream file(native, std::ios::binary);
    if (!file)
        return std::nullopt;

    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    // A file that shrank meanwhile gives the bytes that are there.
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    if (file.bad())
        return std::nullopt;
    return bytes;
}

fs::path PassingFile(const fs::path& target)
{
    const fs::path::string_type name = target.filename().native();
    const fs::path::string_type ending = fs::path(".vypx-new").native();
    std::size_t kept = std::min(name.size(), 255 - ending.size());
    while (kept < name.size() && kept > 0 && (name[kept] & 0xC0) == 0x80) // no half a character
        --kept;
    return target.parent_path() / (name.substr(0, kept) + ending);
}

bool FolderIsWritable(const std::string& folder)
{
    const fs::path probe =
        NativePath(folder) / NativePath("vypx-probe-" + std::to_string(ProcessNumber()) + ".tmp");
    const bool made = static_cast<bool>(std::ofstream(probe, std::ios::binary));
    std::error_code ignored;
    fs::remove(probe, ignored);
    return made;
}

FileLock::FileLock(FileLock&& other) noexcept
    : m_handle(std::exchange(other.m_handle, -1))
{
}

FileLock& FileLock::operator=(FileLock&& other) noexcept
{
    std::swap(m_handle, other.m_handle);
    return *this;
}

FileLock::~FileLock() { Unlock(); }

bool FileLock::Held() const { return m_handle != -1; }

} // namespace vypx::platform
