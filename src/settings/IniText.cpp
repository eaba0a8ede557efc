#include "settings/IniText.h"

#include "platform/Platform.h"
#include "settings/Blanks.h"
#include "settings/LetterCase.h"

#include <algorithm>

namespace vypx {

namespace {

constexpr std::string_view ByteOrderMark("\xEF\xBB\xBF");

/// A text that fits one line.
std::string OneLine(std::string_view text)
{
    std::string line(text);
    for (char& letter : line)
        if (letter == '\n' || letter == '\r' || letter == '\0')
            letter = ' ';
    return line;
}

/// A name as it stands in a file and is listed.
std::string CleanName(std::string_view name) { return std::string(WithoutBlanks(OneLine(name))); }

/// A name as it is looked up.
std::string Folded(std::string_view name) { return LowerCase(CleanName(name)); }

/// Whether a clean name of a key could be read back.
bool CanBeKey(std::string_view name)
{
    return !name.empty() && name.find('=') == std::string_view::npos && name.front() != '['
        && name.front() != ';' && !name.starts_with(ByteOrderMark);
}

std::string_view WithoutQuotes(std::string_view value)
{
    const bool quoted = value.size() >= 2 && value.front() == value.back()
        && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

} // namespace

IniText::IniText(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t lineFeed = bytes.find('\n');
        const bool last = lineFeed == std::string_view::npos;
        std::string_view text = bytes.substr(0, lineFeed);
        std::string_view end = last ? std::string_view() : "\n";
        if (!last && text.ends_with('\r')) {
            text.remove_suffix(1);
            end = "\r\n";
        }
        m_lines.push_back(Parsed(text, end));
        bytes.remove_prefix(last ? bytes.size() : lineFeed + 1);
    }
    Index();
}

IniText::Line IniText::Parsed(std::string_view text, std::string_view end)
{
    Line line{ .text = std::string(text), .end = std::string(end) };
    std::string_view words = text;
    if (words.starts_with(ByteOrderMark))
        words.remove_prefix(ByteOrderMark.size());
    words = WithoutBlanks(words);
    if (words.starts_with(';'))
        return line;
    if (words.starts_with('[')) {
        const std::size_t bracket = words.rfind(']');
        if (bracket == std::string_view::npos)
            return line;
        line.kind = Kind::Section;
        line.name = CleanName(words.substr(1, bracket - 1));
        return line;
    }
    const std::size_t equals = words.find('=');
    if (equals == std::string_view::npos || WithoutBlanks(words.substr(0, equals)).empty())
        return line;
    line.kind = Kind::Key;
    line.name = CleanName(words.substr(0, equals));
    line.valueOffset = text.find('=') + 1;
    return line;
}

void IniText::Index()
{
    m_sections.clear();
    Section* section = nullptr; // null before the first header, and in a repeated section
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const Line& line = m_lines[i];
        if (line.kind == Kind::Section) {
            const auto [place, isNew] = m_sections.try_emplace(Folded(line.name));
            section = isNew ? &place->second : nullptr;
            if (isNew)
                section->header = i;
        } else if (line.kind == Kind::Key && section) {
            section->keys.try_emplace(Folded(line.name), i);
        }
    }
}

std::string IniText::Bytes() const
{
    std::string bytes;
    for (const Line& line : m_lines)
        bytes.append(line.text).append(line.end);
    return bytes;
}

const IniText::Section* IniText::Find(std::string_view section) const
{
    const auto found = m_sections.find(Folded(section));
    return found == m_sections.end() ? nullptr : &found->second;
}

std::optional<std::string_view> IniText::Value(std::string_view section, std::string_view key) const
{
    const Section* const in = Find(section);
    if (!in)
        return std::nullopt;
    const auto found = in->keys.find(Folded(key));
    if (found == in->keys.end())
        return std::nullopt;
    const Line& line = m_lines[found->second];
    std::string_view value = std::string_view(line.text).substr(line.valueOffset);
    value = value.substr(0, value.find('\0'));
    return WithoutQuotes(WithoutBlanks(value));
}

bool IniText::SameName(std::string_view first, std::string_view second)
{
    return Folded(first) == Folded(second);
}

