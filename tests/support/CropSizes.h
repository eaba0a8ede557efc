#pragma once

#include "imaging/CropRectangle.h"

#include <vector>

namespace vypx::test {

constexpr int Pixel = 15; ///< of the crop window's view, in twips

constexpr PixelSize LargeSlot{ 64, 44 };
/// Large and small, high-res and low-res.
inline const std::vector<PixelSize> CropSlots{ LargeSlot, { 30, 22 }, { 32, 22 }, { 15, 11 } };

} // namespace vypx::test
