#include "document/AppFolders.h"

#include "document/RunningCopies.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"

#include <filesystem>
#include <fstream>
#include <set>

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

/// The shipped files that stand in the program's folder, as paths from there.
std::set<std::string> ShippedFiles(const fs::path& from)
{
    std::set<std::string> files;
    std::error_code unknown;
    for (const std::string_view name : ShippedData) {
        if (fs::is_regular_file(from / name, unknown))
            files.insert(std::string(name));
        std::error_code end;
        for (fs::recursive_directory_iterator
                 entry(from / name, fs::directory_options::skip_permission_denied, end),
             last;
             !end && entry != last; entry.increment(end))
            if (entry->is_regular_file(unknown))
                files.insert(platform::Utf8Path(entry->path().lexically_relative(from)));
    }
    return files;
}

std::set<std::string> LinesOf(const std::string& file)
{
    std::set<std::string> lines;
    std::ifstream text(platform::NativePath(file), std::ios::binary);
    for (std::string line; std::getline(text, line);)
        lines.insert(line);
    return lines;
}

/// Gives the user's folder what it never had. Its file "shipped.txt" names what it has been given,
/// so that what the user deletes does not come back, and what a newer version brings comes.
void FillFolder(const fs::path& from, const fs::path& to)
{
    const std::string list = platform::Utf8Path(to / "shipped.txt");
    const std::set<std::string> before = LinesOf(list);
    std::set<std::string> given = before;
    for (const std::string& file : ShippedFiles(from)) {
        if (before.contains(file))
            continue;
        const fs::path target = to / platform::NativePath(file);
        std::error_code ignored;
        fs::create_directories(target.parent_path(), ignored);
        CopyIfMissing(from / platform::NativePath(file), target);
        if (fs::exists(target, ignored))
            given.insert(file);
    }
    if (given == before)
        return;
    std::string text;
    for (const std::string& file : given)
        text += file + '\n';
    static_cast<void>(platform::ReplaceFile(
        list, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size())));
}

} // namespace

std::string ResolveAppFolder(const std::string& programFolder, const std::string& userFolder)
{
    if (platform::FolderIsWritable(programFolder) || userFolder.empty())
        return programFolder;
    const fs::path folder = platform::NativePath(userFolder);
    std::error_code error;
    fs::create_directories(folder, error);
    {
        const CopiesGate gate(userFolder); // or a second copy could go on without the catalogs
        FillFolder(platform::NativePath(programFolder), folder);
    }
    return platform::FolderIsWritable(userFolder) ? userFolder : programFolder;
}

} // namespace vypx
