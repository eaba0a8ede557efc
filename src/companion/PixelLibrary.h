#pragma once

#include "companion/Palettes.h"
#include "companion/Picture.h"
#include "companion/PixelBuffer.h"

#include <string>

/// The pixel half of the module: plain operations without state. Paths are UTF-8. Nothing is
/// reported: a picture that can't be made (a width that the rows don't hold, sides below 1) and a
/// file that can't be written do not appear.
namespace vypx {

/// Expanded pixels of a Palm bitmap as a 24-bit BMP file, each pixel looked up in the table. The
/// high bits of a byte are the leftmost pixel.
void Bmp1to24(
    const PixelBuffer& pixels, Palette palette1, int width, int height, const std::string& path);
void Bmp2to24(
    const PixelBuffer& pixels, Palette palette2, int width, int height, const std::string& path);
void Bmp4to24(
    const PixelBuffer& pixels, Palette palette4, int width, int height, const std::string& path);
void Bmp8to24(
    const PixelBuffer& pixels, Palette palette8, int width, int height, const std::string& path);
/// Two bytes for a pixel, big-endian, 5 bits red, 6 green, 5 blue.
void Bmp16to24(const PixelBuffer& pixels, int width, int height, const std::string& path);

/// The same with each pixel replaced by the nearest colour of the table. The source depth, 16 or
/// 8, is the bitmap's.
void RGB16to8Bit(const PixelBuffer& pixels, Palette palette8, int width, int height,
    int sourceDepth, const std::string& path);
void RGB16to4Bit(const PixelBuffer& pixels, Palette palette4, int width, int height,
    int sourceDepth, const std::string& path);
void RGB8to4Bit(const PixelBuffer& pixels, Palette palette4, Palette palette8, int width,
    int height, int sourceDepth, const std::string& path);

/// Replaces the colour by the nearest one of the palette of that depth, 4 or 8.
void TCchange(Palette palette4, Palette palette8, int depth, int& red, int& green, int& blue);

/// The upper left width x height pixels of a picture as a BMP file of 4, 8 or 24 bits; at 4 and 8
/// bits each pixel is the nearest colour of the table, which the file carries.
void WriteBmp4(
    const Picture& picture, Palette palette4, int width, int height, const std::string& path);
void WriteBmp8(
    const Picture& picture, Palette palette8, int width, int height, const std::string& path);
void WriteBmp24(const Picture& picture, int width, int height, const std::string& path);

} // namespace vypx
