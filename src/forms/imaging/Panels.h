#pragma once

#include "forms/imaging/ImagePanel.h"

#include <array>

namespace vypx {

/// The high-res and the low-res panel. What is done to both is done in this order.
using Panels = std::array<ImagePanel*, 2>;

/// The panel of that slot.
inline ImagePanel& PanelOf(const Panels& panels, const vypx::Slot& slot)
{
    return &panels[0]->Shows() == &slot ? *panels[0] : *panels[1];
}

} // namespace vypx
