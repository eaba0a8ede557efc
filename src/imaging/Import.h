#pragma once

#include "imaging/ImportResult.h"
#include "imaging/PictureHost.h"

namespace vypx {

/// Bring a picture file into the high-res or the low-res slot of the selected icon: the one that
/// the user chooses, the one that was dropped (DroppedFile), or what the crop window made of it
/// (CropResultReady). Whatever else may go wrong than what the result names throws PictureFault,
/// and the slot is as it was.
ImportResult ImportLG(PictureHost& host);
ImportResult ImportSM(PictureHost& host);
ImportResult ImportPicture(const Slot& slot, PictureHost& host);

} // namespace vypx
