#include "imaging/CropGeometry.h"
#include "support/CropSizes.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

/// For random pictures, slots and drags.
namespace vypx::test {

namespace {

bool IsInTheView(const CropGeometry& crop)
{
    const CropRectangle& area = crop.Rectangle();
    return area.left >= 0 && area.top >= 0 && area.left + area.width <= crop.View().side
        && area.top + area.height <= crop.View().side;
}

PixelSize SomePicture()
{
    // Small ones as often as large ones.
    const int most = *rc::gen::element(60, 160, 700, 2500, 8001);
    return { *rc::gen::inRange(5, most), *rc::gen::inRange(5, most) };
}

/// With a picture that can be worked on.
CropGeometry SomeOpening()
{
    CropGeometry crop(*rc::gen::elementOf(CropSlots));
    RC_PRE(crop.CropFrmLoad(SomePicture()) == CropSize::Fits);
    if (*rc::gen::arbitrary<bool>()) {
        crop.ChooseAspect(true);
        crop.RebuildRectangle();
    }
    return crop;
}

/// A place of the mouse on the view of that crop, sometimes beyond it.
int SomePlace(const CropGeometry& crop)
{
    const int side = crop.View().side / Pixel;
    return Pixel * *rc::gen::inRange(-side / 4, side + side / 4);
}

void DragAbout(CropGeometry& crop, bool onlyLeft)
{
    const int steps = *rc::gen::inRange(1, 30);
    crop.Press(SomePlace(crop), SomePlace(crop));
    for (int i = 0; i < steps; ++i) {
        if (onlyLeft || *rc::gen::arbitrary<bool>())
            crop.LeftDrag(SomePlace(crop), SomePlace(crop));
        else
            crop.RightDrag(SomePlace(crop));
    }
}

/// Where `edge`, in pixels of the view from the picture's own edge, is in the picture. Outside of
/// it one pixel of the view is `Pscale` of the border.
double InThePicture(int edge, double Pscale, int shown, int source)
{
    if (edge <= 0)
        return edge * Pscale;
    if (edge <= shown)
        return static_cast<double>(edge) * source / shown;
    return source + (edge - shown) * Pscale;
}

/// One axis: `from` and `length` in the picture, `viewFrom` and `viewLength` in the view, both from
/// the picture's edge.
void ExpectUnder(
    int from, int length, int viewFrom, int viewLength, double Pscale, int shown, int source)
{
    const double begins = from - InThePicture(viewFrom, Pscale, shown, source);
    if (Pscale < 1) { // pixels of the picture are larger than those of the view, and none is split
        RC_ASSERT(begins <= 0 && begins > -1);
        RC_ASSERT(length == 1 || std::abs(length - viewLength * Pscale) <= 0.5 + Pscale / 2);
        return;
    }
    const double ends = from + length - InThePicture(viewFrom + viewLength, Pscale, shown, source);
    RC_ASSERT(std::abs(begins) <= Pscale);
    RC_ASSERT(std::abs(ends) <= Pscale + 0.5);
}

} // namespace

RC_GTEST_PROP(CropGeometryProperties, FirstRectangleIsInTheView, ())
{
    RC_ASSERT(IsInTheView(SomeOpening()));
}

RC_GTEST_PROP(CropGeometryProperties, LeftDragsNeverLeaveTheView, ())
{
    CropGeometry crop = SomeOpening();

    DragAbout(crop, true);

    RC_ASSERT(IsInTheView(crop));
}

RC_GTEST_PROP(CropGeometryProperties, RightDragsKeepTheAspectWithinAPixel, ())
{
    CropGeometry crop = SomeOpening();

    DragAbout(crop, false);

    const CropRectangle& area = crop.Rectangle();
    const PixelSize target = crop.Target();
    RC_ASSERT(area.width > 0);
    RC_ASSERT(area.height > 0);
    RC_ASSERT(std::abs(area.width - area.height * target.width / target.height) < Pixel);
}

RC_GTEST_PROP(CropGeometryProperties, ThePictureStandsInTheMiddleOfTheView, ())
{
    const CropView view = SomeOpening().View();

    const int side = view.side / Pixel;
    RC_ASSERT(side * Pixel == view.side);
    RC_ASSERT(side == std::max(view.shown.width, view.shown.height));
    RC_ASSERT(std::abs(side - view.shown.width - 2 * view.PictureLeft()) <= 1);
    RC_ASSERT(std::abs(side - view.shown.height - 2 * view.PictureTop()) <= 1);
}

RC_GTEST_PROP(CropGeometryProperties, TheRegionIsTheRegionUnderTheRectangle, ())
{
    CropGeometry crop = SomeOpening();
    DragAbout(crop, false);

    const CropView& view = crop.View();
    const PixelRegion area = ViewPixels(crop.Rectangle()), region = crop.Region();
    const int left = area.left - view.PictureLeft(), top = area.top - view.PictureTop();
    const PixelSize shown = view.shown, source = view.source;
    ExpectUnder(
        region.left, region.width, left, area.width, view.Pscale, shown.width, source.width);
    ExpectUnder(
        region.top, region.height, top, area.height, view.Pscale, shown.height, source.height);
}

RC_GTEST_PROP(CropGeometryProperties, InsideOfAPictureNoBorderIsCut, ())
{
    CropGeometry crop = SomeOpening();
    DragAbout(crop, false);

    const CropView& view = crop.View();
    const PixelRegion area = ViewPixels(crop.Rectangle()), region = crop.Region();
    const int left = area.left - view.PictureLeft(), top = area.top - view.PictureTop();
    if (left >= 0 && left + area.width <= view.shown.width) {
        RC_ASSERT(region.left >= 0);
        RC_ASSERT(region.left + region.width <= view.source.width);
    }
    if (top >= 0 && top + area.height <= view.shown.height) {
        RC_ASSERT(region.top >= 0);
        RC_ASSERT(region.top + region.height <= view.source.height);
    }
}

} // namespace vypx::test
