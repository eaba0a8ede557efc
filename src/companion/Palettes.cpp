#include "companion/Palettes.h"

namespace vypx {

namespace {

constexpr int Levels[6] = { 255, 204, 153, 102, 51, 0 };
constexpr int Greys[10] = { 17, 34, 68, 85, 119, 136, 170, 187, 221, 238 };

constexpr std::array<Rgb, 256> MakePalette8()
{
    std::array<Rgb, 256> palette{}; // black
    std::size_t next = 0;
    for (int half = 0; half < 2; ++half)
        for (const int red : Levels)
            for (int blue = 3 * half; blue < 3 * half + 3; ++blue)
                for (const int green : Levels) {
                    const Rgb colour{ red, green, Levels[blue] };
                    if (colour != Black)
                        palette[next++] = colour;
                }
    for (const int grey : Greys)
        palette[next++] = { grey, grey, grey };
    for (const Rgb colour : { Rgb{ 192, 192, 192 }, Rgb{ 128, 0, 0 }, Rgb{ 128, 0, 128 },
             Rgb{ 0, 128, 0 }, Rgb{ 0, 128, 128 } })
        palette[next++] = colour;
    return palette;
}

template <std::size_t Count>
constexpr std::array<Rgb, Count> MakeGreys()
{
    std::array<Rgb, Count> palette{};
    for (std::size_t i = 0; i < Count; ++i) {
        const int grey = 255 - static_cast<int>(i * 255 / (Count - 1));
        palette[i] = { grey, grey, grey };
    }
    return palette;
}

} // namespace

constexpr std::array<Rgb, 256> Palette8 = MakePalette8();
constexpr std::array<Rgb, 16> Palette4 = MakeGreys<16>();
constexpr std::array<Rgb, 4> Palette2 = MakeGreys<4>();
constexpr std::array<Rgb, 2> Palette1 = MakeGreys<2>();

} // namespace vypx
