#include "document/AppFolders.h"

#include "document/Product.h"
#include "platform/Platform.h"

#include <filesystem>

namespace vypx {

namespace {

namespace fs = std::filesystem;

/// What shows that a folder holds the shipped data.
constexpr std::string_view SignOfData = "AppList.dat";

/// Where the data of an installed copy stand; empty for a copy that is none.
std::string InstalledData(const std::string& programFolder)
{
    const fs::path programs = platform::NativePath(programFolder);
    const fs::path data = programs / platform::NativePath(DataFromPrograms);
    std::error_code unknown;
    if (fs::exists(programs / SignOfData, unknown) || !fs::exists(data / SignOfData, unknown))
        return {};
    return platform::Utf8Path(data.lexically_normal());
}

/// The folder itself, or the nearest one above it that there is.
std::string NearestThatIs(fs::path folder)
{
    std::error_code unknown;
    while (!fs::exists(folder, unknown) && folder.has_relative_path())
        folder = folder.parent_path();
    return platform::Utf8Path(folder);
}

[[noreturn]] void RefuseUserFolder(
    const char* why, const fs::path& folder, std::errc error = std::errc::permission_denied)
{
    throw fs::filesystem_error(why, folder, std::make_error_code(error));
}

void MakeUserFolder(const std::string& userFolder)
{
    const fs::path folder = platform::NativePath(userFolder);
    if (userFolder.empty())
        RefuseUserFolder(
            "there is no folder for the user's data", folder, std::errc::no_such_file_or_directory);
    if (platform::IsForeignToRoot(NearestThatIs(folder)))
        RefuseUserFolder("root must not work in the folder of another user", folder);
    fs::create_directories(folder);
}

} // namespace

AppFolders ResolveAppFolders(const std::string& programFolder, const std::string& userFolder)
{
    if (const std::string data = InstalledData(programFolder); !data.empty()) {
        MakeUserFolder(userFolder);
        return { .work = userFolder, .shipped = data };
    }
    if (platform::FolderIsWritable(programFolder) || userFolder.empty())
        return { .work = programFolder, .shipped = {} };
    std::error_code error;
    fs::create_directories(platform::NativePath(userFolder), error);
    if (!platform::FolderIsWritable(userFolder))
        return { .work = programFolder, .shipped = {} };
    return { .work = userFolder, .shipped = programFolder };
}

} // namespace vypx
