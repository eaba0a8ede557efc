#pragma once

#include <cstdint>

namespace vypx {

/// A colour: three components from 0 to 255.
struct Rgb {
    int red = 0, green = 0, blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};

/// Red in the low byte, green in the next, blue in the third.
constexpr std::uint32_t PackedColour(Rgb colour)
{
    return static_cast<std::uint32_t>(colour.red) | static_cast<std::uint32_t>(colour.green) << 8
        | static_cast<std::uint32_t>(colour.blue) << 16;
}

inline constexpr Rgb Black{ 0, 0, 0 };
inline constexpr Rgb Red{ 255, 0, 0 };
inline constexpr Rgb Blue{ 0, 0, 255 };

} // namespace vypx
