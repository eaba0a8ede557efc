#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vypx {

/// The file with the tips of the day, beside the program.
inline constexpr std::string_view TipFileName = "TIPOFDAY.TXT";

/// So much of a tip file is read, in bytes. A line that goes on beyond that is no tip.
inline constexpr std::size_t MaxTipBytes = 1u << 20;

/// The tips in a text, one a line: UTF-8, or Latin-1 where it is not valid as that; given as UTF-8.
/// Lines end with CR, LF or both. One without a letter is no tip.
std::vector<std::string> TipsIn(std::string_view text);

/// The tips of a file (a path in UTF-8). Empty when there is no name or no such file; the file may
/// be of any size and may hold no tips at all.
std::optional<std::vector<std::string>> ReadTips(const std::string& sFile);

/// Number of the tip that a random number in [0, 1) picks: 1 to `count`; 0 where there are none.
std::size_t PickTip(std::size_t count, double random);

} // namespace vypx
