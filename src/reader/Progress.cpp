#include "reader/Progress.h"

namespace vypx {

void ProgBar(LoadListener& listener)
{
    ++ProgressCount;
    if (ProgressCount <= BitmapCount)
        listener.Progress(ProgressCount);
}

} // namespace vypx
