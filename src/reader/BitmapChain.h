#pragma once

#include "reader/LoadListener.h"

#include <string>

namespace vypx {

/// Walks the bitmap family of the resource at ResourceOffset: notes depth and density of each
/// member in BitmapFamily and counts it in BmpTotalNum. `stem` is the name of the last member's
/// working file without its ending, kept by the caller from one resource to the next.
///
/// A broken chain (a record past the end of the file, more than MaxFamilyMembers members) takes
/// one from the count and, outside of TemplateMode, is told with `stem`; the load goes on.
void WalkBitmapChain(std::string& stem, LoadListener& listener);

} // namespace vypx
