#include "catalogs/CatalogEntries.h"

#include "platform/Platform.h"
#include "settings/IniStore.h"
#include "settings/Inifile.h"
#include "settings/LetterCase.h"

#include <algorithm>

namespace vypx {

namespace {

/// Whether the section's first key is its only Type and the second its only Creator.
bool IsInOrder(const IniText& text, const std::string& section)
{
    constexpr std::string_view Order[] = { "type", "creator" };
    const std::vector<std::string> keys = text.KeyNames(section);
    if (keys.size() < std::size(Order))
        return false;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const std::string key = LowerCase(keys[i]);
        if (i < std::size(Order) ? key != Order[i] : key == Order[0] || key == Order[1])
            return false;
    }
    return true;
}

/// Type first: readers go by the keys' order. Braces keep blanks at either end of a Creator.
bool SetEntry(IniText& text, const CatalogEntry& entry)
{
    const std::string creator = "{" + entry.creator + "}";
    if (text.HasSection(entry.name) && !IsInOrder(text, entry.name))
        return text.SetFirstValue(entry.name, "Creator", creator)
            && text.SetFirstValue(entry.name, "Type", entry.type);
    return text.SetValue(entry.name, "Type", entry.type)
        && text.SetValue(entry.name, "Creator", creator);
}

bool BackUp(const std::string& file, const IniText& text)
{
    const std::string bytes = text.Bytes();
    const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    return !platform::ReplaceFile(file + ".bak", std::span(data, bytes.size()), file);
}

} // namespace

bool HasFullName(const CatalogRow& row) { return !row.name.empty() && !row.creator.empty(); }

bool AreOneName(std::string_view first, std::string_view second)
{
    return IniText::SameName(first, second);
}

bool OccursIn(const CatalogRow& row, std::string_view name)
{
    return LowerCase(name).find(LowerCase(row.name)) != std::string::npos;
}

const CatalogRow* FindName(const std::vector<CatalogRow>& table, std::string_view name)
{
    const auto found = std::find_if(table.begin(), table.end(),
        [&](const CatalogRow& row) { return HasFullName(row) && AreOneName(row.name, name); });
    return found == table.end() ? nullptr : &*found;
}

const CatalogRow* FindCreator(const std::vector<CatalogRow>& table, std::string_view creator)
{
    const auto found = std::find_if(table.begin(), table.end(),
        [&](const CatalogRow& row) { return !row.name.empty() && row.creator == creator; });
    return found == table.end() ? nullptr : &*found;
}

bool IsHidden(const std::string& file, const std::vector<CatalogRow>& table, std::string_view name)
{
    const bool isShown = std::any_of(table.begin(), table.end(),
        [&](const CatalogRow& row) { return AreOneName(row.name, name); });
    return !isShown && ReadIni(file)->HasSection(name);
}

std::string StoredCreator(const std::string& file, const std::string& name)
{
    constexpr std::size_t Letters = 4;
    cInifile ini;
    ini.path(file);
    ini.Section(name);
    ini.key("Creator");
    const std::string value = ini.Value();
    return value.empty() ? value : value.substr(1, Letters);
}

bool ChangeEntries(const std::string& file, std::span<const std::string> removed,
    const std::optional<CatalogEntry>& added)
{
    return EditIni(file, [&](IniText& text) {
        const auto isThere = [&](const std::string& name) { return text.HasSection(name); };
        if (std::count_if(removed.begin(), removed.end(), isThere) > 1 && !BackUp(file, text))
            return false;
        for (const std::string& name : removed)
            text.DeleteSection(name);
        return !added || SetEntry(text, *added);
    });
}

std::optional<std::vector<bool>> AddNewEntries(
    const std::string& file, std::span<const CatalogEntry> entries)
{
    std::vector<bool> isAdded;
    if (entries.empty())
        return isAdded;
    const bool isWritten = EditIni(file, [&](IniText& text) {
        for (const CatalogEntry& entry : entries)
            isAdded.push_back(!text.HasSection(entry.name) && SetEntry(text, entry));
        return std::find(isAdded.begin(), isAdded.end(), true) != isAdded.end();
    });
    const bool isNothingNew = isAdded.size() == entries.size()
        && std::find(isAdded.begin(), isAdded.end(), true) == isAdded.end();
    if (!isWritten && !isNothingNew)
        return std::nullopt;
    return isAdded;
}

} // namespace vypx
