#include "document/WorkingFolder.h"

#include "platform/Platform.h"
#include "settings/LetterCase.h"

#include <filesystem>
#include <vector>

namespace vypx {

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr std::string_view Separators = "\\/:";
#else
// A backslash or a colon is a letter of a name like any other here.
constexpr std::string_view Separators = "/";
#endif

/// Whether `name` matches `pattern`, where "*" stands for any text and "?" for one byte.
bool Matches(std::string_view pattern, std::string_view name)
{
    std::size_t p = 0, n = 0;
    std::size_t star = std::string_view::npos, starName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            starName = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++starName;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

/// Names of the regular files of a folder; none when it can't be read.
std::vector<fs::path> FilesOf(const fs::path& folder)
{
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unknown;
        if (entry->is_regular_file(unknown))
            files.push_back(entry->path());
    }
    return files;
}

} // namespace

std::string BelowFolder(std::string_view name)
{
    std::string text(1, platform::PathSeparator);
    text += name;
    return text;
}

std::string WorkFolder() { return AppFolder + TempSuffix; }

std::string WorkPath(std::string_view name) { return WorkFolder() + BelowFolder(name); }

std::string TempName(int copyNumber)
{
    return copyNumber > 0 ? "temp" + std::to_string(copyNumber) : "temp";
}

void SetTempSuffix(int copyNumber) { TempSuffix = BelowFolder(TempName(copyNumber)); }

bool DirExists(const std::string& path)
{
    std::error_code error;
    return !path.empty() && fs::is_directory(platform::NativePath(path), error);
}

bool NamedFileExists(const std::string& path)
{
    std::error_code error;
    return fs::exists(platform::NativePath(path), error);
}

bool FileExists(const std::string& path)
{
    const fs::path native = platform::NativePath(path);
    std::error_code error;
    if (fs::exists(native, error))
        return !fs::is_directory(native, error);

    const std::string pattern = LowerCase(platform::Utf8Path(native.filename()));
    if (pattern.find_first_of("*?") == std::string::npos)
        return false;
    for (const fs::path& file : FilesOf(native.parent_path()))
        if (Matches(pattern, LowerCase(platform::Utf8Path(file.filename()))))
            return true;
    return false;
}

void MakeFolder(const std::string& path) { fs::create_directories(platform::NativePath(path)); }

bool DeleteWorkingFiles(std::initializer_list<std::string_view> endings)
{
    bool allGone = true;
    const std::vector<fs::path> files = FilesOf(platform::NativePath(WorkFolder()));
    for (const std::string_view ending : endings) {
        for (const fs::path& file : files) {
            std::error_code error;
            if (LowerCase(platform::Utf8Path(file.filename())).ends_with(ending))
                fs::remove(file, error);
            allGone = allGone && !error;
        }
    }
    return allGone;
}

std::string LastComponent(std::string_view path)
{
    const std::size_t last = path.find_last_of(Separators);
    return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

std::string FolderOf(std::string_view path)
{
    const std::size_t last = path.find_last_of(Separators);
    if (last == std::string_view::npos)
        return {};
    const bool endsInColon = path[last] == ':';
    return std::string(path.substr(0, endsInColon || last == 0 ? last + 1 : last));
}

} // namespace vypx
