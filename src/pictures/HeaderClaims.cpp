#include "pictures/HeaderClaims.h"

#include <algorithm>
#include <cstdlib>

namespace vypx {

namespace {

constexpr int CostsTwice = 8; // bytes; a second picture stands beside the one that comes out of it

/// Whether a PNG begins there.
bool IsPngAt(FileBytes& file, std::int64_t offset)
{
    constexpr std::uint64_t Signature = 0x89504E470D0A1A0A;
    return file.Size() - offset >= 8 && file.Big(offset, 8) == Signature;
}

} // namespace

/// Little-endian:
///
///   offset width field
///       10     4 offset of the pixels
///       14     4 size of the header from here on; 12: the old form with 16-bit sides
///       18     4 width
///       22     4 height         below 0: rows from the top
///       28     2 bits           per pixel
///       30     4 0 not compressed, 3 and 6 the same with masks of the components, 1 runs of 8 bits
///
/// The reader leaves as they come from the heap rows that the file does not have, and pixels that
/// runs of 8 bits pass over. Those are 0 elsewhere.
HeaderClaim ClaimOfBmp(FileBytes& file)
{
    const bool isOld = file.Little(14, 4) == 12;
    HeaderClaim claim{
        .width = isOld ? static_cast<std::int64_t>(file.Little(18, 2)) : file.LittleSigned(18),
        .height =
            isOld ? static_cast<std::int64_t>(file.Little(20, 2)) : std::abs(file.LittleSigned(22)),
        .leavesGaps = true,
    };
    const auto bits = static_cast<std::int64_t>(file.Little(isOld ? 24 : 28, 2));
    const std::uint64_t compression = isOld ? 0 : file.Little(30, 4);
    if (claim.width < 1 || claim.height < 1 || bits < 1 || bits > 32)
        throw BrokenFile("sides or bits of a BMP");
    if (compression == 0 || compression == 3 || compression == 6) {
        const std::int64_t rowSize = (claim.width * bits + 31) / 32 * 4;
        const auto pixels = static_cast<std::int64_t>(file.Little(10, 4));
        if (rowSize > (file.Size() - pixels) / claim.height)
            throw PastTheEnd();
    }
    return claim;
}

/// Little-endian:
///
///   offset width field
///        6     2 width of the screen on which all frames are drawn; 0: as far as the first goes
///        8     2 height
///       10     1 flags           0x80: a colour table of 2 << (flags & 7) colours follows
///       13       blocks
///
/// Blocks begin with 0x21, an extension: its kind, then parts of a size (1 byte) and that many
/// bytes each, ended by a part of 0 bytes; or with 0x2C, a frame: left, top, width, height (2 bytes
/// each).
HeaderClaim ClaimOfGif(FileBytes& file)
{
    HeaderClaim claim{
        .width = static_cast<std::int64_t>(file.Little(6, 2)),
        .height = static_cast<std::int64_t>(file.Little(8, 2)),
    };
    const std::uint8_t flags = file.U8(10);
    std::int64_t at = 13 + ((flags & 0x80) != 0 ? 3 * (2 << (flags & 7)) : 0);
    while (file.U8(at) == 0x21) {
        at += 2;
        while (file.U8(at) != 0)
            at += 1 + file.U8(at);
        ++at;
    }
    if (file.U8(at) != 0x2C)
        throw BrokenFile("a GIF without a frame");
    if (claim.width == 0)
        claim.width = static_cast<std::int64_t>(file.Little(at + 1, 2) + file.Little(at + 5, 2));
    if (claim.height == 0)
        claim.height = static_cast<std::int64_t>(file.Little(at + 3, 2) + file.Little(at + 7, 2));
    return claim;
}

/// Little-endian:
///
///   offset width field
///        6     1 width of the first icon, 0 for 256 and more
///        7     1 height
///       18     4 offset of the first icon: a PNG, or a BMP without its first 14 bytes and with
///       twice
///                the height, as a mask follows the colours
///
/// The reader makes a second picture when it puts the mask in.
HeaderClaim ClaimOfIco(FileBytes& file)
{
    const auto icon = static_cast<std::int64_t>(file.Little(18, 4));
    HeaderClaim claim{ .pixelBytes = CostsTwice };
    if (IsPngAt(file, icon)) {
        claim.width = static_cast<std::int64_t>(file.Big(icon + 16, 4));
        claim.height = static_cast<std::int64_t>(file.Big(icon + 20, 4));
    } else {
        // Readers go by the one or by the other.
        claim.width = std::max<std::int64_t>(file.U8(6), file.LittleSigned(icon + 4));
        claim.height = std::max<std::int64_t>(file.U8(7), file.LittleSigned(icon + 8) / 2);
        const std::uint64_t bits = file.Little(icon + 14, 2), colours = file.Little(icon + 32, 4);
        constexpr std::uint64_t Known[] = { 1, 4, 8, 24, 32 };
        if (std::find(std::begin(Known), std::end(Known), bits) == std::end(Known)
            || (bits <= 8 && colours > 1u << bits))
            throw BrokenFile("bits or colours of an icon");
    }
    if (claim.width < 1 || claim.height < 1)
        throw BrokenFile("sides of an icon");
    return claim;
}

namespace {

/// Segments of a JPEG: 0xFF, its kind, and (but for a few kinds) a big-endian size that counts
/// itself.
class JpegWalk {
public:
    explicit JpegWalk(FileBytes& file)
        : m_file(file)
    {
    }

