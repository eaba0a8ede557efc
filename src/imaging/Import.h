#pragma once

#include "imaging/PictureHost.h"

namespace vypx {

/// How an import ended.
enum class ImportResult {
    Stored,    ///< the slot holds the picture
    Cropping,  ///< it is larger than the slot: the scratch picture waits for the crop window
    Cancelled, ///< no file was chosen
    Refused,   ///< a box told why; the slot is as it was
    Failed,    ///< a note tells why; the slot is as it was
    NoHalf,    ///< the same, of a low-res picture: the high-res one is too small to be halved
};

/// Bring a picture file into the high-res or the low-res slot of the selected icon: the one that
/// the user chooses, the one that was dropped (DroppedFile), or what the crop window made of it
/// (CropResultReady). Whatever else may go wrong than what the result names throws PictureFault,
/// and the slot is as it was.
ImportResult ImportLG(PictureHost& host);
ImportResult ImportSM(PictureHost& host);
ImportResult ImportPicture(const Slot& slot, PictureHost& host);

} // namespace vypx