std::vector<std::string> IniText::SectionNames() const
{
    std::vector<std::string> names;
    for (const Line& line : m_lines)
        if (line.kind == Kind::Section)
            names.push_back(line.name);
    return names;
}

std::vector<std::string> IniText::KeyNames(std::string_view section) const
{
    std::vector<std::string> names;
    const Section* const in = Find(section);
    if (!in)
        return names;
    const std::size_t end = EndOfSection(in->header); // a long section would cost its square
    for (std::size_t i = in->header + 1; i < end; ++i)
        if (m_lines[i].kind == Kind::Key)
            names.push_back(m_lines[i].name);
    return names;
}

std::size_t IniText::EndOfSection(std::size_t header) const
{
    std::size_t line = header + 1;
    while (line < m_lines.size() && m_lines[line].kind != Kind::Section)
        ++line;
    return line;
}

IniText::Section& IniText::FoundOrMade(std::string_view section)
{
    if (!HasSection(section)) {
        Insert(m_lines.size(), "[" + CleanName(section) + "]");
        m_sections[Folded(section)].header = m_lines.size() - 1;
    }
    return m_sections.at(Folded(section));
}

std::size_t IniText::EndOfKeys(std::size_t header) const
{
    const std::size_t section = EndOfSection(header);
    std::size_t end = section;
    while (end > header + 1 && m_lines[end - 1].kind != Kind::Key)
        --end;
    while (end < section && WithoutBlanks(m_lines[end].text).empty())
        ++end;
    return end;
}

bool IniText::SetValue(std::string_view section, std::string_view key, std::string_view value)
{
    const std::string name = CleanName(key);
    if (CleanName(section).empty() || !CanBeKey(name))
        return false;

    const std::string text = OneLine(value);
    Section& in = FoundOrMade(section);
    if (const auto found = in.keys.find(Folded(key)); found != in.keys.end()) {
        Line& line = m_lines[found->second];
        line = Parsed(line.text.substr(0, line.valueOffset) + text, line.end);
        return true;
    }
    std::size_t at = EndOfSection(in.header);
    while (at > in.header + 1 && WithoutBlanks(m_lines[at - 1].text).empty())
        --at; // blank lines before the next section stay before it
    Insert(at, name + "=" + text);
    if (at + 1 == m_lines.size())
        in.keys.emplace(Folded(key), at); // or each of many new entries would cost an index
    else
        Index();
    return true;
}

bool IniText::SetFirstValue(std::string_view section, std::string_view key, std::string_view value)
{
    const std::string name = CleanName(key);
    if (CleanName(section).empty() || !CanBeKey(name))
        return false;
    DeleteKey(section, key);
    Insert(FoundOrMade(section).header + 1, name + "=" + OneLine(value));
    Index();
    return true;
}

void IniText::DeleteKey(std::string_view section, std::string_view key)
{
    const Section* const in = Find(section);
    if (!in)
        return;
    const auto first = m_lines.begin() + static_cast<std::ptrdiff_t>(in->header);
    const auto last = m_lines.begin() + static_cast<std::ptrdiff_t>(EndOfSection(in->header));
    const std::string name = Folded(key);
    m_lines.erase(
        std::remove_if(first, last,
            [&](const Line& line) { return line.kind == Kind::Key && Folded(line.name) == name; }),
        last);
    Index();
}

std::size_t IniText::DeleteSection(std::string_view section)
{
    const std::string name = Folded(section);
    std::size_t deleted = 0;
    std::vector<Line> kept;
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        if (m_lines[i].kind == Kind::Section && Folded(m_lines[i].name) == name) {
            ++deleted;
            i = EndOfKeys(i) - 1;
        } else {
            kept.push_back(std::move(m_lines[i]));
        }
    }
    m_lines = std::move(kept);
    Index();
    return deleted;
}

void IniText::Insert(std::size_t at, std::string_view text)
{
    const std::string end = NewLineEnd();
    if (at > 0 && m_lines[at - 1].end.empty())
        m_lines[at - 1].end = end;
    m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(at), Parsed(text, end));
}

/// The file's own line end; the system's where it has none yet.
std::string IniText::NewLineEnd() const
{
    if (!m_lines.empty() && !m_lines.front().end.empty())
        return m_lines.front().end;
    return platform::PathSeparator == '\\' ? "\r\n" : "\n";
}

} // namespace vypx
