#pragma once

#include "imaging/ImportResult.h"
#include "imaging/PictureHost.h"

#include <optional>
#include <string>

namespace vypx {

/// From picbuff into a slot of the selected icon: what is the same for every picture, wherever it
/// came from. Throws PictureFault, and the slot is as it was.
class PictureStore {
public:
    PictureStore(const Slot& slot, PictureHost& host);

    /// A picture beyond TargetWidth and TargetHeight goes to the crop window, one that the guards
    /// don't let pass is told of. Empty: it can be stored.
    std::optional<ImportResult> TurnAway(const SizeGuards& guards);

    /// Reduces the picture to the document's depth and stores it; a high-res one makes the low-res
    /// one as well where the option says so. `isNew`: an empty slot is filled whatever the table
    /// says, else only one that it marks as new.
    ImportResult Store(bool isNew);

private:
    ImportResult SendToCrop();
    void FindFile();
    bool FillsSlot() const { return m_isNew && m_slot.path.empty(); }
    void StoreFile(const std::string& path);
    void TakeNewFile(const std::string& name);
    void Show();
    void MakeLowRes();

    const Slot& m_slot;
    PictureHost& m_host;
    const std::string m_label;
    bool m_isNew = false; // the icon has no picture in this slot
    std::string m_file;   // what the icon's file cell holds
};

} // namespace vypx
