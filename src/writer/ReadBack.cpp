#include "writer/ReadBack.h"

#include "companion/ByteView.h"
#include "document/Catalogs.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "writer/CompileIconset.h"
#include "writer/IconIndex.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vypx {

namespace {

using IconsById = std::unordered_map<int, std::size_t>;

/// Names of applications by type and creator, four characters each.
std::unordered_map<std::string, std::vector<std::string_view>> NamesByOwner()
{
    std::unordered_map<std::string, std::vector<std::string_view>> names;
    for (const auto* table : { &AppTable, &PalmTable })
        for (const CatalogRow& row : *table)
            if (!row.name.empty() && row.type.size() == 4 && row.creator.size() == 4)
                names[row.type + row.creator].push_back(row.name);
    return names;
}

/// Icons of applications by the resource's ID, from the index of the last compile. Records are 16
/// bytes: type, creator, ID of the large and of the small icon. A label is shown once.
IconsById IconsOfApplications()
{
    constexpr std::size_t RecordSize = 16, LargeId = 8, SmallId = 10;
    const auto index = platform::ReadWholeFile(WorkPath("iTbl1000.bin"));
    if (!index)
        return {};
    const auto names = NamesByOwner();
    std::unordered_set<std::string> labels;
    IconsById icons;
    const ByteView bytes(*index);
    for (std::size_t at = 0; at + RecordSize <= bytes.Size(); at += RecordSize) {
        const auto owner = names.find(std::string(bytes.Text(at, 8)));
        if (owner == names.end())
            continue;
        for (const std::string_view name : owner->second) {
            icons[bytes.U16(at + LargeId)] += labels.insert(std::string(name) + " (Large").second;
            icons[bytes.U16(at + SmallId)] += labels.insert(std::string(name) + " (Small").second;
        }
    }
    return icons;
}

/// Icons of the launcher by the resource's ID.
IconsById IconsOfLauncher()
{
    IconsById icons;
    for (const LauncherRow& row : VYTable)
        if (!row.name.empty())
            ++icons[std::atoi(row.id.c_str())];
    return icons;
}

} // namespace

std::string IconsWithoutRoom()
{
    const std::vector<ResourceRow> pictures = PictureRows();
    const IconsById launcher = IconsOfLauncher(), applications = IconsOfApplications();
    std::size_t icons = 0;
    for (const ResourceRow& picture : pictures) {
        const int id = IdOf(picture.key);
        const auto mine = launcher.find(id), theirs = applications.find(id);
        // One that nothing names stands in the tree by itself.
        icons += mine != launcher.end()    ? mine->second
            : theirs != applications.end() ? std::max<std::size_t>(theirs->second, 1)
                                           : 1;
    }
    const std::size_t room = 2 * (pictures.size() + 2) + 1; // the version and the index as well
    if (icons <= room)
        return {};
    return "Only " + std::to_string(room) + " of its " + std::to_string(icons)
        + " icons will be shown when it is opened again: too many of them share a picture.";
}

} // namespace vypx
