#pragma once

#include "companion/Rgb.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <vector>

namespace vypx {

/// A picture in memory: rows from the top, three bytes for a pixel in the order red, green, blue,
/// no padding. Both sides are at least 1, or there is no picture.
class Picture {
public:
    Picture() = default;
    /// Black. Throws std::length_error for sides below 1 or too many pixels to address.
    Picture(int width, int height)
        : m_width(width)
        , m_height(height)
    {
        if (width < 1 || height < 1 || width > MaxSide || height > MaxSide)
            throw std::length_error("sides of a picture");
        m_bytes.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
    }

    /// A side has no more pixels, as in a file of a Palm bitmap.
    static constexpr int MaxSide = 65535;

    bool IsNull() const { return m_bytes.empty(); }
    int Width() const { return m_width; }
    int Height() const { return m_height; }

    /// First byte of a row.
    std::uint8_t* Row(int y) { return m_bytes.data() + Offset(y); }
    const std::uint8_t* Row(int y) const { return m_bytes.data() + Offset(y); }

    Rgb At(int x, int y) const
    {
        const std::uint8_t* const pixel = Row(y) + x * 3;
        return { pixel[0], pixel[1], pixel[2] };
    }
    void Set(int x, int y, Rgb colour)
    {
        std::uint8_t* const pixel = Row(y) + x * 3;
        pixel[0] = static_cast<std::uint8_t>(colour.red);
        pixel[1] = static_cast<std::uint8_t>(colour.green);
        pixel[2] = static_cast<std::uint8_t>(colour.blue);
    }

    friend bool operator==(const Picture&, const Picture&) = default;

private:
    std::size_t Offset(int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) * 3;
    }

    int m_width = 0, m_height = 0;
    std::vector<std::uint8_t> m_bytes;
};

/// A picture of which some pixels may be transparent: all those of the colour `transparent`, which
/// no opaque pixel has. Empty: all are opaque.
struct MaskedPicture {
    Picture pixels;
    std::optional<Rgb> transparent{};
};

} // namespace vypx
