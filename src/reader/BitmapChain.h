#pragma once

#include "reader/LoadListener.h"
#include "reader/WalkState.h"

namespace vypx {

/// Walks the bitmap family of the resource at ResourceOffset: notes depth and density of each
/// member in BitmapFamily and counts it in BmpTotalNum.
///
/// A broken chain (a record past the end of the file, more than MaxFamilyMembers members) takes
/// one from the count and, outside of a template, is told with BitmapStem; the load goes on.
void WalkBitmapChain(WalkState& walk, LoadListener& listener);

} // namespace vypx
