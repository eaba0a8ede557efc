#pragma once

#include "document/WorkingFolder.h"

#include <string>

namespace vypx {

/// How many further copies of the program run beside the first, as the settings file has it under
/// `Instance Count`, `Run Count`: it picks the name of the next copy's working folder. 0 where it
/// is missing or no sensible number. `folder` is the one that the settings file stands in.
int ReadRunCount(const std::string& folder = AppFolder);
/// False when the file can't be written.
bool WriteRunCount(int count, const std::string& folder = AppFolder);

} // namespace vypx
