#include "catalogs/ShippedCatalogs.h"

#include "catalogs/CatalogEntries.h"
#include "companion/Numbers.h"
#include "document/Catalogs.h"
#include "document/WorkingFolder.h"
#include "settings/IniStore.h"
#include "settings/Inifile.h"
#include "settings/LetterCase.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace vypx {

namespace {

/// The files of each form, and the one that may tell of the same applications.
struct CatalogPlace {
    std::string_view file;
    CatalogForm form;
    std::string_view other;
};
constexpr CatalogPlace CatalogPlaces[] = {
    { AppListName, CatalogForm::Owners, PalmAppName },
    { PalmAppName, CatalogForm::Owners, AppListName },
    { VYIconsName, CatalogForm::Launcher, "" },
};

/// As the readers of catalogs have it: an empty one stands for a Creator too. Empty without the
/// key.
std::string CreatorOfSection(const IniText& text, const std::string& section)
{
    const auto value = text.Value(section, "Creator");
    return value ? CreatorOfValue(*value) : std::string();
}

/// Empty for an entry without Type or Creator.
std::string StoredOwner(const IniText& text, const std::string& section)
{
    const std::string type(text.Value(section, "Type").value_or(""));
    const bool hasCreator = !text.Value(section, "Creator").value_or("").empty();
    const std::string creator = hasCreator ? CreatorOfSection(text, section) : std::string();
    return type.empty() || creator.empty() ? std::string() : type + ' ' + creator;
}

/// The ID is the first key, whatever its name.
std::string StoredId(const IniText& text, const std::string& section)
{
    const std::vector<std::string> keys = text.KeyNames(section);
    const auto id = keys.empty()
        ? std::nullopt
        : LeadingWhole(text.Value(section, keys.front()).value_or(""), 0, UINT16_MAX);
    return id ? std::to_string(*id) : std::string();
}

std::string MeaningOf(CatalogForm form, const IniText& text, const std::string& section)
{
    return form == CatalogForm::Owners ? StoredOwner(text, section) : StoredId(text, section);
}

/// Sections in order, of those of one name the first: the others are not read.
std::vector<std::string> CountingSections(const IniText& text)
{
    std::vector<std::string> sections = text.SectionNames();
    std::set<std::string> names{ "" };
    std::erase_if(sections,
        [&](const std::string& section) { return !names.insert(LowerCase(section)).second; });
    return sections;
}

/// What catalogs tell of: names, in lower case, and what they stand for.
struct Told {
    std::set<std::string> names, meanings, creators;

    void AddEntry(CatalogForm form, const IniText& text, const std::string& section)
    {
        names.insert(LowerCase(section));
        meanings.insert(MeaningOf(form, text, section));
        if (form == CatalogForm::Owners)
            creators.insert(CreatorOfSection(text, section));
    }
    void Add(CatalogForm form, const IniText& text)
    {
        for (const std::string& section : CountingSections(text))
            AddEntry(form, text, section);
    }
    bool HasAny(CatalogForm form, const IniText& text, const std::string& section) const
    {
        return names.contains(LowerCase(section))
            || meanings.contains(MeaningOf(form, text, section))
            || creators.contains(CreatorOfSection(text, section));
    }
};

std::string NameFact(const std::string& file, const std::string& name)
{
    return "name " + file + '\t' + name;
}
std::string MeaningFact(const std::string& file, const std::string& meaning)
{
    return "entry " + file + '\t' + meaning;
}

/// Characters that a reader's list of the names takes.
std::size_t ListSize(const IniText& text)
{
    std::size_t size = 0;
    for (const std::string& name : text.SectionNames())
        size += name.size() + 1;
    return size;
}

/// False: a key could not be read back.
bool CopyEntry(const IniText& from, const std::string& section, IniText& to)
{
    for (const std::string& key : from.KeyNames(section)) // in order, as their readers need them
        if (!to.SetValue(section, key, from.Value(section, key).value_or("")))
            return false;
    return true;
}

bool CanBeCopied(const IniText& from, const std::string& section)
{
    IniText scratch;
    return CopyEntry(from, section, scratch);
}

const CatalogPlace* PlaceOf(const std::string& file)
{
    const auto place = std::find_if(std::begin(CatalogPlaces), std::end(CatalogPlaces),
        [&](const CatalogPlace& each) { return each.file == file; });
    return place == std::end(CatalogPlaces) ? nullptr : place;
}

IniText ShippedText(const ShippedFile& file)
{
    return IniText(
        std::string_view(reinterpret_cast<const char*>(file.bytes.data()), file.bytes.size()));
}

std::set<std::string> FactsOfCatalog(const ShippedFile& file)
{
    std::set<std::string> facts;
    const CatalogPlace* const place = PlaceOf(file.name);
    if (!place || file.bytes.size() > MaxIniSize)
        return facts;
    const IniText shipped = ShippedText(file);
    for (const std::string& section : CountingSections(shipped)) {
        const std::string meaning = MeaningOf(place->form, shipped, section);
        if (!meaning.empty())
            facts.insert(
                { NameFact(file.name, LowerCase(section)), MeaningFact(file.name, meaning) });
    }
    return facts;
}

bool MergeCatalog(const ShippedFile& file, std::set<std::string>& facts)
{
    const CatalogPlace* const place = PlaceOf(file.name);
    if (!place || file.bytes.size() > MaxIniSize)
        return false;
    const IniText shipped = ShippedText(file);
    std::set<std::string> learnt;
    bool isRead = false, isMore = false;
    const bool isWritten = EditIni(file.Target(), [&](IniText& user) {
        std::shared_ptr<const IniText> other;
        if (!place->other.empty())
            other = ReadIniOrNull(file.folder + BelowFolder(place->other));
        if (!place->other.empty() && !other)
            return false; // who knows what stands there
        const IniText* const others[] = { other.get() };
        const std::size_t before = user.SectionNames().size();
        learnt = AddShippedEntries(
            place->form, file.name, shipped, std::span(others).first(other ? 1 : 0), facts, user);
        isRead = true;
        isMore = user.SectionNames().size() != before;
        return isMore && user.Bytes().size() <= MaxIniSize;
    });
    if (!isRead || (isMore && !isWritten))
        return false;
    facts.merge(learnt);
    return true;
}

} // namespace

const CatalogRules ShippedCatalogRules{ .facts = FactsOfCatalog, .merge = MergeCatalog };

std::set<std::string> AddShippedEntries(CatalogForm form, const std::string& file,
    const IniText& shipped, std::span<const IniText* const> others,
    const std::set<std::string>& facts, IniText& user)
{
    Told there;
    there.Add(form, user);
    for (const IniText* const other : others)
        there.Add(form, *other);
    std::set<std::string> learnt;
    std::size_t size = ListSize(user);
    for (const std::string& section : CountingSections(shipped)) {
        const std::string meaning = MeaningOf(form, shipped, section);
        const std::string name = NameFact(file, LowerCase(section));
        const std::string fact = MeaningFact(file, meaning);
        if (meaning.empty() || !CanBeCopied(shipped, section))
            continue;
        if (!facts.contains(name) && !facts.contains(fact)
            && !there.HasAny(form, shipped, section)) {
            if (size + section.size() + 1 >= ListBuffer)
                continue;
            size += section.size() + 1;
            CopyEntry(shipped, section, user);
            there.AddEntry(form, shipped, section);
        }
        learnt.insert({ name, fact });
    }
    return learnt;
}

} // namespace vypx
