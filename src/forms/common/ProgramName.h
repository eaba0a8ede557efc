#pragma once

#include "document/Product.h"

#include <QString>

namespace vypx {

inline constexpr const char* ProgramTitle = "VY Pixelworks";

/// The program's own, as "2.0.0".
inline QString VersionNumber()
{
    return QString::fromUtf8(ProductVersion.data(), static_cast<qsizetype>(ProductVersion.size()));
}

} // namespace vypx
