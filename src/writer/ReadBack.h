#pragma once

#include <string>

namespace vypx {

/// Of the open document, which was just saved: a sentence about icons that the file gives to its
/// applications and that it will not show when it is opened. A reader has room for twice the
/// resources and one; icons that share pictures can be more. Empty: all will be there.
std::string IconsWithoutRoom();

} // namespace vypx
