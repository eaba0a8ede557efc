#pragma once

#include "document/Slot.h"
#include "imaging/CropRectangle.h"

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
    std::string path; ///< of the picture
    /// What is cut from the picture, in its pixels: left and top from 0 on, sizes from 1 on. It may
    /// reach beyond the picture, which nobody has looked at yet.
    std::optional<PixelRegion> region;
    std::string whyNot; ///< what is wrong with the line's form; then the others are empty
};

/// A list of pictures is UTF-8 with LF or CR LF; a byte order mark at its head is passed over, and
/// so are empty lines and those that begin with "#". Each other line has three fields, apart by
/// tabs: icon, "high" or "low", path; or a fourth one, the region to cut: left,top,width,height, as
/// digits alone. Blanks belong to the fields, as labels end in some. A field that is there but
/// empty is wrong.
std::vector<PictureLine> ParsePictureList(std::string_view text);

/// The list in a file, its paths taken from the file's folder. Empty: it can't be read.
std::optional<std::vector<PictureLine>> ReadPictureList(const std::string& path);

} // namespace vypx
