#pragma once

#include "companion/ByteView.h"
#include "companion/PixelBuffer.h"

namespace vypx {

/// How the pixel data of a Palm bitmap record are stored. Source of the forms: Palm OS Programmer's
/// API Reference, "Bitmaps"; where the routines below differ from it, a comment says so.
enum class Compression { None, Scanline, Rle, PackBits };

/// A record's pixel data and what its header says about them.
struct StoredPixels {
    ByteView bytes;        ///< the record, its first byte at 0
    std::size_t start = 0; ///< of the data, behind the header and any size field
    int rowBytes = 0, height = 0;
    bool sixteenBits = false; ///< a pixel is two bytes
};

/// Each fills a new PixelBuffer. All throw PastTheEnd for bytes that are not there and for writes
/// past a row's end, once more rows are asked for than the bytes can give.
PixelBuffer CopyPixels(const StoredPixels& stored);
PixelBuffer DecodeScanline(const StoredPixels& stored);
PixelBuffer DecodeRLE(const StoredPixels& stored);
PixelBuffer DecodePackBits(const StoredPixels& stored);

PixelBuffer ExpandPixels(const StoredPixels& stored, Compression compression);

} // namespace vypx
