#pragma once

#include <string_view>

namespace vypx {

/// Whether bytes are UTF-8 throughout: no cut or overlong character, no half of a surrogate pair,
/// none beyond U+10FFFF.
bool IsUtf8(std::string_view text);

} // namespace vypx
