#include "imaging/CropResult.h"

#include "companion/FreeColour.h"
#include "companion/ScaleImg.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace vypx {

namespace {

void Fill(Picture& picture, Rgb colour)
{
    for (int x = 0; x < picture.Width(); ++x)
        picture.Set(x, 0, colour);
    for (int y = 1; y < picture.Height(); ++y)
        std::copy_n(picture.Row(0), picture.Width() * 3, picture.Row(y));
}

/// The part of the region that lies in the picture, in the region's own pixels.
PixelRegion PartInside(const PixelRegion& picture, const PixelRegion& region)
{
    const auto part = [](std::int64_t start, std::int64_t length, std::int64_t whole) {
        const std::int64_t from = std::clamp<std::int64_t>(-start, 0, length);
        const std::int64_t end = std::clamp(whole - start, from, length);
        return std::pair(static_cast<int>(from), static_cast<int>(end - from));
    };
    const auto [left, width] = part(region.left, region.width, picture.width);
    const auto [top, height] = part(region.top, region.height, picture.height);
    return { left, top, width, height };
}

/// Row after row, those of the border are none.
std::vector<bool> TransparentPixels(const MaskedPicture& cut, const PixelRegion& inside)
{
    const Picture& pixels = cut.pixels;
    std::vector<bool> isTransparent;
    isTransparent.reserve(
        static_cast<std::size_t>(pixels.Width()) * static_cast<std::size_t>(pixels.Height()));
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x)
            isTransparent.push_back(x >= inside.left && x < inside.left + inside.width
                && y >= inside.top && y < inside.top + inside.height
                && pixels.At(x, y) == cut.transparent);
    return isTransparent;
}

bool Contains(const Picture& picture, Rgb colour)
{
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            if (picture.At(x, y) == colour)
                return true;
    return false;
}

} // namespace

MaskedPicture CutRegion(MaskedPicture source, const PixelRegion& region, Rgb border)
{
    const PixelRegion whole{ 0, 0, source.pixels.Width(), source.pixels.Height() };
    MaskedPicture cut{ {}, source.transparent };
    cut.pixels = region == whole ? std::move(source.pixels) : Picture(region.width, region.height);
    const PixelRegion inside = PartInside(whole, region);
    const bool hasBorder = inside.width < region.width || inside.height < region.height;
    if (hasBorder)
        Fill(cut.pixels, border);
    if (inside.width > 0 && region != whole)
        for (int y = inside.top; y < inside.top + inside.height; ++y)
            std::copy_n(source.pixels.Row(region.top + y) + (region.left + inside.left) * 3,
                inside.width * 3, cut.pixels.Row(y) + inside.left * 3);
    // A border of the colour that stands for transparent pixels would be one of them.
    if (hasBorder && cut.transparent == border) {
        const std::vector<bool> isTransparent = TransparentPixels(cut, inside);
        return WithFreeColour(std::move(cut.pixels), isTransparent);
    }
    // No opaque pixel has to keep away from a colour that stands for none.
    if (cut.transparent && !Contains(cut.pixels, *cut.transparent))
        cut.transparent.reset();
    return cut;
}

MaskedPicture ScaleCropResult(const MaskedPicture& cut, PixelSize target, ColorDepth depth)
{
    const Picture& source = cut.pixels;
    MaskedPicture scaled{ Picture(target.width, target.height), cut.transparent };
    if (cut.transparent)
        ScaleImg(source, scaled.pixels, source.Width(), source.Height(), target.width,
            target.height, ScaleMask{ .transparent = *cut.transparent, .depth = BitsOf(depth) });
    else
        ScaleImg(
            source, scaled.pixels, source.Width(), source.Height(), target.width, target.height);
    return scaled;
}

} // namespace vypx
