#include "companion/BmpFile.h"

#include "companion/WorkingFile.h"

#include <algorithm>
#include <stdexcept>

namespace vypx {

namespace {

constexpr std::size_t BmpHeaderSize = 54;
constexpr std::uint64_t MaxFileSize = 1u << 30;
constexpr std::size_t MostPiece = 256u << 10;  // bytes of rows in one write
constexpr std::uint32_t PixelsPerMetre = 2835; // 72 dpi

std::uint64_t RowSizeOf(std::int64_t width, int bits)
{
    return (static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(bits) + 31) / 32 * 4;
}

void PutLittle(Bytes& file, std::size_t offset, std::uint32_t value, int width)
{
    for (int i = 0; i < width; ++i)
        file[offset + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(value >> 8 * i);
}

std::uint32_t GetLittle(ByteView file, std::size_t offset, int width)
{
    std::uint32_t value = 0;
    for (int i = width; i-- > 0;)
        value = value << 8 | file.U8(offset + static_cast<std::size_t>(i));
    return value;
}

struct HeaderFields {
    std::uint32_t pixels, width, height, bits, colours;
};

/// Empty when it is none of ours.
std::optional<HeaderFields> ReadHeader(ByteView file)
{
    if (file.Size() < BmpHeaderSize || file.Text(0, 2) != "BM" || GetLittle(file, 14, 4) != 40
        || GetLittle(file, 26, 2) != 1 || GetLittle(file, 30, 4) != 0)
        return std::nullopt;
    HeaderFields header{
        .pixels = GetLittle(file, 10, 4),
        .width = GetLittle(file, 18, 4),
        .height = GetLittle(file, 22, 4),
        .bits = GetLittle(file, 28, 2),
        .colours = GetLittle(file, 46, 4),
    };
    const bool indexed = header.bits == 4 || header.bits == 8;
    if (!indexed && header.bits != 24)
        return std::nullopt;
    if (indexed && header.colours == 0)
        header.colours = 1u << header.bits;
    if (header.colours > 1u << std::min(header.bits, 8u) || header.width < 1 || header.height < 1
        || header.width > Picture::MaxSide || header.height > Picture::MaxSide)
        return std::nullopt;
    const std::uint64_t tableEnd = BmpHeaderSize + (indexed ? header.colours * 4 : 0);
    const std::uint64_t end =
        header.pixels + RowSizeOf(header.width, static_cast<int>(header.bits)) * header.height;
    if (header.pixels < tableEnd || end > file.Size())
        return std::nullopt;
    return header;
}

/// A colour for every index of a byte, black where the file has none; empty at 24 bits.
std::vector<Rgb> ColourTable(ByteView file, const HeaderFields& header)
{
    std::vector<Rgb> table;
    if (header.bits == 24)
        return table;
    table.resize(256);
    for (std::size_t i = 0; i < header.colours; ++i) {
        const std::size_t at = BmpHeaderSize + i * 4;
        table[i] = { file.U8(at + 2), file.U8(at + 1), file.U8(at) };
    }
    return table;
}

/// Three bytes for a pixel, from blue, green, red to red, green, blue or back.
void SwapEnds(const std::uint8_t* from, std::uint8_t* to, int pixels)
{
    for (int i = 0; i < pixels; ++i, from += 3, to += 3) {
        to[0] = from[2];
        to[1] = from[1];
        to[2] = from[0];
    }
}

} // namespace

Bytes BmpHeader(int width, int height, int bits, Palette colours)
{
    if (width < 1 || height < 1 || width > Picture::MaxSide || height > Picture::MaxSide)
        throw std::length_error("sides of a BMP");
    const std::size_t pixels = BmpHeaderSize + colours.size() * 4;
    const std::uint64_t size = pixels + RowSizeOf(width, bits) * static_cast<std::uint64_t>(height);
    if (size > MaxFileSize)
        throw std::length_error("size of a BMP");
    Bytes header(pixels);
    header[0] = 'B';
    header[1] = 'M';
    PutLittle(header, 2, static_cast<std::uint32_t>(size), 4);
    PutLittle(header, 10, static_cast<std::uint32_t>(pixels), 4);
    PutLittle(header, 14, 40, 4);
    PutLittle(header, 18, static_cast<std::uint32_t>(width), 4);
    PutLittle(header, 22, static_cast<std::uint32_t>(height), 4);
    PutLittle(header, 26, 1, 2);
    PutLittle(header, 28, static_cast<std::uint32_t>(bits), 2);
    PutLittle(header, 34, static_cast<std::uint32_t>(size - pixels), 4);
    PutLittle(header, 38, PixelsPerMetre, 4);
    PutLittle(header, 42, PixelsPerMetre, 4);
    PutLittle(header, 46, static_cast<std::uint32_t>(colours.size()), 4);
    for (std::size_t i = 0; i < colours.size(); ++i) {
        header[BmpHeaderSize + i * 4] = static_cast<std::uint8_t>(colours[i].blue);
        header[BmpHeaderSize + i * 4 + 1] = static_cast<std::uint8_t>(colours[i].green);
        header[BmpHeaderSize + i * 4 + 2] = static_cast<std::uint8_t>(colours[i].red);
    }
    return header;
}

BmpBytes::BmpBytes(int width, int height, int bits, Palette colours)
    : m_height(height)
    , m_rowSize(RowSizeOf(width, bits))
    , m_file(BmpHeader(width, height, bits, colours))
{
    m_pixels = m_file.size();
    m_file.resize(m_pixels + m_rowSize * static_cast<std::size_t>(height));
}

std::uint8_t* BmpBytes::Row(int y)
{
    return m_file.data() + m_pixels + static_cast<std::size_t>(m_height - 1 - y) * m_rowSize;
}

Bytes EncodeBmp24(const Picture& picture)
{
    BmpBytes bmp(picture.Width(), picture.Height(), 24);
    for (int y = 0; y < picture.Height(); ++y)
        SwapEnds(picture.Row(y), bmp.Row(y), picture.Width());
    return bmp.File();
}

std::error_code WriteBmp24InPieces(
    const Picture& picture, int width, int height, const std::string& path)
{
    Bytes piece = BmpHeader(width, height, 24);
    const std::size_t header = piece.size(), rowSize = RowSizeOf(width, 24);
    const std::size_t rows =
        std::clamp<std::size_t>(MostPiece / rowSize, 1, static_cast<std::size_t>(height));
    piece.resize(header + rows * rowSize); // the ends of rows are 0 and stay so

    NewWorkingFile file(path);
    std::size_t begin = 0, end = header; // the first one has the header
    for (int y = height; y-- > 0;) {
        SwapEnds(picture.Row(y), piece.data() + end, width);
        end += rowSize;
        if (end < piece.size() && y > 0)
            continue;
        if (!file.Write({ piece.data() + begin, end - begin }))
            break;
        begin = end = header;
    }
    return file.Close();
}

std::optional<Picture> DecodeBmp(ByteView file)
{
    const std::optional<HeaderFields> header = ReadHeader(file);
    if (!header)
        return std::nullopt;
    Picture picture(static_cast<int>(header->width), static_cast<int>(header->height));
    const std::size_t rowSize = RowSizeOf(header->width, static_cast<int>(header->bits));
    const std::vector<Rgb> table = ColourTable(file, *header);
    for (int y = 0; y < picture.Height(); ++y) {
        const std::uint8_t* const row = file.Span().data() + header->pixels
            + static_cast<std::size_t>(picture.Height() - 1 - y) * rowSize;
        if (header->bits == 24) {
            SwapEnds(row, picture.Row(y), picture.Width());
            continue;
        }
        for (int x = 0; x < picture.Width(); ++x) {
            const int index = header->bits == 8 ? row[x]
                : x % 2 == 0                    ? row[x / 2] >> 4
                                                : row[x / 2] & 15;
            picture.Set(x, y, table[static_cast<std::size_t>(index)]);
        }
    }
    return picture;
}

} // namespace vypx
