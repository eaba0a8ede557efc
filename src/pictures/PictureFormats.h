#pragma once

#include "pictures/HeaderClaims.h"

#include <QIODevice>
#include <QImage>
#include <span>
#include <string_view>

/// The formats of pictures that are read.
namespace vypx {

struct PictureFormat {
    const char* qtName;       ///< by which Qt's reader of it is called
    std::string_view endings; ///< in lower case, without points, apart by blanks
    /// Looks at what the format's reader doesn't bound itself; null: it bounds everything.
    HeaderClaim (*claim)(FileBytes& file);
    /// Reads those pictures that the format's reader gets wrong; null: it gets all right.
    QImage (*read)(FileBytes& file);
};

/// In the order in which a file is tried: those last that are known by text and not by a mark.
std::span<const PictureFormat> PictureFormats();

/// The format of an open file by its content; null: none that can be read here. Readers of formats
/// that are not in the table are never asked.
const PictureFormat* FormatOf(QIODevice& file);

} // namespace vypx
