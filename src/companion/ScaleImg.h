#pragma once

#include "companion/Picture.h"

namespace vypx {

/// Resamples the upper left sourceWidth x sourceHeight pixels of `source` into the upper left
/// targetWidth x targetHeight ones of `target`. Along an axis that shrinks a pixel is the average
/// of the area that it covers; along one that grows it is interpolated between its two neighbours,
/// edges held. Sizes that the pictures don't have, or below 1, do nothing.
void ScaleImg(const Picture& source, Picture& target, int sourceWidth, int sourceHeight,
    int targetWidth, int targetHeight);

} // namespace vypx
