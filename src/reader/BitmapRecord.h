#pragma once

#include "companion/ByteView.h"
#include "companion/Rgb.h"
#include "reader/ExpandPixels.h"

namespace vypx {

/// Header of a Palm bitmap record. Big-endian; offsets from the record's first byte.
/// Source: Palm OS Programmer's API Reference, "Bitmaps" (BitmapTypeV0 to V3).
///
///   Low density, versions 0 to 2          High density, version 3
///   offset width field                    offset width field
///        0     2 width                         the same
///        2     2 height                        the same
///        4     2 rowBytes                      the same
///        6     1 flags                         the same
///        8     1 pixelSize                     the same
///       10     2 nextDepthOffset * 4          20     4 nextBitmapOffset, its last three bytes
///       12     1 transparentIndex             16     4 transparentValue: the index in its last
///                                                      byte, at 16 bits a 5-6-5 colour in its
///                                                      last two
///       13     1 compressionType              13     1 the same
///       16     8 at 16 bits only: direct      24       pixels
///                colour, 5 to 7 the
///                transparent colour
///       16/24    pixels                       28       pixels behind a size field of 4
///       18/26    pixels behind a size
///                field of 2
///
/// flags: 0x80 compressed, 0x20 has a transparent colour. A colour table is not understood.
struct BitmapRecord {
    ByteView bytes;
    bool highDensity = false;

    int Width() const { return bytes.U16(0); }
    int Height() const { return bytes.U16(2); }
    int RowBytes() const { return bytes.U16(4); }
    int PixelSize() const { return bytes.U8(8); }
    bool HasTransparent() const { return (bytes.U8(6) & 0x20) != 0; }

    /// At 1 to 8 bits.
    int TransparentIndex() const { return bytes.U8(highDensity ? 19 : 12); }
    /// At 16 bits.
    Rgb TransparentColour() const;
    /// Any type but 0, 1 and 2 is not compressed.
    Compression Form() const;
    StoredPixels Pixels() const;
};

} // namespace vypx
