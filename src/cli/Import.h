#pragma once

#include "cli/OpenIconset.h"
#include "cli/SaveIconset.h"

namespace vypx {

struct ImportOptions {
    OpenOptions open;
    SaveOptions save;
    std::string list;     ///< file that names the pictures: cli/PictureList.h
    bool stretch = false; ///< a picture that is larger than its slot is brought to the slot's size
    bool lowRes = false;  ///< a high-res picture makes the low-res one where that slot is empty
};

/// Opens an iconset, brings in the pictures that a list names, line by line, and writes it as
/// Convert does. A region that a line names is cut and stretched to the slot's size. Each line that
/// can't be followed is told on standard error, and nothing is written then. 0: OUT is complete; 1:
/// it was not written; 2: as Dump, or the list can't be read.
int Import(const ImportOptions& options);

} // namespace vypx
