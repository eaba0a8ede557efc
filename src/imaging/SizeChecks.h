#pragma once

#include "document/Slot.h"

#include <string>
#include <string_view>

namespace vypx {

/// Sets TargetWidth and TargetHeight for a picture of that icon. On purpose: by "Large Icon" and
/// "Small Icon" in its label; an icon without either keeps the size of the last import, unless that
/// is no size at all.
void SetTargetSize(const Slot& slot, std::string_view label);

/// Whether a picture has to be cut first.
bool ExceedsTarget(int width, int height);

/// The second test of a size, behind that of the target: what a box says of a picture that is too
/// large for its icon. Empty for one that fits.
std::string TooLargeText(const SizeGuards& guards, std::string_view label, int width, int height);
inline constexpr std::string_view TooLargeTitle = "Image Too Large!";

} // namespace vypx
