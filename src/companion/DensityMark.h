#pragma once

#include <cstddef>
#include <cstdint>

/// The mark between the low-density and the high-density records of a Palm bitmap family: 16 bytes
/// where a record would begin. Its pixel size, the byte 8, tells it from a record.
/// Source: Palm OS Programmer's API Reference, "Bitmaps".
namespace vypx {

inline constexpr std::size_t PixelSizeOffset = 8;
inline constexpr std::uint8_t DensityMarkPixelSize = 0xFF;
inline constexpr std::size_t DensityMarkSize = 16;

} // namespace vypx
