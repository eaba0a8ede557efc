#pragma once

#include "document/Slot.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vypx {

/// One line of a list of pictures. Texts are UTF-8.
struct PictureLine {
    std::size_t number = 0; ///< in the list, from 1
    std::string icon;       ///< label or resource key
    const Slot* slot = nullptr;
    std::string path;   ///< of the picture
    std::string whyNot; ///< what is wrong with the line's form; then the others are empty
};

/// A list of pictures is UTF-8 with LF or CR LF; a byte order mark at its head is passed over, and
/// so are empty lines and those that begin with "#". Each other line has three fields, apart by
/// tabs: icon, "high" or "low", path. Blanks belong to the fields, as labels end in some.
std::vector<PictureLine> ParsePictureList(std::string_view text);

/// The list in a file, its paths taken from the file's folder. Empty: it can't be read.
std::optional<std::vector<PictureLine>> ReadPictureList(const std::string& path);

} // namespace vypx
