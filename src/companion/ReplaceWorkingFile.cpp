#include "companion/ReplaceWorkingFile.h"

#include "platform/Platform.h"

#include <filesystem>

namespace vypx {

namespace {

/// A file that goes with this object, unless it bears another name by then.
struct Passing {
    std::filesystem::path path;

    ~Passing()
    {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
};

} // namespace

std::error_code ReplaceWorkingFile(const std::string& path,
    const std::function<std::error_code(const std::string& newPath)>& write)
{
    const std::string newPath = path + ".new.bmp"; // an ending that clean-up looks for
    const Passing passing{ .path = platform::NativePath(newPath) };
    std::error_code error = write(newPath);
    if (!error)
        std::filesystem::rename(passing.path, platform::NativePath(path), error);
    return error;
}

} // namespace vypx
