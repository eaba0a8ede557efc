#include "companion/NearestColour.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace vypx {

namespace {

constexpr int CellSize = 8;
constexpr int CellsToASide = 256 / CellSize;

/// A cell's lowest and highest corner.
struct Box {
    int low[3], high[3];
};

Box BoxOf(std::size_t cell)
{
    const int at[3] = { static_cast<int>(cell >> 10), static_cast<int>(cell >> 5 & 31),
        static_cast<int>(cell & 31) };
    Box box{};
    for (int axis = 0; axis < 3; ++axis) {
        box.low[axis] = at[axis] * CellSize;
        box.high[axis] = box.low[axis] + CellSize - 1;
    }
    return box;
}

int SquareOf(int v) { return v * v; }

/// Least and greatest squared distance of a colour to the cell's colours.
struct Reach {
    int least = 0, greatest = 0;
};

Reach ReachOf(const Rgb& colour, const Box& box)
{
    const int parts[3] = { colour.red, colour.green, colour.blue };
    Reach reach;
    for (int axis = 0; axis < 3; ++axis) {
        const int toLow = parts[axis] - box.low[axis], toHigh = parts[axis] - box.high[axis];
        reach.least += SquareOf(toLow < 0 ? toLow : std::max(toHigh, 0));
        reach.greatest += std::max(SquareOf(toLow), SquareOf(toHigh));
    }
    return reach;
}

/// Whether `rival` is nearer than `colour` everywhere in the cell, or as near with the lower index.
/// The difference of two squared distances is linear in the point, so the corners tell.
bool IsBeatenEverywhere(const Rgb& colour, const Rgb& rival, bool rivalIsLower, const Box& box)
{
    // |p - rival|^2 - |p - colour|^2 = 2 p (colour - rival) + |rival|^2 - |colour|^2
    const int c[3] = { colour.red, colour.green, colour.blue };
    const int r[3] = { rival.red, rival.green, rival.blue };
    int greatest = 0;
    for (int axis = 0; axis < 3; ++axis) {
        const int slope = 2 * (c[axis] - r[axis]);
        greatest += std::max(slope * box.low[axis], slope * box.high[axis]);
        greatest += SquareOf(r[axis]) - SquareOf(c[axis]);
    }
    return greatest < 0 || (greatest == 0 && rivalIsLower);
}

} // namespace

/// For each value that a component of a 5-6-5 colour can have: its squared difference to that of
/// every entry of the palette, times 256. Three of them and the index add up to a number that is
/// least for the nearest entry, of several for the first one. Every row is as long as the largest
/// palette, since a loop of a fixed length is what compilers turn into vectors.
struct NearestColour::Squares565 {
    using Row = std::array<std::int32_t, 256>;

    std::array<Row, 32> red, blue;
    std::array<Row, 64> green;

    explicit Squares565(const std::vector<Rgb>& palette)
    {
        Fill(red, palette, &Rgb::red, Widened5);
        Fill(green, palette, &Rgb::green, Widened6);
        Fill(blue, palette, &Rgb::blue, Widened5);
        for (Row& row : red)
            for (std::size_t i = 0; i < row.size(); ++i)
                row[i] += static_cast<std::int32_t>(i);
    }

    int Nearest(std::uint16_t colour) const
    {
        const Row& r = red[colour >> 11];
        const Row& g = green[colour >> 5 & 0x3F];
        const Row& b = blue[colour & 0x1F];
        std::int32_t least = INT32_MAX;
        for (std::size_t i = 0; i < r.size(); ++i)
            least = std::min(least, r[i] + g[i] + b[i]);
        return least & 0xFF;
    }

private:
    /// Behind a shorter palette stands its last entry: it never wins over itself.
    template <typename Rows, typename Widen>
    static void Fill(
        Rows& rows, const std::vector<Rgb>& palette, int Rgb::*component, const Widen& widened)
    {
        for (std::size_t value = 0; value < rows.size(); ++value) {
            const int wide = widened(static_cast<int>(value));
            for (std::size_t i = 0; i < rows[value].size(); ++i) {
                const Rgb& entry = palette[std::min(i, palette.size() - 1)];
                rows[value][i] = SquareOf(entry.*component - wide) * 256;
            }
        }
    }
};

NearestColour::~NearestColour() = default;

NearestColour::NearestColour(Palette palette)
    : m_palette(palette.begin(), palette.end())
    , m_cells(CellsToASide * CellsToASide * CellsToASide)
    , m_by565(65536)
{
    if (m_palette.empty() || m_palette.size() > 256)
        throw std::invalid_argument("a palette has 1 to 256 colours");
    m_recent.fill(static_cast<std::uint32_t>(IndexOf(0, 0, 0))); // true of black in every place
}

NearestColour::Entry NearestColour::EntryOf(Rgb colour, std::size_t index)
{
    const auto byte = [](auto value) { return static_cast<std::uint8_t>(value); };
    return { byte(colour.red), byte(colour.green), byte(colour.blue), byte(index) };
}

void NearestColour::MakeCell(std::size_t cell)
{
    const Box box = BoxOf(cell);
    int bound = INT32_MAX;
    for (const Rgb& colour : m_palette)
        bound = std::min(bound, ReachOf(colour, box).greatest);

    std::vector<std::size_t> candidates;
    for (std::size_t i = 0; i < m_palette.size(); ++i)
        if (ReachOf(m_palette[i], box).least <= bound)
            candidates.push_back(i);

    const auto isBeaten = [&](std::size_t i) {
        return std::any_of(candidates.begin(), candidates.end(), [&](std::size_t rival) {
            return rival != i && IsBeatenEverywhere(m_palette[i], m_palette[rival], rival < i, box);
        });
    };
    const auto first = static_cast<std::uint32_t>(m_entries.size());
    for (const std::size_t i : candidates)
        if (!isBeaten(i))
            m_entries.push_back(EntryOf(m_palette[i], i));
    m_cells[cell] = { first, static_cast<std::uint32_t>(m_entries.size()) - first };
}

int NearestColour::Learn565(std::uint16_t colour)
{
    if (!m_squares)
        m_squares = std::make_unique<const Squares565>(m_palette);
    const int index = m_squares->Nearest(colour);
    m_by565[colour] = static_cast<std::uint16_t>(index + 1);
    return index;
}

NearestColour& NearestIn(Palette palette)
{
    static std::vector<std::unique_ptr<NearestColour>> known;
    for (const auto& table : known)
        if (std::equal(
                palette.begin(), palette.end(), table->Colours().begin(), table->Colours().end()))
            return *table;
    known.push_back(std::make_unique<NearestColour>(palette));
    return *known.back();
}

} // namespace vypx
