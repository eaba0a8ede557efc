#pragma once

#include "companion/Picture.h"

namespace vypx {

/// Resamples the upper left sourceWidth x sourceHeight pixels of `source` into the upper left
/// targetWidth x targetHeight ones of `target`. Along an axis that shrinks a pixel is the average
/// of the area that it covers; along one that grows it is interpolated between its two neighbours,
/// edges held. Sizes that the pictures don't have, or below 1, do nothing.
void ScaleImg(const Picture& source, Picture& target, int sourceWidth, int sourceHeight,
    int targetWidth, int targetHeight);

/// The colour of a source's transparent pixels, and the depth that the target will be reduced to:
/// 4, 8 or 16.
struct ScaleMask {
    Rgb transparent;
    int depth = 16;
};

/// The same for a picture with transparent pixels, which are those of exactly that colour. They
/// are never mixed with others: a target pixel of which more than half is transparent gets that
/// colour, any other is the average of its opaque part. Where an axis grows, the weights of the
/// interpolation are what the halves are of.
///
/// The target's pixel (0, 0) is transparent wherever the source's is, since the mask is read from
/// there. An average that the reduction would make transparent is the nearest other colour of the
/// depth. Averages are exact, halves rounded up.
void ScaleImg(const Picture& source, Picture& target, int sourceWidth, int sourceHeight,
    int targetWidth, int targetHeight, const ScaleMask& mask);

} // namespace vypx
