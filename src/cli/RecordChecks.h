#pragma once

#include "cli/Findings.h"
#include "reader/FamilyWalk.h"

#include <string>

namespace vypx {

/// What `validate` looks for in a record that is opened. Its pixels are expanded as a load does it.
/// Throws BrokenFile where the header reaches beyond what is there.
void CheckShown(
    ByteView resource, const ShownRecord& shown, const std::string& place, Findings& findings);

/// "1 bit", "8 bits".
std::string BitsText(int depth);

} // namespace vypx
