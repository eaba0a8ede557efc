#include "document/AppFolders.h"

#include "document/RunningCopies.h"
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

/// Whole or not at all: a start that breaks off must not leave half a catalog. What can't be
/// copied is missing then, as it would be in the program's folder.
void CopyIfMissing(const fs::path& from, const fs::path& to)
{
    std::error_code ignored;
    if (fs::exists(to, ignored))
        return;
    if (const auto bytes = platform::ReadWholeFile(platform::Utf8Path(from)))
        static_cast<void>(platform::ReplaceFile(platform::Utf8Path(to), *bytes));
}

void FillFolder(const fs::path& from, const fs::path& to)
{
    for (const std::string_view name : ShippedData) {
        std::error_code end;
        CopyIfMissing(from / name, to / name);
        for (fs::recursive_directory_iterator
                 entry(from / name, fs::directory_options::skip_permission_denied, end),
             last;
             !end && entry != last; entry.increment(end)) {
            const fs::path target = to / entry->path().lexically_relative(from);
            std::error_code ignored;
            fs::create_directories(target.parent_path(), ignored);
            CopyIfMissing(entry->path(), target);
        }
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
    if (!fs::exists(folder / "VYPX.ini", error)) {
        const CopiesGate gate(userFolder); // or a second copy could go on without the catalogs
        FillFolder(platform::NativePath(programFolder), folder);
    }
    return platform::FolderIsWritable(userFolder) ? userFolder : programFolder;
}

} // namespace vypx
