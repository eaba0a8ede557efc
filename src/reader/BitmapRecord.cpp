#include "reader/BitmapRecord.h"

#include "companion/NearestColour.h"

namespace vypx {

Rgb BitmapRecord::TransparentColour() const
{
    if (highDensity)
        return From565(bytes.U16(18));
    return { bytes.U8(21), bytes.U8(22), bytes.U8(23) };
}

Compression BitmapRecord::Form() const
{
    const bool compressed = (bytes.U8(6) & 0x80) != 0;
    if (!compressed)
        return Compression::None;
    switch (bytes.U8(13)) {
    case 0:
        return Compression::Scanline;
    case 1:
        return Compression::Rle;
    case 2:
        return Compression::PackBits;
    default:
        return Compression::None;
    }
}

StoredPixels BitmapRecord::Pixels() const
{
    const bool sixteenBits = PixelSize() == 16;
    const std::size_t header = highDensity || sixteenBits ? 24 : 16;
    const std::size_t sizeField = Form() == Compression::None ? 0 : highDensity ? 4 : 2;
    return {
        .bytes = bytes,
        .start = header + sizeField,
        .rowBytes = RowBytes(),
        .height = Height(),
        .sixteenBits = sixteenBits,
    };
}

} // namespace vypx
