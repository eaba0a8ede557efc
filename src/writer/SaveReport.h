#pragma once

#include "writer/IconIndex.h"

#include <span>
#include <string>

namespace vypx {

/// What a save that succeeded changes about the iconset, as the next load will show it.
struct SaveReport {
    /// Icons that were saved and will be orphans: neither a record of the index nor the launcher's
    /// catalog names their ID.
    int orphans = 0;
    /// Icons whose application was known and will not be: the file has no index.
    int unknown = 0;
    /// Icons whose application the catalog files name no more; it was taken from the row.
    int ownersFromRows = 0;
    bool withoutName = false; ///< the Palm database name is empty
};

/// The report on a file with these pictures and this index, made from the open document.
SaveReport ReportOn(std::span<const ResourceRow> pictures, const IconIndex& index);

/// The sentences that tell it, in plain words (ASCII), with a blank between them. Empty: there is
/// nothing to tell.
std::string NoteOf(const SaveReport& report);

} // namespace vypx
