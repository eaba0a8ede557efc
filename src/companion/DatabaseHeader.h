#pragma once

#include "companion/ByteView.h"

namespace vypx {

/// Bytes before the resource list of a Palm database, and of the name that they begin with.
inline constexpr std::size_t DatabaseHeaderSize = 78, DatabaseNameSize = 32;

/// A database's name in its field as readers see it: up to the first character that can't stand in
/// one (CanStandInName).
std::string NameInField(ByteView field);

} // namespace vypx
