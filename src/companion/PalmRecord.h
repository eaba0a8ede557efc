#pragma once

#include "companion/ByteView.h"
#include "companion/Palettes.h"
#include "companion/Picture.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>

/// Palm bitmap records as this program writes them: one record for each density, at 4, 8 or 16
/// bits. Big-endian. Source: Palm OS Programmer's API Reference, "Bitmaps".
///
///   Low density                              High density
///   offset width field                       offset width field
///        0     2 width                            0     2 width
///        2     2 height                           2     2 height
///        4     2 rowBytes, even                   4     2 rowBytes, even
///        6     2 flags                            6     2 flags
///        8     1 pixelSize                        8     1 pixelSize
///        9     1 version, 2                       9     1 version, 3
///       10     2 nextDepthOffset / 4             10     1 size of the header, 24
///       12     1 transparentIndex                11     1 pixelFormat: 0 indexed, 1 5-6-5
///       13     1 compressionType                 12     1 0
///       14     2 0                               13     1 compressionType
///       16     8 at 16 bits: 5 6 5 0 0 and       14     2 density, 144
///                the transparent colour          16     4 transparentValue
///    16/24       pixels, or a size field of      20     4 nextBitmapOffset, 0: the last
///                2 with itself and pixels        24       pixels, or a size field of 4 with itself
///                                                         and pixels
///
/// flags: 0x8000 compressed, 0x2000 transparent, 0x0400 direct colour (all records at 16 bits).
/// compressionType: 2 PackBits, 0xFF none. A record is padded to 4 bytes.
namespace vypx {

/// How records are made.
struct RecordForm {
    int depth = 16; ///< 16, 8 or 4
    bool packed = false;
    Palette palette8, palette4;
};

/// A picture that the fields of a record can't tell: a row above 65535 bytes, or a low-density
/// record above 262140 bytes that something follows.
class RecordTooLarge : public std::length_error {
public:
    RecordTooLarge()
        : std::length_error("this picture is too large for a Palm bitmap of this depth")
    {
    }
};

/// Whether a low-density record of that many bytes can lead to what follows it.
constexpr bool CanLeadOn(std::size_t bytes) { return bytes / 4 <= UINT16_MAX; }

/// A low-density record. With `leadsOn` it leads to what follows right behind it. Throws
/// RecordTooLarge.
Bytes EncodeLowDensity(const Picture& picture, const RecordForm& form,
    const std::optional<Rgb>& transparent, bool leadsOn);
/// A high-density record, the last of its family. Throws RecordTooLarge.
Bytes EncodeHighDensity(
    const Picture& picture, const RecordForm& form, const std::optional<Rgb>& transparent);
/// The 16 bytes before the high-density record.
Bytes HighDensityMark();

} // namespace vypx
