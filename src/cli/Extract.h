#pragma once

#include "cli/ReadIconset.h"

#include <string>

namespace vypx {

/// What the command line says about an extraction.
struct ExtractOptions {
    ReadOptions read;
    std::string folder; ///< for the pictures (UTF-8); absent or empty
};

/// The most that is extracted of one file, in pixels of all its pictures.
inline constexpr std::int64_t MostPixelsInAll = 64 * 1024 * 1024;

/// Writes each picture of an iconset into the folder as a PNG file, in the colours that the file
/// has, and then `index.json`, one JSON object:
///
///   databaseName  Palm database name
///   pictures      in the file's order, for each: file; resourceType, resourceId; density, "high"
///                 or "low"; width, height in pixels; depth in the file, bits of a pixel;
///                 transparent, "#rrggbb" or null; icons, the rows that show it: label, kind, and
///                 ownerType, ownerCreator of their application, or null
///   passedOver    pictures that are not there: resourceType, resourceId, density, why; the
///                 density is null where nothing of the resource could be read
///
/// Bytes of texts are Latin-1 code points. A file is called after the resource and the density,
/// `tAIB3501-high.png`; where a resource stands in the file twice, the second one's is
/// `tAIB3501-2-high.png`, and that is the one which the program shows.
///
/// 0: index.json is there, and names each picture as one of the two; 1: FILE can't be opened, has
/// no picture or more than MostPixelsInAll, or folder or file can't be written: then the folder is
/// as it was; 2: wrong use.
int Extract(const ExtractOptions& options);

} // namespace vypx
