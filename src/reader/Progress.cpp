#include "reader/Progress.h"

namespace vypx {

void ProgBar(WalkState& walk, LoadListener& listener)
{
    ++walk.ProgressCount;
    if (walk.ProgressCount <= walk.BitmapCount)
        listener.Progress(walk.ProgressCount);
}

} // namespace vypx
