#pragma once

#include "companion/ByteView.h"

#include <functional>
#include <optional>

namespace vypx {

/// Changes a small file that another program rewrites too, in one step or not at all: true where it
/// stands as `edit` has it.
///
/// `edit` gets the bytes as they are, none where there is no file, and gives those that are to be
/// there, or nothing where they can stay. It is called anew when another program changed the file
/// before the new one took its place. A file that can't be read, is none, or has more than 16 MiB
/// is never replaced.
bool EditQueue(
    const std::string& path, const std::function<std::optional<Bytes>(const Bytes&)>& edit);

} // namespace vypx
