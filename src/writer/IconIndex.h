#pragma once

#include "companion/PalmDatabase.h"

#include <string>
#include <vector>

namespace vypx {

/// The icon index of the open document.
struct IconIndex {
    std::vector<ItblValue> values;
    std::vector<ItblKey> keys; ///< row by row with the values
    /// Row by row with the values: rows of IconTable whose own owner was taken, as no catalog file
    /// names them any more.
    std::vector<int> ownersFromRows;
};

/// A record for each application that the rows of IconTable name: by `AppList.dat`, else by
/// `PalmApp.dat`, else by the row's own owner; unknown icons by Itbl. Only `tAIB` resources with
/// IDs from 3500 to 9999 and pictures take part, for a template also those without. An unknown icon
/// never takes the place of one that is known.
IconIndex CollectIconIndex(bool forTemplate = false);

/// The same without the records that are not written, as no class of entries takes them.
IconIndex CollectWrittenIndex(bool forTemplate = false);

/// Writes `iTbl1000.bin` of the working folder; none when no application qualifies. Gives back what
/// was written. Throws SaveFailure.
IconIndex BuildIconTableResource(bool forTemplate = false);

} // namespace vypx
