#ifndef _WIN32

#include "platform/PassingFile.h"
#include "platform/Platform.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vypx::platform {

namespace {

std::error_code LastError() { return { errno, std::generic_category() }; }

std::int64_t Nanoseconds(const timespec& time)
{
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

/// Whether the open file is the one that stands at `path`, and not one that was deleted meanwhile.
bool StandsAt(int file, const char* path)
{
    struct stat open {
    }, there{};
    return ::fstat(file, &open) == 0 && ::stat(path, &there) == 0 && open.st_dev == there.st_dev
        && open.st_ino == there.st_ino;
}

bool WriteAll(int file, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

/// Makes the rename itself durable. A file system that can't sync folders is no failure: the
/// file has its new content by then.
void SyncFolderOf(const std::filesystem::path& file)
{
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
}

/// Gives a new file the permissions of another. Its owner and group are kept where the system
/// allows it; otherwise the file is ours, and our group has those of the rights that all have.
std::error_code TakeRights(int file, const struct stat& model)
{
    mode_t mode = model.st_mode & 0777;
    struct stat own { };
    if (::fstat(file, &own) != 0)
        return LastError();
    const bool isKept = (own.st_uid == model.st_uid && own.st_gid == model.st_gid)
        || ::fchown(file, model.st_uid, model.st_gid) == 0;
    if (!isKept && own.st_gid != model.st_gid
        && ::fchown(file, static_cast<uid_t>(-1), model.st_gid) != 0)
        // Whoever was in the old group is one of all others now, and gets no more than before.
        mode &= (~static_cast<mode_t>(S_IRWXG) | (mode & S_IRWXO) << 3)
            & (~static_cast<mode_t>(S_IRWXO) | (mode & S_IRWXG) >> 3);
    return ::fchmod(file, mode) == 0 ? std::error_code() : LastError();
}

/// Takes away what killed writers left. A passing file that can be locked has no writer any more.
void RemoveDeadPassingFiles(const std::filesystem::path& target)
{
    for (const std::filesystem::path& name : PassingFilesOf(target)) {
        const int file = ::open(name.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (file < 0)
            continue;
        if (::flock(file, LOCK_EX | LOCK_NB) == 0 && StandsAt(file, name.c_str()))
            ::unlink(name.c_str());
        ::close(file);
    }
}

/// A file beside its target that no other writer takes for a dead one, as it is locked.
struct PassingFile {
    std::string name;
    int file = -1;

    std::error_code Open(const std::filesystem::path& target, mode_t mode)
    {
        constexpr int Tries = 100;
        for (int i = 0; i < Tries; ++i) {
            name = NewPassingFile(target).string();
            file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            if (file < 0 && errno != EEXIST)
                return LastError();
            if (file < 0)
                continue;
            // Where files can't be locked, another writer can't do it either.
            const bool isOurs = ::flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
            if (isOurs && StandsAt(file, name.c_str()))
                return {};
            ::unlink(name.c_str()); // taken for a dead one before it was locked
            ::close(file);
        }
        return std::make_error_code(std::errc::resource_unavailable_try_again);
    }

    /// Writes, syncs and closes it and gives it its target's name; it stays locked until then. The
    /// first failure is the one that is told.
    std::error_code Become(const std::filesystem::path& target, std::span<const std::uint8_t> bytes,
        const struct stat* model, const std::function<bool()>& goOn)
    {
        std::error_code error;
        if (!WriteAll(file, bytes))
            error = LastError();
        if (!error && model)
            error = TakeRights(file, *model);
        if (!error && ::fsync(file) != 0)
            error = LastError();
        const int lock = ::fcntl(file, F_DUPFD_CLOEXEC, 0);
        if (lock < 0 && !error)
            error = LastError();
        if (::close(file) != 0 && !error)
            error = LastError();
        if (!error && !goOn())
            error = std::make_error_code(std::errc::operation_canceled);
        if (!error && std::rename(name.c_str(), target.c_str()) != 0)
            error = LastError();
        if (error)
            ::unlink(name.c_str());
        if (lock >= 0)
            ::close(lock);
        return error;
    }
};

} // namespace

std::optional<FileIdentity> IdentityOf(const std::string& path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
#ifdef __APPLE__
    const timespec modified = status.st_mtimespec, changed = status.st_ctimespec;
#else
    const timespec modified = status.st_mtim, changed = status.st_ctim;
#endif
    return FileIdentity{
        .volume = static_cast<std::uint64_t>(status.st_dev),
        .file = static_cast<std::uint64_t>(status.st_ino),
        .size = static_cast<std::uint64_t>(status.st_size),
        .modified = Nanoseconds(modified),
        .changed = Nanoseconds(changed),
    };
}

std::error_code ReplaceFile(const std::string& path, std::span<const std::uint8_t> bytes,
    const std::string& like, const std::function<bool()>& goOn)
{
    std::error_code error;
    const std::filesystem::path target = FollowLinks(path, error);
    if (error)
        return error;

    struct stat old { };
    const bool replaces = ::stat(target.c_str(), &old) == 0;
    if (replaces && S_ISDIR(old.st_mode))
        return std::make_error_code(std::errc::is_a_directory);
    if (replaces && !S_ISREG(old.st_mode))
        return std::make_error_code(std::errc::invalid_argument);
    // A file that its user made read-only is not to be replaced behind that user's back.
    if (replaces && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        return LastError();

    struct stat model = old;
    const bool isCopy = !like.empty() && ::stat(like.c_str(), &model) == 0;
    if (isCopy)
        model.st_mode |= S_IWUSR; // or it could not be replaced by the next one
    const bool hasModel = isCopy || replaces;

    RemoveDeadPassingFiles(target);
    PassingFile passing;
    // Until it has the model's rights, nobody else can read it.
    error = passing.Open(target, hasModel ? 0600 : 0666);
    if (!error)
        error = passing.Become(target, bytes, hasModel ? &model : nullptr, goOn);
    if (!error)
        SyncFolderOf(target);
    return error;
}

std::error_code WriteNewFile(const std::string& path, std::span<const std::uint8_t> bytes)
{
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0)
        return LastError();
    std::error_code error;
    if (!WriteAll(file, bytes))
        error = LastError();
    if (::close(file) != 0 && !error)
        error = LastError();
    if (error)
        ::unlink(path.c_str());
    return error;
}

FileLock::Answer FileLock::TryLock(const std::string& path)
{
    Unlock();
    constexpr int Tries = 100;
    for (int i = 0; i < Tries; ++i) {
        const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
        if (file < 0)
            return Answer::Failed;
        if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
            const bool held = errno == EWOULDBLOCK;
            ::close(file);
            return held ? Answer::HeldByAnother : Answer::Failed;
        }
        if (StandsAt(file, path.c_str())) {
            m_handle = file;
            return Answer::Taken;
        }
        ::close(file); // deleted since it was opened
    }
    return Answer::Failed;
}

void FileLock::Unlock()
{
    if (Held())
        ::close(static_cast<int>(m_handle));
    m_handle = -1;
}

bool IsForeignToRoot(const std::string& folder)
{
    struct stat status { };
    return ::geteuid() == 0 && ::stat(folder.c_str(), &status) == 0 && status.st_uid != 0;
}

std::string HomeOfThisUser()
{
    const passwd* const user = ::getpwuid(::geteuid());
    return user && user->pw_dir ? user->pw_dir : std::string();
}

std::uint64_t ProcessNumber() { return static_cast<std::uint64_t>(::getpid()); }

} // namespace vypx::platform

#endif
