#pragma once

#include "reader/LoadListener.h"

namespace vypx {

/// Walks the resource list of FileCashe and fills IconTable and Tree: first to the icon index
/// `iTbl`, then from the first resource again; a file without one is walked a second time with
/// every bitmap resource unknown. IconTable has its rows by then and bounds how many icons a file
/// can have. Any failure but those that are told ends the walk at once, silently, and leaves what
/// has been built.
void WalkResources(LoadListener& listener);

} // namespace vypx
