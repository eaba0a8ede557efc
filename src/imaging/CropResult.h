#pragma once

#include "companion/Picture.h"
#include "imaging/CropRectangle.h"
#include "settings/ColorDepth.h"

/// From a picture of any size to one of exactly the slot's. Transparent pixels stay apart from all
/// others; the border never is transparent.
namespace vypx {

/// The region of the picture, at its own scale. What lies outside of the picture has the border's
/// colour. Without a transparent pixel in it, it is opaque. The whole of a picture that is moved
/// here is not copied. Throws as Picture does.
MaskedPicture CutRegion(MaskedPicture source, const PixelRegion& region, Rgb border);

/// `ScaleCropResult`: the whole picture resampled to `target`, see ScaleImg. A transparent pixel
/// (0, 0) stays one. `depth` is that at which the result will be stored.
MaskedPicture ScaleCropResult(const MaskedPicture& cut, PixelSize target, ColorDepth depth);

} // namespace vypx
