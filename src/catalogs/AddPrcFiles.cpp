#include "catalogs/AddPrcFiles.h"

#include "catalogs/CatalogEntries.h"
#include "catalogs/CatalogFiles.h"
#include "catalogs/PalmHeader.h"
#include "settings/IniStore.h"
#include "settings/LetterCase.h"

#include <memory>
#include <set>
#include <unordered_map>

namespace vypx {

namespace {

struct Reason {
    PrcVerdict verdict;
    std::string_view words;
};

constexpr Reason Reasons[] = {
    { PrcVerdict::Unreadable, "is no file that can be read" },
    { PrcVerdict::TooShort, "is too short for a Palm database" },
    { PrcVerdict::NoApplication, "is neither an application nor a panel" },
    { PrcVerdict::OfPalmOS, "is a program of Palm OS" },
    { PrcVerdict::UnwritableCreator, "has a control character in its Creator ID" },
    { PrcVerdict::CreatorOfPalmItem, "has the Creator ID of a Palm system icon" },
    { PrcVerdict::KnownCreator, "has the Creator ID of a known application" },
    { PrcVerdict::PartName, "has the name of a known application in its name" },
    { PrcVerdict::NoName, "has no name" },
    { PrcVerdict::KnownName, "has a name that AppList.dat has already" },
    { PrcVerdict::NotSaved, "is new, but AppList.dat could not be written" },
};

/// Names of entries by their Creators. Of two the first counts.
using ByCreator = std::unordered_map<std::string, std::string>;

/// Says of one file after the other whether it is new, by the catalogs as they are when this is
/// made and by the files before it.
class Judge {
public:
    Judge()
    {
        const auto palm = ReadIni(PalmAppFile());
        for (const CatalogRow& row : PalmTable)
            if (!row.name.empty())
                m_palmItems.try_emplace(StoredCreator(*palm, row.name), row.name);
        for (const CatalogRow& row : AppTable) {
            if (!HasFullName(row))
                continue;
            m_applications.try_emplace(row.creator, row.name);
            m_names.emplace_back(LowerCase(row.name), row.name);
        }
    }

    /// `entry` is what is to be added, if the file is new.
    JudgedPrc Look(const std::string& path, CatalogEntry& entry)
    {
        bool isShort = false;
        const std::optional<PalmHeader> header = ReadPalmHeader(path, &isShort);
        if (!header)
            return { path, isShort ? PrcVerdict::TooShort : PrcVerdict::Unreadable, {} };
        JudgedPrc judged = LookAt(*header, entry);
        judged.path = path;
        return judged;
    }

private:
    JudgedPrc LookAt(const PalmHeader& header, CatalogEntry& entry)
    {
        if (!header.IsApplication())
            return { {}, PrcVerdict::NoApplication, {} };
        if (header.IsOfPalmOS())
            return { {}, PrcVerdict::OfPalmOS, {} };
        if (header.HasUnwritableCreator())
            return { {}, PrcVerdict::UnwritableCreator, {} };
        if (const auto item = m_palmItems.find(header.creator); item != m_palmItems.end())
            return { {}, PrcVerdict::CreatorOfPalmItem, item->second };
        if (const auto known = m_applications.find(header.creator); known != m_applications.end())
            return { {}, PrcVerdict::KnownCreator, known->second };
        // On purpose: with what stands behind a "*", which is cut only then.
        const std::string lower = LowerCase(header.name);
        for (const auto& [part, name] : m_names)
            if (lower.find(part) != std::string::npos)
                return { {}, PrcVerdict::PartName, name };
        return LookAtName(header, entry);
    }

    JudgedPrc LookAtName(const PalmHeader& header, CatalogEntry& entry)
    {
        const std::string bare = CutAtStar(header.name);
        if (bare.empty())
            return { {}, PrcVerdict::NoName, {} };
        const std::string name = EntryName(bare, header.IsPanel());
        if (m_file->HasSection(name) || !m_namesAdded.insert(LowerCase(name)).second)
            return { {}, PrcVerdict::KnownName, name };
        m_applications.try_emplace(header.creator, name);
        entry = { .name = name, .type = header.type, .creator = header.creator };
        return { {}, PrcVerdict::Added, name };
    }

    ByCreator m_palmItems;
    ByCreator m_applications; // those that are added among them
    /// Of the table before the search: lower case, and as written.
    std::vector<std::pair<std::string, std::string>> m_names;
    std::set<std::string> m_namesAdded; // lower case
    std::shared_ptr<const IniText> m_file = ReadIni(AppListFile());
};

PrcVerdict VerdictOf(EntryFate fate)
{
    return fate == EntryFate::Added    ? PrcVerdict::Added
        : fate == EntryFate::KnownName ? PrcVerdict::KnownName
                                       : PrcVerdict::KnownCreator;
}

/// Writes what was judged to be new. Another program may have been faster.
void Write(std::span<const CatalogEntry> entries, AddEnd& end, SearchListener& listener)
{
    const auto fates = AddNewEntries(AppListFile(), entries);
    end.couldWrite = fates.has_value();
    std::size_t entry = 0;
    for (JudgedPrc& file : end.files)
        if (file.verdict == PrcVerdict::Added)
            file.verdict = fates ? VerdictOf(fates->at(entry++)) : PrcVerdict::NotSaved;
    if (!end.couldWrite)
        listener.Show(NotSavedBox());
}

} // namespace

std::string_view WhyPassedOver(PrcVerdict verdict)
{
    for (const Reason& reason : Reasons)
        if (reason.verdict == verdict)
            return reason.words;
    return {};
}

AddEnd AddPrcFiles(SearchListener& listener)
{
    AddEnd end;
    if (listPRC.empty())
        return end;
    Judge judge;
    SearchPace pace(listener);
    std::vector<CatalogEntry> entries;
    for (std::size_t i = 0; i < listPRC.size() && !end.wasStopped; ++i) {
        CatalogEntry entry;
        end.files.push_back(judge.Look(listPRC[i], entry));
        if (end.files.back().verdict == PrcVerdict::Added)
            entries.push_back(std::move(entry));
        end.wasStopped = !pace.Step();
    }
    Write(entries, end, listener);
    return end;
}

SearchEnd SearchAndAdd(SearchListener& listener)
{
    listPRC.clear();
    SearchEnd end{ .walk = SearchPrcFiles(listener) };
    if (ScanHasNew)
        end.add = AddPrcFiles(listener);
    return end;
}

} // namespace vypx
