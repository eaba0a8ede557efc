#pragma once

#include <QString>

namespace vypx {

inline constexpr const char* ProgramTitle = "VY Pixelworks";

/// The program's own version.
struct ProgramVersion {
    static constexpr int major = 2, minor = 0, revision = 0;
};

/// "2.0.0"
inline QString VersionNumber()
{
    return QString("%1.%2.%3")
        .arg(ProgramVersion::major)
        .arg(ProgramVersion::minor)
        .arg(ProgramVersion::revision);
}

} // namespace vypx
