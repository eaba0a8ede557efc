// A click on a node until both pictures are drawn, a recount, and the import of a picture that
// fits, with 4000 rows in the tree. Without a screen: QT_QPA_PLATFORM=offscreen.

#include "NoAsk.h"
#include "QuietStart.h"
#include "companion/BmpFile.h"
#include "document/Catalogs.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/main/Form1.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/MDIForm1.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>

namespace {

using namespace vypx;

constexpr int Rows = 4000;

/// The program with an open document of 4000 rows, each with both pictures.
struct Program {
    Program()
        : frame(ask)
    {
        StartQuietly(frame, folder);
        FileLoaded = true;
        Parent = DatabaseName = "Bench";
        Tree.SetRoot(Parent);
        IconTable.clear();
        BitmapTable.clear();
        const Bytes low = EncodeBmp24(Picture(32, 22)), high = EncodeBmp24(Picture(64, 44));
        for (int i = 0; i < Rows; ++i) {
            const std::string name = "tAIB" + std::to_string(i);
            const std::string label = "Application " + std::to_string(i) + " (Large Icon)";
            IconTable.push_back({ label, name, name + ".bmp", name + "-d144.bmp", 1, "APP" });
            BitmapTable.push_back({ name + ".bmp", 1, 0, 0, 0, 0, 8 });
            BitmapTable.push_back({ name + "-d144.bmp", 1, 0, 0, 0, 0, 8 });
            Tree.Add({ .key = label, .image = ImageApp });
            test::WriteBytes(WorkPath(name + ".bmp"), low);
            test::WriteBytes(WorkPath(name + "-d144.bmp"), high);
        }
        View().Fill(Tree);
    }

    IconTreeView& View() { return *frame.findChild<IconTreeView*>("TreeView1"); }

    test::TempFolder folder;
    NoAsk ask;
    MDIForm1 frame;
};

void ClickToDrawn(benchmark::State& state)
{
    Program program;
    int row = 0;
    for (auto _ : state) {
        row = (row + 997) % Rows;
        program.View().setCurrentItem(program.View().Root()->child(row));
        program.frame.grab(); // paints everything, more than a click does
    }
}

void UpdateIconStats(benchmark::State& state)
{
    Program program;
    for (auto _ : state)
        program.frame.Form().UpdateIconStats();
}

/// Into a filled slot, the low-res picture with it; the frame is painted.
void ImportThatFits(benchmark::State& state)
{
    Program program;
    const std::string file = program.folder.File("new.bmp");
    test::WriteBytes(file, EncodeBmp24(Picture(64, 44)));
    program.View().setCurrentItem(program.View().Root()->child(1997));
    AutoCreateLowRes = true;
    for (auto _ : state) {
        LowResPath.clear(); // so that the low-res picture is made each time
        DroppedFileName = file;
        DroppedFile = true;
        program.frame.Form().ImportLG();
        program.frame.grab();
    }
    DroppedFile = false;
}

BENCHMARK(ImportThatFits)->Unit(benchmark::kMillisecond);
BENCHMARK(ClickToDrawn)->Unit(benchmark::kMillisecond);
BENCHMARK(UpdateIconStats)->Unit(benchmark::kMillisecond);

} // namespace
