#ifndef _WIN32

#include "platform/Folders.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace vypx::platform {

namespace {

/// A path as the system takes it: a folder on the way that is open, and the rest from there.
class Reach {
public:
    explicit Reach(std::string_view path)
    {
        while (path.size() >= PATH_MAX && m_folder != NotThere) {
            const std::size_t end = path.rfind('/', PATH_MAX - 2);
            if (end == std::string_view::npos || end == 0)
                break; // a name that no system has
            Enter(std::string(path.substr(0, end)));
            path.remove_prefix(std::min(path.find_first_not_of('/', end), path.size()));
        }
        m_rest = path;
    }
    Reach(const Reach&) = delete;
    Reach& operator=(const Reach&) = delete;
    ~Reach() { Leave(); }

    bool Status(struct stat& status) const
    {
        return ::fstatat(m_folder, m_rest.c_str(), &status, 0) == 0;
    }
    /// A file handle; negative when it can't be opened for reading.
    int Open(int flags) const
    {
        return ::openat(m_folder, m_rest.c_str(), flags | O_RDONLY | O_CLOEXEC);
    }

private:
    static constexpr int NotThere = -1; // as a folder it makes every call fail

    void Enter(const std::string& step)
    {
        const int next = ::openat(m_folder, step.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        Leave();
        m_folder = next;
    }
    void Leave()
    {
        if (m_folder >= 0)
            ::close(m_folder);
    }

    int m_folder = AT_FDCWD; // no handle, and negative
    std::string m_rest;
};

bool IsDots(std::string_view name) { return name == "." || name == ".."; }

bool IsFolder(int folder, const dirent& entry)
{
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    struct stat status { };
    return ::fstatat(folder, entry.d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

FolderListing ListFolder(const std::string& path, const std::function<bool(FolderId)>& wanted,
    const std::function<bool()>& goOn)
{
    const int file = Reach(path).Open(O_DIRECTORY);
    struct stat status { };
    if (file < 0 || ::fstat(file, &status) != 0) {
        if (file >= 0)
            ::close(file);
        return {};
    }
    const bool isWanted = wanted(
        { static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino) });
    DIR* const folder = isWanted ? ::fdopendir(file) : nullptr;
    if (!folder) {
        ::close(file);
        return { .entries = {}, .isWhole = !isWanted };
    }
    FolderListing listing;
    errno = 0;
    while (const dirent* const entry = listing.wasStopped ? nullptr : ::readdir(folder)) {
        if (!IsDots(entry->d_name)) {
            listing.entries.push_back({ entry->d_name, IsFolder(file, *entry) });
            listing.wasStopped = listing.entries.size() % EntriesOfAStep == 0 && !goOn();
        }
        errno = 0;
    }
    listing.isWhole = errno == 0;
    ::closedir(folder);
    return listing;
}

std::optional<std::vector<std::uint8_t>> ReadFileHead(const std::string& path, std::size_t most)
{
    const Reach reach(path);
    struct stat status { };
    // A pipe that is opened and left ends its writer, and a device may do anything.
    if (!reach.Status(status) || !S_ISREG(status.st_mode))
        return std::nullopt;
    const int file = reach.Open(O_NONBLOCK | O_NOCTTY);
    if (file < 0)
        return std::nullopt;
    std::vector<std::uint8_t> bytes(most);
    std::size_t count = 0;
    ssize_t got = 1;
    while (count < most && got > 0) {
        got = ::read(file, bytes.data() + count, most - count);
        if (got < 0 && errno == EINTR)
            got = 1;
        else if (got > 0)
            count += static_cast<std::size_t>(got);
    }
    ::close(file);
    if (got < 0)
        return std::nullopt;
    bytes.resize(count);
    return bytes;
}

} // namespace vypx::platform

#endif
