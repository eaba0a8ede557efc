#include "cli/CommandLine.h"
#include "cli/ExistingFolder.h"
#include "cli/Extract.h"
#include "cli/Thumbnail.h"
#include "cli/Validate.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace vypx {

namespace {

void AddReadOptions(CLI::App& command, ReadOptions& options)
{
    command.add_option("FILE", options.file, "Iconset (.prc, .pdb) or template (.vpt)")->required();
    command
        .add_option("--app-folder", options.appFolder,
            "Folder with the catalogs; without it those that come with the program count")
        ->check(ExistingFolder);
}

void AddThumbnail(CLI::App& tool, ChosenCommand& chosen)
{
    CLI::App* command =
        tool.add_subcommand("thumbnail", "Show an iconset's first icons in one PNG picture");
    const auto options = std::make_shared<ThumbnailOptions>();
    AddReadOptions(*command, options->read);
    command->add_option("OUT", options->out, "PNG file to write")->required();
    command->add_option("--size", options->size, "Longer side of the picture at most, in pixels")
        ->check(CLI::Range(SmallestThumbnail, LargestThumbnail))
        ->capture_default_str();
    command->callback(
        [options, &chosen] { chosen.run = [options] { return Thumbnail(*options); }; });
}

void AddExtract(CLI::App& tool, ChosenCommand& chosen)
{
    CLI::App* command = tool.add_subcommand(
        "extract", "Write all pictures of an iconset as PNG, and a JSON file that names them");
    const auto options = std::make_shared<ExtractOptions>();
    AddReadOptions(*command, options->read);
    command->add_option("DIR", options->folder, "Folder for the pictures; absent or empty")
        ->required();
    command->callback([options, &chosen] { chosen.run = [options] { return Extract(*options); }; });
}

void AddValidate(CLI::App& tool, ChosenCommand& chosen)
{
    CLI::App* command = tool.add_subcommand("validate",
        "Say what a handheld or this program would refuse or lose of an iconset, a line for each");
    const auto options = std::make_shared<ReadOptions>();
    AddReadOptions(*command, *options);
    command->callback(
        [options, &chosen] { chosen.run = [options] { return Validate(*options); }; });
}

} // namespace

void AddReadingCommands(CLI::App& tool, ChosenCommand& chosen)
{
    AddThumbnail(tool, chosen);
    AddExtract(tool, chosen);
    AddValidate(tool, chosen);
}

} // namespace vypx
