#ifdef _WIN32

#include "platform/Platform.h"

#include <algorithm>

#define NOMINMAX
#include <windows.h>
#undef ReplaceFile // a macro there

namespace vypx::platform {

namespace {

std::error_code LastError()
{
    return { static_cast<int>(::GetLastError()), std::system_category() };
}

std::int64_t Nanoseconds(const FILETIME& time)
{
    ULARGE_INTEGER ticks; // of 100 ns
    ticks.LowPart = time.dwLowDateTime;
    ticks.HighPart = time.dwHighDateTime;
    return static_cast<std::int64_t>(ticks.QuadPart) * 100;
}

std::error_code WritePassingFile(
    const std::filesystem::path& name, std::span<const std::uint8_t> bytes)
{
    const HANDLE file = ::CreateFileW(
        name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
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
    if (!error && !::FlushFileBuffers(file))
        error = LastError();
    ::CloseHandle(file);
    return error;
}

} // namespace

std::optional<FileIdentity> IdentityOf(const std::string& path)
{
    const HANDLE file = ::CreateFileW(NativePath(path).c_str(), 0,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return std::nullopt;
    BY_HANDLE_FILE_INFORMATION info{};
    const bool known = ::GetFileInformationByHandle(file, &info);
    ::CloseHandle(file);
    if (!known)
        return std::nullopt;
    return FileIdentity{
        .volume = info.dwVolumeSerialNumber,
        .file = (static_cast<std::uint64_t>(info.nFileIndexHigh) << 32) | info.nFileIndexLow,
        .size = (static_cast<std::uint64_t>(info.nFileSizeHigh) << 32) | info.nFileSizeLow,
        .modified = Nanoseconds(info.ftLastWriteTime),
        .changed = Nanoseconds(info.ftCreationTime),
    };
}

std::error_code ReplaceFile(
    const std::string& path, std::span<const std::uint8_t> bytes, const std::string&)
{
    std::error_code error, missing;
    std::filesystem::path target = NativePath(path);
    if (std::filesystem::is_symlink(target, missing))
        target = std::filesystem::canonical(target, error);
    if (error)
        return error;
    const std::filesystem::path passing = PassingFile(target);
    error = WritePassingFile(passing, bytes);
    if (!error) {
        // ReplaceFile keeps the old file's access rights; it wants an old file to be there.
        const bool done = std::filesystem::exists(target)
            ? ::ReplaceFileW(target.c_str(), passing.c_str(), nullptr, 0, nullptr, nullptr) != 0
            : ::MoveFileExW(passing.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
        if (!done)
            error = LastError();
    }
    if (error)
        ::DeleteFileW(passing.c_str());
    return error;
}

FileLock::Answer FileLock::TryLock(const std::string& path)
{
    Unlock();
    const HANDLE file = ::CreateFileW(NativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
        FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return Answer::Failed;
    OVERLAPPED where{};
    if (!::LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &where)) {
        const bool held = ::GetLastError() == ERROR_LOCK_VIOLATION;
        ::CloseHandle(file);
        return held ? Answer::HeldByAnother : Answer::Failed;
    }
    m_handle = reinterpret_cast<std::intptr_t>(file);
    return Answer::Taken;
}

void FileLock::Unlock()
{
    if (Held())
        ::CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    m_handle = -1;
}

std::uint64_t ProcessNumber() { return ::GetCurrentProcessId(); }

} // namespace vypx::platform

#endif
