#pragma once

#include "reader/LoadListener.h"
#include "reader/WalkState.h"

namespace vypx {

/// Walks the resource list of FileCashe and fills IconTable and Tree: first to the icon index
/// `iTbl`, then from the first resource again; a file without one is walked a second time with
/// every bitmap resource unknown. IconTable has its rows by then, and ShareNames as many; both grow
/// where more icons share pictures. A file that makes no sense ends the walk at once, silently, and
/// leaves what has been built.
void WalkResources(WalkState& walk, LoadListener& listener);

} // namespace vypx
