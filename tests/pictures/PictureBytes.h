#pragma once

#include "companion/ByteView.h"

#include <initializer_list>
#include <string_view>

/// Pieces of picture files, put together by hand.
namespace vypx::test {

/// A text's characters.
Bytes Text(std::string_view text);
Bytes Little(std::uint64_t value, int width);
Bytes Big(std::uint64_t value, int width);

/// A BMP without its colour table and pixels: header of 40 bytes, so the table begins at 54 and the
/// pixels behind `colours` entries of 4 bytes.
Bytes BmpHeader(std::int32_t width, std::int32_t height, int bits, int compression, int colours);

/// Signature and first chunk of a PNG.
Bytes PngHeader(std::uint32_t width, std::uint32_t height, int bits, int colourType);
Bytes PngChunk(std::string_view type, const Bytes& data);
/// A whole PNG with chunks put in behind its first.
Bytes WithPngChunks(const Bytes& png, std::initializer_list<Bytes> chunks);
/// Bytes as a zlib stream that packs nothing.
Bytes AsZlib(const Bytes& bytes);

/// A JPEG with a segment put in behind its first two bytes.
Bytes WithJpegSegment(const Bytes& jpeg, int kind, const Bytes& data);
/// What stands in a segment 0xE1 of a photo: the orientation alone.
Bytes Exif(int orientation, bool isLittle);

/// An ICC profile (version 2) of the colours of sRGB, but with red and blue exchanged, and a gamma
/// of 1. `space` is "RGB " or "GRAY".
Bytes ExchangingProfile(std::string_view space);

} // namespace vypx::test
