#pragma once

#include <optional>
#include <string_view>

namespace vypx {

/// What keeps the open document from being saved, in the words that the user reads; by the counters
/// of the last count. Empty: nothing does.
std::optional<std::string_view> WhyNotSaved();

/// Whether an icon with a size in its label has a picture.
bool HasNormalImages();

} // namespace vypx
