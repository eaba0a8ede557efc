// The walk over the resource list: 250 to 2000 picture resources without an index, and with an
// index of 1000 rows against 430 applications. Doubling the resources should double the time.

#include "document/Catalogs.h"
#include "document/Document.h"
#include "reader/ResourceList.h"
#include "reader/WalkResources.h"
#include "support/Iconsets.h"

#include <benchmark/benchmark.h>

namespace vypx {

namespace {

class Silent : public LoadListener {
    void Message(std::string_view) override { }
};

/// Puts a file of `count` picture resources into FileCashe, behind an index of `records` rows.
void KeepFile(int count, int records)
{
    test::Iconset set;
    if (records > 0) {
        Bytes index;
        for (int i = 0; i < records; ++i)
            index = test::Join({ index,
                test::IndexRecord("appl", "C" + std::to_string(100 + i % 430), i, i + 1) });
        set.resources.push_back({ "iTbl", 1000, index });
    }
    for (int i = 0; i < count - (records > 0); ++i)
        set.resources.push_back({ "tAIB", i, test::LowRecord(8) });
    const Bytes file = set.File();
    FileCashe.assign(1, 0);
    FileCashe.insert(FileCashe.end(), file.begin(), file.end());
    FileCashe.push_back(0);
    IconFileSize = static_cast<std::int32_t>(file.size() + 1);
}

void Walk(benchmark::State& state, int records)
{
    const int count = static_cast<int>(state.range(0));
    KeepFile(count, records);
    Silent listener;
    for (auto _ : state) {
        Tree.Clear();
        IconTable.assign(static_cast<std::size_t>(2 * count + 1), {});
        WalkState walk;
        WalkResources(walk, listener);
        benchmark::DoNotOptimize(walk.TLstCnt);
    }
    ResetDocument();
}

void WithoutIndex(benchmark::State& state) { Walk(state, 0); }

void WithIndexAndCatalogs(benchmark::State& state)
{
    AppTable.assign(1, {});
    for (int i = 0; i < 430; ++i)
        AppTable.push_back(
            { "Application " + std::to_string(i), "appl", "C" + std::to_string(100 + i), "" });
    Walk(state, 1000);
    ResetCatalogs();
}

BENCHMARK(WithoutIndex)->Arg(250)->Arg(500)->Arg(1000)->Arg(2000);
BENCHMARK(WithIndexAndCatalogs)->Arg(250)->Arg(500)->Arg(1000)->Arg(2000);

} // namespace
} // namespace vypx
