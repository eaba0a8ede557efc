#pragma once

#include "companion/Picture.h"

#include <QImage>
#include <QImageIOHandler>

namespace vypx {

/// What a mark of a gamma of 2.2 with the colours of sRGB means.
enum class GammaMark {
    IsSRgb, ///< in a PNG: its writer knew of no mark of sRGB, and meant it
    Counts, ///< the colours are converted
};

/// The pixels of a decoded picture in sRGB with 8 bits a component, turned as told, with a colour
/// for the transparent ones. The image is given up, so that what the copy needs beside it is never
/// more than the three bytes of each pixel. Throws std::bad_alloc.
MaskedPicture CopyPixels(QImage image, QImageIOHandler::Transformations turn, GammaMark mark);

} // namespace vypx
