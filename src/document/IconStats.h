#pragma once

namespace vypx {

/// What a recount found.
inline int StatTotal = 0;                   ///< rows with a resource key
inline int StatLarge = 0, StatSmall = 0;    ///< by label
inline int StatHighRes = 0, StatLowRes = 0; ///< images of rows with a size in their label
inline int StatUnknown = 0;
inline bool StatDeletable = false; ///< at least one row is marked for deletion

/// Counts the rows anew into the variables above and colours the nodes of `Tree`: a kept row
/// without images blue, other kept rows black. Without an open document the six counters are 0.
void CountIcons();

} // namespace vypx
