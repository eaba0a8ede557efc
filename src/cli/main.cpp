#include "cli/CommandLine.h"
#include "cli/OpenIconset.h"
#include "platform/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// A command's exit code, unless what it printed got lost.
int EndOf(int exitCode)
{
    if (std::cout.flush() || exitCode != 0)
        return exitCode;
    std::cerr << "pixelworks-cli: the output could not be written\n";
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    vypx::platform::KeepLineEnds();
    CLI::App tool("VY Pixelworks without windows: iconsets on the command line", "pixelworks-cli");
    tool.set_version_flag("--version", "pixelworks-cli (VY Pixelworks) " VYPX_VERSION);
    tool.footer("Exit codes: 0: done; 1: not done, or something was found; 2: wrong use.\n"
                "\"pixelworks-cli COMMAND --help\" tells the options of a command.");
    tool.require_subcommand(1);
    vypx::ChosenCommand chosen;
    vypx::AddDocumentCommands(tool, chosen);
    vypx::AddScan(tool, chosen);
    vypx::AddReadingCommands(tool, chosen);
    try {
        std::vector<std::string> arguments = vypx::platform::Arguments(argc, argv);
        std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
        tool.parse(arguments);
        return EndOf(chosen.run());
    } catch (const CLI::ParseError& error) {
        std::ostringstream errors; // which repeat what was given
        const bool askedForHelp = tool.exit(error, std::cout, errors) == 0;
        std::cerr << vypx::WithoutControls(errors.str());
        return askedForHelp ? EndOf(0) : 2;
    } catch (const std::exception& error) {
        std::cerr << "pixelworks-cli: " << vypx::WithoutControls(error.what()) << '\n';
        return 1;
    }
}
