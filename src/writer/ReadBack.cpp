#include "writer/ReadBack.h"

#include "document/Catalogs.h"
#include "writer/CompileIconset.h"
#include "writer/IconIndex.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace vypx {

namespace {

/// How many catalog rows each application has, which is how many icons its record gives.
std::unordered_map<std::uint64_t, std::size_t> CatalogRowsByOwner()
{
    std::unordered_map<std::uint64_t, std::size_t> rows;
    for (const auto* table : { &AppTable, &PalmTable })
        for (const CatalogRow& row : *table)
            if (!row.name.empty())
                ++rows[OwnerNumber(PackedFour(row.type), PackedFour(row.creator))];
    return rows;
}

/// Icons by the resource's ID, as the index that is saved names them.
std::unordered_map<int, std::size_t> IndexedIcons()
{
    const auto rows = CatalogRowsByOwner();
    std::unordered_map<int, std::size_t> icons;
    for (const ItblValue& value : SavedIndex().values) {
        const auto found = rows.find(OwnerNumber(value.type, value.creator));
        if (found == rows.end())
            continue;
        icons[value.largeId] += found->second;
        icons[value.smallId] += found->second;
    }
    return icons;
}

} // namespace

std::string IconsWithoutRoom()
{
    const std::vector<ResourceRow> pictures = PictureRows();
    const std::size_t room = 2 * (pictures.size() + 2) + 1; // the version and the index as well
    if (RowsToSave() <= room)
        return {};
    const auto indexed = IndexedIcons();
    std::size_t icons = 0;
    for (const ResourceRow& picture : pictures) {
        const auto found = indexed.find(IdOf(picture.key));
        // One that the index doesn't name stands in the tree by itself.
        icons += found == indexed.end() ? 1 : std::max<std::size_t>(found->second, 1);
    }
    if (icons <= room)
        return {};
    return "Only " + std::to_string(room) + " of its " + std::to_string(icons)
        + " icons will be shown when it is opened again: too many of them share a picture.";
}

} // namespace vypx
