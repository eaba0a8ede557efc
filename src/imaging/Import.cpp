#include "imaging/Import.h"

#include "companion/Latin1.h"
#include "document/Document.h"
#include "document/IconStats.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "imaging/LowRes.h"
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
    ImportResult SendToCrop();
    void RememberFolder();
    ImportResult Store();
    void FindFile();
    bool StoresNew() const { return m_isNew && m_slot.path.empty(); }
    void StoreFile(const std::string& path);
    void TakeNewFile(const std::string& name);
    void Show();
    void MakeLowRes();

    const Slot& m_slot;
    PictureHost& m_host;
    const std::string m_label = SelectedText();
    bool m_isNew = false;     // the icon has no picture in this slot
    std::string m_file;       // what the icon's file cell holds
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
    try {
        KeepForUndo(m_slot);
    } catch (...) {
        m_host.Enable(m_slot.ofUndo, false); // of the change before
        throw;
    }
    m_host.Enable(m_slot.ofUndo, true);
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
    const int width = picbuff.pixels.Width(), height = picbuff.pixels.Height();
    if (ExceedsTarget(width, height))
        return SendToCrop();
    const std::string tooLarge = TooLargeText(m_slot, m_label, width, height);
    if (!tooLarge.empty()) {
        m_host.Message(tooLarge, TooLargeTitle);
        return ImportResult::Refused;
    }
    RememberFolder();
    return Store();
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

ImportResult Import::SendToCrop()
{
    if (DroppedFile && !picbuff.transparent)
        picbuff.transparent = DroppedTransparent; // or the cut would mix it with other colours
    WriteScratch(picbuff);
    ImageFile = ScratchPath();
    CropForLG = CropForSM = false; // what waited for it before waits no more
    m_slot.cropFor = true;
    m_host.ShowCrop(m_slot);
    return ImportResult::Cropping;
}

/// On purpose: an import without a dialog of its own, so also what comes back from the crop window,
/// empties the folder.
void Import::RememberFolder()
{
    LastDirImageLoad = FolderOf(m_dialogPath);
    if (!m_dialogPath.empty())
        m_host.FolderRemembered();
}

void Import::FindFile()
{
    for (const IconRow& row : IconTable) {
        if (row.IconLabel != m_label)
            continue;
        const std::string& cell = row.*m_slot.fileCell;
        m_isNew = m_isNew || cell == NoImage;
        if (!cell.empty())
            m_file = cell;
    }
}

ImportResult Import::Store()
{
    FindFile();
    const bool isNew = StoresNew();
    if (isNew) {
        const std::optional<std::size_t> row = FindIconRow(m_label);
        if (!row)
            throw PictureFault("The icon is not there any more.");
        const std::string name = IconTable[*row].ResourceKey + std::string(m_slot.fileSuffix);
        StoreFile(WorkPath(name));
        TakeNewFile(name);
    } else if (!FileExists(m_slot.path)) {
        m_host.Message("Error saving image.", {});
        return ImportResult::Refused;
    } else {
        StoreFile(m_slot.path);
    }
    if (TakeMaskFromCorner(m_slot, m_file))
        m_host.ShowColour(m_slot, m_slot.Mask());
    Show();
    MakeLowRes();
    if (isNew)
        if (const std::optional<std::size_t> row = FindIconRow(m_label))
            SetCellOfResource(m_slot, IconTable[*row].ResourceKey, m_file);
    CountIcons();
    m_host.StatsChanged();
    return ImportResult::Stored;
}

/// Writes the picture and reads it back, so that what follows sees the reduced colours.
void Import::StoreFile(const std::string& path)
{
    if (m_host.Depth() != ColorDepth::Other) {
        picbuff = { .pixels = StoreWorkingPicture(path, picbuff, m_host.Depth()) };
        return;
    }
    // On purpose: at a depth of none of the three words an old file stays what it is.
    std::optional<Picture> old = StoresNew() ? std::nullopt : ReadWorkingPicture(path);
    if (!old)
        throw PictureFault(
            "The picture could not be stored: " + OtherDepthWord + " is no color depth.");
    picbuff = { .pixels = std::move(*old) };
}

void Import::TakeNewFile(const std::string& name)
{
    m_file = name;
    m_slot.path = WorkPath(name);
    m_slot.loaded = true;
    SetCellOfLabel(m_slot, m_label, name);
    AddBitmapRow(name);
}

void Import::Show()
{
    m_host.Draw(m_slot);
    m_host.Enable(m_slot.ofStored, true);
}

/// The picture in this slot stands, whatever becomes of the other one.
void Import::MakeLowRes()
{
    if (!m_slot.makesLowRes || !AutoCreateLowRes || !LowResPath.empty())
        return;
    try {
        const ImportResult result = ImportLowRes(m_host);
        if (result == ImportResult::Stored || result == ImportResult::NoHalf)
            return;
    } catch (const std::exception& failure) {
        m_host.Note(failure.what());
    }
    m_host.LowResFailed();
}

} // namespace

ImportResult ImportPicture(const Slot& slot, PictureHost& host) { return Import(slot, host).Run(); }

ImportResult ImportLG(PictureHost& host) { return ImportPicture(SlotLG, host); }

ImportResult ImportSM(PictureHost& host) { return ImportPicture(SlotSM, host); }

} // namespace vypx
