// Searches for applications by the windows: 20,000 files in 500 folders of which 10,000 are .prc
// and nothing is new, and 1000 new applications. The counter is the longest time in milliseconds
// without a turn of events, from the click to the filled list; it is to stay below 100. Without a
// screen: QT_QPA_PLATFORM=offscreen.

#include "NoAsk.h"
#include "QuietStart.h"
#include "forms/main/MDIForm1.h"
#include "support/Files.h"
#include "support/PrcFiles.h"
#include "support/TempFolder.h"

#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>
#include <memory>

namespace {

using namespace vypx;

/// Chooses one folder whenever it is asked for one.
class PickAsk : public NoAsk {
public:
    QString folder;

private:
    QString ChooseFolder(QWidget*, const FolderQuestion&) override { return folder; }
};

/// The longest time between two turns of events.
class Watch {
public:
    Watch()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { See(); });
        m_timer.start(0);
    }
    void See()
    {
        const auto now = std::chrono::steady_clock::now();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
    }
    double Milliseconds() const
    {
        return std::chrono::duration<double, std::milli>(m_longest).count();
    }

private:
    QTimer m_timer;
    std::chrono::steady_clock::time_point m_last = std::chrono::steady_clock::now();
    std::chrono::steady_clock::duration m_longest{ 0 };
};

/// The program with its editor of the catalogs and files to be searched.
struct Program {
    Program(int folders, int prcOfEach, int othersOfEach, bool areKnown)
        : frame(ask)
    {
        std::string apps;
        for (int i = 0; i < folders; ++i) {
            const std::string below = folder.File("palm/" + std::to_string(i));
            std::filesystem::create_directories(below);
            for (int file = 0; file < prcOfEach; ++file)
                PutFile(below, i * prcOfEach + file, areKnown ? 400 : folders * prcOfEach);
            for (int file = 0; file < othersOfEach; ++file)
                test::WriteText(below + "/" + std::to_string(file) + ".txt", "x");
        }
        for (int i = 0; i < 400; ++i)
            apps += "[Known " + std::to_string(i) + "]\nType=appl\nCreator={K"
                + std::to_string(100 + i) + "}\n";
        test::WriteText(folder.File("AppList.dat"), apps);
        ask.folder = QString::fromStdString(folder.File("palm"));
        StartQuietly(frame, folder);
        frame.findChild<QPushButton*>("cmdEditAppList")->click();
    }
    void PutFile(const std::string& below, int number, int different)
    {
        const int i = number % different;
        const bool isNew = different != 400;
        test::WriteBytes(below + "/" + std::to_string(number) + ".prc",
            test::PrcFile((isNew ? "New " : "Known ") + std::to_string(1000 + i), "appl",
                isNew ? static_cast<char>('A' + i / 900) + std::to_string(100 + i % 900)
                      : "K" + std::to_string(100 + i)));
    }

    test::TempFolder folder;
    PickAsk ask;
    MDIForm1 frame;
};

void Search(benchmark::State& state, int folders, int prcOfEach, int others, bool areKnown)
{
    double longest = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto program = std::make_unique<Program>(folders, prcOfEach, others, areKnown);
        auto& button = *program->frame.findChild<QPushButton*>("cmdAddPrcByFolder");
        state.ResumeTiming();
        Watch watch;
        button.click();
        watch.See();
        longest = std::max(longest, watch.Milliseconds());
        state.PauseTiming();
        program.reset();
        state.ResumeTiming();
    }
    state.counters["longest_gap_ms"] = longest;
}

void NothingNew(benchmark::State& state) { Search(state, 500, 20, 20, true); }
void ThousandNew(benchmark::State& state) { Search(state, 10, 100, 0, false); }

BENCHMARK(NothingNew)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(ThousandNew)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
