// 16,000 look-ups in a catalog of 430 sections: through the store, and with a parse for each (a
// hundredth of them, so its figure counts a hundred times).

#include "settings/IniStore.h"
#include "settings/Inifile.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <thread>

namespace vypx {

namespace {

constexpr int Sections = 430;
constexpr int LookUps = 16'000;

std::string SectionName(int i) { return "Application " + std::to_string(i % Sections); }

std::string Catalog()
{
    std::string text;
    for (int i = 0; i < Sections; ++i)
        text += "[" + SectionName(i) + "]\nType=appl\nCreator={C" + std::to_string(100 + i) + "}\n";
    return text;
}

void ThroughTheStore(benchmark::State& state)
{
    const test::TempFolder folder;
    test::WriteText(folder.File("AppList.dat"), Catalog());
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // a catalog that has rested
    cInifile ini;
    ini.path(folder.File("AppList.dat"));
    for (auto _ : state) {
        for (int i = 0; i < LookUps; ++i) {
            ini.Section(SectionName(i));
            ini.key(i % 2 ? "Type" : "Creator");
            benchmark::DoNotOptimize(ini.Value());
        }
    }
}

void WithAParseForEachOfAHundredth(benchmark::State& state)
{
    const test::TempFolder folder;
    test::WriteText(folder.File("AppList.dat"), Catalog());
    for (auto _ : state) {
        for (int i = 0; i < LookUps / 100; ++i) {
            const IniText text(test::ReadText(folder.File("AppList.dat")));
            benchmark::DoNotOptimize(text.Value(SectionName(i), i % 2 ? "Type" : "Creator"));
        }
    }
}

BENCHMARK(ThroughTheStore)->Unit(benchmark::kMillisecond);
BENCHMARK(WithAParseForEachOfAHundredth)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vypx
