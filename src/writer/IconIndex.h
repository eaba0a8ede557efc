#pragma once

#include "companion/PalmDatabase.h"

#include <cstdint>
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

/// The same without the records that have no class, which are not saved.
IconIndex SavedIndex();

/// Decimal ID behind the key's type; 0 where there is none.
int IdOf(const std::string& key);

/// Four characters, the first in the highest byte; a shorter text is filled up with blanks.
std::uint32_t PackedFour(const std::string& text);
/// Type and creator as one number.
constexpr std::uint64_t OwnerNumber(std::uint32_t type, std::uint32_t creator)
{
    return static_cast<std::uint64_t>(type) << 32 | creator;
}

/// Writes `iTbl1000.bin` of the working folder; none when no application qualifies. Throws
/// SaveFailure.
void BuildIconTableResource();

} // namespace vypx
