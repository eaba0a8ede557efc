// Counts the opens, locks, writes, changes of rights, syncs, closes and renames of files, and the
// makings of folders, whose path holds a word, and makes the n-th of them fail or the process die
// there. Loaded by LD_PRELOAD; told by the environment:
//
//   FAULT_PATH   the word
//   FAULT_AT     number of the operation, from 1; 0: none
//   FAULT_KIND   space, io: fails so; short: writes half and then there is no space;
//                before, within, after: the process is killed
//   FAULT_COUNT  a file that the number of operations is written to at the end

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <set>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string Setting(const char* name)
{
    const char* const value = std::getenv(name);
    return value ? value : "";
}

template <typename Function>
Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

struct Faults {
    std::string path = Setting("FAULT_PATH"), kind = Setting("FAULT_KIND");
    int at = std::atoi(Setting("FAULT_AT").c_str());
    int count = 0;
    bool noSpaceLeft = false;
    std::set<int> files;

    ~Faults()
    {
        const std::string file = Setting("FAULT_COUNT");
        if (FILE* out = file.empty() ? nullptr : std::fopen(file.c_str(), "w")) {
            std::fprintf(out, "%d\n", count);
            std::fclose(out);
        }
    }

    bool Concerns(const char* name) const
    {
        return !path.empty() && name && std::strstr(name, path.c_str());
    }
    [[noreturn]] static void Die()
    {
        raise(SIGKILL);
        std::abort();
    }
};

Faults& State()
{
    static Faults faults;
    return faults;
}

/// Runs one operation, or what stands in for it. `within` does half of it.
template <typename Do, typename Half>
auto Step(const Do& run, const Half& within) -> decltype(run())
{
    Faults& faults = State();
    if (++faults.count != faults.at)
        return run();
    if (faults.kind == "before")
        Faults::Die();
    if (faults.kind == "within") {
        within();
        Faults::Die();
    }
    if (faults.kind == "after") {
        run();
        Faults::Die();
    }
    if (faults.kind == "short") {
        faults.noSpaceLeft = true;
        return within();
    }
    errno = faults.kind == "io" ? EIO : ENOSPC;
    return -1;
}

template <typename Do>
auto Step(const Do& run) -> decltype(run())
{
    return Step(run, [] {
        errno = ENOSPC;
        return static_cast<decltype(run())>(-1);
    });
}

int Open(const char* symbol, const char* path, int flags, mode_t mode)
{
    const auto run = [&] { return Real<int(const char*, int, ...)>(symbol)(path, flags, mode); };
    if (!State().Concerns(path))
        return run();
    const int file = Step(run);
    if (file >= 0)
        State().files.insert(file);
    return file;
}

mode_t ModeOf(int flags, va_list arguments)
{
    return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open", path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open64", path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t count)
{
    const auto run = [&](size_t part) {
        return Real<ssize_t(int, const void*, size_t)>("write")(file, bytes, part);
    };
    if (State().files.count(file) == 0)
        return run(count);
    if (State().noSpaceLeft) {
        errno = ENOSPC;
        return -1;
    }
    return Step([&] { return run(count); }, [&] { return run(count / 2); });
}

int fsync(int file)
{
    const auto run = [&] { return Real<int(int)>("fsync")(file); };
    return State().files.count(file) == 0 ? run() : Step(run);
}

int fdatasync(int file)
{
    const auto run = [&] { return Real<int(int)>("fdatasync")(file); };
    return State().files.count(file) == 0 ? run() : Step(run);
}

int close(int file)
{
    const auto run = [&] { return Real<int(int)>("close")(file); };
    if (State().files.erase(file) == 0)
        return run();
    // A close that fails has closed all the same.
    return Step(run, [&] {
        run();
        errno = EIO;
        return -1;
    });
}

int flock(int file, int operation) noexcept
{
    const auto run = [&] { return Real<int(int, int)>("flock")(file, operation); };
    return State().files.count(file) == 0 ? run() : Step(run);
}

int fchmod(int file, mode_t mode) noexcept
{
    const auto run = [&] { return Real<int(int, mode_t)>("fchmod")(file, mode); };
    return State().files.count(file) == 0 ? run() : Step(run);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    const auto run = [&] { return Real<int(const char*, mode_t)>("mkdir")(path, mode); };
    return State().Concerns(path) ? Step(run) : run();
}

int rename(const char* from, const char* to)
{
    const auto run = [&] { return Real<int(const char*, const char*)>("rename")(from, to); };
    return State().Concerns(from) ? Step(run) : run();
}
}
