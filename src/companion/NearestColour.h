#pragma once

#include "companion/Palettes.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace vypx {

/// The one rule of the nearest colour: the least sum of the squared differences of red, green and
/// blue; on a tie the lower index. Exact for every colour.
///
/// The colour space is cut into 32768 cells of 8 x 8 x 8 colours. A cell keeps the few entries
/// that are nearest to some colour in it, so that a look-up compares those only. Cells are made
/// when a colour of theirs is first asked for. 5-6-5 colours are too few in each cell to pay for
/// it: those are looked for in the whole palette, and the answer is kept.
class NearestColour {
public:
    /// 1 to 256 colours.
    explicit NearestColour(Palette palette);
    ~NearestColour();

    /// Index of the colour nearest to one with components from 0 to 255.
    int IndexOf(int red, int green, int blue)
    {
        const Cell& cell = CellOf(red, green, blue);
        const Entry* nearest = m_entries.data() + cell.first;
        if (cell.count == 1)
            return nearest->index;
        int least = Distance(*nearest, red, green, blue);
        for (const Entry *entry = nearest + 1, *end = nearest + cell.count; entry != end; ++entry) {
            const int distance = Distance(*entry, red, green, blue);
            if (distance < least) {
                least = distance;
                nearest = entry;
            }
        }
        return nearest->index;
    }
    /// The same, faster for colours that were asked for lately.
    int IndexOfRecent(int red, int green, int blue)
    {
        const auto colour = static_cast<std::uint32_t>(red << 16 | green << 8 | blue);
        std::uint32_t& recent = m_recent[(colour * 0x9E3779B1u) >> (32 - RecentBits)];
        if (recent >> 8 != colour)
            recent = colour << 8 | static_cast<std::uint32_t>(IndexOf(red, green, blue));
        return static_cast<int>(recent & 0xFF);
    }
    /// The same for a 5-6-5 colour, each one worked out once.
    int IndexOf565(std::uint16_t colour)
    {
        const std::uint16_t known = m_by565[colour];
        return known != 0 ? known - 1 : Learn565(colour);
    }

    Palette Colours() const { return m_palette; }

private:
    struct Entry {
        std::uint8_t red, green, blue, index;
    };
    static constexpr int RecentBits = 12; // of the places that colours take by their hash
    struct Cell {
        std::uint32_t first = 0, count = 0; // of m_entries
    };

    static Entry EntryOf(Rgb colour, std::size_t index);
    static int Distance(const Entry& entry, int red, int green, int blue)
    {
        const int r = entry.red - red, g = entry.green - green, b = entry.blue - blue;
        return r * r + g * g + b * b;
    }
    const Cell& CellOf(int red, int green, int blue)
    {
        const auto cell =
            static_cast<std::size_t>((red >> 3) << 10 | (green >> 3) << 5 | blue >> 3);
        if (m_cells[cell].count == 0)
            MakeCell(cell);
        return m_cells[cell];
    }
    void MakeCell(std::size_t cell);
    int Learn565(std::uint16_t colour);

    struct Squares565;

    std::vector<Rgb> m_palette;
    std::vector<Cell> m_cells;
    std::vector<Entry> m_entries;
    std::array<std::uint32_t, 1 << RecentBits> m_recent; // a colour's 24 bits, then its index
    std::vector<std::uint16_t> m_by565;                  // index + 1; 0: not worked out yet
    std::unique_ptr<const Squares565> m_squares;         // made with the first of them
};

/// The table for a palette of these colours; made once for each palette and kept.
NearestColour& NearestIn(Palette palette);

/// 5- and 6-bit components as 8 bits, round(v x 255 / 31) and round(v x 255 / 63), and back to the
/// nearest.
constexpr int Widened5(int v) { return (v * 255 * 2 + 31) / 62; }
constexpr int Widened6(int v) { return (v * 255 * 2 + 63) / 126; }
constexpr int Narrowed5(int v) { return (v * 31 * 2 + 255) / 510; }
constexpr int Narrowed6(int v) { return (v * 63 * 2 + 255) / 510; }

constexpr Rgb From565(int value)
{
    return { Widened5(value >> 11), Widened6(value >> 5 & 0x3F), Widened5(value & 0x1F) };
}
constexpr std::uint16_t To565(Rgb colour)
{
    return static_cast<std::uint16_t>(
        Narrowed5(colour.red) << 11 | Narrowed6(colour.green) << 5 | Narrowed5(colour.blue));
}

} // namespace vypx
