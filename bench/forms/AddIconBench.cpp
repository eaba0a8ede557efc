// The window for new icons with 1000 catalog entries over a document of 4000 rows: filling its
// list, a letter of its filter, each until it is painted; adding 500 icons in one go. Processor
// time of the first two is to be below 16 ms, of the last below a second. Without a screen:
// QT_QPA_PLATFORM=offscreen.

#include "NoAsk.h"
#include "QuietStart.h"
#include "document/Catalogs.h"
#include "document/Document.h"
#include "forms/main/Form1.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/MDIForm1.h"
#include "settings/Settings.h"
#include "support/TempFolder.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <benchmark/benchmark.h>

namespace {

using namespace vypx;

constexpr int Rows = 4000, Entries = 1000;

std::string Name(int i) { return "Application with a name " + std::to_string(i); }

/// The program with an open document of 4000 rows, none of which the catalog's entries are in, and
/// the window.
struct Program {
    Program()
        : frame(ask)
    {
        StartQuietly(frame, folder);
        FileLoaded = true;
        Parent = DatabaseName = "Bench";
        Begin();
        AppTable.assign(1, {});
        PalmTable.assign(1, {});
        for (int i = 0; i < Entries; ++i) {
            AppTable.push_back({ Name(i), "appl", "CR" + std::to_string(i), "" });
            PalmTable.push_back({ "Palm " + Name(i), "appl", "PA" + std::to_string(i), "" });
        }
        frame.findChild<IconTreeView*>("TreeView1")
            ->setCurrentItem(frame.findChild<IconTreeView*>("TreeView1")->Root());
        Open();
    }

    void Begin()
    {
        Tree.Clear();
        Tree.SetRoot(Parent);
        IconTable.clear();
        for (int i = 0; i < Rows; ++i) {
            const std::string label = "Other " + std::to_string(i) + " (Large Icon)";
            IconTable.push_back(
                { label, "tAIB" + std::to_string(3500 + i), "NEW", "NEW", 1, "APP" });
            Tree.Add({ .key = label, .image = ImageApp });
        }
        frame.findChild<IconTreeView*>("TreeView1")->Fill(Tree);
    }
    void Open()
    {
        frame.findChild<QPushButton*>("cmdAddIcon")->click();
        Settle();
    }
    static void Settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    template <typename T>
    T& Part(const char* name)
    {
        return *frame.findChild<T*>(name);
    }

    test::TempFolder folder;
    NoAsk ask;
    MDIForm1 frame;
};

void FillTheList(benchmark::State& state)
{
    Program program;
    bool palm = false;
    for (auto _ : state) {
        palm = !palm;
        program.Part<QRadioButton>(palm ? "optPalm" : "optApp").click();
        program.Settle();
    }
}

void TypeALetter(benchmark::State& state)
{
    Program program;
    bool all = true;
    for (auto _ : state) {
        all = !all;
        program.Part<QLineEdit>("txtFilter").setText(all ? "" : "na");
        program.Settle();
    }
}

void AddFiveHundred(benchmark::State& state)
{
    Program program;
    for (auto _ : state) {
        auto& list = program.Part<QListWidget>("ComboAppListIcon");
        for (int row = 0; row < 500; ++row)
            list.item(row)->setSelected(true);
        program.Part<QPushButton>("cmdAddtoList").click();
        program.Part<QPushButton>("cmdApplyNewIcon").click();
        program.Settle();
        state.PauseTiming();
        if (IconTable.size() != Rows + 500)
            state.SkipWithError("not added");
        program.Begin();
        program.Open();
        state.ResumeTiming();
    }
}

BENCHMARK(FillTheList)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeALetter)->Unit(benchmark::kMillisecond);
BENCHMARK(AddFiveHundred)->Unit(benchmark::kMillisecond);

} // namespace
