#pragma once

#include "forms/imaging/ImagePanel.h"

#include <array>

namespace vypx {

/// The high-res and the low-res panel. What is done to both is done in this order.
using Panels = std::array<ImagePanel*, 2>;

} // namespace vypx
