#pragma once

#include "companion/ByteView.h"

#include <cstdint>
#include <span>

namespace vypx {

/// Expanded pixels of a Palm bitmap: bytes by column and row, rows from the top, each rowBytes long
/// and padded to a multiple of 4, with five columns more at its end and one row more at the bottom,
/// where some compressed forms write.
///
/// Rows are made when they are first asked for, from the top, so that a record which claims more
/// than its bytes can give costs no more than they give.
class PixelBuffer {
public:
    PixelBuffer(int rowBytes, int height)
        : m_rowBytes(rowBytes)
        , m_rowPad(Padding(rowBytes))
        , m_height(height)
    {
        constexpr std::size_t IconSize = 64u << 10; // all of an icon's rows at once
        if (Columns() * static_cast<std::size_t>(height + 1) <= IconSize)
            m_bytes.reserve(Columns() * static_cast<std::size_t>(height + 1));
    }

    int RowBytes() const { return m_rowBytes; }
    int RowPad() const { return m_rowPad; }
    int Height() const { return m_height; }

    /// Writes and reads within a row are the caller's to keep inside of the span. Rows are asked
    /// for in order. Throws PastTheEnd below the last row, and beyond MaxBytes in all.
    std::span<std::uint8_t> NextRow()
    {
        if (m_rowsMade > m_height || m_bytes.size() + Columns() > MaxBytes)
            throw PastTheEnd();
        ++m_rowsMade;
        m_bytes.resize(m_bytes.size() + Columns());
        return { m_bytes.data() + m_bytes.size() - Columns(), Columns() };
    }
    /// The row before the last one that was made. Throws PastTheEnd when there is none.
    std::span<const std::uint8_t> RowBefore() const
    {
        if (m_rowsMade < 2)
            throw PastTheEnd();
        return { m_bytes.data() + m_bytes.size() - 2 * Columns(), Columns() };
    }
    /// A row that was made.
    const std::uint8_t* Row(int row) const
    {
        return m_bytes.data() + static_cast<std::size_t>(row) * Columns();
    }
    int RowsMade() const { return m_rowsMade; }

    static constexpr std::size_t MaxBytes = 256u << 20;
    /// Whether all rows of such a picture are at most MaxBytes.
    static bool Holds(int rowBytes, int height)
    {
        return Columns(rowBytes) * (static_cast<std::size_t>(height) + 1) <= MaxBytes;
    }

private:
    static int Padding(int rowBytes) { return (4 - rowBytes % 4) % 4; }
    static std::size_t Columns(int rowBytes)
    {
        return static_cast<std::size_t>(rowBytes + Padding(rowBytes) + 5);
    }
    std::size_t Columns() const { return Columns(m_rowBytes); }

    int m_rowBytes, m_rowPad, m_height;
    int m_rowsMade = 0;
    Bytes m_bytes;
};

} // namespace vypx
