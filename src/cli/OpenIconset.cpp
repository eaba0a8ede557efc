#include "cli/OpenIconset.h"

#include "catalogs/CatalogFiles.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"

#include <filesystem>
#include <iostream>

namespace vypx {

namespace {

namespace fs = std::filesystem;

/// Makes `options.appFolder` the program's folder and the work folder the one of this run.
/// False, and a word to standard error, when it can't serve: files that are there already would be
/// deleted by the load.
bool UseFolders(const OpenOptions& options)
{
    std::error_code error;
    const fs::path work = platform::NativePath(options.workFolder);
    if (fs::exists(work, error) && !(fs::is_directory(work, error) && fs::is_empty(work, error))) {
        std::cerr << "pixelworks-cli: the work folder is not empty: " << options.workFolder << '\n';
        return false;
    }
    fs::create_directories(work, error);
    if (!fs::is_directory(work, error)) {
        std::cerr << "pixelworks-cli: can't make the work folder: " << options.workFolder << '\n';
        return false;
    }
    // The work folder stands wherever the caller wants it; from the program's folder a way leads
    // there.
    const fs::path app = fs::canonical(platform::NativePath(options.appFolder));
    AppFolder = platform::Utf8Path(app);
    TempSuffix = BelowFolder(platform::Utf8Path(fs::canonical(work).lexically_relative(app)));
    return true;
}

void UseSettings(const OpenOptions& options)
{
    SetDefaultSettings();
    SetDefaultColorDepth(options.depth);
    HighResOnly = options.only == "high";
    LowResOnly = options.only == "low";
    TemplateMode = options.asTemplate;
}

} // namespace

bool OpenIconset(const OpenOptions& options, CollectedMessages& messages)
{
    if (!UseFolders(options))
        return false;
    UseSettings(options);
    ReadCatalogs([&](std::string_view text) { messages.Message(text); });
    LoadFile(options.file, messages);
    return true;
}

} // namespace vypx
