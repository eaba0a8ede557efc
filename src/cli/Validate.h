#pragma once

#include "cli/Findings.h"
#include "cli/ReadIconset.h"

namespace vypx {

/// What is wrong with a file: what a handheld or this program would refuse, or a load and a save
/// lose. Opens it as the program does.
Findings Judged(const ReadOptions& options);

/// Prints the findings, a line for each. 0: there are none; 1: there are, or the file can't be
/// read.
int Validate(const ReadOptions& options);

} // namespace vypx
