#include "cli/CommandLine.h"
#include "cli/Convert.h"
#include "cli/Dump.h"
#include "cli/ExistingFolder.h"
#include "cli/Import.h"
#include "cli/Scan.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace vypx {

namespace {

void AddOpenOptions(CLI::App& command, OpenOptions& options)
{
    command.add_option("FILE", options.file, "Iconset (.prc, .pdb) or template (.vpt)")->required();
    command.add_flag("--template", options.asTemplate, "FILE is a template");
    command.add_option("--app-folder", options.appFolder, "Folder with the catalogs")
        ->required()
        ->check(ExistingFolder);
    command.add_option("--work", options.workFolder, "Folder for the pictures; absent or empty")
        ->required();
    command.add_option("--depth", options.depth, "Working colour depth")
        ->check(CLI::IsMember({ "4-Bit", "8-Bit", "16-Bit" }))
        ->capture_default_str();
    command.add_option("--only", options.only, "Keep the pictures of one resolution only")
        ->check(CLI::IsMember({ "high", "low" }));
}

void AddSaveOptions(CLI::App& command, SaveOptions& options)
{
    command.add_option("OUT", options.out, "File to write; may be FILE")->required();
    command.add_flag("--packbits", options.packed, "Compress the pictures");
    command.add_flag("--drop-unknown", options.dropUnknown, "Leave unknown icons out");
    command.add_option("--version-string", options.versionString, "Text of the version resource");
    command.add_option("--name", options.databaseName, "Palm database name");
}

void AddDump(CLI::App& tool, ChosenCommand& chosen)
{
    CLI::App* dump = tool.add_subcommand("dump", "Open an iconset and print it as JSON");
    const auto options = std::make_shared<OpenOptions>();
    AddOpenOptions(*dump, *options);
    dump->callback([options, &chosen] { chosen.run = [options] { return Dump(*options); }; });
}

void AddConvert(CLI::App& tool, ChosenCommand& chosen)
{
    CLI::App* convert = tool.add_subcommand("convert", "Open an iconset and save it as OUT");
    const auto options = std::make_shared<ConvertOptions>();
    AddOpenOptions(*convert, options->open);
    AddSaveOptions(*convert, options->save);
    convert->add_flag("--export-template", options->save.asTemplate,
        "Make OUT (.vpt) a template: the icons without their pictures");
    convert->callback([options, &chosen] { chosen.run = [options] { return Convert(*options); }; });
}

void AddImport(CLI::App& tool, ChosenCommand& chosen)
{
    CLI::App* command = tool.add_subcommand(
        "import", "Open an iconset, bring in the pictures of a list and save it as OUT");
    const auto options = std::make_shared<ImportOptions>();
    AddOpenOptions(*command, options->open);
    AddSaveOptions(*command, options->save);
    command
        ->add_option("--list", options->list,
            "UTF-8 file with a line for each picture: the icon's label or resource, high or low, "
            "path from the list's folder, with tabs between them, and as a fourth field, if a "
            "part of the picture is to fill the slot, left,top,width,height of it in pixels; "
            "lines with # are passed over")
        ->required();
    command->add_flag("--stretch", options->stretch,
        "Stretch a picture that is larger than its slot to the slot's size");
    command->add_flag("--low-res", options->lowRes,
        "Make the low-res picture of a high-res one where the icon has none");
    command->callback([options, &chosen] { chosen.run = [options] { return Import(*options); }; });
}

} // namespace

void AddDocumentCommands(CLI::App& tool, ChosenCommand& chosen)
{
    AddDump(tool, chosen);
    AddConvert(tool, chosen);
    AddImport(tool, chosen);
}

void AddScan(CLI::App& tool, ChosenCommand& chosen)
{
    CLI::App* scan = tool.add_subcommand(
        "scan", "Search a folder for Palm applications and add new ones to AppList.dat");
    const auto options = std::make_shared<ScanOptions>();
    scan->add_option("FOLDER", options->folder, "Folder to search, with all below it")->required();
    scan->add_option("--app-folder", options->appFolder, "Folder with the catalogs")
        ->required()
        ->check(ExistingFolder);
    scan->callback([options, &chosen] { chosen.run = [options] { return Scan(*options); }; });
}

} // namespace vypx
