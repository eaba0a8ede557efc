#pragma once

#include "companion/LoadedPicture.h"

#include <functional>

/// Pictures on the desktop's clipboard. What another program has there is asked of that program:
/// one that is slow or hangs holds these calls up for some 5 seconds each, and then gives nothing.
namespace vypx {

/// Loads the clipboard's picture in the first of its formats that can be read; empty when it has
/// none. `wait` is called before another program is asked, which is at once and when it is loaded,
/// and before a picture of many pixels is decoded.
std::function<LoadedPicture()> PictureOnClipboard(const std::function<void()>& wait);

/// Offers exactly these pixels in the formats that programs take.
void PutOnClipboard(const vypx::Picture& picture);

} // namespace vypx
