#pragma once

#include "companion/Palettes.h"
#include "companion/Picture.h"
#include "companion/PixelBuffer.h"

#include <string>
#include <system_error>

/// The pixel half of the module: plain operations without state. Paths are UTF-8. What writes a
/// file gives back why it did not appear: NoPicture, not_enough_memory, or what the system said of
/// the file.
namespace vypx {

/// There is no such picture: a width that the rows don't hold, sides below 1, too many pixels. No
/// other failure is given this code.
inline std::error_code NoPicture()
{
    return std::make_error_code(std::errc::argument_out_of_domain);
}

/// Expanded pixels of a Palm bitmap as a 24-bit BMP file, each pixel looked up in the table. The
/// high bits of a byte are the leftmost pixel.
std::error_code Bmp1to24(
    const PixelBuffer& pixels, Palette palette1, int width, int height, const std::string& path);
std::error_code Bmp2to24(
    const PixelBuffer& pixels, Palette palette2, int width, int height, const std::string& path);
std::error_code Bmp4to24(
    const PixelBuffer& pixels, Palette palette4, int width, int height, const std::string& path);
std::error_code Bmp8to24(
    const PixelBuffer& pixels, Palette palette8, int width, int height, const std::string& path);
/// Two bytes for a pixel, big-endian, 5 bits red, 6 green, 5 blue.
std::error_code Bmp16to24(
    const PixelBuffer& pixels, int width, int height, const std::string& path);

/// The same pixels in memory, at 1, 2, 4, 8 or 16 bits and by the system's colour tables, as the
/// files above would have them. Null: there is no such picture.
Picture PictureOf(const PixelBuffer& pixels, int depth, int width, int height);

/// A BMP file with each pixel replaced by the nearest colour of the table. The source depth, 16 or
/// 8, is the bitmap's.
std::error_code RGB16to8Bit(const PixelBuffer& pixels, Palette palette8, int width, int height,
    int sourceDepth, const std::string& path);
std::error_code RGB16to4Bit(const PixelBuffer& pixels, Palette palette4, int width, int height,
    int sourceDepth, const std::string& path);
std::error_code RGB8to4Bit(const PixelBuffer& pixels, Palette palette4, Palette palette8, int width,
    int height, int sourceDepth, const std::string& path);

/// Replaces the colour by the nearest one of the palette of that depth, 4 or 8.
void TCchange(Palette palette4, Palette palette8, int depth, int& red, int& green, int& blue);

/// The upper left width x height pixels of a picture as a BMP file of 4, 8 or 24 bits; at 4 and 8
/// bits each pixel is the nearest colour of the table, which the file carries.
std::error_code WriteBmp4(
    const Picture& picture, Palette palette4, int width, int height, const std::string& path);
std::error_code WriteBmp8(
    const Picture& picture, Palette palette8, int width, int height, const std::string& path);
std::error_code WriteBmp24(const Picture& picture, int width, int height, const std::string& path);

} // namespace vypx
