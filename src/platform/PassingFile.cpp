#include "platform/PassingFile.h"

#include "platform/Platform.h"

#include <algorithm>
#include <atomic>

namespace vypx::platform {

namespace {

namespace fs = std::filesystem;
using Name = fs::path::string_type; // in units of the system's: bytes, or 16 bits on Windows

Name NameOf(std::string_view text) { return fs::path(text).native(); }

/// Second or later part of a letter.
bool GoesOn(Name::value_type unit)
{
    if constexpr (sizeof unit == 1)
        return (unit & 0xC0) == 0x80;
    else
        return (unit & 0xFC00) == 0xDC00;
}

/// The name, shortened by whole letters until an ending of that length fits behind it.
Name Cut(const Name& name, std::size_t ending)
{
    constexpr std::size_t MostUnits = 255;
    std::size_t kept = std::min(name.size(), MostUnits - ending);
    while (kept < name.size() && kept > 0 && GoesOn(name[kept]))
        --kept;
    return name.substr(0, kept);
}

/// Where ".4711-1.vypx-new" or ".vypx-new" begins at a name's end; npos for other names.
std::size_t EndingOf(const Name& name)
{
    const Name last = NameOf(".vypx-new");
    if (name.size() <= last.size() || !name.ends_with(last))
        return Name::npos;
    const std::size_t end = name.size() - last.size();
    const std::size_t dot = name.find_last_of(NameOf("."), end - 1);
    if (dot == Name::npos)
        return end;
    const Name numbers = name.substr(dot + 1, end - dot - 1);
    const std::size_t dash = numbers.find(NameOf("-"));
    const bool areNumbers = dash != Name::npos && dash > 0 && dash + 1 < numbers.size()
        && numbers.find_first_not_of(NameOf("0123456789-")) == Name::npos
        && numbers.find(NameOf("-"), dash + 1) == Name::npos;
    return areNumbers ? dot : end;
}

} // namespace

fs::path NewPassingFile(const fs::path& target)
{
    static std::atomic<unsigned> made = 0;
    const std::string numbers = std::to_string(ProcessNumber()) + "-" + std::to_string(++made);
    const Name ending = NameOf("." + numbers + ".vypx-new");
    return target.parent_path() / (Cut(target.filename().native(), ending.size()) + ending);
}

std::vector<fs::path> PassingFilesOf(const fs::path& target)
{
    const Name name = target.filename().native();
    std::vector<fs::path> files;
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const Name other = entry->path().filename().native();
        const std::size_t ending = EndingOf(other);
        if (ending != Name::npos && other.substr(0, ending) == Cut(name, other.size() - ending))
            files.push_back(entry->path());
    }
    return files;
}

} // namespace vypx::platform
