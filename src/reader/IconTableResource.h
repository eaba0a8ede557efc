#pragma once

#include "reader/LoadListener.h"
#include "reader/WalkState.h"

#include <cstdint>

namespace vypx {

inline constexpr std::int32_t IndexRecordSize = 16; ///< bytes
inline constexpr std::int32_t MaxIndexRecords = INT16_MAX;

/// Reads the `iTbl` resource whose list entry stands at FCin into Itbl, and sets ResourceOffset,
/// NextOffset and ResourceSize. It is a sequence of records, big-endian, without header or count:
///
///   offset width field
///        0     4 type      Palm database type of the application
///        4     4 creator   its creator ID
///        8     2 large ID  resource ID of the large icon; 0: none
///       10     2 small ID  resource ID of the small icon; 0: none
///       12     4 reserved  anything
///
/// A size that is no multiple of 16 is told, and Itbl keeps what it held. Throws BrokenFile
/// where the file ends too early and for more than 32767 records.
void ReadIconTableResource(WalkState& walk, LoadListener& listener);

} // namespace vypx
