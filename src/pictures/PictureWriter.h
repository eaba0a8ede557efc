#pragma once

#include "companion/ByteView.h"
#include "companion/Picture.h"

#include <cstdint>
#include <string>
#include <vector>

/// Writing of PNG files. No Qt is seen from here; where there is none, nothing can be written.
namespace vypx {

/// Pixels with an opacity, rows from the top without padding: four bytes for a pixel, red, green,
/// blue and 0 for transparent to 255 for opaque. A new one is transparent throughout.
class OpacityPicture {
public:
    OpacityPicture() = default;
    /// Sides from 1 to Picture::MaxSide.
    OpacityPicture(int width, int height)
        : m_width(width)
        , m_height(height)
        , m_bytes(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4)
    {
    }

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    const std::uint8_t* Row(int y) const { return m_bytes.data() + Offset(0, y); }
    /// Makes a pixel opaque.
    void Set(int x, int y, Rgb colour)
    {
        std::uint8_t* const pixel = m_bytes.data() + Offset(x, y);
        pixel[0] = static_cast<std::uint8_t>(colour.red);
        pixel[1] = static_cast<std::uint8_t>(colour.green);
        pixel[2] = static_cast<std::uint8_t>(colour.blue);
        pixel[3] = 255;
    }

private:
    std::size_t Offset(int x, int y) const
    {
        return (static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width)
                   + static_cast<std::size_t>(x))
            * 4;
    }

    int m_width = 0, m_height = 0;
    std::vector<std::uint8_t> m_bytes;
};

/// The picture's pixels, those of its transparent colour transparent and without a colour.
OpacityPicture WithOpacity(const MaskedPicture& picture);

/// A PNG file's bytes, or why there are none.
struct PngFile {
    Bytes bytes;
    std::string whyNot; ///< in words for the user, without a full stop; empty after a success
};

/// Eight bits a component, with opacity. The same picture gives the same bytes. Nothing throws.
PngFile PngOf(const OpacityPicture& picture);

} // namespace vypx
