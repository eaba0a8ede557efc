#include "document/ShippedState.h"

#include "document/WorkingFolder.h"
#include "platform/Platform.h"

#include <sstream>

namespace vypx {

namespace {

constexpr std::string_view VersionWord = "version ", SeenWord = "seen ";

std::string NamesFile(const std::string& folder) { return folder + BelowFolder("shipped.txt"); }
std::string StateFile(const std::string& folder)
{
    return folder + BelowFolder("shipped-state.txt");
}

/// Empty when there is such a file, but it can't be read.
std::optional<std::set<std::string>> LinesOf(const std::string& file)
{
    std::set<std::string> lines;
    const auto bytes = platform::ReadWholeFile(file);
    std::error_code unknown;
    if (!bytes)
        return std::filesystem::exists(platform::NativePath(file), unknown) || unknown
            ? std::nullopt
            : std::optional(lines);
    std::istringstream text(std::string(bytes->begin(), bytes->end()));
    for (std::string line; std::getline(text, line);)
        lines.insert(line);
    return lines;
}

bool ReplaceByLines(const std::string& file, const std::set<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return !platform::ReplaceFile(
        file, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

std::set<std::string> StateLines(const ShippedState& state)
{
    std::set<std::string> lines = state.facts;
    if (!state.version.empty())
        lines.insert(std::string(VersionWord) + state.version);
    for (const auto& [name, identity] : state.seen)
        lines.insert(std::string(SeenWord) + identity + '\t' + name);
    return lines;
}

} // namespace

std::optional<ShippedState> ReadShippedState(const std::string& folder)
{
    auto names = LinesOf(NamesFile(folder));
    const auto lines = LinesOf(StateFile(folder));
    if (!names || !lines)
        return std::nullopt;
    ShippedState state{ .given = std::move(*names), .facts = {}, .seen = {}, .version = {} };
    for (const std::string& line : *lines) {
        const std::size_t tab = line.find('\t');
        if (line.starts_with(VersionWord))
            state.version = line.substr(VersionWord.size());
        else if (!line.starts_with(SeenWord))
            state.facts.insert(line);
        else if (tab != std::string::npos)
            state.seen[line.substr(tab + 1)] = line.substr(SeenWord.size(), tab - SeenWord.size());
    }
    return state;
}

void WriteShippedState(
    const std::string& folder, const ShippedState& before, const ShippedState& now)
{
    const std::set<std::string> lines = StateLines(now);
    if (lines != StateLines(before) && !ReplaceByLines(StateFile(folder), lines))
        return;
    if (now.given != before.given)
        ReplaceByLines(NamesFile(folder), now.given);
}

} // namespace vypx
