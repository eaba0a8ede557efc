#include "companion/Lookups.h"

#include <algorithm>

namespace vypx {

void ChkDup(const ResourceKeys& keysOfIconTable, const std::string& name, std::int32_t& result)
{
    if (keysOfIconTable.contains(name))
        result = 1;
}

void ChkShared(std::span<const IconRow> iconTable, std::vector<std::string>& shareNames,
    std::string_view label)
{
    std::fill(shareNames.begin(), shareNames.end(), std::string());
    const auto named = std::find_if(iconTable.begin(), iconTable.end(),
        [&](const IconRow& row) { return row.IconLabel == label; });
    if (named == iconTable.end() || label.empty() || named->ResourceKey.empty())
        return;

    std::size_t entry = 1;
    for (const IconRow& row : iconTable) {
        if (row.ResourceKey != named->ResourceKey || row.IconLabel == label)
            continue;
        if (entry >= shareNames.size())
            shareNames.resize(entry + 1);
        shareNames[entry++] = row.IconLabel;
    }
}

} // namespace vypx
