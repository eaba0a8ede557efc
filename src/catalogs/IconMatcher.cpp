#include "reader/IconMatcher.h"

#include "companion/IconRow.h"
#include "document/Catalogs.h"
#include "document/Document.h"

#include <charconv>

namespace vypx {

namespace {

template <typename Map, typename Key>
const std::vector<std::size_t>& RowsOf(const Map& map, const Key& key)
{
    static const std::vector<std::size_t> None;
    const auto found = map.find(key);
    return found == map.end() ? None : found->second;
}

/// Type and creator as one key. Both have four characters in every index row, so a catalog row
/// with other lengths equals none of them.
std::unordered_map<std::string, std::vector<std::size_t>> ByOwner(
    const std::vector<CatalogRow>& catalog)
{
    std::unordered_map<std::string, std::vector<std::size_t>> rows;
    for (std::size_t row = 0; row < catalog.size(); ++row) {
        const CatalogRow& entry = catalog[row];
        if (!entry.name.empty() && entry.type.size() == 4 && entry.creator.size() == 4)
            rows[entry.type + entry.creator].push_back(row);
    }
    return rows;
}

} // namespace

std::optional<double> NumberOf(std::string_view cell)
{
    while (!cell.empty() && (cell.front() == ' ' || cell.front() == '\t'))
        cell.remove_prefix(1);
    if (cell.starts_with('+'))
        cell.remove_prefix(1);
    double number = 0;
    const auto [end, error] =
        std::from_chars(cell.data(), cell.data() + cell.size(), number, std::chars_format::fixed);
    if (error != std::errc())
        return std::nullopt;
    return number;
}

IconMatcher::IconMatcher()
{
    for (std::size_t row = 0; row < VYTable.size(); ++row) {
        const std::optional<double> id = NumberOf(VYTable[row].id);
        if (VYTable[row].name.empty() || !id || *id < 0 || *id > UINT16_MAX)
            continue;
        const int whole = static_cast<int>(*id);
        if (whole == *id)
            m_launcher[whole].push_back(row);
    }
}

void IconMatcher::UseIndex()
{
    // Row 0 is empty and stands for nothing, a resource with the ID 0 included.
    for (std::size_t row = 1; row < Itbl.size(); ++row) {
        m_large[Itbl[row].largeId].push_back(row);
        m_small[Itbl[row].smallId].push_back(row);
    }
    m_applications = ByOwner(AppTable);
    m_palm = ByOwner(PalmTable);
}

std::vector<IconMatcher::Match> IconMatcher::LauncherIcons(int id) const
{
    std::vector<Match> matches;
    for (const std::size_t row : RowsOf(m_launcher, id))
        matches.push_back({ .label = VYTable[row].name, .kind = KindVY });
    return matches;
}

std::vector<IconMatcher::Match> IconMatcher::Applications(int id) const
{
    struct Search {
        const RowsById& index;
        const std::vector<CatalogRow>& catalog;
        const RowsByOwner& byOwner;
        std::string_view kind, size;
    };
    const Search searches[] = {
        { m_large, AppTable, m_applications, KindApp, " (Large Icon)" },
        { m_small, AppTable, m_applications, KindApp, " (Small Icon)" },
        { m_large, PalmTable, m_palm, KindPalm, " (Large Icon)" },
        { m_small, PalmTable, m_palm, KindPalm, " (Small Icon)" },
    };

    std::vector<Match> matches;
    for (const Search& search : searches)
        for (const std::size_t row : RowsOf(search.index, id))
            for (const std::size_t owner :
                RowsOf(search.byOwner, Itbl[row].type + Itbl[row].creator))
                matches.push_back({ .label = search.catalog[owner].name + std::string(search.size),
                    .kind = search.kind });
    return matches;
}

std::string IconMatcher::Note(int id) const
{
    const Rows& small = RowsOf(m_small, id);
    if (!small.empty())
        return Itbl[small.back()].creator + " - Small";
    const Rows& large = RowsOf(m_large, id);
    if (!large.empty())
        return Itbl[large.back()].creator + " - Large";
    return "Orphan";
}

} // namespace vypx
