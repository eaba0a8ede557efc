#pragma once

#include "companion/ByteView.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vypx {

/// A resource as the list of a file has it, sound or not.
struct ListedResource {
    std::string type; ///< four characters, any byte values
    int id = 0;
    std::uint32_t offset = 0; ///< of its data, as the list says
    std::uint32_t end = 0;    ///< where those of the next resource begin, or the file ends

    /// Type and decimal ID.
    std::string Name() const { return type + std::to_string(id); }
    /// Whether it is of a type whose pictures are read.
    bool HasPictures() const { return type == "tAIB" || type == "Tbmp"; }
    /// Its data; empty where offset and end don't fit the file.
    ByteView Data(ByteView file) const
    {
        return offset <= end && end <= file.Size() ? file.Part(offset, end - offset) : ByteView();
    }
};

/// The resource list of a file, as far as it is there: 2000 resources at most. None of a file that
/// is shorter than a header.
std::vector<ListedResource> ListedResources(ByteView file);

} // namespace vypx
