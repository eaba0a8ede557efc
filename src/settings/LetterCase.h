#pragma once

#include <string>
#include <string_view>

namespace vypx {

/// The text with the letters A to Z in lower case; other bytes stay. The one way in which names
/// are compared without regard to case, so that the user's language plays no part.
inline std::string LowerCase(std::string_view text)
{
    std::string lower(text);
    for (char& letter : lower)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return lower;
}

} // namespace vypx
