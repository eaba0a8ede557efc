#pragma once

#include "companion/ByteView.h"
#include "reader/BitmapRecord.h"

#include <cstddef>
#include <functional>

namespace vypx {

/// A record of a bitmap family that is opened: its place and length in the resource, in bytes. The
/// length reaches to the next record or to the resource's end.
struct ShownRecord {
    std::size_t position = 0, size = 0;
    bool highDensity = false;

    /// The record's bytes in a buffer twice as long as the resource.
    Bytes BytesOf(ByteView resource) const;
};

/// Finds the records that are opened, the last low-density one and one high-density one, and gives
/// each to `pick` as it comes. Throws BrokenFile for a record that runs past the resource.
void WalkFamily(ByteView resource, const std::function<void(const ShownRecord&)>& pick);

} // namespace vypx
