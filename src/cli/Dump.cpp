#include "cli/Dump.h"

#include "cli/DocumentJson.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"

#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>

namespace vypx {

namespace {

namespace fs = std::filesystem;

/// Keeps the texts that the windows would show in boxes.
class CollectedMessages : public LoadListener {
public:
    void Message(std::string_view text) override { texts.emplace_back(text); }

    std::vector<std::string> texts;
};

/// Makes the working folder the one of this run. False, and a word to standard error, when it
/// can't serve: files that are there already would be deleted by the load.
bool UseWorkFolder(const std::string& folder)
{
    std::error_code error;
    const fs::path path = fs::absolute(platform::NativePath(folder), error).lexically_normal();
    if (fs::exists(path, error) && !fs::is_empty(path, error)) {
        std::cerr << "pixelworks-cli: the work folder is not empty: " << folder << '\n';
        return false;
    }
    fs::create_directories(path, error);
    if (!fs::is_directory(path, error)) {
        std::cerr << "pixelworks-cli: can't make the work folder: " << folder << '\n';
        return false;
    }
    // The working folder stands wherever the caller wants it, not below the program's.
    std::string text = platform::Utf8Path(path);
    if (text.size() > 1 && text.back() == platform::PathSeparator)
        text.pop_back();
    AppFolder = FolderOf(text);
    TempSuffix = BelowFolder(LastComponent(text));
    return true;
}

void UseSettings(const OpenOptions& options)
{
    DefaultColorDepth = options.depth;
    HighResOnly = options.only == "high";
    LowResOnly = options.only == "low";
    TemplateMode = options.asTemplate;
}

} // namespace

int Dump(const OpenOptions& options)
{
    CollectedMessages messages;
    if (!UseWorkFolder(options.workFolder))
        return 2;
    UseSettings(options);
    LoadFile(options.file, messages);
    std::cout << DocumentJson(messages.texts).dump(1) << '\n';
    return FileLoaded ? 0 : 1;
}

} // namespace vypx
