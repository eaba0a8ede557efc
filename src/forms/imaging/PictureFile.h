#pragma once

#include "companion/Picture.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <cstdint>
#include <string>

namespace vypx {

/// A picture with more pixels takes so long that the program says so.
inline constexpr std::int64_t ManyPixels = 2'000'000;

/// Width and height fields of a BMP file; 0 x 0 for a file that is too short for them or not there.
QSize PictureSize(const std::string& path);

/// The same as a text, "64 x 44 pixels"; empty for a file that is too
/// short for them.
QString SizeText(const std::string& path);

/// The picture with every pixel of exactly the mask's colour let through.
QImage Masked(const QImage& picture, Rgb mask);

/// Whether the file's name (UTF-8 path) ends like one of a picture that can be loaded here: what
/// stands behind its last point counts, in any case of letters.
bool HasPictureEnding(const std::string& path);

/// A picture as Qt shows it; transparent pixels are let through.
QImage ImageOf(const MaskedPicture& picture);

} // namespace vypx
