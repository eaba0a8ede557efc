#pragma once

#include <cstdint>

namespace vypx {

enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

/// A window's place on its screen. Twips.
struct Placement {
    std::int32_t left = 0, top = 0, width = 0, height = 0;
    WindowState state = WindowState::Normal;
    std::int32_t screenWidth = 0, screenHeight = 0;
    std::int32_t twipsPerPixelX = 15, twipsPerPixelY = 15;

    friend bool operator==(const Placement&, const Placement&) = default;
};

} // namespace vypx
