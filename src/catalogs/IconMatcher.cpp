#include "catalogs/IconMatcher.h"

#include "companion/IconRow.h"
#include "document/Catalogs.h"
#include "document/Document.h"
#include "document/Labels.h"

namespace vypx {

/// Type and creator as one key. Both have four characters in every index row, so a catalog row
/// with other lengths equals none of them.
IconMatcher::RowsByOwner IconMatcher::ByOwner(const std::vector<CatalogRow>& catalog)
{
    RowsByOwner rows;
    for (std::size_t row = 0; row < catalog.size(); ++row) {
        const CatalogRow& entry = catalog[row];
        if (!entry.name.empty() && entry.type.size() == 4 && entry.creator.size() == 4)
            rows[entry.type + entry.creator].push_back(row);
    }
    return rows;
}

IconMatcher::IconMatcher()
    : m_launcher(LauncherRows())
{
}

void IconMatcher::UseIndex()
{
    m_index = IndexRows::OfItbl();
    m_applications = ByOwner(AppTable);
    m_palm = ByOwner(PalmTable);
}

std::vector<IconMatcher::Match> IconMatcher::LauncherIcons(int id) const
{
    std::vector<Match> matches;
    for (const std::size_t row : m_launcher.Of(id))
        matches.push_back({ .label = VYTable[row].name, .kind = KindVY, .owner = {} });
    return matches;
}

std::vector<IconMatcher::Match> IconMatcher::Applications(int id) const
{
    struct Search {
        const TableRows& index;
        const std::vector<CatalogRow>& catalog;
        const RowsByOwner& byOwner;
        std::string_view kind;
        SizeClass size;
    };
    const TableRows &large = m_index.Large(id), &small = m_index.Small(id);
    const Search searches[] = {
        { large, AppTable, m_applications, KindApp, SizeClass::Large },
        { small, AppTable, m_applications, KindApp, SizeClass::Small },
        { large, PalmTable, m_palm, KindPalm, SizeClass::Large },
        { small, PalmTable, m_palm, KindPalm, SizeClass::Small },
    };

    std::vector<Match> matches;
    for (const Search& search : searches)
        for (const std::size_t row : search.index) {
            const Owner owner{ Itbl[row].type, Itbl[row].creator };
            const auto named = search.byOwner.find(owner.type + owner.creator);
            if (named == search.byOwner.end())
                continue;
            for (const std::size_t entry : named->second)
                matches.push_back({ .label = LabelOf(search.catalog[entry].name, search.size),
                    .kind = search.kind,
                    .owner = owner });
        }
    return matches;
}

IconMatcher::Note IconMatcher::NoteOf(int id) const
{
    const auto noteOf = [](const TableRows& rows, SizeClass size) {
        const ItblRow& row = Itbl[rows.back()];
        return Note{ OwnerNote(row.creator, size), { row.type, row.creator } };
    };
    if (const TableRows& small = m_index.Small(id); !small.empty())
        return noteOf(small, SizeClass::Small);
    if (const TableRows& large = m_index.Large(id); !large.empty())
        return noteOf(large, SizeClass::Large);
    return { std::string(OrphanNote), {} };
}

} // namespace vypx
