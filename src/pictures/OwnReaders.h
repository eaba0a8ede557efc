#pragma once

#include "pictures/FileBytes.h"

#include <QImage>

/// Readers of our own, for pictures that Qt's readers (6.4) give with other pixels than they have.
namespace vypx {

/// Each gives a null image for a picture that is to be left to Qt's reader. They throw BrokenFile
/// where bytes are missing, and std::bad_alloc. The picture's size has been found to be within the
/// limits.

/// BMP of 16 bits, not compressed: Qt makes 248 of the highest value of 5 bits.
QImage ReadBmpOf16Bits(FileBytes& file);

/// ICO whose first icon has 32 bits: Qt multiplies colours by their alpha, so that they are gone
/// where all alpha is 0 and a mask is meant to count instead.
QImage ReadIconOf32Bits(FileBytes& file);

/// PBM, PGM and PPM, plain or raw: Qt doesn't find the pixels of a plain PBM that stand without
/// blanks, and rounds 16 bits down.
QImage ReadPnm(FileBytes& file);

} // namespace vypx
