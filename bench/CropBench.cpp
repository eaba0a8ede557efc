// What the crop window does with a picture of 8000 x 8000 pixels: opening it on the waiting scratch
// picture against one read, one halving and two writes of the half; and bringing the whole of it to
// the size of an icon against one read of the half and a bare area average.

#include "companion/PixelLibrary.h"
#include "companion/ScaleImg.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "imaging/CropTask.h"
#include "imaging/WorkingPicture.h"
#include "settings/Settings.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <random>

namespace vypx {

namespace {

constexpr int Side = 8000;
constexpr PixelSize Target{ 64, 44 };

void Check(bool isDone)
{
    if (!isDone)
        std::abort();
}

/// A photo of a kind: slow changes and some noise.
Picture Photo(int side)
{
    Picture photo(side, side);
    std::minstd_rand random(1);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const auto noise = static_cast<int>(random() >> 16 & 7);
            photo.Set(
                x, y, { x * 240 / side + noise, y * 240 / side + noise, (x + y) % 240 + noise });
        }
    return photo;
}

/// The working folder of a program with a large picture that waits.
struct Waiting {
    Waiting()
    {
        AppFolder = folder.Path();
        TempSuffix = BelowFolder("temp");
        MakeFolder(WorkFolder());
        PutBack();
    }

    /// After an opening the half stands in its place.
    void PutBack() const
    {
        WriteScratch({ .pixels = photo });
        ImageFile = ScratchPath();
        TargetWidth = Target.width;
        TargetHeight = Target.height;
    }

    test::TempFolder folder;
    Picture photo = Photo(Side);
};

void ReadHalveAndWriteTwice(benchmark::State& state)
{
    const Waiting waiting;
    for (auto _ : state) {
        const std::optional<Picture> source = ReadWorkingPicture(ScratchPath());
        Picture half(Side / 2, Side / 2);
        ScaleImg(*source, half, Side, Side, Side / 2, Side / 2);
        for (const char* name : { "one.bmp", "two.bmp" })
            Check(!WriteBmp24(half, Side / 2, Side / 2, WorkPath(name)));
    }
}
BENCHMARK(ReadHalveAndWriteTwice)->UseRealTime()->Unit(benchmark::kMillisecond);

void OpenTheCropWindow(benchmark::State& state)
{
    const Waiting waiting;
    for (auto _ : state) {
        CropTask task(SlotLG, ColorDepth::Bits16);
        Check(task.CropFrmLoad().empty());
        state.PauseTiming();
        waiting.PutBack();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenTheCropWindow)->UseRealTime()->Unit(benchmark::kMillisecond);

void ReadTheHalfAndAverage(benchmark::State& state)
{
    const Waiting waiting;
    WriteScratch({ .pixels = Photo(Side / 2) });
    for (auto _ : state) {
        const std::optional<Picture> half = ReadWorkingPicture(ScratchPath());
        Picture icon(Target.width, Target.height);
        ScaleImg(*half, icon, Side / 2, Side / 2, Target.width, Target.height);
        benchmark::DoNotOptimize(icon);
    }
}
BENCHMARK(ReadTheHalfAndAverage)->UseRealTime()->Unit(benchmark::kMillisecond);

/// The rectangle is made as large as the view.
void CropTheWhole(benchmark::State& state)
{
    const Waiting waiting;
    CropTask task(SlotLG, ColorDepth::Bits16);
    Check(task.CropFrmLoad().empty());
    task.ChooseAspect(true);
    CropGeometry& geometry = task.Geometry();
    geometry.RebuildRectangle();
    geometry.MoveBy(-geometry.View().side, -geometry.View().side);
    geometry.ResizeBy(geometry.View().side - geometry.Rectangle().height);
    Check(geometry.Region() == PixelRegion{ 0, 0, Side / 2, Side / 2 });
    for (auto _ : state)
        Check(task.Crop().empty());
}
BENCHMARK(CropTheWhole)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace vypx
