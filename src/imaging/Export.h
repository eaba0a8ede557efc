#pragma once

#include "document/Slot.h"

#include <string>
#include <string_view>

namespace vypx {

/// How an export ended, in words for the user (UTF-8). All empty: the picture was exported.
struct ExportReport {
    std::string message; ///< for a box
    std::string note;    ///< without a box: the file could not be written
};

/// Copies the slot's working file as it is: a BMP at the document's depth. The file at `path`
/// (UTF-8) is replaced in one step, or stays as it was. LastDirImageSave becomes its folder. The
/// working folder is no place for exports, by whatever name or link the path leads there.
ExportReport ExportPicture(const Slot& slot, const std::string& path);

} // namespace vypx
