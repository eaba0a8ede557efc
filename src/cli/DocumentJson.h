#pragma once

#include "companion/Rgb.h"

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace vypx {

/// The open document as one JSON object:
///
///   loaded        whether a document is open
///   databaseName  its Palm database name
///   messages      texts of the boxes, in order
///   icons         IconTable in order, free rows left out
///   bitmaps       rows of BitmapTable that the decoder made; an empty cell is null
///   iconTable     Itbl, from row 1
///   tree          icon nodes, sorted by key in byte order; colours as "#rrggbb"
///   stats         the six counters
///
/// Bytes of texts are Latin-1 code points.
nlohmann::ordered_json DocumentJson(const std::vector<std::string>& messages);

/// "#rrggbb"
std::string HexColour(Rgb colour);

} // namespace vypx
