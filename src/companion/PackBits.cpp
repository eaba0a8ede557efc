#include "companion/PackBits.h"

#include "companion/EqualNeighbours.h"

#include <algorithm>
#include <stdexcept>

namespace vypx {

namespace {

constexpr std::size_t LongestPiece = 128; // of a run or a literal, in units

/// Packs a row of units of 1 or 2 bytes behind `out`, which has room for the longest result.
template <std::size_t Unit>
class RowPacker {
public:
    RowPacker(const std::uint8_t* row, std::size_t units, std::uint8_t* out)
        : m_row(row)
        , m_units(units)
        , m_out(out)
    {
        m_neighbours.Learn<Unit>(row, units);
    }

    /// Gives the end of the result.
    std::uint8_t* Pack()
    {
        constexpr std::size_t WorthARun = Unit == 1 ? 3 : 2;
        for (std::size_t at = 0; at < m_units;) {
            const std::size_t run = m_neighbours.NextRun(at, WorthARun);
            at = PutLiterals(at, run);
            if (at < m_units) {
                const std::size_t length = std::min(m_neighbours.RunLength(at), LongestPiece);
                PutRun(at, length);
                at += length;
            }
        }
        return m_out;
    }

private:
    /// A pair of single bytes costs as much as a run as it does in a literal, but would end the
    /// literal. So it stands alone only where no literal is begun, or where one must end anyhow. A
    /// run that is one unit too long for its pieces leaves that one to the literal before it. Gives
    /// the first unit that is left.
    std::size_t PutLiterals(std::size_t at, std::size_t end)
    {
        while (at < end) {
            std::size_t piece = std::min(end - at, LongestPiece);
            if (m_neighbours.Follows(at)) {
                piece = 2;
                PutRun(at, piece);
            } else {
                if (piece < end - at && m_neighbours.Follows(at + piece - 1))
                    --piece;
                if (at + piece == end && piece < LongestPiece && IsOneTooLong(end))
                    ++piece;
                *m_out++ = static_cast<std::uint8_t>(piece - 1);
                m_out = std::copy(m_row + at * Unit, m_row + (at + piece) * Unit, m_out);
            }
            at += piece;
        }
        return at;
    }

    bool IsOneTooLong(std::size_t run) const
    {
        return run < m_units && m_neighbours.RunLength(run) % LongestPiece == 1;
    }

    void PutRun(std::size_t at, std::size_t length)
    {
        *m_out++ = static_cast<std::uint8_t>(257 - length);
        m_out = std::copy(m_row + at * Unit, m_row + (at + 1) * Unit, m_out);
    }

    const std::uint8_t* m_row;
    std::size_t m_units;
    std::uint8_t* m_out;
    EqualNeighbours m_neighbours;
};

} // namespace

void AppendPackBits(Bytes& packed, std::span<const std::uint8_t> row, std::size_t unit)
{
    if (row.size() / unit > EqualNeighbours::MostUnits)
        throw std::length_error("a row for PackBits");
    const std::size_t before = packed.size(), units = row.size() / unit;
    packed.resize(before + row.size() + units / 128 + 2); // all literals
    std::uint8_t* const out = packed.data() + before;
    const std::uint8_t* const end = unit == 1 ? RowPacker<1>(row.data(), units, out).Pack()
                                              : RowPacker<2>(row.data(), units, out).Pack();
    packed.resize(before + static_cast<std::size_t>(end - out));
}

} // namespace vypx
