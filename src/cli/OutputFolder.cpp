#include "cli/OutputFolder.h"

#include "cli/OpenIconset.h"
#include "platform/Platform.h"

#include <algorithm>

namespace vypx {

namespace fs = std::filesystem;

namespace {

/// The folders of the path that are not there, the outermost first.
std::vector<fs::path> MissingFolders(fs::path folder)
{
    std::vector<fs::path> missing;
    std::error_code error;
    while (!folder.empty() && !fs::exists(fs::symlink_status(folder, error))) {
        missing.push_back(folder);
        if (folder == folder.parent_path())
            break;
        folder = folder.parent_path();
    }
    std::reverse(missing.begin(), missing.end());
    return missing;
}

} // namespace

OutputFolder::~OutputFolder()
{
    std::error_code ignored;
    for (const std::vector<fs::path>* paths : { &m_files, &m_made })
        for (auto path = paths->rbegin(); path != paths->rend(); ++path)
            fs::remove(*path, ignored); // a folder only if it is empty
}

OutputFolder::Use OutputFolder::Take(const std::string& folder, const std::string& word)
{
    std::error_code error;
    m_folder = platform::NativePath(folder);
    const fs::file_status status = fs::status(m_folder, error);
    const bool exists = fs::exists(status), isFolder = fs::is_directory(status);
    if (exists && !(isFolder && fs::is_empty(m_folder, error))) {
        Tell(word
            + (!isFolder    ? " is no folder: "
                    : error ? " can't be read: "
                            : " is not empty: ")
            + folder);
        return Use::IsTaken;
    }
    m_made = MissingFolders(m_folder);
    fs::create_directories(m_folder, error);
    if (!fs::is_directory(m_folder, error)) {
        Tell("can't make " + word + ": " + folder);
        return Use::CannotBeMade;
    }
    return Use::Serves;
}

std::string OutputFolder::NewFile(const std::string& name)
{
    m_files.push_back(m_folder / platform::NativePath(name));
    return platform::Utf8Path(m_files.back());
}

} // namespace vypx
