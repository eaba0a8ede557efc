#include "imaging/CropRectangle.h"

#include "settings/Settings.h"

#include <algorithm>
#include <cmath>

namespace vypx {

namespace {

constexpr double LeastPixels = 20; // of the view; a rectangle below them shrinks no more
constexpr double LeastTwips = 25;  // no step leads below them

/// `part` of the target's size, in twips of the view.
void SetSize(CropRectangle& rectangle, PixelSize target, int part)
{
    rectangle.width = target.width * TwipsPerPixel / part;
    rectangle.height = target.height * TwipsPerPixel / part;
}

/// In the middle by two separate halvings.
double Middle(int viewSide, double size) { return viewSide / 2 - static_cast<int>(size) / 2; }

void MoveAlong(double& start, double size, double motion, int viewSide)
{
    start += motion;
    if (start < 0 && motion < 0)
        start = 0;
    // On purpose: the whole motion is taken back, so a fast drag stops before the edge.
    if (start + size > viewSide && motion > 0)
        start -= motion;
}

/// The stops of a resize, in the order in which they are tested.
bool MayResize(const CropRectangle& rectangle, double motion, int viewSide)
{
    if (rectangle.height / TwipsPerPixel < LeastPixels && motion < 0)
        return false;
    if (rectangle.width / TwipsPerPixel < LeastPixels && motion < 0)
        return false;
    if (rectangle.left + rectangle.width > viewSide && motion > 0)
        return false;
    if (rectangle.top + rectangle.height > viewSide && motion > 0)
        return false;
    return rectangle.width >= LeastTwips || motion >= 0;
}

int WholePixels(double twips) { return static_cast<int>(std::floor(twips / TwipsPerPixel)); }

int Nearest(double pixels) { return std::max(1, static_cast<int>(std::nearbyint(pixels))); }

struct Span {
    int start, length;
};

/// One axis of RegionUnder. The picture begins at pixel `place` of the view, which shows it `shown`
/// pixels long; it is `source` pixels long.
Span SpanUnder(double start, double length, double Pscale, int place, int shown, int source)
{
    const int from = WholePixels(start) - place;
    Span span{ static_cast<int>(std::floor(from * Pscale)),
        Nearest(length / TwipsPerPixel * Pscale) };
    // Where the view shows the picture a broken pixel too long, no border comes in that the user
    // doesn't see in the rectangle.
    const bool endsInPicture = from + Nearest(length / TwipsPerPixel) <= shown;
    if (endsInPicture && span.start < source)
        span.length = std::min(span.length, source - span.start);
    return span;
}

} // namespace

double CropAspect(PixelSize target) { return static_cast<double>(target.width) / target.height; }

CropRectangle FirstCropRectangle(PixelSize target, int viewSide)
{
    CropRectangle rectangle;
    SetSize(rectangle, target, 2);
    if (rectangle.width < viewSide / 2.0 && rectangle.height < viewSide / 2.0)
        SetSize(rectangle, target, 1);
    if (rectangle.width > viewSide)
        SetSize(rectangle, target, 4);
    rectangle.left = Middle(viewSide, rectangle.width);
    rectangle.top = Middle(viewSide, rectangle.height);
    return rectangle;
}

void MoveCropRectangle(CropRectangle& rectangle, double motionX, double motionY, int viewSide)
{
    MoveAlong(rectangle.left, rectangle.width, motionX, viewSide);
    MoveAlong(rectangle.top, rectangle.height, motionY, viewSide);
}

void ResizeCropRectangle(CropRectangle& rectangle, double motion, double aspect, int viewSide)
{
    if (!MayResize(rectangle, motion, viewSide))
        return;
    // A fast drag could turn the rectangle inside out in one step.
    const double least =
        std::max(LeastTwips - rectangle.height, (LeastTwips - rectangle.width) / aspect);
    const double step = motion < 0 ? std::max(motion, least) : motion;
    rectangle.width += step * aspect;
    rectangle.height += step;
}

PixelRegion ViewPixels(const CropRectangle& rectangle)
{
    return { WholePixels(rectangle.left), WholePixels(rectangle.top),
        Nearest(rectangle.width / TwipsPerPixel), Nearest(rectangle.height / TwipsPerPixel) };
}

PixelRegion RegionUnder(const CropRectangle& rectangle, const CropView& view)
{
    const Span across = SpanUnder(rectangle.left, rectangle.width, view.Pscale, view.PictureLeft(),
        view.shown.width, view.source.width);
    const Span down = SpanUnder(rectangle.top, rectangle.height, view.Pscale, view.PictureTop(),
        view.shown.height, view.source.height);
    return { across.start, down.start, across.length, down.length };
}

} // namespace vypx
