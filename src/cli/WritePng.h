#pragma once

#include "pictures/PictureWriter.h"

#include <string>
#include <system_error>

namespace vypx {

/// Writes a PNG file in one step, as platform::ReplaceFile does. Why it could not, in words for the
/// user (UTF-8); empty: it is written.
std::string WritePng(const std::string& path, const OpacityPicture& picture);

/// The words for a file that platform::ReplaceFile refused.
std::string WhyNotWritten(const std::string& path, std::error_code error);

} // namespace vypx
