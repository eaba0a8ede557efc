#pragma once

#include "companion/LoadedPicture.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// Picture files from outside, read by content and never by their ending: BMP, GIF, ICO, JPEG, PNG,
/// PNM, TIFF, WebP, XBM and XPM, as far as this system has readers for them.
namespace vypx {

/// Loads the first picture of a file (UTF-8 path): the first frame of an animation, turned as its
/// orientation tag says, in sRGB with 8 bits a component. A pixel with an alpha below 128 is
/// transparent, any other one opaque in its own colour; a picture without any opaque pixel is
/// opaque throughout. Transparent pixels get a colour that no other pixel has: 255, 0, 255, or the
/// next free one.
///
/// Up to 32,767 pixels a side and 400 million bytes as decoded: 100 million pixels, 50 million
/// where one takes 8 bytes or the file is a progressive JPEG. Nothing throws.
LoadedPicture LoadPicture(const std::string& path);

/// The same of a file's bytes.
LoadedPicture LoadPictureBytes(std::span<const std::uint8_t> bytes);

/// Pixels that the file's header claims, without decoding it; 0 when they can't be told, as of a
/// file that is no picture.
std::int64_t PixelsClaimed(const std::string& path);
std::int64_t PixelsClaimed(std::span<const std::uint8_t> bytes);

/// Endings of the files that can be loaded here, in lower case without a point, sorted.
std::vector<std::string> PictureEndings();

} // namespace vypx
