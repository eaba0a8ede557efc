#include "imaging/Paste.h"

#include "document/Document.h"
#include "document/PictureState.h"
#include "imaging/PictureStore.h"
#include "imaging/SizeChecks.h"
#include "imaging/Undo.h"
#include "imaging/WorkingPicture.h"

#include <utility>

namespace vypx {

namespace {

/// Where the clipboard has no picture, picbuff stays what it was.
void TakeFromClipboard(PictureHost& host)
{
    const std::function<LoadedPicture()> load = host.ClipboardPicture();
    if (!load)
        return;
    picbuff = {}; // a large one need not stand beside the next
    LoadedPicture loaded = load();
    if (loaded.picture.pixels.IsNull())
        throw PictureFault("The clipboard's picture was not pasted: " + loaded.whyNot + ".");
    picbuff = std::move(loaded.picture);
}

} // namespace

ImportResult PasteImage(const Slot& slot, PictureHost& host)
{
    IconsetChanged = true;
    // On purpose: the slot's own cell, where an import takes the high-res one, so that undo after a
    // paste finds the picture that it replaced.
    KeepForUndo(slot, slot.fileCell, host);
    TakeFromClipboard(host);
    if (picbuff.pixels.IsNull())
        return ImportResult::Cancelled;
    SetTargetSize(slot, SelectedText());
    PictureStore store(slot, host);
    if (const auto turnedAway = store.TurnAway(slot.pasteGuards))
        return *turnedAway;
    return store.Store(false);
}

ImportResult PasteImageLG(PictureHost& host) { return PasteImage(SlotLG, host); }

ImportResult PasteImageSM(PictureHost& host) { return PasteImage(SlotSM, host); }

} // namespace vypx
