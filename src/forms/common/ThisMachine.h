#pragma once

#include <QString>

namespace vypx {

/// Whether the host of a file's URL is this machine: none, "localhost", or its own name, which some
/// programs write.
bool IsThisMachine(const QString& host);

} // namespace vypx
