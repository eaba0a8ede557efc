#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// What the standard library lacks: the one place for system calls. One part for each system.
/// Paths inside of the program are UTF-8 texts with the system's own separator.
namespace vypx::platform {

#ifdef _WIN32
inline constexpr char PathSeparator = '\\';
#else
inline constexpr char PathSeparator = '/';
#endif

std::filesystem::path NativePath(std::string_view utf8);
std::string Utf8Path(const std::filesystem::path& path);

/// What tells whether a file is still the one that was read: another file in its place has
/// another `file` number, a written one another size or time.
struct FileIdentity {
    std::uint64_t volume = 0, file = 0;
    std::uint64_t size = 0;    ///< bytes
    std::int64_t modified = 0; ///< nanoseconds since 1970
    std::int64_t changed = 0;  ///< the same; time of the last change of the file's own record

    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// Empty when there is no such file.
std::optional<FileIdentity> IdentityOf(const std::string& path);

/// Whether the identity tells every later write from this state. A file's times advance in ticks of
/// some milliseconds, so a second write within the tick of the first could leave the same size and
/// times; a file that has rested for longer can't be written without another time.
bool HasRested(const FileIdentity& file);

/// A time of a Windows file, in units of 100 ns since the beginning of 1601, as nanoseconds since
/// the beginning of 1970. What 64 bits can't hold (before 1677, after 2262) is cut to their ends.
std::int64_t NanosecondsFromFileTime(std::uint64_t ticks);

/// The whole of a regular file; empty when it can't be read or has more than `limit` bytes.
/// Folders, pipes and devices are not read.
std::optional<std::vector<std::uint8_t>> ReadWholeFile(
    const std::string& path, std::uintmax_t limit = UINT32_MAX);

/// Where a path leads whose last part is a symbolic link: to what need not be there. A path that is
/// none stays as it is.
std::filesystem::path FollowLinks(std::filesystem::path path, std::error_code& error);

/// Replaces or creates the file `path` by `bytes` in one step: written beside it under a name of
/// its own that ends in ".vypx-new", synced, given the old file's permissions, renamed over it. A
/// symbolic link is followed first and stays a link. After a failure, which the result names, the
/// old file stands as it was and nothing is left beside it. With `like`, an existing file, the
/// permissions are that file's, as a copy has them, and the right to write it again (on Windows
/// those of the folder or the old file). At no time can more users read the new bytes than the
/// file whose permissions they get.
///
/// `goOn` is asked when all is written but the new name; after a false the old file stands and the
/// failure is std::errc::operation_canceled.
///
/// Any number of processes may replace one file at once: each succeeds, and the file has the whole
/// bytes of one of them, in the end those of the last. What a killed one left goes at the next
/// call for that file.
std::error_code ReplaceFile(
    const std::string& path, std::span<const std::uint8_t> bytes, const std::string& like = {},
    const std::function<bool()>& goOn = [] { return true; });

/// Makes a file that is not there yet; a failure leaves none. Nothing is synced: for files that are
/// of no use before another one that is.
std::error_code WriteNewFile(const std::string& path, std::span<const std::uint8_t> bytes);

/// A failed ReplaceFile in words for the user.
struct Refusal {
    std::string path;   ///< the file, or its folder where it is the folder that refuses
    std::string reason; ///< without a full stop
};
Refusal ExplainRefusal(const std::string& path, std::error_code error);

/// Whether files can be made in an existing folder, found out by making one.
bool FolderIsWritable(const std::string& folder);

/// Whether this process is the superuser's and an existing folder is not: what it makes there could
/// lock the folder's owner out. Not on Windows.
bool IsForeignToRoot(const std::string& folder);

/// The home of the user whose rights this process has, as the system's list of users has it. Empty
/// where there is none, and on Windows.
std::string HomeOfThisUser();

/// A failure to make or use a folder, in words for the user: its path in UTF-8, and why.
struct FolderFailure {
    std::string path; ///< empty where there was none to be tried
    std::string reason;
};
FolderFailure ExplainFolderFailure(const std::filesystem::filesystem_error& error);

/// A lock on a file that lives as long as this object and never longer than the process: the
/// system frees it after a crash as well. Other processes and other objects of this process are
/// kept out alike. The file stays empty. One that is deleted meanwhile locks nobody out any more.
class FileLock {
public:
    FileLock() = default;
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    enum class Answer {
        Taken,
        HeldByAnother,
        Failed, ///< the file can't be made or opened
    };

    /// Makes the file if it is missing. Gives up what this object held before.
    Answer TryLock(const std::string& path);
    /// The same, but waits at most that long for another one to go.
    Answer Lock(const std::string& path, std::chrono::milliseconds patience);
    bool Held() const;
    void Unlock();

private:
    std::intptr_t m_handle = -1;
};

/// Number of this process, for names of passing files.
std::uint64_t ProcessNumber();

} // namespace vypx::platform
