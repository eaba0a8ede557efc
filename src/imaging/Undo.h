#pragma once

#include "imaging/PictureHost.h"

namespace vypx {

/// Before a picture comes in: notes whether the slot holds one and which file an undo will go back
/// to, by that cell of the selected icon's row, keeps the slot's file under ".bak", and offers the
/// undo. One step is kept for each slot. Throws PictureFault; then undo is not offered.
void KeepForUndo(const Slot& slot, std::string IconRow::*nameCell, PictureHost& host);

/// Takes the slot's picture from the selected icon and all that share its resource; the working
/// file stays, and its ".bak" is made. Throws PictureFault, and nothing is deleted then.
void DeleteImage(const Slot& slot, PictureHost& host);

/// Takes the slot's last import or deletion back. On purpose: it neither sets nor clears
/// IconsetChanged, and a picture that comes back is not drawn before the next selection. Throws
/// PictureFault, and nothing is undone then.
void UndoChange(const Slot& slot, PictureHost& host);

} // namespace vypx
