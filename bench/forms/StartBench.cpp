// From the start of the process to its first idle moment: the program without splash and tip, and
// an empty window with the same menus. The first is to take at most 1.8 times the second.

#include "support/Files.h"
#include "support/TempFolder.h"

#include <QProcess>
#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

using namespace vypx;

/// A program folder as it is shipped, at a later start.
struct Folder {
    Folder()
    {
        for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
            std::filesystem::copy_file(
                std::string(VYPX_SHIPPED_DATA) + "/" + name, folder.File(name));
        test::WriteText(folder.File("VYPX.ini"),
            "[Splash Screen]\nShow splash screen at startup=False\n"
            "[Main Window Size]\nWidth=14865\nHeight=9630\n");
        const std::string user = folder.File("user/VY Pixelworks");
        std::filesystem::create_directories(user);
        test::WriteText(user + "/VY Pixelworks.conf", "[Options]\nShow%20Tips%20at%20Startup=0\n");
    }

    test::TempFolder folder;
};

void Start(benchmark::State& state, const char* what)
{
    const Folder folder;
    for (auto _ : state)
        if (QProcess::execute(
                VYPX_START_PROGRAM, { what, QString::fromStdString(folder.folder.Path()) })
            != 0)
            state.SkipWithError("it did not start");
}

BENCHMARK_CAPTURE(Start, EmptyWindow, "empty")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Start, Program, "whole")->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
