#pragma once

#include "document/Slot.h"

/// How the picture to crop is shown. Sizes of pictures are pixels of the source; places in the view
/// are twips, TwipsPerPixel of them to a pixel of the view.
namespace vypx {

/// A picture with a longer side than this is halved on disk before it is shown.
inline constexpr int LargestUnhalved = 2400;

bool IsHalvedFirst(PixelSize picture);
/// Both sides halved, an odd pixel dropped.
PixelSize Halved(PixelSize picture);

/// Whether a picture, halved already where it has to be, can be worked on.
enum class CropSize {
    Fits,
    ToLarge, ///< a side above 4000 pixels: "Image is to large to process!"
    ToSmall, ///< a side below 5 pixels: "Image is to small to process!"
};
CropSize TestCropSize(PixelSize picture);

/// `Pscale`: source pixels to a pixel of the view, one of 6, 5, 4, 3, 2, 0.5 and 0.25 by the longer
/// side, width tested before height; `before` where no rung of the ladder holds.
double CropScale(PixelSize picture, double before);

/// The view, a square on the border colour with the picture in its middle.
struct CropView {
    double Pscale = 1;
    PixelSize source;       ///< the picture itself, in its own pixels
    PixelSize shown;        ///< the size at which the view shows it, in pixels of the view
    int side = 0;           ///< of the view, in twips; 0: nothing is shown
    int Xpos = 0, Ypos = 0; ///< the picture's left and top in the view, in twips

    /// The picture's left and top in the nearest whole pixels of the view.
    int PictureLeft() const;
    int PictureTop() const;
};

/// The view of a picture at that scale. A picture with both sides below 600 pixels keeps its exact
/// size over `Pscale`; of a larger one that is rounded to whole pixels first, halves to the even
/// number. All other divisions drop the remainder.
CropView BuildCropView(PixelSize picture, double Pscale);

/// Of the window around the view, in twips.
struct FormSize {
    int width = 0, height = 0;

    friend bool operator==(const FormSize&, const FormSize&) = default;
};

/// The size of the window when it opens or shows another border, from the view's place in it.
FormSize CropFormSize(const CropView& view, int viewLeft, int viewTop);
/// The same on the return from stretching.
FormSize PicFitFormSize(const CropView& view, int viewLeft, int viewTop);
/// The same while the whole picture is stretched to `target` pixels.
FormSize StretchFormSize(PixelSize target, int viewLeft, int viewTop);

} // namespace vypx
