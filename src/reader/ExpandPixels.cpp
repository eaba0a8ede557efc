#include "reader/ExpandPixels.h"

#include <algorithm>
#include <span>

namespace vypx {

namespace {

/// Takes one byte after the other.
class ByteCursor {
public:
    ByteCursor(ByteView bytes, std::size_t start)
        : m_bytes(bytes.Span())
        , m_next(start)
    {
    }

    std::uint8_t Next()
    {
        if (m_next >= m_bytes.size())
            throw PastTheEnd();
        return m_bytes[m_next++];
    }
    std::span<const std::uint8_t> Take(std::size_t count)
    {
        if (m_next > m_bytes.size() || count > m_bytes.size() - m_next)
            throw PastTheEnd();
        m_next += count;
        return m_bytes.subspan(m_next - count, count);
    }

private:
    std::span<const std::uint8_t> m_bytes;
    std::size_t m_next;
};

/// Writes a row of the buffer from its first column on; the row's bound throws.
class RowCursor {
public:
    explicit RowCursor(std::span<std::uint8_t> row)
        : m_row(row)
    {
    }

    int Column() const { return static_cast<int>(m_column); }

    void Put(std::uint8_t value)
    {
        if (m_column >= m_row.size())
            throw PastTheEnd();
        m_row[m_column++] = value;
    }
    void Put(std::uint8_t value, int count)
    {
        const auto wanted = static_cast<std::size_t>(count);
        if (wanted > m_row.size() - m_column)
            throw PastTheEnd();
        std::fill_n(m_row.begin() + static_cast<std::ptrdiff_t>(m_column), count, value);
        m_column += wanted;
    }
    void Put(std::span<const std::uint8_t> values)
    {
        if (values.size() > m_row.size() - m_column)
            throw PastTheEnd();
        std::copy(
            values.begin(), values.end(), m_row.begin() + static_cast<std::ptrdiff_t>(m_column));
        m_column += values.size();
    }

private:
    std::span<std::uint8_t> m_row;
    std::size_t m_column = 0;
};

/// Puts one row of PackBits; gives the last value byte that was read, `last` if there was none.
std::uint8_t ExpandPackBitsRow(
    ByteCursor& input, int rowBytes, bool sixteenBits, RowCursor& row, std::uint8_t last)
{
    // On purpose: equality. A run that oversteps the row goes on until the row's bound throws.
    while (row.Column() != rowBytes) {
        const int control = input.Next();
        const bool isRun = (control & 0x80) != 0;
        // On purpose: 0x80 is a run of 129, where other dialects of PackBits pass over it.
        const int count = isRun ? 257 - control : control + 1;
        if (sixteenBits) {
            std::uint8_t second = 0;
            for (int i = 0; i < count; ++i) {
                if (i == 0 || !isRun) {
                    last = input.Next();
                    second = input.Next();
                }
                row.Put(last);
                row.Put(second);
            }
        } else if (isRun) {
            last = input.Next();
            row.Put(last, count);
        } else {
            const auto literals = input.Take(static_cast<std::size_t>(count));
            last = literals.back();
            row.Put(literals);
        }
    }
    return last;
}

} // namespace

PixelBuffer CopyPixels(const StoredPixels& stored)
{
    PixelBuffer pixels(stored.rowBytes, stored.height);
    ByteCursor input(stored.bytes, stored.start);
    for (int y = 0; y < stored.height; ++y) {
        const auto bytes = input.Take(static_cast<std::size_t>(stored.rowBytes));
        RowCursor row(pixels.NextRow());
        row.Put(bytes);
        if (!bytes.empty())
            row.Put(bytes.back(), pixels.RowPad());
    }
    return pixels;
}

PixelBuffer DecodeScanline(const StoredPixels& stored)
{
    PixelBuffer pixels(stored.rowBytes, stored.height);
    // On purpose: a first byte of 0 counts as the high half of a wider size field, here only.
    const bool widerSize = stored.bytes.U8(stored.start) == 0;
    ByteCursor input(stored.bytes, stored.start + (widerSize ? 2 : 0));
    // On purpose: one row more than the picture has is read.
    for (int y = 0; y <= stored.height; ++y) {
        RowCursor row(pixels.NextRow());
        int mask = 0;
        for (int column = 0; column < stored.rowBytes; ++column) {
            mask = column % 8 == 0 ? input.Next() : mask << 1;
            row.Put((mask & 0x80) != 0 ? input.Next()
                                       : pixels.RowBefore()[static_cast<std::size_t>(column)]);
        }
        row.Put(0, pixels.RowPad());
    }
    return pixels;
}

PixelBuffer DecodeRLE(const StoredPixels& stored)
{
    PixelBuffer pixels(stored.rowBytes, stored.height);
    ByteCursor input(stored.bytes, stored.start);
    for (int y = 0; y < stored.height; ++y) {
        RowCursor row(pixels.NextRow());
        while (row.Column() < stored.rowBytes) {
            const int count = input.Next();
            const std::uint8_t value = input.Next();
            row.Put(value, count); // On purpose: a run goes on into the pad columns.
        }
        row.Put(0, pixels.RowPad());
    }
    return pixels;
}

PixelBuffer DecodePackBits(const StoredPixels& stored)
{
    PixelBuffer pixels(stored.rowBytes, stored.height);
    ByteCursor input(stored.bytes, stored.start);
    std::uint8_t last = 0;
    for (int y = 0; y < stored.height; ++y) {
        RowCursor row(pixels.NextRow());
        last = ExpandPackBitsRow(input, stored.rowBytes, stored.sixteenBits, row, last);
        row.Put(last, pixels.RowPad());
    }
    return pixels;
}

PixelBuffer ExpandPixels(const StoredPixels& stored, Compression compression)
{
    switch (compression) {
    case Compression::Scanline:
        return DecodeScanline(stored);
    case Compression::Rle:
        return DecodeRLE(stored);
    case Compression::PackBits:
        return DecodePackBits(stored);
    case Compression::None:
        break;
    }
    return CopyPixels(stored);
}

} // namespace vypx
