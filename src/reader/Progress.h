#pragma once

#include "reader/LoadListener.h"

namespace vypx {

/// Steps of the progress bar: how many bitmaps were counted, and how many are done.
inline int BitmapCount = 0;
inline int ProgressCount = 0;

/// One bitmap more is done.
void ProgBar(LoadListener& listener);

} // namespace vypx