    /// Goes to the next segment; packed pixels are passed over, and what else doesn't belong there,
    /// as decoders do. False at the end of the picture or file.
    bool Next()
    {
        const std::int64_t size = m_file.Size();
        for (; m_at + 1 < size; ++m_at) {
            if (m_file.U8(m_at) != 0xFF)
                continue;
            m_kind = m_file.U8(m_at + 1);
            // A stuffed byte, a filling one, a restart in the pixels, the start.
            if (m_kind == 0 || m_kind == 0xFF || m_kind == 1 || (m_kind >= 0xD0 && m_kind <= 0xD8))
                continue;
            if (m_kind == EndOfPicture)
                return false;
            m_body = m_at + 4;
            m_at += 2 + static_cast<std::int64_t>(m_file.Big(m_at + 2, 2));
            return true;
        }
        return false;
    }

    bool IsFrame() const
    {
        return m_kind >= 0xC0 && m_kind <= 0xCF && m_kind != 0xC4 && m_kind != 0xC8
            && m_kind != 0xCC;
    }
    bool IsProgressiveFrame() const { return IsFrame() && (m_kind & 3) == 2; }
    bool IsScan() const { return m_kind == 0xDA; }
    /// Offset of what stands behind the segment's size.
    std::int64_t Body() const { return m_body; }

private:
    static constexpr std::uint8_t EndOfPicture = 0xD9;

    FileBytes& m_file;
    std::int64_t m_at = 0, m_body = 0;
    std::uint8_t m_kind = 0;
};

} // namespace

/// A picture that comes in several scans is kept as coefficients until the last: 2 bytes for each
/// of up to 4 components, beside the pixels that are made of them. Each scan, however short it is,
/// passes over all of them, so a file of few bytes could keep the reader busy for hours.
HeaderClaim ClaimOfJpeg(FileBytes& file)
{
    constexpr std::int64_t MostScannedPixels = 2'500'000'000;
    JpegWalk walk(file);
    HeaderClaim claim;
    int components = 0;
    bool isProgressive = false;
    for (std::int64_t scans = 0; walk.Next();) {
        if (walk.IsFrame()) {
            if (claim.width > 0)
                throw BrokenFile("a second frame in a JPEG");
            isProgressive = walk.IsProgressiveFrame();
            claim.height = static_cast<std::int64_t>(file.Big(walk.Body() + 1, 2));
            claim.width = static_cast<std::int64_t>(file.Big(walk.Body() + 3, 2));
            components = file.U8(walk.Body() + 5);
        } else if (walk.IsScan()) {
            if (claim.width == 0)
                throw BrokenFile("a scan without a frame");
            if (!isProgressive && file.U8(walk.Body()) >= components)
                return claim; // the only one
            claim.pixelBytes = CostsTwice;
            if (++scans * claim.width * claim.height > MostScannedPixels) {
                claim.whyNot = "it comes in too many scans";
                return claim;
            }
        }
    }
    return claim;
}

/// Chunks behind the 12 bytes "RIFF", size, "WEBP"; the first is "VP8X" where there is more than
/// one:
///
///   offset width field
///       12     4 "VP8X"
///       20     1 flags       0x02: an animation
///       24     3 width - 1   of the whole, little-endian
///       27     3 height - 1
///
/// Frames of an animation are decoded apart and then put into the picture.
HeaderClaim ClaimOfWebP(FileBytes& file)
{
    constexpr std::uint64_t Extended = 0x56503858; // "VP8X"
    // The reader takes the whole file into memory.
    constexpr std::int64_t MostBytes = 200'000'000;
    HeaderClaim claim;
    if (file.Big(12, 4) == Extended) {
        claim.width = static_cast<std::int64_t>(file.Little(24, 3)) + 1;
        claim.height = static_cast<std::int64_t>(file.Little(27, 3)) + 1;
        if ((file.U8(20) & 0x02) != 0)
            claim.pixelBytes = CostsTwice;
    }
    if (file.Size() > MostBytes)
        claim.whyNot = "it has more than 200 MB";
    return claim;
}

} // namespace vypx
