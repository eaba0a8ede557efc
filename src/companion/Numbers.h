#pragma once

#include <optional>
#include <string_view>

namespace vypx {

/// The decimal number at the beginning of a text, blanks and one "+" before it passed over; what
/// stands behind it doesn't count. Empty when there is none. "2000" and " 2000 x" are 2000.
std::optional<double> LeadingNumber(std::string_view text);

/// The same where it is a whole number from `lowest` to `highest`; empty for any other.
std::optional<int> LeadingWhole(std::string_view text, int lowest, int highest);

/// The number behind the four characters of a resource key's type, such as 1005 of `tAIB1005` and
/// of `tAIB1005(Dup)`; 0 where there is none, and for one that no resource can have (above 65535).
int ResourceId(std::string_view key);

} // namespace vypx
