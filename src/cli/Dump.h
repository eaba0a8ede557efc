#pragma once

#include "cli/OpenIconset.h"

namespace vypx {

/// Opens the iconset and prints the document as JSON to standard output, messages included.
/// 0: a document was opened; 1: none was; 2: the working folder has files in it or can't be made.
int Dump(const OpenOptions& options);

} // namespace vypx
