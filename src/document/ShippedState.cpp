#include "document/ShippedState.h"

#include "document/WorkingFolder.h"
#include "platform/Platform.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace vypx {

namespace {

constexpr std::string_view VersionWord = "version ", GivenWord = "given ", SeenWord = "seen ",
                           BegunWord = "begun ", ComingWord = "coming ";
constexpr std::uintmax_t MostBytes = 4u << 20;

std::string NamesFile(const std::string& folder) { return folder + BelowFolder("shipped.txt"); }
std::string StateFile(const std::string& folder)
{
    return folder + BelowFolder("shipped-state.txt");
}

/// Empty when there is such a file, but it can't be read.
std::optional<std::set<std::string>> LinesOf(const std::string& file)
{
    std::set<std::string> lines;
    const auto bytes = platform::ReadWholeFile(file, MostBytes);
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
    const auto add = [&](std::string_view word, const std::string& text) {
        lines.insert(std::string(word) + text);
    };
    if (!state.version.empty())
        add(VersionWord, state.version);
    for (const std::string& name : state.given)
        add(GivenWord, name);
    for (const auto& [name, seen] : state.seen)
        add(SeenWord, seen.version + ' ' + seen.identity + '\t' + name);
    for (const auto& [name, begun] : state.begun) {
        add(BegunWord, (begun.isAgain ? "2\t" : "1\t") + name);
        for (const std::string& fact : begun.facts)
            add(ComingWord, name + '\t' + fact);
    }
    return lines;
}

/// Of a line that has all its parts; any other is none.
void TakeLine(const std::string& line, ShippedState& state)
{
    const auto isAbout = [&](std::string_view word) { return line.starts_with(word); };
    const auto between = [&](std::size_t from, std::size_t to) {
        return from <= to ? line.substr(from, to - from) : std::string();
    };
    const std::size_t tab = std::min(line.find('\t'), line.size());
    const std::string behind = line.substr(std::min(tab + 1, line.size()));
    if (isAbout(VersionWord)) {
        state.version = line.substr(VersionWord.size());
    } else if (isAbout(GivenWord)) {
        state.given.insert(line.substr(GivenWord.size()));
    } else if (isAbout(SeenWord)) {
        const std::size_t blank = std::min(line.find(' ', SeenWord.size()), tab);
        state.seen[behind] = { .version = between(SeenWord.size(), blank),
            .identity = between(blank + 1, tab) };
    } else if (isAbout(BegunWord)) {
        state.begun[behind].isAgain = between(BegunWord.size(), tab) == "2";
    } else if (isAbout(ComingWord)) {
        state.begun[between(ComingWord.size(), tab)].facts.insert(behind);
    } else {
        state.facts.insert(line);
    }
}

} // namespace

std::optional<ShippedState> ReadShippedState(const std::string& folder)
{
    auto names = LinesOf(NamesFile(folder));
    const auto lines = LinesOf(StateFile(folder));
    if (!names || !lines)
        return std::nullopt;
    ShippedState state;
    state.given = std::move(*names);
    for (const std::string& line : *lines)
        TakeLine(line, state);
    return state;
}

bool WriteShippedState(
    const std::string& folder, const ShippedState& before, const ShippedState& now)
{
    if (LinesOf(NamesFile(folder)) != now.given)
        ReplaceByLines(NamesFile(folder), now.given);
    const std::set<std::string> lines = StateLines(now);
    return lines == StateLines(before) || ReplaceByLines(StateFile(folder), lines);
}

} // namespace vypx
