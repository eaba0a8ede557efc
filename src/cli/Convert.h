#pragma once

#include "cli/OpenIconset.h"
#include "cli/SaveIconset.h"

namespace vypx {

struct ConvertOptions {
    OpenOptions open;
    SaveOptions save;
};

/// Opens an iconset and writes it as Save As would. Messages and what keeps it from being written
/// go to standard error. 0: OUT is complete; 1: it was not written; 2: as Dump.
int Convert(const ConvertOptions& options);

} // namespace vypx
