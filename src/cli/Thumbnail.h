#pragma once

#include "cli/ReadIconset.h"

#include <string>

namespace vypx {

inline constexpr int SmallestThumbnail = 16, LargestThumbnail = 1024, UsualThumbnail = 128;

/// What the command line says about a thumbnail.
struct ThumbnailOptions {
    ReadOptions read;
    std::string out;           ///< the PNG file (UTF-8)
    int size = UsualThumbnail; ///< the longer side is at most that long, pixels
};

/// Makes a PNG file that shows the iconset's first icons: large ones first, of each the high-res
/// picture, else the low-res one. Pictures beyond MostPixels, and those of one pixel, as templates
/// have them, are passed over; no more is read than the sheet shows. What was read of a broken file
/// is shown. OUT is replaced in one step or left as it is.
///
/// 0: OUT is complete; 1: it was not written, as FILE has no picture or can't be read, or OUT can't
/// be written; 2: wrong use.
int Thumbnail(const ThumbnailOptions& options);

} // namespace vypx
