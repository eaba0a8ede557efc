#pragma once

#include <cstddef>
#include <cstdint>

/// What an iconset may hold. The reader takes no more, so no more is written: an iconset that was
/// saved can be opened again.
namespace vypx {

inline constexpr int MaxResources = 2000;
inline constexpr std::int32_t MaxResourceSize = 10'000'000; ///< bytes
/// Data offsets stay below it: a reader gives their highest byte another weight than 2^24.
inline constexpr std::size_t DataOffsetEnd = std::size_t{ 1 } << 24;

} // namespace vypx
