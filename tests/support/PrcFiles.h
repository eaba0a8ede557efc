#pragma once

#include "companion/ByteView.h"

#include <string>

namespace vypx::test {

/// The first 68 bytes of a Palm database: a name of 32 bytes at most, type and creator of four.
inline Bytes PrcFile(
    const std::string& name, const std::string& type = "appl", const std::string& creator = "ABCD")
{
    Bytes file(68);
    std::copy(name.begin(), name.end(), file.begin());
    std::copy(type.begin(), type.end(), file.begin() + 60);
    std::copy(creator.begin(), creator.end(), file.begin() + 64);
    return file;
}

} // namespace vypx::test
