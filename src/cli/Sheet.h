#pragma once

#include "companion/Picture.h"
#include "pictures/PictureWriter.h"

#include <span>

namespace vypx {

/// How many icons a sheet of at most `side` x `side` pixels shows: 1 below 128, 4 below 512, else
/// 16.
int IconsOnSheet(int side);

/// The picture, made smaller in its shape where it is larger than `width` x `height` pixels.
MaskedPicture FitInto(MaskedPicture picture, int width, int height);

/// A picture of at most `side` x `side` pixels, 1 or more, that shows the pictures in rows: in as
/// many columns as make them largest. Each is as many times as large as its part of the sheet
/// holds, a whole number, with every pixel a square of one colour; one that is larger than its part
/// is shrunk. What no picture covers is transparent. There is at least one picture, and none is
/// null.
OpacityPicture MakeSheet(std::span<const MaskedPicture> pictures, int side);

} // namespace vypx
