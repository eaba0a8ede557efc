#pragma once

#include "pictures/PictureWriter.h"

#include <string>
#include <system_error>

namespace vypx {

/// How a file is written: in one step over what stands there, or as one that must not be there.
enum class FileWay { Replace, Anew };

/// Writes a PNG file by platform::ReplaceFile or WriteNewFile. Why it could not, in words for the
/// user (UTF-8); empty: it is written.
std::string WritePng(const std::string& path, const OpacityPicture& picture, FileWay way);

/// The words for a file that one of the two refused.
std::string WhyNotWritten(const std::string& path, std::error_code error);

} // namespace vypx
