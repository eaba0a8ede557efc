#pragma once

#include <cstddef>
#include <string>

namespace vypx {

/// Gives the pictures of a row the names that go with another resource key, cells and BitmapTable
/// included. A picture that other rows, or the row's other slot, show too is copied, and the copy
/// has its transparent colour. A slot without a picture, and one whose file has that name already,
/// stay. Either all is done or nothing: false, and `why` says it in plain words, when another row
/// shows a file of a new name or a file can't be moved.
bool MovePictures(std::size_t row, const std::string& newKey, std::string& why);

} // namespace vypx
