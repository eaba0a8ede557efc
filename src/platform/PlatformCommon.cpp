#include "platform/Platform.h"

#include <fstream>
#include <limits>
#include <thread>
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

fs::path FollowLinks(fs::path path, std::error_code& error)
{
    constexpr int MostLinks = 40; // as systems themselves follow
    error.clear();
    std::error_code ignored;
    for (int links = 0; fs::is_symlink(path, ignored); ++links) {
        if (links == MostLinks) {
            error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
            return path;
        }
        const fs::path next = fs::read_symlink(path, error);
        if (error)
            return path;
        path = path.parent_path() / next; // an absolute `next` stands alone
    }
    return path;
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

bool HasRested(const FileIdentity& file)
{
    using namespace std::chrono;
    constexpr nanoseconds Rest = milliseconds(20);
    const nanoseconds now = system_clock::now().time_since_epoch();
    return now - nanoseconds(file.changed) > Rest && now - nanoseconds(file.modified) > Rest;
}

Refusal ExplainRefusal(const std::string& path, std::error_code error)
{
    if (error == std::errc::is_a_directory)
        return { path, "there is a folder of this name" };
    const bool mayBeTheFolder = error == std::errc::permission_denied
        || error == std::errc::operation_not_permitted || error == std::errc::not_a_directory
        || error == std::errc::no_such_file_or_directory
        || error == std::errc::read_only_file_system;
    if (!mayBeTheFolder)
        return { path, error.message() };
    std::error_code unknown;
    const fs::path file = NativePath(path);
    // Behind a link it is another folder than the one that the path names.
    const bool isLink = fs::is_symlink(file, unknown);
    fs::path folder = (isLink ? fs::weakly_canonical(file, unknown) : file).parent_path();
    if (folder.empty())
        folder = fs::current_path(unknown);
    const bool fileRefuses =
        fs::exists(file, unknown) && !std::ofstream(file, std::ios::binary | std::ios::app);
    if (fileRefuses || FolderIsWritable(Utf8Path(folder)))
        return { path, error.message() };
    return { Utf8Path(folder), error.message() };
}

FolderFailure ExplainFolderFailure(const fs::filesystem_error& error)
{
    return { Utf8Path(error.path1()), error.code().message() };
}

std::int64_t NanosecondsFromFileTime(std::uint64_t ticks)
{
    constexpr std::int64_t TicksTo1970 = 116'444'736'000'000'000;
    constexpr std::int64_t Most = std::numeric_limits<std::int64_t>::max() / 100;
    if (ticks > static_cast<std::uint64_t>(TicksTo1970 + Most))
        return std::numeric_limits<std::int64_t>::max();
    const std::int64_t since1970 = static_cast<std::int64_t>(ticks) - TicksTo1970;
    return since1970 < -Most ? std::numeric_limits<std::int64_t>::min() : since1970 * 100;
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

FileLock::Answer FileLock::Lock(const std::string& path, std::chrono::milliseconds patience)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    Answer answer = TryLock(path);
    while (answer == Answer::HeldByAnother && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        answer = TryLock(path);
    }
    return answer;
}

bool FileLock::Held() const { return m_handle != -1; }

} // namespace vypx::platform
