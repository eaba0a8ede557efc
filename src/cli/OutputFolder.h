#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vypx {

/// A folder that a command fills: absent or empty at first, so that nothing of anybody else's can
/// get lost. What stands in it goes again, and the folders that were made for it, unless the
/// command keeps it.
class OutputFolder {
public:
    OutputFolder() = default;
    OutputFolder(const OutputFolder&) = delete;
    OutputFolder& operator=(const OutputFolder&) = delete;
    ~OutputFolder();

    enum class Use { Serves, IsTaken, CannotBeMade };
    /// Makes the folder (UTF-8) if it is missing, or says to standard error why it can't serve;
    /// `word` is what the user calls it.
    Use Take(const std::string& folder, const std::string& word);
    /// Path (UTF-8) of a file in it, which goes with the folder from now on.
    std::string NewFile(const std::string& name);
    /// All of it stays.
    void Keep()
    {
        m_files.clear();
        m_made.clear();
    }

private:
    std::filesystem::path m_folder;
    std::vector<std::filesystem::path> m_files, m_made; ///< in the order in which they were made
};

} // namespace vypx
