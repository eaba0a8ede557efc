#include "ReadingFixture.h"
#include "cli/Extract.h"
#include "cli/Thumbnail.h"
#include "cli/Validate.h"
#include "platform/Platform.h"

#include <cstdlib>
#include <fcntl.h>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// Thousands of broken iconsets through the commands that only look at one.
namespace vypx::test {

namespace {

constexpr int Files = VYPX_SANITIZED ? 300 : 3000, FilesOfAProcess = 100, FilesOfTheTool = 40;

std::vector<Bytes> Seeds()
{
    std::vector<std::filesystem::path> paths{ VYPX_SHIPPED_DATA "/samples/first-set.prc" };
    for (const auto& entry : std::filesystem::directory_iterator(TestData("iconsets")))
        if (entry.path().extension() == ".prc")
            paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<Bytes> seeds;
    for (const auto& path : paths)
        seeds.push_back(ReadBytes(path));
    return seeds;
}

/// A file that was sound once: some bytes are others, mostly in the header, the list and the first
/// records; one in four is cut off, one in eight has a part of itself twice.
Bytes Mutated(int number)
{
    static const std::vector<Bytes> seeds = Seeds();
    std::mt19937 random(static_cast<unsigned>(number));
    const auto below = [&](std::size_t end) { return random() % std::max<std::size_t>(end, 1); };
    Bytes file = seeds[static_cast<std::size_t>(number) % seeds.size()];
    for (std::size_t changes = 1 + below(8); changes > 0; --changes) {
        const std::size_t range =
            below(3) == 0 ? file.size() : std::min<std::size_t>(file.size(), 400);
        constexpr std::uint8_t Likely[] = { 0, 1, 0x7F, 0x80, 0xFF, 16, 8 };
        file[below(range)] =
            below(2) == 0 ? Likely[below(std::size(Likely))] : static_cast<std::uint8_t>(random());
    }
    if (below(4) == 0)
        file.resize(below(file.size()));
    if (below(8) == 0) {
        const Bytes part(
            file.begin() + static_cast<std::ptrdiff_t>(below(file.size())), file.end());
        file.insert(file.end(), part.begin(), part.end());
    }
    return file;
}

/// The child's own limits: what a picture may take of time and memory.
void LimitProcess()
{
    const rlimit seconds{ VYPX_SANITIZED ? 300 : 60, RLIM_INFINITY };
    ::setrlimit(RLIMIT_CPU, &seconds);
    const rlimit bytes{ 1u << 30, RLIM_INFINITY };
    if (!VYPX_SANITIZED) // whose own maps take terabytes
        ::setrlimit(RLIMIT_AS, &bytes);
    const int nowhere = ::open("/dev/null", O_WRONLY);
    ::dup2(nowhere, STDOUT_FILENO);
    ::dup2(nowhere, STDERR_FILENO);
}

std::set<std::string> NamesIn(const std::string& folder)
{
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

/// Whether the folder holds no more than the commands were to write there.
bool IsClean(const TempFolder& folder, int thumbnail, int extract)
{
    std::set<std::string> expected{ "set.prc" };
    if (thumbnail == 0)
        expected.insert("out.png");
    if (extract == 0)
        expected.insert("x");
    return NamesIn(folder.Path()) == expected
        && (extract != 0 || NamesIn(folder.File("x")).contains("index.json"));
}

/// Gives what is wrong about a file, as a number; 0: nothing.
int Judge(int number, const TempFolder& folder)
{
    const std::string path = folder.File("set.prc");
    const Bytes file = Mutated(number);
    WriteBytes(path, file);
    const ReadOptions read{ .file = path, .appFolder = {} };
    const int thumbnail = vypx::Thumbnail({ .read = read, .out = folder.File("out.png") });
    const int extract = vypx::Extract({ .read = read, .folder = folder.File("x") });
    const int validate = vypx::Validate(read);
    const bool areCodes = thumbnail >= 0 && thumbnail <= 1 && extract >= 0 && extract <= 1
        && validate >= 0 && validate <= 1;
    const bool isClean = IsClean(folder, thumbnail, extract) && ReadBytes(path) == file;
    std::filesystem::remove(folder.File("out.png"));
    std::filesystem::remove_all(folder.File("x"));
    return areCodes && isClean ? 0 : 1;
}

/// Thousands of files are written, each synced to the disk; where there is a disk in memory, it
/// serves.
void UseDiskInMemory()
{
    const std::string memory = "/dev/shm";
    if (platform::FolderIsWritable(memory))
        ::setenv("TMPDIR", memory.c_str(), 1);
}

TEST(MutatedFiles, EndWithAPictureOrACodeAndLeaveNothing)
{
    UseDiskInMemory();
    const TempFolder folder;
    for (int first = 0; first < Files; first += FilesOfAProcess) {
        const pid_t child = ::fork();
        if (child == 0) {
            LimitProcess();
            for (int i = first; i < first + FilesOfAProcess; ++i)
                if (Judge(i, folder) != 0)
                    ::_exit(1);
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0) << "one of the files from " << first << " on";
        std::filesystem::remove_all(folder.File("x"));
        std::filesystem::remove(folder.File("out.png"));
    }
}

/// The same through the program: nothing is left beside the output, in the folder for passing files
/// or in the one that it is called from.
TEST(MutatedFiles, LeaveNothingThroughTheToolEither)
{
    UseDiskInMemory();
    const TempFolder folder, temp;
    const std::string environment = "--chdir='" + temp.Path() + "' TMPDIR='" + temp.Path() + "'";
    for (int i = 0; i < FilesOfTheTool; ++i) {
        const Bytes bytes = Mutated(i + 100'000);
        WriteBytes(folder.File("set.prc"), bytes);
        const std::string file = folder.File("set.prc");
        const ToolRun shown = RunTool({ "thumbnail", file, folder.File("out.png") }, environment);
        const ToolRun extracted = RunTool({ "extract", file, folder.File("x") }, environment);
        const ToolRun judged = RunTool({ "validate", file }, environment);
        for (const ToolRun* run : { &shown, &extracted, &judged })
            EXPECT_TRUE(run->exitCode == 0 || run->exitCode == 1) << i;
        EXPECT_TRUE(IsClean(folder, shown.exitCode, extracted.exitCode)) << i;
        EXPECT_EQ(ReadBytes(file), bytes) << i;
        EXPECT_TRUE(NamesIn(temp.Path()).empty()) << i;
        std::filesystem::remove_all(folder.File("x"));
        std::filesystem::remove(folder.File("out.png"));
    }
}

} // namespace
} // namespace vypx::test
