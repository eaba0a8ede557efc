#include "pictures/PictureBytes.h"

#include "support/Iconsets.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vypx::test {

namespace {

std::uint32_t Crc32(const Bytes& bytes)
{
    std::uint32_t crc = ~0u;
    for (const std::uint8_t byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320u : 0);
    }
    return ~crc;
}

std::uint32_t Adler32(const Bytes& bytes)
{
    std::uint32_t low = 1, high = 0;
    for (const std::uint8_t byte : bytes) {
        low = (low + byte) % 65521;
        high = (high + low) % 65521;
    }
    return high << 16 | low;
}

constexpr std::size_t PngFirstChunkEnd = 33;

} // namespace

Bytes Text(std::string_view text) { return { text.begin(), text.end() }; }

Bytes Little(std::uint64_t value, int width)
{
    Bytes bytes;
    for (int i = 0; i < width; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
    return bytes;
}

Bytes Big(std::uint64_t value, int width)
{
    Bytes bytes = Little(value, width);
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

Bytes BmpHeader(std::int32_t width, std::int32_t height, int bits, int compression, int colours)
{
    const auto bits32 = [](int value) { return Little(static_cast<std::uint32_t>(value), 4); };
    return Join({ Text("BM"), bits32(0), bits32(0), bits32(54 + colours * 4), bits32(40),
        bits32(width), bits32(height), Little(1, 2), Little(static_cast<unsigned>(bits), 2),
        bits32(compression), bits32(0), bits32(2835), bits32(2835), bits32(colours), bits32(0) });
}

Bytes PngHeader(std::uint32_t width, std::uint32_t height, int bits, int colourType)
{
    const Bytes signature = { 0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n' };
    return Join({ signature,
        PngChunk("IHDR",
            Join({ Big(width, 4), Big(height, 4), Big(static_cast<unsigned>(bits), 1),
                Big(static_cast<unsigned>(colourType), 1), Bytes(3, 0) })) });
}

Bytes PngChunk(std::string_view type, const Bytes& data)
{
    const Bytes body = Join({ Text(type), data });
    return Join({ Big(data.size(), 4), body, Big(Crc32(body), 4) });
}

Bytes WithPngChunks(const Bytes& png, std::initializer_list<Bytes> chunks)
{
    Bytes all = png;
    auto at = static_cast<std::ptrdiff_t>(PngFirstChunkEnd);
    for (const Bytes& chunk : chunks) {
        all.insert(all.begin() + at, chunk.begin(), chunk.end());
        at += static_cast<std::ptrdiff_t>(chunk.size());
    }
    return all;
}

Bytes AsZlib(const Bytes& bytes)
{
    const Bytes begin = { 0x78, 0x01, 0x01 }; // Deflate; the last block, as it is
    return Join({ begin, Little(bytes.size(), 2), Little(~bytes.size(), 2), bytes,
        Big(Adler32(bytes), 4) });
}

Bytes WithJpegSegment(const Bytes& jpeg, int kind, const Bytes& data)
{
    const Bytes start(jpeg.begin(), jpeg.begin() + 2), rest(jpeg.begin() + 2, jpeg.end());
    return Join(
        { start, { 0xFF, static_cast<std::uint8_t>(kind) }, Big(data.size() + 2, 2), data, rest });
}

Bytes Exif(int orientation, bool isLittle)
{
    const auto number = [&](unsigned value, int width) {
        return isLittle ? Little(value, width) : Big(value, width);
    };
    constexpr unsigned Orientation = 0x0112, Short = 3;
    return Join({ Text("Exif"), { 0, 0 }, Text(isLittle ? "II" : "MM"), number(42, 2),
        number(8, 4),                                            // where the directory begins
        number(1, 2),                                            // entries in it
        number(Orientation, 2), number(Short, 2), number(1, 4),  // one value
        number(static_cast<unsigned>(orientation), 2), { 0, 0 }, //
        number(0, 4) });                                         // no other directory
}

Bytes ExchangingProfile(std::string_view space)
{
    // Fixed point, 16 bits behind the point. Source: IEC 61966-2-1, adapted to D50.
    const auto xyz = [](std::uint32_t x, std::uint32_t y, std::uint32_t z) {
        return Join({ Text("XYZ "), Bytes(4, 0), Big(x, 4), Big(y, 4), Big(z, 4) });
    };
    const Bytes straight = Join({ Text("curv"), Bytes(8, 0) }); // no entries: a gamma of 1
    const Bytes white = xyz(0xF6D6, 0x10000, 0xD32D);
    const std::vector<std::pair<const char*, Bytes>> greyTags{ { "wtpt", white },
        { "kTRC", straight } };
    const std::vector<std::pair<const char*, Bytes>> colourTags{
        { "wtpt", white },
        { "rXYZ", xyz(0x24A0, 0x0F84, 0xB6CF) }, // sRGB's blue
        { "gXYZ", xyz(0x6299, 0xB785, 0x18DA) },
        { "bXYZ", xyz(0x6FA2, 0x38F5, 0x0390) }, // sRGB's red
        { "rTRC", straight },
        { "gTRC", straight },
        { "bTRC", straight },
    };
    const auto& tags = space == "GRAY" ? greyTags : colourTags;
    constexpr std::size_t HeaderSize = 128;
    const std::size_t count = tags.size();
    std::size_t offset = HeaderSize + 4 + count * 12;
    Bytes table = Big(count, 4), data;
    for (const auto& [name, body] : tags) {
        table = Join({ table, Text(name), Big(offset, 4), Big(body.size(), 4) });
        data = Join({ data, body });
        offset += body.size();
    }
    const Bytes header = Join({ Big(offset, 4), Bytes(4, 0), Big(0x02100000, 4), Text("mntr"),
        Text(space), Text("XYZ "), Bytes(12, 0), Text("acsp"), Bytes(28, 0), Big(0xF6D6, 4),
        Big(0x10000, 4), Big(0xD32D, 4), Bytes(48, 0) });
    return Join({ header, table, data });
}

} // namespace vypx::test
