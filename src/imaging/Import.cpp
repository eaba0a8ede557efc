#include "imaging/Import.h"

#include "document/Document.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "imaging/PictureStore.h"
#include "imaging/SizeChecks.h"
#include "imaging/Undo.h"
#include "imaging/WorkingPicture.h"
#include "settings/Settings.h"

#include <new>
#include <utility>

namespace vypx {

namespace {

/// One import on its way.
class Import {
public:
    Import(const Slot& slot, PictureHost& host)
        : m_slot(slot)
        , m_host(host)
    {
    }

    ImportResult Run();

private:
    void Begin();
    ImportResult BringIn();
    ImportResult Fail(const std::string& why);
    bool Choose();
    void LoadIntoBuffer();
    void RememberFolder();

    const Slot& m_slot;
    PictureHost& m_host;
    const std::string m_label = SelectedText();
    bool m_isNew = false;     // the slot is empty and takes a picture without a dialog
    std::string m_dialogPath; // what the dialog of this import gave
};

ImportResult Import::Run()
{
    IconsetChanged = true; // On purpose: also when the dialog is cancelled.
    if (!std::exchange(CropResultReady, false))
        Begin();
    try {
        return BringIn();
    } catch (const std::bad_alloc&) {
        return Fail("There is not enough memory for the picture.");
    } catch (const std::exception& failure) {
        return Fail(failure.what());
    }
}

/// No box tells of it. The backup, and what it is known by, stay.
ImportResult Import::Fail(const std::string& why)
{
    m_host.Note(why);
    m_host.Enable(m_slot.ofUndo, false);
    return ImportResult::Failed;
}

/// What comes before the user has chosen anything.
void Import::Begin()
{
    SetTargetSize(m_slot, m_label);
    KeepForUndo(m_slot, m_slot.importUndoCell, m_host);
    m_isNew = m_slot.path.empty() && DroppedFile;
    ImageFile.clear();
}

ImportResult Import::BringIn()
{
    if (ImageFile.empty() && !Choose()) {
        m_host.Enable(m_slot.ofUndo, false);
        return ImportResult::Cancelled;
    }
    LoadIntoBuffer();
    PictureStore store(m_slot, m_host);
    if (const auto turnedAway = store.TurnAway(m_slot.importGuards))
        return *turnedAway;
    RememberFolder();
    return store.Store(m_isNew);
}

bool Import::Choose()
{
    ImageFile = DroppedFile ? DroppedFileName : m_host.ChoosePicture();
    if (DroppedFile && !m_host.TakesDropped(ImageFile)) {
        DroppedFile = false; // it waited for this one import
        throw PictureFault(LastComponent(ImageFile)
            + " was not imported: its ending is not one of a picture. The next import asks for a"
              " file.");
    }
    if (!DroppedFile)
        m_dialogPath = ImageFile;
    return !ImageFile.empty();
}

void Import::LoadIntoBuffer()
{
    const bool isScratch = ImageFile == ScratchPath();
    picbuff = {}; // a large one need not stand beside the next
    LoadedPicture loaded = m_host.Load(ImageFile);
    if (loaded.picture.pixels.IsNull())
        throw PictureFault((isScratch ? "The picture" : LastComponent(ImageFile))
            + " was not imported: " + loaded.whyNot + ".");
    picbuff = std::move(loaded.picture);
    if (isScratch)
        picbuff.transparent = ScratchTransparent; // which a BMP can't tell
}

/// On purpose: an import without a dialog of its own, so also what comes back from the crop window,
/// empties the folder.
void Import::RememberFolder()
{
    LastDirImageLoad = FolderOf(m_dialogPath);
    if (!m_dialogPath.empty())
        m_host.FolderRemembered();
}

} // namespace

ImportResult ImportPicture(const Slot& slot, PictureHost& host) { return Import(slot, host).Run(); }

ImportResult ImportLG(PictureHost& host) { return ImportPicture(SlotLG, host); }

ImportResult ImportSM(PictureHost& host) { return ImportPicture(SlotSM, host); }

} // namespace vypx
