#include "imaging/CropView.h"

#include "settings/Settings.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vypx {

namespace {

constexpr int SmallestSide = 5, LargestSide = 4000;
constexpr int LargeCaseFrom = 600;

struct Rung {
    int above; // pixels
    double Pscale;
};
constexpr std::array Ladder{ Rung{ 2400, 6 }, Rung{ 1800, 5 }, Rung{ 1200, 4 }, Rung{ 900, 3 },
    Rung{ 600, 2 }, Rung{ 150, 0.5 } };
constexpr int SmallPicture = 50;
constexpr double SmallPictureScale = 0.25;

constexpr int MarginRight = 175, MarginBelow = 600, MarginBelowStretched = 1000;
constexpr int LeastFormSide = 4750;

/// Halves to the even number, as everywhere where a fraction becomes a whole number of twips or
/// pixels.
int Rounded(double number) { return static_cast<int>(std::nearbyint(number)); }

/// How far the shorter side is moved in to stand in the middle of the longer one.
int Inset(int longer, int shorter, double Pscale)
{
    return Rounded((longer * TwipsPerPixel / 2 - shorter * TwipsPerPixel / 2) / Pscale);
}

int AtLeast(int side) { return std::max(side, LeastFormSide); }

} // namespace

bool IsHalvedFirst(PixelSize picture)
{
    return picture.width > LargestUnhalved || picture.height > LargestUnhalved;
}

PixelSize Halved(PixelSize picture) { return { picture.width / 2, picture.height / 2 }; }

CropSize TestCropSize(PixelSize picture)
{
    if (picture.width > LargestSide || picture.height > LargestSide)
        return CropSize::ToLarge;
    if (picture.width < SmallestSide || picture.height < SmallestSide)
        return CropSize::ToSmall;
    return CropSize::Fits;
}

double CropScale(PixelSize picture, double before)
{
    for (const Rung& rung : Ladder)
        if (picture.width > rung.above || picture.height > rung.above)
            return rung.Pscale;
    if (picture.width < SmallPicture || picture.height < SmallPicture)
        return SmallPictureScale;
    return before;
}

int CropView::PictureLeft() const { return PixelsFromTwips(Xpos); }

int CropView::PictureTop() const { return PixelsFromTwips(Ypos); }

CropView BuildCropView(PixelSize picture, double Pscale)
{
    CropView view{ .Pscale = Pscale, .source = picture };
    view.shown = { Rounded(picture.width / Pscale), Rounded(picture.height / Pscale) };
    const bool isLarge = picture.width >= LargeCaseFrom || picture.height >= LargeCaseFrom;
    const PixelSize placed = isLarge ? view.shown : picture;
    const double scale = isLarge ? 1 : Pscale;
    view.side = Rounded(std::max(placed.width, placed.height) * TwipsPerPixel / scale);
    if (placed.width > placed.height)
        view.Ypos = Inset(placed.width, placed.height, scale);
    if (placed.height > placed.width)
        view.Xpos = Inset(placed.height, placed.width, scale);
    return view;
}

FormSize CropFormSize(const CropView& view, int viewLeft, int viewTop)
{
    return { AtLeast(view.side + viewLeft + MarginRight),
        AtLeast(view.side + viewTop + MarginBelow) };
}

FormSize PicFitFormSize(const CropView& view, int viewLeft, int viewTop)
{
    // A sum below 2000 becomes 2000 first, which the larger minimum hides.
    return CropFormSize(view, viewLeft, viewTop);
}

FormSize StretchFormSize(PixelSize target, int viewLeft, int viewTop)
{
    const int height = target.height * TwipsPerPixel + viewTop + MarginBelowStretched;
    // On purpose: a height from 4500 to 4749 stays, though a lower one becomes 4750.
    return { AtLeast(target.width * TwipsPerPixel + viewLeft + MarginRight),
        height < 4500 ? LeastFormSide : height };
}

} // namespace vypx
