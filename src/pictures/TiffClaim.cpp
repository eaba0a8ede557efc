#include "pictures/HeaderClaims.h"

#include <algorithm>

namespace vypx {

namespace {

/// The first directory of a TIFF, of the plain and the big form. All in the byte order that the
/// first two bytes tell, "II" little-endian or "MM" big-endian:
///
///   plain  big field
///       2    2 42, or 43 in the big form
///       4    8 offset of the directory (4 or 8 bytes)
///
/// A directory is a count (2 or 8 bytes) and that many entries of 12 or 20 bytes:
///
///       0    0 tag (2 bytes)
///       2    2 type (2 bytes): 1 byte, 3 short, 4 long, 16 long of 8 bytes
///       4    4 count of values (4 or 8 bytes)
///       8   12 the values, or their offset where they need more than 4 or 8 bytes
///
/// Source: Adobe, "TIFF Revision 6.0", section 2.
class TiffDirectory {
public:
    explicit TiffDirectory(FileBytes& file)
        : m_file(file)
        , m_isLittle(file.U8(0) == 'I')
        , m_isBig(Get(2, 2) == 43)
    {
        const std::int64_t at = m_isBig ? Offset(8, 8) : Offset(4, 4);
        m_entries = at + (m_isBig ? 8 : 2);
        m_count = Get(at, m_isBig ? 8 : 2);
        if (m_count > 65535)
            throw BrokenFile("directory of a TIFF");
    }

    /// The largest value of a tag; `missing` where it is not there. The decoder takes the first
    /// entry of a tag.
    std::uint64_t Largest(int tag, std::uint64_t missing)
    {
        for (std::uint64_t i = 0; i < m_count; ++i) {
            const std::int64_t entry =
                m_entries + static_cast<std::int64_t>(i) * (m_isBig ? 20 : 12);
            if (Get(entry, 2) == static_cast<std::uint64_t>(tag))
                return LargestOf(entry);
        }
        return missing;
    }

private:
    std::uint64_t LargestOf(std::int64_t entry)
    {
        const int width = WidthOf(Get(entry + 2, 2));
        const std::uint64_t count = Get(entry + 4, m_isBig ? 8 : 4);
        // Only samples have more values than one, and as many as there are of them.
        if (width == 0 || count < 1 || count > 65535)
            throw BrokenFile("entry of a TIFF's directory");
        const int room = m_isBig ? 8 : 4;
        const std::int64_t inside = entry + (m_isBig ? 12 : 8);
        const bool isInside = count <= static_cast<std::uint64_t>(room / width);
        const std::int64_t values = isInside ? inside : Offset(inside, room);
        std::uint64_t largest = 0;
        for (std::uint64_t i = 0; i < count; ++i)
            largest = std::max(largest, Get(values + static_cast<std::int64_t>(i) * width, width));
        return largest;
    }

    static int WidthOf(std::uint64_t type)
    {
        return type == 1 ? 1 : type == 3 ? 2 : type == 4 ? 4 : type == 16 ? 8 : 0;
    }

    std::uint64_t Get(std::int64_t offset, int width)
    {
        return m_isLittle ? m_file.Little(offset, width) : m_file.Big(offset, width);
    }
    std::int64_t Offset(std::int64_t offset, int width)
    {
        const std::uint64_t value = Get(offset, width);
        if (value > static_cast<std::uint64_t>(m_file.Size()))
            throw PastTheEnd();
        return static_cast<std::int64_t>(value);
    }

    FileBytes& m_file;
    bool m_isLittle, m_isBig;
    std::int64_t m_entries = 0;
    std::uint64_t m_count = 0;
};

enum Tag {
    ImageWidth = 256,
    ImageLength = 257,
    BitsPerSample = 258,
    Compression = 259,
    Photometric = 262,
    SamplesPerPixel = 277,
    TileWidth = 322,
    TileLength = 323,
};

/// Ways of packing whose decoders keep within what they are given: none, the three of CCITT, LZW,
/// JPEG, Deflate (two numbers) and PackBits. Others are rare, and some take gigabytes on a word of
/// the file.
bool IsReadable(std::uint64_t compression)
{
    constexpr std::uint64_t Readable[] = { 1, 2, 3, 4, 5, 7, 8, 32773, 32946 };
    return std::find(std::begin(Readable), std::end(Readable), compression) != std::end(Readable);
}

/// The numbers of a first directory that count for memory and time.
struct TiffShape {
    std::uint64_t width, height, pixelBytes;
    std::uint64_t tileWidth, tileHeight; ///< 0: the picture comes in strips
};

TiffShape ShapeOf(TiffDirectory& directory)
{
    constexpr std::uint64_t MostSide = 1u << 31, MostSamples = 64, MostBits = 64;
    const std::uint64_t bits = directory.Largest(BitsPerSample, 1);
    const std::uint64_t samples = directory.Largest(SamplesPerPixel, 1);
    const TiffShape shape{
        .width = directory.Largest(ImageWidth, 0),
        .height = directory.Largest(ImageLength, 0),
        .pixelBytes = (bits * samples + 7) / 8,
        .tileWidth = directory.Largest(TileWidth, 0),
        .tileHeight = directory.Largest(TileLength, 0),
    };
    if (std::min({ shape.width, shape.height, bits, samples }) < 1
        || std::max({ shape.width, shape.height, shape.tileWidth, shape.tileHeight }) > MostSide
        || bits > MostBits || samples > MostSamples)
        throw BrokenFile("directory of a TIFF");
    return shape;
}

/// The decoder holds a whole tile, and decodes all of those at the edges.
bool HasLargeTiles(const TiffShape& shape)
{
    constexpr std::uint64_t MostTileBytes = 100'000'000, MostBytes = 1'000'000'000;
    if (shape.tileWidth == 0 || shape.tileHeight == 0)
        return false;
    const std::uint64_t tilePixels = shape.tileWidth * shape.tileHeight;
    if (tilePixels > MostTileBytes / shape.pixelBytes)
        return true;
    const std::uint64_t tiles =
        ((shape.width - 1) / shape.tileWidth + 1) * ((shape.height - 1) / shape.tileHeight + 1);
    return tiles > MostBytes / (tilePixels * shape.pixelBytes);
}

} // namespace

/// Of some pictures the decoder holds all samples as they stand in the file, beside the pixels that
/// come of them.
HeaderClaim ClaimOfTiff(FileBytes& file)
{
    constexpr std::uint64_t Lab = 8, LabCost = 8; // bytes; its colours take long to work out
    TiffDirectory directory(file);
    const TiffShape shape = ShapeOf(directory);
    const bool isLab = directory.Largest(Photometric, 0) == Lab;
    HeaderClaim claim{
        .width = static_cast<std::int64_t>(shape.width),
        .height = static_cast<std::int64_t>(shape.height),
        .pixelBytes = static_cast<int>(std::max(shape.pixelBytes, isLab ? LabCost : 0)),
    };
    if (!IsReadable(directory.Largest(Compression, 1)))
        claim.whyNot = "it is packed in a way that can't be read here";
    else if (HasLargeTiles(shape))
        claim.whyNot = "its tiles are too large";
    return claim;
}

} // namespace vypx
