#pragma once

#include "reader/LoadListener.h"
#include "reader/WalkState.h"

namespace vypx {

/// One bitmap more is done.
void ProgBar(WalkState& walk, LoadListener& listener);

} // namespace vypx
