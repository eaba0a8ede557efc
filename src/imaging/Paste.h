#pragma once

#include "imaging/ImportResult.h"
#include "imaging/PictureHost.h"

namespace vypx {

/// Bring the clipboard's picture into the high-res or the low-res slot of the selected icon. On
/// purpose: where it has none they take the picture that passed through last (picbuff), and where
/// there was none either, nothing happens beyond marking the document and keeping the old picture
/// for an undo. A picture that is larger than the slot comes back from the crop window through an
/// import. Whatever else goes wrong throws PictureFault, and the slot is as it was.
ImportResult PasteImageLG(PictureHost& host);
ImportResult PasteImageSM(PictureHost& host);
ImportResult PasteImage(const Slot& slot, PictureHost& host);

} // namespace vypx
