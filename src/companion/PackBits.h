#pragma once

#include "companion/ByteView.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vypx {

/// Appends one row as PackBits, in units of `unit` bytes (1, or 2 at 16 bits): a control byte of
/// 0x00 to 0x7F and that many units and one more, or 0x81 to 0xFF and one unit to be repeated 257
/// minus it times. 0x80 is not used, so runs and literals have 128 units at most. No other packing
/// of the row has fewer bytes. Source: Palm OS Programmer's API Reference, "Bitmaps". Throws
/// std::length_error for more than 65536 units.
void AppendPackBits(Bytes& packed, std::span<const std::uint8_t> row, std::size_t unit);

} // namespace vypx
