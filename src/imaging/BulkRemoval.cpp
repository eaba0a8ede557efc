#include "imaging/BulkRemoval.h"

#include "document/Document.h"
#include "document/PictureState.h"

#include <unordered_set>
#include <utility>

namespace vypx {

void RemoveAllImages(const Slot& slot)
{
    IconsetChanged = true;
    std::unordered_set<std::string> removed;
    for (IconRow& row : IconTable) {
        removed.insert(std::exchange(row.*slot.fileCell, std::string(NoImage)));
        // One that was deleted before has no cell, but a backup.
        BackedUp.erase(row.ResourceKey + std::string(slot.fileSuffix));
    }
    std::erase_if(BitmapTable, [&](const BitmapEntry& bitmap) {
        return removed.contains(bitmap.file) || !LabelHolds(bitmap.file, ".bmp");
    });
    BitmapRow = static_cast<int>(BitmapTable.size());
    BitmapTable.emplace_back();
    std::erase_if(BackedUp, [&](const std::string& file) { return removed.contains(file); });
}

void ForgetPictureOnShow(const Slot& slot)
{
    slot.path.clear();
    slot.loaded = false;
    slot.hasTransparent = false;
    slot.wasEmpty = false;
    slot.undoName.clear();
}

} // namespace vypx
