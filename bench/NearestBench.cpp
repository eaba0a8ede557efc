// The nearest colour of pixels that are all different, as in a photograph.

#include "companion/NearestColour.h"

#include <benchmark/benchmark.h>
#include <random>

namespace vypx {

namespace {

void NearestOfRandomPixels(benchmark::State& state)
{
    std::mt19937 random(2);
    std::vector<std::uint8_t> pixels(3 * 100'000);
    for (std::uint8_t& byte : pixels)
        byte = static_cast<std::uint8_t>(random());
    NearestColour& nearest = NearestIn(Palette8);
    for (auto _ : state) {
        int sum = 0;
        for (std::size_t i = 0; i < pixels.size(); i += 3)
            sum += nearest.IndexOf(pixels[i], pixels[i + 1], pixels[i + 2]);
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * 100'000);
}

BENCHMARK(NearestOfRandomPixels);

} // namespace
} // namespace vypx
