#include "imaging/Undo.h"

#include "companion/BmpFile.h"
#include "companion/ReplaceWorkingFile.h"
#include "document/Document.h"
#include "document/IconStats.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "imaging/WorkingPicture.h"
#include "platform/Platform.h"

#include <filesystem>

namespace vypx {

namespace {

constexpr std::string_view BackupEnding = ".bak";

std::string BackupOf(const std::string& path) { return path + std::string(BackupEnding); }

void NoteWhetherEmpty(const Slot& slot)
{
    slot.wasEmpty = slot.path.empty() || !FileExists(slot.path);
}

/// Copies a working file to its backup, which replaces an older one in one step.
void BackUp(const std::string& path)
{
    const auto bytes = platform::ReadWholeFile(path);
    if (!bytes)
        throw PictureFault("The old picture can't be read for its backup.");
    const std::error_code error = ReplaceWorkingFile(
        BackupOf(path), [&](const std::string& file) { return WriteWorkingFile(file, *bytes); });
    if (error)
        throw PictureFault(FaultText("The old picture could not be kept for an undo", error));
    BackedUp.insert(LastComponent(path));
}

/// Resource of the selected icon: of the last row with its label.
std::string SelectedResource()
{
    std::string key;
    for (const IconRow& row : IconTable)
        if (row.IconLabel == SelectedText())
            key = row.ResourceKey;
    return key;
}

void Recount(PictureHost& host)
{
    CountIcons();
    host.StatsChanged();
}

/// The last change put a picture into an empty slot.
void EmptyAgain(const Slot& slot, PictureHost& host)
{
    host.ClearPanel(slot);
    slot.path.clear();
    host.Enable(slot.ofStored, false);
    host.Enable(slot.ofUndo, false);
    slot.wasEmpty = false;
    SetCellOfLabel(slot, SelectedText(), NoImage);
    SetCellOfResource(slot, SelectedResource(), NoImage);
    host.Draw(slot);
    Recount(host);
}

/// Gives the backup its file's name again. Throws PictureFault.
void PutBack(const std::string& path)
{
    std::error_code error;
    std::filesystem::rename(
        platform::NativePath(BackupOf(path)), platform::NativePath(path), error);
    if (error)
        throw PictureFault(FaultText("The old picture could not be put back", error));
    BackedUp.erase(LastComponent(path));
}

void NoteTransparency(const Slot& slot, const std::string& file)
{
    for (const BitmapEntry& bitmap : BitmapTable)
        if (bitmap.file == file)
            slot.hasTransparent = bitmap.hasTransparent != 0;
}

void Restore(const Slot& slot, PictureHost& host)
{
    const std::string name = slot.undoName, path = WorkPath(name);
    if (!BackedUp.contains(name) || !FileExists(BackupOf(path)))
        return;
    std::optional<Picture> picture = ReadWorkingPicture(BackupOf(path));
    if (!picture)
        throw PictureFault("The old picture can't be read any more.");
    PutBack(path);
    picbuff = { .pixels = std::move(*picture) };
    SetCellOfLabel(slot, SelectedText(), name);
    slot.loaded = true;
    slot.path = path;
    NoteTransparency(slot, name);
    host.Enable(slot.ofStored, true);
    host.Enable(slot.ofUndo, false);
    // On purpose: whatever transparent colour the picture had, it comes back with its corner's.
    if (TakeMaskFromCorner(slot, name))
        host.ShowColour(slot, slot.Mask());
    SetCellOfResource(slot, SelectedResource(), name);
    Recount(host);
}

} // namespace

void KeepForUndo(const Slot& slot, std::string IconRow::*nameCell, PictureHost& host)
{
    NoteWhetherEmpty(slot);
    for (const IconRow& row : IconTable)
        if (row.IconLabel == SelectedText())
            slot.undoName = row.*nameCell;
    try {
        if (!slot.wasEmpty)
            BackUp(slot.path);
    } catch (...) {
        host.Enable(slot.ofUndo, false); // of the change before
        throw;
    }
    host.Enable(slot.ofUndo, true);
}

void DeleteImage(const Slot& slot, PictureHost& host)
{
    std::string name;
    for (const IconRow& row : IconTable)
        if (row.IconLabel == SelectedText())
            name = row.*slot.fileCell;
    if (ImageFileValid(name) && FileExists(WorkPath(name)))
        BackUp(WorkPath(name));

    IconsetChanged = true;
    host.Enable(slot.ofUndo, true);
    NoteWhetherEmpty(slot);
    slot.undoName = name;
    SetCellOfLabel(slot, SelectedText(), NoImage);
    SetCellOfResource(slot, SelectedResource(), NoImage);
    slot.loaded = false;
    slot.path.clear();
    host.ClearPanel(slot);
    host.Enable(slot.ofStored, false);
    Recount(host);
}

void UndoChange(const Slot& slot, PictureHost& host)
{
    if (slot.wasEmpty)
        EmptyAgain(slot, host);
    else
        Restore(slot, host);
}

} // namespace vypx
