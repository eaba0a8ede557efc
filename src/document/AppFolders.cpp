#include "document/AppFolders.h"

#include "document/WorkingFolder.h"
#include "platform/Platform.h"

#include <filesystem>

namespace vypx {

namespace {

namespace fs = std::filesystem;

/// What the program finds beside itself and the user may change.
constexpr std::string_view ShippedData[] = {
    "AppList.dat",
    "PalmApp.dat",
    "VY_Icons.dat",
    "TIPOFDAY.TXT",
    "VYPX.chm",
    "samples",
};

/// What can't be copied is missing then, as it would be in the program's folder.
void FillFolder(const fs::path& from, const fs::path& to)
{
    for (const std::string_view name : ShippedData) {
        std::error_code ignored;
        fs::copy(from / name, to / name,
            fs::copy_options::recursive | fs::copy_options::skip_existing, ignored);
    }
}

} // namespace

std::string ResolveAppFolder(const std::string& programFolder, const std::string& userFolder)
{
    if (platform::FolderIsWritable(programFolder) || userFolder.empty())
        return programFolder;
    const fs::path folder = platform::NativePath(userFolder);
    std::error_code error;
    fs::create_directories(folder, error);
    // Up to the first start that came so far as to have settings; what the user deletes later on
    // does not come back.
    if (!fs::exists(folder / "VYPX.ini", error))
        FillFolder(platform::NativePath(programFolder), folder);
    return platform::FolderIsWritable(userFolder) ? userFolder : programFolder;
}

} // namespace vypx
