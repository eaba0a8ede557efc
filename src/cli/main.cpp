#include "cli/Convert.h"
#include "cli/Dump.h"
#include "cli/ExistingFolder.h"
#include "cli/Import.h"
#include "cli/Scan.h"
#include "platform/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <iostream>

namespace {

void AddOpenOptions(CLI::App& command, vypx::OpenOptions& options)
{
    command.add_option("FILE", options.file, "Iconset (.prc, .pdb) or template (.vpt)")->required();
    command.add_flag("--template", options.asTemplate, "FILE is a template");
    command.add_option("--app-folder", options.appFolder, "Folder with the catalogs")
        ->required()
        ->check(vypx::ExistingFolder);
    command.add_option("--work", options.workFolder, "Folder for the pictures; absent or empty")
        ->required();
    command.add_option("--depth", options.depth, "Working colour depth")
        ->check(CLI::IsMember({ "4-Bit", "8-Bit", "16-Bit" }))
        ->capture_default_str();
    command.add_option("--only", options.only, "Keep the pictures of one resolution only")
        ->check(CLI::IsMember({ "high", "low" }));
}

CLI::App& AddDump(CLI::App& tool, vypx::OpenOptions& options)
{
    CLI::App* dump = tool.add_subcommand("dump", "Open an iconset and print it as JSON");
    AddOpenOptions(*dump, options);
    return *dump;
}

void AddSaveOptions(CLI::App& command, vypx::SaveOptions& options)
{
    command.add_option("OUT", options.out, "File to write; may be FILE")->required();
    command.add_flag("--packbits", options.packed, "Compress the pictures");
    command.add_flag("--drop-unknown", options.dropUnknown, "Leave unknown icons out");
    command.add_option("--version-string", options.versionString, "Text of the version resource");
    command.add_option("--name", options.databaseName, "Palm database name");
}

CLI::App& AddConvert(CLI::App& tool, vypx::ConvertOptions& options)
{
    CLI::App* convert = tool.add_subcommand("convert", "Open an iconset and save it as OUT");
    AddOpenOptions(*convert, options.open);
    AddSaveOptions(*convert, options.save);
    convert->add_flag("--export-template", options.save.asTemplate,
        "Make OUT (.vpt) a template: the icons without their pictures");
    return *convert;
}

CLI::App& AddImport(CLI::App& tool, vypx::ImportOptions& options)
{
    CLI::App* command = tool.add_subcommand(
        "import", "Open an iconset, bring in the pictures of a list and save it as OUT");
    AddOpenOptions(*command, options.open);
    AddSaveOptions(*command, options.save);
    command
        ->add_option("--list", options.list,
            "UTF-8 file with a line for each picture: the icon's label or resource, high or low, "
            "path from the list's folder, with tabs between them, and as a fourth field, if a "
            "part of the picture is to fill the slot, left,top,width,height of it in pixels; "
            "lines with # are passed over")
        ->required();
    command->add_flag("--stretch", options.stretch,
        "Stretch a picture that is larger than its slot to the slot's size");
    command->add_flag("--low-res", options.lowRes,
        "Make the low-res picture of a high-res one where the icon has none");
    return *command;
}

CLI::App& AddScan(CLI::App& tool, vypx::ScanOptions& options)
{
    CLI::App* scan = tool.add_subcommand(
        "scan", "Search a folder for Palm applications and add new ones to AppList.dat");
    scan->add_option("FOLDER", options.folder, "Folder to search, with all below it")->required();
    scan->add_option("--app-folder", options.appFolder, "Folder with the catalogs")
        ->required()
        ->check(vypx::ExistingFolder);
    return *scan;
}

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
    tool.require_subcommand(1);
    vypx::OpenOptions dumpOptions;
    vypx::ConvertOptions convertOptions;
    vypx::ImportOptions importOptions;
    vypx::ScanOptions scanOptions;
    const CLI::App& dump = AddDump(tool, dumpOptions);
    const CLI::App& convert = AddConvert(tool, convertOptions);
    AddImport(tool, importOptions);
    const CLI::App& scan = AddScan(tool, scanOptions);
    try {
        std::vector<std::string> arguments = vypx::platform::Arguments(argc, argv);
        std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
        tool.parse(arguments);
        if (dump.parsed())
            return EndOf(vypx::Dump(dumpOptions));
        if (scan.parsed())
            return EndOf(vypx::Scan(scanOptions));
        return EndOf(
            convert.parsed() ? vypx::Convert(convertOptions) : vypx::Import(importOptions));
    } catch (const CLI::ParseError& error) {
        const bool askedForHelp = tool.exit(error) == 0;
        return askedForHelp ? 0 : 2;
    } catch (const std::exception& error) {
        std::cerr << "pixelworks-cli: " << error.what() << '\n';
        return 1;
    }
}
