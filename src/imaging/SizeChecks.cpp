#include "imaging/SizeChecks.h"

#include "document/PictureState.h"

namespace vypx {

namespace {

/// One side of a picture, as its message names it.
struct Side {
    std::string_view name;
    int SizeGuard::*limit;
    int pixels;
};

std::string TextOf(const Side& side, const SizeGuard& guard)
{
    const std::string name(side.name);
    return "The " + name + " of the image your are trying to paste exceeds \r\n"
        + std::string(guard.phrase) + "\r\n\r\nThe maximum " + name + " for this icon is "
        + std::to_string(guard.*side.limit)
        + " pixels.\r\n\r\nThe image you are trying to paste is " + std::to_string(side.pixels)
        + " pixels.";
}

} // namespace

void SetTargetSize(const Slot& slot, std::string_view label)
{
    std::optional<SizeClass> size = SizeOfIconInLabel(label);
    if (!size && (TargetWidth == 0 || TargetHeight == 0))
        size = SizeToImport(label);
    if (!size)
        return;
    const PixelSize limit = slot.LimitOf(*size);
    TargetWidth = limit.width;
    TargetHeight = limit.height;
}

bool ExceedsTarget(int width, int height) { return width > TargetWidth || height > TargetHeight; }

std::string TooLargeText(const SizeGuards& guards, std::string_view label, int width, int height)
{
    for (const Side& side :
        { Side{ "width", &SizeGuard::width, width }, Side{ "height", &SizeGuard::height, height } })
        for (const SizeClass size : { SizeClass::Large, SizeClass::Small }) {
            const SizeGuard& guard = guards.Of(size);
            if (SaysIconOf(size, label) && side.pixels > guard.*side.limit)
                return TextOf(side, guard);
        }
    return {};
}

} // namespace vypx
