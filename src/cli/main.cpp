#include "cli/Dump.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>

namespace {

void AddDump(CLI::App& tool, vypx::OpenOptions& options)
{
    CLI::App* dump = tool.add_subcommand("dump", "Open an iconset and print it as JSON");
    dump->add_option("FILE", options.file, "Iconset (.prc, .pdb) or template (.vpt)")->required();
    dump->add_option("--app-folder", options.appFolder, "Folder with the catalogs")
        ->required()
        ->check(CLI::ExistingDirectory);
    dump->add_option("--work", options.workFolder, "Folder for the pictures; absent or empty")
        ->required();
    dump->add_option("--depth", options.depth, "Working colour depth")
        ->check(CLI::IsMember({ "4-Bit", "8-Bit", "16-Bit" }))
        ->capture_default_str();
    dump->add_option("--only", options.only, "Keep the pictures of one resolution only")
        ->check(CLI::IsMember({ "high", "low" }));
    dump->add_flag("--template", options.asTemplate, "FILE is a template");
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App tool("VY Pixelworks without windows: iconsets on the command line", "pixelworks-cli");
    tool.require_subcommand(1);
    vypx::OpenOptions options;
    AddDump(tool, options);
    try {
        tool.parse(argc, argv);
        return vypx::Dump(options);
    } catch (const CLI::ParseError& error) {
        const bool askedForHelp = tool.exit(error) == 0;
        return askedForHelp ? 0 : 2;
    } catch (const std::exception& error) {
        std::cerr << "pixelworks-cli: " << error.what() << '\n';
        return 1;
    }
}
