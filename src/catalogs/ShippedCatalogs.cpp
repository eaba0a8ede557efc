#include "catalogs/ShippedCatalogs.h"

#include "catalogs/CatalogEntries.h"
#include "companion/Numbers.h"
#include "document/WorkingFolder.h"
#include "settings/IniStore.h"
#include "settings/Inifile.h"
#include "settings/LetterCase.h"

#include <cstdint>
#include <memory>

namespace vypx {

namespace {

/// The files of each form, and the one that may tell of the same applications.
struct CatalogPlace {
    std::string_view file;
    CatalogForm form;
    std::string_view other;
};
constexpr CatalogPlace CatalogPlaces[] = {
    { "AppList.dat", CatalogForm::Owners, "PalmApp.dat" },
    { "PalmApp.dat", CatalogForm::Owners, "AppList.dat" },
    { "VY_Icons.dat", CatalogForm::Launcher, "" },
};

/// Empty for an entry without it.
std::string StoredOwner(const IniText& text, const std::string& section)
{
    const std::string type(text.Value(section, "Type").value_or(""));
    const std::string_view value = text.Value(section, "Creator").value_or("");
    const std::string creator = value.empty() ? std::string() : CreatorOfValue(value);
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

/// Names, in lower case, and what they stand for.
struct Told {
    std::set<std::string> names, meanings;

    void Add(CatalogForm form, const IniText& text)
    {
        for (const std::string& section : text.SectionNames()) {
            names.insert(LowerCase(section));
            meanings.insert(MeaningOf(form, text, section));
        }
    }
    bool HasEither(const std::string& name, const std::string& meaning) const
    {
        return names.contains(name) || meanings.contains(meaning);
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

void CopyEntry(const IniText& from, const std::string& section, IniText& to)
{
    for (const std::string& key : from.KeyNames(section)) // in order, as their readers need them
        to.SetValue(section, key, from.Value(section, key).value_or(""));
}

std::set<std::string> FactsOf(CatalogForm form, const std::string& file, const IniText& shipped)
{
    std::set<std::string> facts;
    for (const std::string& section : shipped.SectionNames()) {
        const std::string meaning = MeaningOf(form, shipped, section);
        if (!meaning.empty())
            facts.insert({ NameFact(file, LowerCase(section)), MeaningFact(file, meaning) });
    }
    return facts;
}

/// False: the user's catalog can't be read or written.
bool AddToFile(const CatalogPlace& place, const ShippedFile& file, const IniText& shipped,
    std::set<std::string>& facts)
{
    std::set<std::string> learnt;
    bool isRead = false, isMore = false;
    const std::shared_ptr<const IniText> other =
        ReadIni(place.other.empty() ? "" : file.folder + BelowFolder(place.other));
    const IniText* const others[] = { other.get() };
    const bool isWritten = EditIni(file.Target(), [&](IniText& user) {
        const std::size_t before = user.SectionNames().size();
        learnt = AddShippedEntries(place.form, file.name, shipped, others, facts, user);
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
    for (const std::string& section : shipped.SectionNames()) {
        const std::string name = LowerCase(section), meaning = MeaningOf(form, shipped, section);
        const std::string nameFact = NameFact(file, name), fact = MeaningFact(file, meaning);
        if (section.empty() || meaning.empty())
            continue;
        if (!facts.contains(nameFact) && !facts.contains(fact) && !there.HasEither(name, meaning)) {
            if (size + section.size() + 1 >= ListBuffer)
                continue;
            size += section.size() + 1;
            CopyEntry(shipped, section, user);
            there.names.insert(name);
            there.meanings.insert(meaning);
        }
        learnt.insert({ nameFact, fact });
    }
    return learnt;
}

bool UpdateShippedCatalog(const ShippedFile& file, std::set<std::string>& facts)
{
    if (file.bytes.size() > MaxIniSize)
        return false;
    const IniText shipped(
        std::string_view(reinterpret_cast<const char*>(file.bytes.data()), file.bytes.size()));
    for (const CatalogPlace& place : CatalogPlaces) {
        if (place.file != file.name)
            continue;
        if (facts.contains(KnownFact(file.name)))
            return AddToFile(place, file, shipped, facts);
        facts.merge(FactsOf(place.form, file.name, shipped));
        facts.insert(KnownFact(file.name));
    }
    return true;
}

} // namespace vypx
