#pragma once

#include <QString>

namespace vypx {

/// What a report of a fault should tell about the program and the computer, one fact a line. Facts
/// that can't be found out are left out; empty: there is none.
QString SystemInformation();

} // namespace vypx
