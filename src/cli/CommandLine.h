#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace vypx {

/// What the command line came to: set by the one command that stands on it.
struct ChosenCommand {
    std::function<int()> run; ///< gives the exit code
};

/// Add the tool's commands, each with its options. `chosen` outlives the parsing.
void AddDocumentCommands(CLI::App& tool, ChosenCommand& chosen); ///< dump, convert, import
void AddScan(CLI::App& tool, ChosenCommand& chosen);
void AddReadingCommands(CLI::App& tool, ChosenCommand& chosen); ///< thumbnail, extract, validate

} // namespace vypx
