#include "pictures/OwnReaders.h"

#include "pictures/HeaderClaims.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <new>

namespace vypx {

namespace {

QImage NewImage(std::int64_t width, std::int64_t height, QImage::Format format)
{
    QImage image(static_cast<int>(width), static_cast<int>(height), format);
    if (image.isNull())
        throw std::bad_alloc();
    return image;
}

QRgb* RowOf(QImage& image, std::int64_t y)
{
    return reinterpret_cast<QRgb*>(image.scanLine(static_cast<int>(y)));
}

/// `value` of 0 to `most` as 0 to 255, rounded.
int Widened(std::uint64_t value, std::uint64_t most)
{
    return static_cast<int>((std::min(value, most) * 255 + most / 2) / most);
}

/// Some of the bits of a number.
struct BitMask {
    std::uint64_t bits;

    /// 0 to 255; `missing` for a mask without bits.
    int Of(std::uint64_t pixel, int missing) const
    {
        if (bits == 0)
            return missing;
        const int shift = std::countr_zero(bits);
        return Widened((pixel & bits) >> shift, bits >> shift);
    }
};

} // namespace

/// Little-endian:
///
///   offset width field
///       10     4 offset of the pixels
///       14     4 size of the header from here on
///       18     4 width
///       22     4 height         below 0: rows from the top
///       28     2 16, bits per pixel
///       30     4 0: 5 bits each of red, green and blue; 3 or 6: as the masks say
///       54   3*4 masks of red, green and blue
///       66     4 mask of alpha, in headers of 56 bytes and more
///
/// Rows are padded to 4 bytes.
QImage ReadBmpOf16Bits(FileBytes& file)
{
    if (file.Little(14, 4) < 40 || file.Little(28, 2) != 16)
        return {};
    const std::uint64_t compression = file.Little(30, 4);
    std::array<BitMask, 4> masks{ { { 0x7C00 }, { 0x03E0 }, { 0x001F }, { 0 } } };
    if (compression == 3 || compression == 6)
        for (std::size_t i = 0; i < masks.size(); ++i)
            if (i < 3 || file.Little(14, 4) >= 56)
                masks[i] = { file.Little(54 + static_cast<std::int64_t>(i) * 4, 4) };

    const std::int64_t width = file.LittleSigned(18), height = std::abs(file.LittleSigned(22));
    const bool isTopDown = file.LittleSigned(22) < 0;
    const auto pixels = static_cast<std::int64_t>(file.Little(10, 4));
    const std::int64_t rowSize = (width + 1) / 2 * 4;
    QImage image =
        NewImage(width, height, masks[3].bits != 0 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (std::int64_t y = 0; y < height; ++y) {
        QRgb* const row = RowOf(image, isTopDown ? y : height - 1 - y);
        for (std::int64_t x = 0; x < width; ++x) {
            const std::uint64_t pixel = file.Little(pixels + y * rowSize + x * 2, 2);
            row[x] = qRgba(masks[0].Of(pixel, 0), masks[1].Of(pixel, 0), masks[2].Of(pixel, 0),
                masks[3].Of(pixel, 255));
        }
    }
    return image;
}

/// The header of the first icon, little-endian, offsets from its first byte:
///
///   offset width field
///        0     4 size of the header; the pixels follow it
///        4     4 width
///        8     4 twice the height
///       14     2 32, bits per pixel: blue, green, red, alpha
///       16     4 0, not compressed
///
/// Rows from the bottom; behind them a mask of one bit a pixel, 1 for transparent, in rows padded
/// to 4 bytes. It counts where no pixel has an alpha.
QImage ReadIconOf32Bits(FileBytes& file)
{
    const auto header = static_cast<std::int64_t>(file.Little(18, 4));
    const std::int64_t size = file.LittleSigned(header);
    const std::int64_t width = file.LittleSigned(header + 4),
                       height = file.LittleSigned(header + 8) / 2;
    if (size < 40 || size > 124 || width < 1 || height < 1 || file.Little(header + 14, 2) != 32
        || file.Little(header + 16, 4) != 0)
        return {};
    const std::int64_t pixels = header + size;
    QImage image = NewImage(width, height, QImage::Format_ARGB32);
    bool hasAlpha = false;
    for (std::int64_t y = 0; y < height; ++y) {
        QRgb* const row = RowOf(image, height - 1 - y);
        for (std::int64_t x = 0; x < width; ++x) {
            row[x] = static_cast<QRgb>(file.Little(pixels + (y * width + x) * 4, 4));
            hasAlpha = hasAlpha || qAlpha(row[x]) != 0;
        }
    }
    const std::int64_t mask = pixels + width * height * 4, maskRow = (width + 31) / 32 * 4;
    if (hasAlpha || file.Size() < mask + maskRow * height)
        return image;
    for (std::int64_t y = 0; y < height; ++y) {
        QRgb* const row = RowOf(image, height - 1 - y);
        for (std::int64_t x = 0; x < width; ++x)
            if ((file.U8(mask + y * maskRow + x / 8) & 0x80 >> x % 8) == 0)
                row[x] |= 0xFF000000;
    }
    return image;
}

namespace {

/// "P" and the kind, then numbers apart by white space, with comments from "#" to the line's end:
/// width, height and, but for PBM, the highest value of a sample. Then the samples, row after row:
///
///   kind     1 PBM, 2 PGM, 3 PPM, as numbers; those of a PBM are single digits
///            4 PBM, 8 pixels a byte; 5 PGM, 6 PPM, one byte a sample, or two, the higher one
///            first, where the highest value is above 255. One white space stands before them.
///
/// In a PBM 1 is black.
class PnmReader {
public:
    explicit PnmReader(FileBytes& file)
        : m_file(file)
        , m_kind(file.U8(1) - '0')
    {
        m_width = Number();
        m_height = Number();
        m_most = IsBitmap() ? 1 : Number();
        ++m_at;
        if (m_width < 1 || m_height < 1 || m_most < 1 || m_most > 65535)
            throw BrokenFile("numbers of a PNM");
    }

    HeaderClaim Claim() const { return { .width = m_width, .height = m_height }; }

    QImage Read()
    {
        const bool isColour = m_kind == 3 || m_kind == 6;
        QImage image = NewImage(
            m_width, m_height, isColour ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
        const std::int64_t samples = m_width * (isColour ? 3 : 1);
        for (std::int64_t y = 0; y < m_height; ++y) {
            uchar* const row = image.scanLine(static_cast<int>(y));
            for (std::int64_t i = 0; i < samples; ++i)
                row[i] = static_cast<uchar>(Sample(i));
        }
        return image;
    }

private:
    bool IsBitmap() const { return m_kind == 1 || m_kind == 4; }

    std::uint8_t Next() { return m_file.U8(m_at++); }

    /// Goes to what is no white space and no comment.
    void SkipBlanks()
    {
        while (true) {
            const std::uint8_t letter = m_file.U8(m_at);
            if (letter == '#')
                while (Next() != '\n') { }
            else if (letter == ' ' || (letter >= '\t' && letter <= '\r'))
                ++m_at;
            else
                return;
        }
    }

    std::int64_t Number()
    {
        constexpr std::int64_t Most = 1'000'000'000;
        SkipBlanks();
        std::int64_t value = -1;
        // The last number of a file may end with it.
        while (m_at < m_file.Size() && m_file.U8(m_at) >= '0' && m_file.U8(m_at) <= '9')
            value = std::min(std::max<std::int64_t>(value, 0) * 10 + Next() - '0', Most);
        if (value < 0)
            throw BrokenFile("no number in a PNM");
        return value;
    }

    /// 0 to 255; `i` counts in the row.
    int Sample(std::int64_t i)
    {
        switch (m_kind) {
        case 1:
            SkipBlanks();
            return BitSample();
        case 4:
            m_bits = i % 8 == 0 ? Next() : m_bits << 1;
            return (m_bits & 0x80) != 0 ? 0 : 255;
        case 2:
        case 3:
            return Widened(
                static_cast<std::uint64_t>(Number()), static_cast<std::uint64_t>(m_most));
        default:
            return RawSample();
        }
    }

    int BitSample()
    {
        const std::uint8_t digit = Next();
        if (digit != '0' && digit != '1')
            throw BrokenFile("a digit of a PBM");
        return digit == '0' ? 255 : 0;
    }

    int RawSample()
    {
        if (m_most == 255)
            return Next();
        std::uint64_t value = Next();
        if (m_most > 255)
            value = value << 8 | Next();
        return Widened(value, static_cast<std::uint64_t>(m_most));
    }

    FileBytes& m_file;
    int m_kind;
    std::int64_t m_at = 2;
    std::int64_t m_width = 0, m_height = 0, m_most = 0;
    int m_bits = 0; // of the byte that is being read
};

} // namespace

HeaderClaim ClaimOfPnm(FileBytes& file) { return PnmReader(file).Claim(); }

QImage ReadPnm(FileBytes& file) { return PnmReader(file).Read(); }

} // namespace vypx
