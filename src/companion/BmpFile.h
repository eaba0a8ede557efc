#pragma once

#include "companion/ByteView.h"
#include "companion/Palettes.h"
#include "companion/Picture.h"

#include <optional>
#include <string>
#include <system_error>

/// Windows BMP files, as working files and exports are: uncompressed, rows from the bottom, each
/// padded to 4 bytes. Little-endian:
///
///   offset width field
///        0     2 "BM"
///        2     4 size of the file
///        6     4 0
///       10     4 offset of the pixels: 54, behind the colour table
///       14     4 40, size of the header from here on
///       18     4 width          pixels
///       22     4 height         pixels
///       26     2 1, planes
///       28     2 bits           per pixel: 4, 8 or 24
///       30     4 0, not compressed
///       34     4 size of the pixels
///       38     8 2835 twice, pixels per metre
///       46     4 colours in the table
///       50     4 0
///       54   4*n colour table: blue, green, red, 0; none at 24 bits
///
/// Source: Microsoft, "Bitmap Storage" (BITMAPFILEHEADER, BITMAPINFOHEADER).
namespace vypx {

/// What stands before the pixels. `bits` is 4, 8 or 24; `colours` the table at 4 and 8. Throws
/// std::length_error for sides below 1 or a file of more than 1 GiB.
Bytes BmpHeader(int width, int height, int bits, Palette colours = {});

/// A BMP in the making: the header stands, the pixels are 0.
class BmpBytes {
public:
    /// As BmpHeader.
    BmpBytes(int width, int height, int bits, Palette colours = {});

    /// The row's bytes without padding; `y` counts from the top.
    std::uint8_t* Row(int y);

    const Bytes& File() const { return m_file; }

private:
    int m_height;
    std::size_t m_rowSize, m_pixels = 0;
    Bytes m_file;
};

/// A picture as a 24-bit BMP.
Bytes EncodeBmp24(const Picture& picture);

/// Writes the upper left part of a picture, which has it, as a 24-bit BMP: some rows at a time, so
/// that a large picture needs no room for a second one. Throws as BmpHeader does, before there is a
/// file; the result is NewWorkingFile's.
std::error_code WriteBmp24InPieces(
    const Picture& picture, int width, int height, const std::string& path);

/// Reads what the above writes, at 4, 8 and 24 bits. Empty for anything else, and for a file that
/// is shorter than its header says.
std::optional<Picture> DecodeBmp(ByteView file);

} // namespace vypx
