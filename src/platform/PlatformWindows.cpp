#ifdef _WIN32

#include "platform/PassingFile.h"
#include "platform/Platform.h"
#include "platform/WindowsApi.h"

#include <algorithm>

namespace vypx::platform {

namespace {

std::error_code LastError()
{
    return { static_cast<int>(::GetLastError()), std::system_category() };
}

std::int64_t Nanoseconds(const LARGE_INTEGER& time)
{
    return NanosecondsFromFileTime(static_cast<std::uint64_t>(time.QuadPart));
}

std::optional<FileIdentity> Identify(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION info{};
    FILE_BASIC_INFO times{};
    if (!::GetFileInformationByHandle(file, &info)
        || !::GetFileInformationByHandleEx(file, FileBasicInfo, &times, sizeof times))
        return std::nullopt;
    return FileIdentity{
        .volume = info.dwVolumeSerialNumber,
        .file = (static_cast<std::uint64_t>(info.nFileIndexHigh) << 32) | info.nFileIndexLow,
        .size = (static_cast<std::uint64_t>(info.nFileSizeHigh) << 32) | info.nFileSizeLow,
        .modified = Nanoseconds(times.LastWriteTime),
        .changed = Nanoseconds(times.ChangeTime),
    };
}

/// Whether the open file is the one that stands at `path`, and not one that was deleted meanwhile.
bool StandsAt(HANDLE file, const std::string& path)
{
    const std::optional<FileIdentity> open = Identify(file), there = IdentityOf(path);
    return open && there && open->volume == there->volume && open->file == there->file;
}

/// Makes a file that nobody else can open, read or delete while it is written.
std::error_code WriteFileAnew(
    const std::filesystem::path& name, std::span<const std::uint8_t> bytes, bool flush)
{
    const HANDLE file = ::CreateFileW(
        name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return LastError();
    std::error_code error;
    while (!error && !bytes.empty()) {
        const DWORD count = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1u << 30));
        DWORD written = 0;
        if (!::WriteFile(file, bytes.data(), count, &written, nullptr) || written == 0)
            error = LastError();
        else
            bytes = bytes.subspan(written);
    }
    if (!error && flush && !::FlushFileBuffers(file))
        error = LastError();
    ::CloseHandle(file);
    return error;
}

/// ReplaceFileW keeps the old file's access rights; it wants an old file to be there.
std::error_code Rename(const std::filesystem::path& passing, const std::filesystem::path& target)
{
    const bool replaces = ::GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES;
    const bool done = replaces
        ? ::ReplaceFileW(target.c_str(), passing.c_str(), nullptr, 0, nullptr, nullptr) != 0
        : ::MoveFileExW(passing.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
    if (done)
        return {};
    const std::error_code error = LastError();
    // It may fail with the old file taken away already; the new one then takes its place.
    const bool isGone = ::GetFileAttributesW(target.c_str()) == INVALID_FILE_ATTRIBUTES;
    if (replaces && isGone
        && ::MoveFileExW(passing.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0)
        return {};
    return error;
}

/// Whether another writer of the same file may have come between: it had the target open, made or
/// replaced it, or took the passing file for a dead one after it was closed.
bool MayPass(const std::error_code& error)
{
    constexpr int Passing[] = { ERROR_FILE_NOT_FOUND, ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION,
        ERROR_FILE_EXISTS, ERROR_ALREADY_EXISTS, ERROR_UNABLE_TO_REMOVE_REPLACED };
    return std::find(std::begin(Passing), std::end(Passing), error.value()) != std::end(Passing);
}

} // namespace

std::optional<FileIdentity> IdentityOf(const std::string& path)
{
    const HANDLE file = ::CreateFileW(NativePath(path).c_str(), 0,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return std::nullopt;
    const std::optional<FileIdentity> identity = Identify(file);
    ::CloseHandle(file);
    return identity;
}

std::error_code ReplaceFile(const std::string& path, std::span<const std::uint8_t> bytes,
    const std::string&, const std::function<bool()>& goOn)
{
    std::error_code error, missing;
    std::filesystem::path target = NativePath(path);
    if (std::filesystem::is_symlink(target, missing))
        target = std::filesystem::canonical(target, error);
    if (error)
        return error;
    if (std::filesystem::is_directory(target, missing))
        return std::make_error_code(std::errc::is_a_directory);
    // A file that a living process writes can't be deleted.
    for (const std::filesystem::path& dead : PassingFilesOf(target))
        ::DeleteFileW(dead.c_str());
    constexpr int Tries = 20;
    constexpr DWORD Pause = 10; // milliseconds
    for (int i = 0; i < Tries; ++i) {
        const std::filesystem::path passing = NewPassingFile(target);
        error = WriteFileAnew(passing, bytes, true);
        const bool isWritten = !error;
        if (isWritten)
            error = goOn() ? Rename(passing, target)
                           : std::make_error_code(std::errc::operation_canceled);
        if (!error)
            return error;
        ::DeleteFileW(passing.c_str());
        if (!isWritten || !MayPass(error))
            return error;
        ::Sleep(Pause);
    }
    return error;
}

std::error_code WriteNewFile(const std::string& path, std::span<const std::uint8_t> bytes)
{
    const std::filesystem::path name = NativePath(path);
    const bool isThere = ::GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES;
    const std::error_code error = WriteFileAnew(name, bytes, false);
    if (error && !isThere)
        ::DeleteFileW(name.c_str());
    return error;
}

FileLock::Answer FileLock::TryLock(const std::string& path)
{
    Unlock();
    constexpr int Tries = 10;
    for (int i = 0; i < Tries; ++i) {
        const HANDLE file = ::CreateFileW(NativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE,
            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
            FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE) {
            if (::GetLastError() != ERROR_ACCESS_DENIED)
                return Answer::Failed;
            ::Sleep(1); // one that is deleted while it is open may keep its name until it is closed
            continue;
        }
        OVERLAPPED where{};
        if (!::LockFileEx(
                file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &where)) {
            const bool held = ::GetLastError() == ERROR_LOCK_VIOLATION;
            ::CloseHandle(file);
            return held ? Answer::HeldByAnother : Answer::Failed;
        }
        if (StandsAt(file, path)) {
            m_handle = reinterpret_cast<std::intptr_t>(file);
            return Answer::Taken;
        }
        ::CloseHandle(file); // deleted since it was opened
    }
    return Answer::Failed;
}

void FileLock::Unlock()
{
    if (Held())
        ::CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    m_handle = -1;
}

bool IsForeignToRoot(const std::string&) { return false; }

std::string HomeOfThisUser() { return {}; }

std::uint64_t ProcessNumber() { return ::GetCurrentProcessId(); }

} // namespace vypx::platform

#endif
