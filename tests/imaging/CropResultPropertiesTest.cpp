#include "imaging/CropGeometry.h"
#include "imaging/CropResult.h"
#include "support/CropSizes.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

/// With pictures whose pixels tell their place.
namespace vypx::test {

namespace {

constexpr Rgb Border{ 255, 255, 255 };

/// For sides up to 1024; the blue of a place never is the border's.
Rgb ColourOfPlace(int x, int y) { return { x & 0xFF, y & 0xFF, x >> 8 | y >> 8 << 4 }; }
int ColumnOf(Rgb colour) { return colour.red | (colour.blue & 15) << 8; }
int RowOf(Rgb colour) { return colour.green | colour.blue >> 4 << 8; }

Picture Places(PixelSize size)
{
    Picture picture(size.width, size.height);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            picture.Set(x, y, ColourOfPlace(x, y));
    return picture;
}

/// With the first rectangle, moved and resized by the mouse.
CropGeometry SomeCrop()
{
    CropGeometry crop(*rc::gen::elementOf(CropSlots));
    const int most = *rc::gen::element(60, 160, 601, 1000);
    RC_PRE(crop.CropFrmLoad({ *rc::gen::inRange(5, most), *rc::gen::inRange(5, most) })
        == CropSize::Fits);
    const int side = crop.View().side;
    const auto somePlace = [&] { return *rc::gen::inRange(0, side); };
    crop.Press(somePlace(), somePlace());
    for (int i = 0; i < 5; ++i) {
        crop.RightDrag(somePlace());
        crop.LeftDrag(somePlace(), somePlace());
    }
    return crop;
}

/// One axis: the place that a pixel of the cut tells, against the place that the view shows at
/// `inView`, in pixels from the picture's edge. The corner of a region may be a pixel of the view
/// (or, where that is smaller, of the picture) away, and over the whole picture the view's size is
/// half a pixel of the view wrong at most.
void ExpectPlace(int told, double inView, double Pscale, int shown, int source)
{
    const double tolerance = std::max(Pscale, 1.0) + Pscale / 2 + 0.5;
    RC_ASSERT(std::abs(told + 0.5 - inView * source / shown) <= tolerance);
}

} // namespace

RC_GTEST_PROP(CropResultProperties, EachPixelIsThatOfItsPlaceOrBorder, ())
{
    const PixelSize size{ *rc::gen::inRange(1, 60), *rc::gen::inRange(1, 60) };
    const PixelRegion region{ *rc::gen::inRange(-70, 70), *rc::gen::inRange(-70, 70),
        *rc::gen::inRange(1, 90), *rc::gen::inRange(1, 90) };

    const Picture cut = CutRegion({ Places(size) }, region, Border).pixels;

    RC_ASSERT(cut.Width() == region.width);
    RC_ASSERT(cut.Height() == region.height);
    for (int y = 0; y < cut.Height(); ++y)
        for (int x = 0; x < cut.Width(); ++x) {
            const int column = region.left + x, row = region.top + y;
            const bool isInside =
                column >= 0 && column < size.width && row >= 0 && row < size.height;
            RC_ASSERT(cut.At(x, y) == (isInside ? ColourOfPlace(column, row) : Border));
        }
}

RC_GTEST_PROP(CropResultProperties, WhatIsCutIsWhatIsUnderTheRectangle, ())
{
    const CropGeometry crop = SomeCrop();
    const CropView& view = crop.View();
    const PixelRegion area = ViewPixels(crop.Rectangle());

    const Picture cut = CutRegion({ Places(view.source) }, crop.Region(), Border).pixels;

    for (int i = 0; i < 20; ++i) {
        const int x = *rc::gen::inRange(0, cut.Width()), y = *rc::gen::inRange(0, cut.Height());
        const Rgb colour = cut.At(x, y);
        if (colour == Border)
            continue;
        const double viewX = area.left - view.PictureLeft() + (x + 0.5) / view.Pscale,
                     viewY = area.top - view.PictureTop() + (y + 0.5) / view.Pscale;
        ExpectPlace(ColumnOf(colour), viewX, view.Pscale, view.shown.width, view.source.width);
        ExpectPlace(RowOf(colour), viewY, view.Pscale, view.shown.height, view.source.height);
    }
}

RC_GTEST_PROP(CropResultProperties, WhereTheViewShowsThePictureThePictureIsCut, ())
{
    const CropGeometry crop = SomeCrop();
    const CropView& view = crop.View();
    const PixelRegion area = ViewPixels(crop.Rectangle());
    const int left = area.left - view.PictureLeft(), top = area.top - view.PictureTop();
    if (left < 0 || left + area.width > view.shown.width || top < 0
        || top + area.height > view.shown.height)
        return;

    const Picture cut = CutRegion({ Places(view.source) }, crop.Region(), Border).pixels;

    for (int y = 0; y < cut.Height(); ++y)
        for (int x = 0; x < cut.Width(); ++x)
            RC_ASSERT(cut.At(x, y) != Border);
}

RC_GTEST_PROP(CropResultProperties, TheResultHasExactlyTheTargetsSize, ())
{
    CropGeometry crop = SomeCrop();
    crop.ChooseAspect(*rc::gen::arbitrary<bool>());
    std::optional<Rgb> transparent;
    if (*rc::gen::arbitrary<bool>())
        transparent = ColourOfPlace(0, 0);

    const Picture result = ScaleCropResult(
        CutRegion({ Places(crop.View().source), transparent }, crop.Region(), Border),
        crop.Target(), *rc::gen::element(ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16))
                               .pixels;

    RC_ASSERT(result.Width() == crop.Target().width);
    RC_ASSERT(result.Height() == crop.Target().height);
}

} // namespace vypx::test
