#pragma once

#include <string>
#include <vector>

namespace vypx::platform {

/// What a program of the command line was called with, as UTF-8 and without its own name. Of
/// Windows the system's own texts are taken: those of main() lack what the code page does not have.
std::vector<std::string> Arguments(int argc, char** argv);

/// Has standard output and error pass on bytes as they are. A line ends in LF on every system then.
void KeepLineEnds();

} // namespace vypx::platform
