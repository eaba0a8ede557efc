#pragma once

#include "imaging/CropView.h"

namespace vypx {

/// The rectangle over the view, in twips. What is resized may be broken twips wide: only so the
/// aspect stays however many small steps are made.
struct CropRectangle {
    double left = 0, top = 0, width = 0, height = 0;

    friend bool operator==(const CropRectangle&, const CropRectangle&) = default;
};

/// A rectangle in whole pixels.
struct PixelRegion {
    int left = 0, top = 0, width = 0, height = 0;

    friend bool operator==(const PixelRegion&, const PixelRegion&) = default;
};

/// `TargetWidth` / `TargetHeight`.
double CropAspect(PixelSize target);

/// The rectangle that a picture begins with: half the target's size in the view's pixels; the whole
/// of it in a view that is more than twice as large; a quarter where half is wider than the view.
/// In the middle.
CropRectangle FirstCropRectangle(PixelSize target, int viewSide);

/// Moves the rectangle; it stops at the edges. Beyond the left or upper edge it is put to it; a
/// motion that would lead beyond one of the others is taken back.
void MoveCropRectangle(CropRectangle& rectangle, double motionX, double motionY, int viewSide);

/// Makes the rectangle higher by `motion` (lower where it is below 0) and as much wider as `aspect`
/// wants; the left upper corner stays. Nothing happens to one that is below 20 pixels high or wide
/// already, or beyond the right or lower edge, and would go on that way.
void ResizeCropRectangle(CropRectangle& rectangle, double motion, double aspect, int viewSide);

/// Where the rectangle lies in whole pixels of the view: corner rounded down, size to the nearest,
/// at least 1.
PixelRegion ViewPixels(const CropRectangle& rectangle);

/// The pixels of the source picture under the rectangle; parts of them may lie outside of the
/// picture, where the border is. Left and top are the rectangle's whole pixels times `Pscale`,
/// rounded down; width and height its size times `Pscale`, to the nearest, at least 1.
PixelRegion RegionUnder(const CropRectangle& rectangle, const CropView& view);

} // namespace vypx
