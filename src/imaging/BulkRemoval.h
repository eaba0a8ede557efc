#pragma once

#include "document/Slot.h"

namespace vypx {

/// Takes the pictures of one slot out of the whole document, for an iconset of one resolution, and
/// sets IconsetChanged. The working files stay; BitmapTable keeps the rows of the others and an
/// empty one, and no undo brings a removed picture back.
void RemoveAllImages(const Slot& slot);

/// Nothing of a picture is left in the slot of the selected icon.
void ForgetPictureOnShow(const Slot& slot);

} // namespace vypx
