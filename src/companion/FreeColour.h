#pragma once

#include "companion/Picture.h"

#include <vector>

namespace vypx {

/// A picture whose transparent pixels have a colour that no opaque one has. `isTransparent` has one
/// entry for each pixel, row after row. Without any transparent pixel, or without any opaque one,
/// all are opaque and the picture stays as it is.
///
/// The colour is 255, 0, 255, or the next that is free when red, green and blue are read as one
/// number, red highest, and counted down: 255, 0, 254 and so on to 0, 0, 0, then from 255, 255,
/// 255. Where the opaque pixels have all 16,777,216 colours, those of the rarest one (the first in
/// that order on a tie, but never the colour of an opaque top-left pixel, which means more than
/// others) change their blue by one.
MaskedPicture WithFreeColour(Picture picture, const std::vector<bool>& isTransparent);

} // namespace vypx
