#pragma once

#include "companion/ByteView.h"

#include <fstream>
#include <span>
#include <string>
#include <system_error>

/// Files of the working folder. They last no longer than the program runs, so nothing is synced.
/// Paths are UTF-8.
namespace vypx {

/// A working file that is written in pieces. After a failure, and when it goes without Close, the
/// file does not appear; one that can't be opened for writing is left alone.
class NewWorkingFile {
public:
    /// Makes the file, or empties the one that is there.
    explicit NewWorkingFile(const std::string& path);
    NewWorkingFile(const NewWorkingFile&) = delete;
    NewWorkingFile& operator=(const NewWorkingFile&) = delete;
    ~NewWorkingFile();

    /// One write of the system's. False after a failure, and from then on.
    bool Write(std::span<const std::uint8_t> bytes);
    /// What failed first, in the system's words.
    std::error_code Close();

private:
    std::string m_path;
    std::ofstream m_file;
    std::error_code m_error;
};

/// Writes a working file in one go: open, write, close. After a failure, which the result names,
/// the file does not appear.
std::error_code WriteWorkingFile(const std::string& path, const Bytes& bytes);

} // namespace vypx
