#include "imaging/PictureStore.h"

#include "document/Document.h"
#include "document/IconStats.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "imaging/LowRes.h"
#include "imaging/SizeChecks.h"
#include "imaging/WorkingPicture.h"
#include "settings/Settings.h"

#include <utility>

namespace vypx {

PictureStore::PictureStore(const Slot& slot, PictureHost& host)
    : m_slot(slot)
    , m_host(host)
    , m_label(SelectedText())
{
}

std::optional<ImportResult> PictureStore::TurnAway(const SizeGuards& guards)
{
    const int width = picbuff.pixels.Width(), height = picbuff.pixels.Height();
    if (ExceedsTarget(width, height))
        return SendToCrop();
    const std::string tooLarge = TooLargeText(guards, m_label, width, height);
    if (tooLarge.empty())
        return std::nullopt;
    m_host.Message(tooLarge, TooLargeTitle);
    return ImportResult::Refused;
}

ImportResult PictureStore::SendToCrop()
{
    if (!picbuff.transparent)
        picbuff.transparent = DroppedTransparent; // or the cut would mix it with other colours
    WriteScratch(picbuff);
    ImageFile = ScratchPath();
    CropForLG = CropForSM = false; // what waited for it before waits no more
    m_slot.cropFor = true;
    m_host.ShowCrop(m_slot);
    return ImportResult::Cropping;
}

void PictureStore::FindFile()
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

ImportResult PictureStore::Store(bool isNew)
{
    m_isNew = isNew;
    FindFile();
    const bool fillsSlot = FillsSlot();
    if (fillsSlot) {
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
    if (fillsSlot)
        if (const std::optional<std::size_t> row = FindIconRow(m_label))
            SetCellOfResource(m_slot, IconTable[*row].ResourceKey, m_file);
    CountIcons();
    m_host.StatsChanged();
    return ImportResult::Stored;
}

/// Writes the picture and reads it back, so that what follows sees the reduced colours.
void PictureStore::StoreFile(const std::string& path)
{
    if (m_host.Depth() != ColorDepth::Other) {
        picbuff = { .pixels = StoreWorkingPicture(path, picbuff, m_host.Depth()) };
        return;
    }
    // On purpose: at a depth of none of the three words an old file stays what it is.
    std::optional<Picture> old = FillsSlot() ? std::nullopt : ReadWorkingPicture(path);
    if (!old)
        throw PictureFault(
            "The picture could not be stored: " + OtherDepthWord + " is no color depth.");
    picbuff = { .pixels = std::move(*old) };
}

void PictureStore::TakeNewFile(const std::string& name)
{
    m_file = name;
    m_slot.path = WorkPath(name);
    m_slot.loaded = true;
    SetCellOfLabel(m_slot, m_label, name);
    AddBitmapRow({ .file = name, .hasTransparent = 1 });
}

void PictureStore::Show()
{
    m_host.Draw(m_slot);
    m_host.Enable(m_slot.ofStored, true);
}

/// The picture in this slot stands, whatever becomes of the other one.
void PictureStore::MakeLowRes()
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

} // namespace vypx
