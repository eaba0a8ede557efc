#pragma once

#include <cstdint>
#include <string_view>

namespace vypx {

/// What became of a file that was to be queued for the next HotSync, by the numbers of the Palm
/// Install Tool: 32 bits there, of which the low 16 count, signed.
namespace InstallResult {
inline constexpr std::int16_t Queued = 0;
inline constexpr std::int16_t AlreadyWaiting = -512; ///< another file of that name is
inline constexpr std::int16_t FileMissing = -513;
inline constexpr std::int16_t WrongUser = -554;
inline constexpr std::int16_t Unknown = -1; ///< one of many: all others are told alike
} // namespace InstallResult

/// The words for a result (Latin-1, lines apart by line feeds); empty: it was queued.
std::string_view InstallMessage(std::int16_t result);

} // namespace vypx
