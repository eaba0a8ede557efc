#include "install/QueueFile.h"

#include "platform/Platform.h"

namespace vypx {

namespace {

constexpr std::size_t MostQueueBytes = 16u << 20;

/// Empty where it can't be read.
std::optional<Bytes> ReadQueue(const std::string& path)
{
    namespace fs = std::filesystem;
    std::error_code ignored;
    if (fs::status(platform::NativePath(path), ignored).type() == fs::file_type::not_found)
        return Bytes();
    return platform::ReadWholeFile(path, MostQueueBytes);
}

} // namespace

bool EditQueue(
    const std::string& path, const std::function<std::optional<Bytes>(const Bytes&)>& edit)
{
    constexpr int Tries = 5;
    for (int i = 0; i < Tries; ++i) {
        const std::optional<Bytes> before = ReadQueue(path);
        if (!before)
            return false;
        const std::optional<Bytes> after = edit(*before);
        if (!after)
            return true;
        if (after->size() > MostQueueBytes)
            return false;
        // By its bytes: times of a file advance in ticks, within which it could change twice.
        const auto isAsBefore = [&] { return ReadQueue(path) == before; };
        const std::error_code error = platform::ReplaceFile(path, *after, {}, isAsBefore);
        if (error != std::errc::operation_canceled)
            return !error;
    }
    return false;
}

} // namespace vypx
