#include "catalogs/CatalogEntries.h"

#include "platform/Platform.h"
#include "settings/IniStore.h"
#include "settings/LetterCase.h"

#include <algorithm>
#include <set>

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

/// What a reader puts in a row's column of the Creator: the value of the section's second key.
std::string SecondColumn(const IniText& text, const std::string& section)
{
    const std::vector<std::string> keys = text.KeyNames(section);
    if (keys.size() < 2)
        return {};
    const std::string key = LowerCase(keys[1]);
    const std::string_view value = text.Value(section, key).value_or("");
    return key == "creator" ? CreatorOfValue(value) : key == "type" ? std::string(value) : "";
}

std::set<std::string> CreatorsIn(const IniText& text)
{
    std::set<std::string> creators;
    for (const std::string& section : text.SectionNames())
        creators.insert(SecondColumn(text, section));
    return creators;
}

EntryFate FateOf(
    const CatalogEntry& entry, const IniText& text, const std::set<std::string>& creators)
{
    if (creators.contains(entry.creator))
        return EntryFate::KnownCreator;
    return text.HasSection(entry.name) ? EntryFate::KnownName : EntryFate::Added;
}

bool BackUp(const std::string& file, const std::string& bytes)
{
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

bool IsUntold(const std::string& file, const std::vector<CatalogRow>& table, std::string_view name)
{
    return !FindName(table, name) && ReadIni(file)->HasSection(name);
}

std::string CreatorOfValue(std::string_view value)
{
    constexpr std::size_t Letters = 4, WithBraces = 6;
    if (value.size() == WithBraces)
        return std::string(value.substr(1, Letters));
    if (value.empty())
        return "XXXX";
    std::string creator(value.size() > Letters ? std::string_view() : value);
    if (!creator.empty())
        creator.resize(Letters, ' ');
    return creator;
}

std::string StoredCreator(const IniText& file, const std::string& name)
{
    constexpr std::size_t Letters = 4;
    const std::string_view value = file.Value(name, "Creator").value_or("");
    return std::string(value.empty() ? value : value.substr(1, Letters));
}

bool ChangeEntries(const std::string& file, std::span<const std::string> removed,
    const std::optional<CatalogEntry>& added)
{
    return EditIni(file, [&](IniText& text) {
        const std::string before = text.Bytes();
        std::size_t gone = 0; // a name may stand more than once
        for (const std::string& name : removed)
            gone += text.DeleteSection(name);
        if (gone > 1 && !BackUp(file, before))
            return false;
        return !added || SetEntry(text, *added);
    });
}

std::optional<std::vector<EntryFate>> AddNewEntries(
    const std::string& file, std::span<const CatalogEntry> entries)
{
    std::vector<EntryFate> fates;
    if (entries.empty())
        return fates;
    bool isAnyAdded = false, isFit = true;
    const bool isWritten = EditIni(file, [&](IniText& text) {
        std::set<std::string> creators = CreatorsIn(text);
        for (const CatalogEntry& entry : entries) {
            fates.push_back(FateOf(entry, text, creators));
            if (fates.back() != EntryFate::Added)
                continue;
            isAnyAdded = true;
            isFit = isFit && SetEntry(text, entry);
            creators.insert(entry.creator);
        }
        return isFit && isAnyAdded;
    });
    const bool isNothingNew = fates.size() == entries.size() && !isAnyAdded;
    if (!isWritten && !isNothingNew)
        return std::nullopt;
    return fates;
}

} // namespace vypx
