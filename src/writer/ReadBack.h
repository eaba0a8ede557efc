#pragma once

#include <string>

namespace vypx {

/// Of the open document, which was just saved: a sentence about icons that the file's index and the
/// catalogs name and that will not be shown when it is opened. A reader has room for twice the
/// resources and one; icons that share pictures can be more. Empty: none is left out for that.
std::string IconsWithoutRoom();

} // namespace vypx
