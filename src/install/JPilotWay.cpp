#include "install/InstallResult.h"
#include "install/InstallWays.h"
#include "install/QueueFile.h"
#include "platform/Turn.h"

#include <algorithm>

namespace vypx {

namespace {

constexpr char LineEnd = '\n';
constexpr std::size_t LineLimit = 1000; // bytes, its end among them, that J-Pilot does not read

bool CanBeLine(std::string_view path)
{
    constexpr std::string_view Never("\r\n\0", 3);
    return path.size() + 1 < LineLimit && path.find_first_of(Never) == std::string_view::npos;
}

bool HasLine(std::string_view lines, std::string_view line)
{
    while (!lines.empty()) {
        const std::size_t end = std::min(lines.find(LineEnd), lines.size());
        if (lines.substr(0, end) == line)
            return true;
        lines.remove_prefix(std::min(end + 1, lines.size()));
    }
    return false;
}

/// The lines with one more behind them; empty when it stands there.
std::optional<Bytes> WithLine(const Bytes& lines, const std::string& line)
{
    if (HasLine({ reinterpret_cast<const char*>(lines.data()), lines.size() }, line))
        return std::nullopt;
    Bytes more = lines;
    if (!more.empty() && more.back() != LineEnd)
        more.push_back(LineEnd);
    more.insert(more.end(), line.begin(), line.end());
    more.push_back(LineEnd);
    return more;
}

class JPilotWay : public InstallWay {
public:
    explicit JPilotWay(const std::string& folder)
        : m_folder(folder)
        , m_queue(platform::Utf8Path(platform::NativePath(folder) / "jpilot.install"))
    {
    }

    bool UsesUser() const override { return false; }

    std::int16_t Install(std::string&, std::string& file) override
    {
        std::error_code error;
        if (!std::filesystem::is_regular_file(platform::NativePath(file), error))
            return InstallResult::FileMissing;
        const std::string path =
            platform::Utf8Path(std::filesystem::absolute(platform::NativePath(file), error));
        if (error || !CanBeLine(path))
            return InstallResult::Unknown;
        const platform::Turn turn(m_queue + ".lock", platform::Turn::LockFile::Goes);
        const bool isThere =
            EditQueue(m_queue, [&](const Bytes& lines) { return WithLine(lines, path); });
        return isThere ? InstallResult::Queued : InstallResult::Unknown;
    }

    std::string Description() const override { return "J-Pilot, in " + m_folder; }

    std::string WhatNext(const std::string&, const std::string&) const override
    {
        return "It is on J-Pilot's list, " + m_queue
            + ", and has to stay where it is until it is installed. Press Sync in J-Pilot, then "
              "HotSync on the handheld.";
    }

private:
    std::string m_folder, m_queue;
};

} // namespace

std::unique_ptr<InstallWay> MakeJPilotWay(const std::string& folder)
{
    return std::make_unique<JPilotWay>(folder);
}

} // namespace vypx
