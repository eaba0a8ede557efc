#include "pictures/GuardedLoads.h"

#include "pictures/PictureLoader.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vypx::test {

namespace {

constexpr int FilesOfAProcess = 50;
constexpr std::int64_t ManyPixels = 25'000'000;

/// What a child tells of each file. `number` alone: it is being loaded.
struct Report {
    int number;
    enum Kind { Begun, Loaded, Refused, TooMuchMemory, NeitherNor } kind;
    bool isLast = false; // the process has used much memory by right, and so can't tell of others
};

std::int64_t BytesUsed()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return std::int64_t{ usage.ru_maxrss } * 1024;
}

/// The signal comes this many seconds of processor time after now.
void LimitTime(int seconds)
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto used = static_cast<rlim_t>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec + 1);
    const rlimit limit{ used + static_cast<rlim_t>(seconds), RLIM_INFINITY };
    ::setrlimit(RLIMIT_CPU, &limit);
}

Report LoadOne(int number, const std::string& path)
{
    constexpr int Seconds = VYPX_SANITIZED ? 60 : 5;
    LimitTime(Seconds);
    const bool claimsMany = PixelsClaimed(path) >= ManyPixels;
    const LoadedPicture loaded = LoadPicture(path);
    const std::int64_t most = claimsMany ? 1'000'000'000 : 600'000'000;
    Report report{ number, loaded.whyNot.empty() ? Report::Loaded : Report::Refused, claimsMany };
    if (!VYPX_SANITIZED && BytesUsed() > most)
        report.kind = Report::TooMuchMemory;
    else if (loaded.whyNot.empty() == loaded.picture.pixels.IsNull())
        report.kind = Report::NeitherNor;
    return report;
}

void Tell(int end, const Report& report)
{
    if (::write(end, &report, sizeof(report)) != static_cast<ssize_t>(sizeof(report)))
        ::_exit(1);
}

std::string Said(int status)
{
    if (!WIFSIGNALED(status))
        return "ended its process by code " + std::to_string(WEXITSTATUS(status));
    return WTERMSIG(status) == SIGXCPU ? "took too long"
                                       : "crashed by signal " + std::to_string(WTERMSIG(status));
}

} // namespace

void GuardedLoads::Run(int count, const std::function<Bytes(int number)>& file)
{
    for (int next = 0; next < count;)
        next = RunSome(next, count, file);
}

int GuardedLoads::RunSome(int first, int count, const std::function<Bytes(int number)>& file)
{
    const TempFolder folder;
    const std::string path = folder.File("picture");
    const int end = std::min(count, first + FilesOfAProcess);
    int pipe[2];
    if (::pipe(pipe) != 0)
        std::abort();
    const pid_t child = ::fork();
    if (child == 0) {
        for (int i = first; i < end; ++i) {
            WriteBytes(path, file(i));
            Tell(pipe[1], { i, Report::Begun });
            const Report report = LoadOne(i, path);
            Tell(pipe[1], report);
            if (report.isLast)
                break;
        }
        ::_exit(0);
    }
    ::close(pipe[1]);
    Report report{ first, Report::Begun };
    while (::read(pipe[0], &report, sizeof(report)) == static_cast<ssize_t>(sizeof(report))) {
        m_loaded += report.kind == Report::Loaded;
        m_refused += report.kind == Report::Refused;
        EXPECT_NE(report.kind, Report::TooMuchMemory) << "file " << report.number;
        EXPECT_NE(report.kind, Report::NeitherNor) << "file " << report.number;
    }
    ::close(pipe[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << "file " << report.number << " " << Said(status);
    return report.number + 1;
}

} // namespace vypx::test
