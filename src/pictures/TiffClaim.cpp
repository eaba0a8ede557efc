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

} // namespace

/// The decoder holds a whole tile, and of some pictures the whole of their samples as they stand in
/// the file.
HeaderClaim ClaimOfTiff(FileBytes& file)
{
    constexpr std::uint64_t MostSide = 1u << 31, MostSamples = 64, MostBits = 64;
    constexpr std::uint64_t MostTileBytes = 100'000'000;
    TiffDirectory directory(file);
    const std::uint64_t width = directory.Largest(ImageWidth, 0);
    const std::uint64_t height = directory.Largest(ImageLength, 0);
    const std::uint64_t bits = directory.Largest(BitsPerSample, 1);
    const std::uint64_t samples = directory.Largest(SamplesPerPixel, 1);
    const std::uint64_t tileWidth = directory.Largest(TileWidth, 1);
    const std::uint64_t tileHeight = directory.Largest(TileLength, 1);
    if (std::min({ width, height, bits, samples, tileWidth, tileHeight }) < 1
        || std::max({ width, height, tileWidth, tileHeight }) > MostSide || bits > MostBits
        || samples > MostSamples)
        throw BrokenFile("directory of a TIFF");

    const std::uint64_t pixelBytes = (bits * samples + 7) / 8;
    HeaderClaim claim{
        .width = static_cast<std::int64_t>(width),
        .height = static_cast<std::int64_t>(height),
        .pixelBytes = static_cast<int>(pixelBytes),
    };
    if (tileWidth > MostTileBytes || tileHeight > MostTileBytes / tileWidth / pixelBytes)
        claim.whyNot = "its tiles are too large";
    else if (!IsReadable(directory.Largest(Compression, 1)))
        claim.whyNot = "it is packed in a way that can't be read here";
    return claim;
}

} // namespace vypx
