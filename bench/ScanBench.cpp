// A search for applications in 20,000 files of 500 folders, 10,000 of them .prc and none of them
// new, beside a bare walk in C that opens those files and reads 68 bytes of each; and one that
// finds 1000 new applications. CPU times are to be compared.

#include "catalogs/AddPrcFiles.h"
#include "catalogs/CatalogFiles.h"
#include "document/WorkingFolder.h"
#include "support/Files.h"
#include "support/PrcFiles.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace vypx {

namespace {

constexpr int Folders = 500, FilesOfEach = 40;
constexpr int Known = 400; ///< applications in the catalog
constexpr int New = 1000;

std::string CreatorOf(char letter, int i) { return letter + std::to_string(100 + i); }

/// Keeps the longest time between two turns of events, from its making to `Milliseconds`.
class Watching : public SearchListener {
public:
    void Show(const CatalogBox&) override { }
    void RunEvents() override
    {
        const auto now = std::chrono::steady_clock::now();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
    }
    double Milliseconds()
    {
        RunEvents();
        return std::chrono::duration<double, std::milli>(m_longest).count();
    }

private:
    std::chrono::steady_clock::time_point m_last = std::chrono::steady_clock::now();
    std::chrono::steady_clock::duration m_longest{ 0 };
};

/// The tree, made once for all benchmarks, and a catalog that knows every file of it.
class Tree {
public:
    Tree()
    {
        int made = 0;
        for (int i = 0; i < Folders; ++i) {
            const std::string below = folder.File("palm/" + std::to_string(i));
            std::filesystem::create_directories(below);
            for (int file = 0; file < FilesOfEach; ++file, ++made) {
                const int application = made / 2 % Known;
                test::WriteBytes(below + "/" + std::to_string(file) + (file % 2 ? ".prc" : ".txt"),
                    test::PrcFile("Program " + std::to_string(application), "appl",
                        CreatorOf('K', application)));
            }
        }
        std::string apps, palm;
        for (int i = 0; i < Known; ++i)
            apps += Entry("Program " + std::to_string(i), CreatorOf('K', i));
        for (int i = 0; i < 120; ++i)
            palm += Entry("Palm Item " + std::to_string(i), CreatorOf('P', i));
        test::WriteText(folder.File("AppList.dat"), apps);
        test::WriteText(folder.File("PalmApp.dat"), palm);
        for (int i = 0; i < New; ++i)
            test::WriteBytes(folder.File("new" + std::to_string(i) + ".prc"),
                test::PrcFile("New one " + std::to_string(i), "appl",
                    CreatorOf(static_cast<char>('a' + i % 26), i / 26)));
    }

    static std::string Entry(const std::string& name, const std::string& creator)
    {
        return "[" + name + "]\nType=appl\nCreator={" + creator + "}\n";
    }

    test::TempFolder folder;
};

Tree& TheTree()
{
    static Tree tree;
    return tree;
}

void ReadTables()
{
    const auto ignore = [](std::string_view) {};
    ReadAppIni(ignore);
    ReadPalmAppIni(ignore);
}

/// The least that any search has to do.
int WalkInC(const std::string& path)
{
    DIR* const folder = ::opendir(path.c_str());
    if (!folder)
        return 0;
    int files = 0;
    while (const dirent* const entry = ::readdir(folder)) {
        if (entry->d_name[0] == '.')
            continue;
        const std::string name = path + "/" + entry->d_name;
        if (entry->d_type == DT_DIR) {
            files += WalkInC(name);
        } else if (name.ends_with(".prc")) {
            char head[68];
            const int file = ::open(name.c_str(), O_RDONLY);
            files += ::read(file, head, sizeof head) == sizeof head ? 1 : 0;
            ::close(file);
        }
    }
    ::closedir(folder);
    return files;
}

void BareWalk(benchmark::State& state)
{
    const std::string root = TheTree().folder.File("palm");
    for (auto _ : state)
        state.counters["files"] = WalkInC(root);
}

void NothingNew(benchmark::State& state)
{
    AppFolder = TheTree().folder.Path();
    SearchFolder = TheTree().folder.File("palm");
    ScanHasNew = true;
    ReadTables();
    for (auto _ : state) {
        Watching watching;
        const SearchEnd end = SearchAndAdd(watching);
        state.counters["gap_ms"] = watching.Milliseconds();
        state.counters["files"] = static_cast<double>(end.add.files.size());
        for (const JudgedPrc& file : end.add.files)
            if (file.verdict != PrcVerdict::KnownCreator)
                state.SkipWithError("a file was not known");
    }
}

void ThousandNew(benchmark::State& state)
{
    Tree& tree = TheTree();
    AppFolder = tree.folder.Path();
    const std::string apps = test::ReadText(AppListFile());
    ReadTables();
    for (auto _ : state) {
        state.PauseTiming();
        test::WriteText(AppListFile(), apps);
        listPRC.clear();
        for (int i = 0; i < New; ++i)
            listPRC.push_back(tree.folder.File("new" + std::to_string(i) + ".prc"));
        state.ResumeTiming();
        int added = 0;
        Watching watching;
        const AddEnd end = AddPrcFiles(watching);
        state.counters["gap_ms"] = watching.Milliseconds();
        for (const JudgedPrc& file : end.files)
            added += file.verdict == PrcVerdict::Added ? 1 : 0;
        state.counters["added"] = added;
    }
    test::WriteText(AppListFile(), apps);
}

BENCHMARK(BareWalk)->Unit(benchmark::kMillisecond);
BENCHMARK(NothingNew)->Unit(benchmark::kMillisecond);
BENCHMARK(ThousandNew)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

} // namespace
} // namespace vypx
