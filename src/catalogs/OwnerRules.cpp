#include "catalogs/OwnerRules.h"

#include "companion/Numbers.h"
#include "document/Catalogs.h"

#include <algorithm>
#include <optional>

namespace vypx {

const TableRows& RowsById::Of(int id) const
{
    static const TableRows None;
    const auto found = m_rows.find(id);
    return found == m_rows.end() ? None : found->second;
}

bool CanBeIndexed(std::string_view resourceKey)
{
    constexpr std::string_view IconType = "tAIB";
    constexpr int Lowest = 3500, Highest = 9999;
    const int id = ResourceId(resourceKey);
    return resourceKey.starts_with(IconType) && id >= Lowest && id <= Highest;
}

RowsById LauncherRows()
{
    RowsById rows;
    for (std::size_t row = 0; row < VYTable.size(); ++row)
        if (const auto id = LeadingWhole(VYTable[row].id, 0, UINT16_MAX);
            id && !VYTable[row].name.empty())
            rows.Add(*id, row);
    return rows;
}

IndexRows IndexRows::OfItbl()
{
    IndexRows rows;
    for (std::size_t row = 1; row < Itbl.size(); ++row) {
        rows.m_large.Add(Itbl[row].largeId, row);
        rows.m_small.Add(Itbl[row].smallId, row);
    }
    return rows;
}

Owner IndexRows::LastOwner(int id) const
{
    std::size_t last = 0;
    for (const TableRows* rows : { &Large(id), &Small(id) })
        if (!rows->empty())
            last = std::max(last, rows->back());
    return last == 0 ? Owner() : Owner{ Itbl[last].type, Itbl[last].creator };
}

} // namespace vypx
