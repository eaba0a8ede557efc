#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace vypx {

/// Tells of a row of units which of them are the same as the next: one bit for a unit, 64 to a
/// word. A search for runs then takes a step for a run and not for a unit, which is faster: a
/// processor can't foresee where the runs of a picture end, and a wrong guess costs more than the
/// look at many units. Everything but `Learn` is about the row that was learned last, and about
/// units of it.
class EqualNeighbours {
public:
    static constexpr std::size_t MostUnits = 65536;

    /// Looks at a row of units of 1 or 2 bytes, of which there are no more than `MostUnits`.
    template <std::size_t Unit>
    void Learn(const std::uint8_t* row, std::size_t units)
    {
        constexpr std::size_t Together = 8 / Unit;
        m_units = units;
        std::size_t at = 0;
        for (std::size_t word = 0; word < units / 64 + 2; ++word) {
            std::uint64_t same = 0;
            for (; at < word * 64 + 64 && at + Together < units; at += Together)
                same |= SameAsNext<Unit>(row + at * Unit) << at % 64;
            for (; at < word * 64 + 64 && at + 1 < units; ++at)
                same |= AreSame<Unit>(row + at * Unit) << at % 64;
            m_same[word] = same;
        }
    }

    /// Whether the next unit is the same.
    bool Follows(std::size_t unit) const { return (m_same[unit / 64] >> unit % 64 & 1) != 0; }

    /// Number of equal units from one on.
    std::size_t RunLength(std::size_t unit) const
    {
        std::size_t word = unit / 64;
        std::uint64_t ends = ~m_same[word] >> unit % 64 << unit % 64;
        while (ends == 0)
            ends = ~m_same[++word];
        return word * 64 + static_cast<std::size_t>(std::countr_zero(ends)) - unit + 1;
    }

    /// The first unit from one on with which a run of `least` units or more begins, 2 or 3; the
    /// number of units if there is none.
    std::size_t NextRun(std::size_t unit, std::size_t least) const
    {
        std::size_t word = unit / 64;
        std::uint64_t begins = Begins(word, least) >> unit % 64 << unit % 64;
        while (begins == 0 && (word + 1) * 64 < m_units)
            begins = Begins(++word, least);
        return begins == 0 ? m_units
                           : word * 64 + static_cast<std::size_t>(std::countr_zero(begins));
    }

private:
    /// The first byte is the lowest. In one expression, which compilers know for a single load.
    static std::uint64_t EightBytes(const std::uint8_t* from)
    {
        const auto byte = [&](int i) { return static_cast<std::uint64_t>(from[i]) << 8 * i; };
        return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
    }

    /// The bits of the units in eight bytes. `zero` is the highest bit of each unit that doesn't
    /// differ from the next; the product brings these bits side by side.
    template <std::size_t Unit>
    static std::uint64_t SameAsNext(const std::uint8_t* from)
    {
        constexpr std::uint64_t Low = Unit == 1 ? 0x7F7F7F7F7F7F7F7F : 0x7FFF7FFF7FFF7FFF;
        const std::uint64_t differs = EightBytes(from) ^ EightBytes(from + Unit);
        const std::uint64_t zero = ~(((differs & Low) + Low) | differs | Low);
        return Unit == 1 ? (zero >> 7) * 0x0102040810204080 >> 56
                         : (zero >> 15) * 0x0001000200040008 >> 48 & 15;
    }

    template <std::size_t Unit>
    static std::uint64_t AreSame(const std::uint8_t* unit)
    {
        return unit[0] == unit[Unit] && unit[Unit - 1] == unit[2 * Unit - 1] ? 1 : 0;
    }

    std::uint64_t Begins(std::size_t word, std::size_t least) const
    {
        const std::uint64_t same = m_same[word];
        return least == 2 ? same : same & (same >> 1 | m_same[word + 1] << 63);
    }

    std::size_t m_units = 0;
    std::array<std::uint64_t, MostUnits / 64 + 2> m_same; // and a word of zeros
};

} // namespace vypx
