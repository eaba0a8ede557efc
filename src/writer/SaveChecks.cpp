#include "writer/SaveChecks.h"

#include "document/Document.h"
#include "document/IconStats.h"

namespace vypx {

bool HasNormalImages() { return StatLowRes != 0 || StatHighRes != 0; }

std::optional<std::string_view> WhyNotSaved()
{
    if (!FileLoaded)
        return "No file loaded.";
    if (StatTotal == 0)
        return "Can't save. The iconset doesn't contain any icons.";
    if (StatLarge == 0 && StatSmall == 0)
        return "Error! Can't save an iconset that only contains unknown icons.";
    if (StatUnknown == 0 && !HasNormalImages())
        return "Error! Iconset doesn't contain any images.";
    if (!HasNormalImages())
        return "Error! Iconset must contain at least on normal icon that has images.";
    return std::nullopt;
}

} // namespace vypx
