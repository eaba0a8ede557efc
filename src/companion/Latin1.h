#pragma once

#include <string>
#include <string_view>

namespace vypx {

/// Texts of iconsets and catalogs are single bytes (Latin-1); paths and what comes from a command
/// line are UTF-8.
std::string Utf8FromLatin1(std::string_view latin1);

/// A character beyond Latin-1 becomes "?".
std::string Latin1FromUtf8(std::string_view utf8);

} // namespace vypx
