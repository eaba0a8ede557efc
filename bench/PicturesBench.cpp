// Loading a baseline JPEG of 8000 x 8000 pixels, and what an import does of one that is too large
// for its icon, up to the scratch picture, against QImage's load and save of the same file. "full"
// is the peak of the memory, counted in full pictures at 4 bytes a pixel. Each round runs in a
// process of its own, whose peak is its own.

#include "companion/PixelLibrary.h"
#include "pictures/PictureLoader.h"
#include "support/TempFolder.h"

#include <QImage>
#include <QImageReader>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vypx {

namespace {

constexpr int Side = 8000;
constexpr double FullPicture = double{ Side } * Side * 4;

/// What one round costs.
struct Cost {
    double seconds, fullPictures;
};

double PeakBytes()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024;
}

template <typename Round>
Cost InAProcess(const Round& round)
{
    int ends[2];
    if (pipe(ends) != 0)
        std::abort();
    const pid_t child = fork();
    if (child == 0) {
        const double before = PeakBytes();
        const auto begin = std::chrono::steady_clock::now();
        round();
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - begin;
        const Cost cost{ spent.count(), (PeakBytes() - before) / FullPicture };
        _exit(write(ends[1], &cost, sizeof(cost)) == sizeof(cost) ? 0 : 1);
    }
    Cost cost{};
    if (read(ends[0], &cost, sizeof(cost)) != sizeof(cost))
        std::abort();
    close(ends[0]);
    close(ends[1]);
    waitpid(child, nullptr, 0);
    return cost;
}

/// A photo of a kind: slow changes and some noise.
void WritePhoto(const std::string& path)
{
    QImage photo(Side, Side, QImage::Format_RGB32);
    std::minstd_rand random(1);
    for (int y = 0; y < Side; ++y) {
        auto* const row = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < Side; ++x) {
            const auto noise = static_cast<int>(random() >> 16 & 7);
            row[x] = qRgb(x * 240 / Side + noise, y * 240 / Side + noise, (x + y) % 240 + noise);
        }
    }
    if (!photo.save(QString::fromStdString(path), "JPEG", 90))
        std::abort();
}

const std::string& Photo()
{
    static const test::TempFolder folder;
    static const std::string path = [] {
        const std::string file = folder.File("photo.jpg");
        InAProcess([&] { WritePhoto(file); });
        return file;
    }();
    return path;
}

QString Saved() { return QString::fromStdString(Photo() + ".bmp"); }

template <typename Round>
void Measure(benchmark::State& state, const Round& round)
{
    Photo();
    double most = 0;
    for (auto _ : state) {
        const Cost cost = InAProcess(round);
        state.SetIterationTime(cost.seconds);
        most = std::max(most, cost.fullPictures);
    }
    state.counters["full"] = most;
}

void QImageLoads(benchmark::State& state)
{
    Measure(state, [] {
        QImageReader::setAllocationLimit(0);
        if (QImage(QString::fromStdString(Photo())).isNull())
            std::abort();
    });
}
BENCHMARK(QImageLoads)->UseManualTime()->Unit(benchmark::kMillisecond);

void QImageLoadsAndSaves(benchmark::State& state)
{
    Measure(state, [] {
        QImageReader::setAllocationLimit(0);
        if (!QImage(QString::fromStdString(Photo())).save(Saved(), "BMP"))
            std::abort();
    });
}
BENCHMARK(QImageLoadsAndSaves)->UseManualTime()->Unit(benchmark::kMillisecond);

void WeLoadAndKeep(benchmark::State& state)
{
    Measure(state, [] {
        const Picture picture = LoadPicture(Photo()).picture.pixels;
        if (WriteBmp24(picture, picture.Width(), picture.Height(), Saved().toStdString()))
            std::abort();
    });
}
BENCHMARK(WeLoadAndKeep)->UseManualTime()->Unit(benchmark::kMillisecond);

void WeLoad(benchmark::State& state)
{
    Measure(state, [] {
        if (LoadPicture(Photo()).picture.pixels.IsNull())
            std::abort();
    });
}
BENCHMARK(WeLoad)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace vypx
