#pragma once

#include <string_view>

namespace vypx {

/// Without the blanks at its ends: what an ini file does not keep at the ends of a name or a value.
inline std::string_view WithoutBlanks(std::string_view text)
{
    constexpr std::string_view Blanks(" \t\r\n\v\f");
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

} // namespace vypx
