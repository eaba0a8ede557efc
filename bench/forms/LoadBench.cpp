// A load of 2000 resources in the window, beside the same load as the tool does it and the filling
// of the tree. Without a screen: QT_QPA_PLATFORM=offscreen.

#include "NoAsk.h"
#include "QuietStart.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/main/Form1.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/MDIForm1.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <cstdlib>

namespace {

using namespace vypx;

class Silent : public LoadListener {
    void Message(std::string_view) override { }
};

/// An uncompressed record at 8 bits.
Bytes Record(bool high)
{
    const unsigned width = high ? 64 : 32, height = high ? 44 : 22;
    Bytes record(high ? 24 : 16);
    test::PutU16(record, 0, width);
    test::PutU16(record, 2, height);
    test::PutU16(record, 4, width);
    record[8] = 8;
    for (unsigned i = 0; i < width * height; ++i)
        record.push_back(static_cast<std::uint8_t>(i / 5));
    if (!high)
        test::PutU16(record, 10, static_cast<unsigned>(record.size() / 4));
    return record;
}

Bytes BigIconset()
{
    test::Iconset iconset;
    const Bytes family = test::Join({ Record(false), test::Separator(), Record(true) });
    for (int i = 0; i < 2000; ++i)
        iconset.resources.push_back({ "tAIB", 3500 + i, family });
    return iconset.File();
}

/// The program, and the iconset in its folder.
struct Program {
    Program()
        : frame(ask)
    {
        StartQuietly(frame, folder);
        test::WriteBytes(Path(), BigIconset());
    }
    std::string Path() { return folder.File("big.prc"); }

    test::TempFolder folder;
    NoAsk ask;
    MDIForm1 frame;
};

void LoadInTheWindow(benchmark::State& state)
{
    Program program;
    DroppedFile = true;
    DroppedFileName = program.Path();
    for (auto _ : state) {
        program.frame.Form().LoadFile();
        if (!FileLoaded)
            std::abort();
    }
    DroppedFile = false;
}

void LoadByTheToolAndFillTheTree(benchmark::State& state)
{
    Program program;
    IconTreeView tree;
    Silent listener;
    for (auto _ : state) {
        if (LoadFile({ .path = program.Path() }, listener).result != LoadResult::Opened)
            std::abort();
        tree.Fill(Tree);
    }
}

BENCHMARK(LoadInTheWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadByTheToolAndFillTheTree)->Unit(benchmark::kMillisecond);

} // namespace
