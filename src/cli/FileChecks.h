#pragma once

#include "cli/Findings.h"
#include "cli/ListedResource.h"
#include "writer/IconIndex.h"

#include <span>

/// What `validate` looks for in the bytes of a file, beside what a load tells. Sources: Palm OS
/// Programmer's Companion (databases, memory), Palm OS Programmer's API Reference, "Bitmaps", and
/// the limits of this program's reader.
namespace vypx {

/// Name, attributes and counts of a file that is long enough for a header.
void CheckHeader(ByteView file, Findings& findings);

/// Where resources stand, how large they are, what stands twice, and what a save does not keep.
void CheckList(ByteView file, std::span<const ListedResource> resources, Findings& findings);

/// The records of the icon index that is read: the first one of the list.
void CheckIndex(ByteView file, std::span<const ListedResource> resources, Findings& findings);

/// The same records against what a save of the open document would write.
void CheckWrittenIndex(ByteView file, std::span<const ListedResource> resources,
    const IconIndex& written, Findings& findings);

/// The bitmap records of a resource of pictures, the ones included that are never shown.
void CheckPictures(const std::string& resource, ByteView data, Findings& findings);

} // namespace vypx
