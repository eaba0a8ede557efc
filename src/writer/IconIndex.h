#pragma once

#include "companion/PalmDatabase.h"

#include <string>
#include <vector>

namespace vypx {

/// The icon index of the open document.
struct IconIndex {
    std::vector<ItblValue> values;
    std::vector<ItblKey> keys; ///< row by row with the values
};

/// A record for each application that the rows of IconTable name: by `AppList.dat`, else by
/// `PalmApp.dat`, unknown icons by Itbl. Only `tAIB` resources with IDs from 3500 to 9999 and
/// pictures take part.
IconIndex CollectIconIndex();

/// The number behind the four characters of a resource key's type; 0 where there is none.
int IdOf(const std::string& key);

/// Writes `iTbl1000.bin` of the working folder; none when no application qualifies. Throws
/// SaveFailure.
void BuildIconTableResource();

} // namespace vypx
