#pragma once

#include "companion/ByteView.h"

namespace vypx::test {

/// PackBits as a reader of its own takes it apart, one unit of 1 or 2 bytes after the other.
inline Bytes Unpacked(std::span<const std::uint8_t> packed, std::size_t unit)
{
    Bytes row;
    for (std::size_t at = 0; at < packed.size();) {
        const std::size_t control = packed[at++];
        const bool isRun = control > 128;
        for (std::size_t i = 0; i < (isRun ? 257 - control : control + 1); ++i) {
            const auto from = packed.begin() + static_cast<std::ptrdiff_t>(at);
            row.insert(row.end(), from, from + static_cast<std::ptrdiff_t>(unit));
            at += isRun ? 0 : unit;
        }
        at += isRun ? unit : 0;
    }
    return row;
}

} // namespace vypx::test
