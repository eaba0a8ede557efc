#include "document/AppFolders.h"

#include "document/Product.h"
#include "platform/Platform.h"

#include <filesystem>

namespace vypx {

namespace {

namespace fs = std::filesystem;

/// Where the data of an installed copy stand; empty for a copy that is none.
std::string InstalledData(const std::string& programFolder)
{
    std::error_code error;
    const fs::path programs = fs::canonical(platform::NativePath(programFolder), error);
    if (error)
        return {};
    const fs::path data = fs::canonical(programs / platform::NativePath(DataFromPrograms), error);
    if (error || data == programs || !fs::is_directory(data, error))
        return {};
    return platform::Utf8Path(data);
}

/// The folder itself, or the nearest one above it that there is.
std::string NearestThatIs(fs::path folder)
{
    std::error_code unknown;
    while (!fs::exists(folder, unknown) && folder.has_relative_path())
        folder = folder.parent_path();
    return platform::Utf8Path(folder);
}

/// The folder that this process's user is to work in.
std::string FolderOfItsOwn(const std::string& userFolder, const std::string& ownHome)
{
    const fs::path folder = platform::NativePath(userFolder);
    if (userFolder.empty() || !platform::IsForeignToRoot(NearestThatIs(folder)))
        return userFolder;
    const fs::path own = platform::NativePath(ownHome) / ".local" / "share" / folder.filename();
    if (ownHome.empty() || platform::IsForeignToRoot(NearestThatIs(own)))
        throw fs::filesystem_error("root must not work in the folder of another user", folder,
            std::make_error_code(std::errc::permission_denied));
    return platform::Utf8Path(own);
}

void MakeUserFolder(const std::string& userFolder)
{
    const fs::path folder = platform::NativePath(userFolder);
    if (userFolder.empty())
        throw fs::filesystem_error("there is no folder for the user's data", folder,
            std::make_error_code(std::errc::no_such_file_or_directory));
    fs::create_directories(folder);
}

} // namespace

AppFolders ResolveAppFolders(
    const std::string& programFolder, const std::string& userFolder, const std::string& ownHome)
{
    if (const std::string data = InstalledData(programFolder); !data.empty()) {
        const std::string own = FolderOfItsOwn(userFolder, ownHome);
        MakeUserFolder(own);
        return { .work = own, .shipped = data };
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
