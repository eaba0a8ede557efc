// ScaleImg from 8000 x 8000 to 64 x 44 against a bare loop that averages the same areas; and with a
// transparent colour against without.

#include "companion/ScaleImg.h"

#include <benchmark/benchmark.h>
#include <random>

namespace vypx {

namespace {

constexpr int Side = 8000, Width = 64, Height = 44;

const Picture& Source()
{
    static const Picture source = [] {
        Picture picture(Side, Side);
        std::mt19937 random(1);
        for (int y = 0; y < Side; ++y)
            for (int i = 0; i < Side * 3; ++i)
                picture.Row(y)[i] = static_cast<std::uint8_t>(random());
        return picture;
    }();
    return source;
}

void Scale(benchmark::State& state)
{
    Picture target(Width, Height);
    Source();
    for (auto _ : state) {
        ScaleImg(Source(), target, Side, Side, Width, Height);
        benchmark::DoNotOptimize(target.At(3, 3));
    }
}

void ScaleMasked(benchmark::State& state)
{
    Picture target(Width, Height);
    Source();
    for (auto _ : state) {
        ScaleImg(Source(), target, Side, Side, Width, Height,
            { .transparent = Source().At(0, 0), .depth = 8 });
        benchmark::DoNotOptimize(target.At(3, 3));
    }
}

void BareAverage(benchmark::State& state)
{
    Picture target(Width, Height);
    Source();
    for (auto _ : state) {
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x) {
                const int left = x * Side / Width, right = (x + 1) * Side / Width;
                const int top = y * Side / Height, bottom = (y + 1) * Side / Height;
                std::uint32_t sum[3] = { 0, 0, 0 };
                for (int sy = top; sy < bottom; ++sy) {
                    const std::uint8_t* pixel = Source().Row(sy) + left * 3;
                    for (int sx = left; sx < right; ++sx, pixel += 3) {
                        sum[0] += pixel[0];
                        sum[1] += pixel[1];
                        sum[2] += pixel[2];
                    }
                }
                const auto area = static_cast<std::uint32_t>((right - left) * (bottom - top));
                target.Set(x, y,
                    { static_cast<int>(sum[0] / area), static_cast<int>(sum[1] / area),
                        static_cast<int>(sum[2] / area) });
            }
        benchmark::DoNotOptimize(target.At(3, 3));
    }
}

BENCHMARK(BareAverage)->Unit(benchmark::kMillisecond);
BENCHMARK(Scale)->Unit(benchmark::kMillisecond);
BENCHMARK(ScaleMasked)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vypx
