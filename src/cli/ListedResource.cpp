#include "cli/ListedResource.h"

#include "reader/ResourceList.h"

#include <algorithm>

namespace vypx {

std::vector<ListedResource> ListedResources(ByteView file)
{
    std::vector<ListedResource> resources;
    if (file.Size() < DatabaseHeaderSize)
        return resources;
    const std::size_t claimed = file.U16(ResourceCountOffset);
    const std::size_t room = (file.Size() - DatabaseHeaderSize) / EntrySize;
    resources.resize(std::min({ claimed, room, std::size_t{ MaxResources } }));
    std::size_t entry = DatabaseHeaderSize;
    for (ListedResource& resource : resources) {
        resource.type = file.Text(entry, 4);
        resource.id = file.U16(entry + 4);
        resource.offset = file.U32(entry + 6);
        entry += EntrySize;
    }
    for (std::size_t i = 0; i < resources.size(); ++i)
        resources[i].end = i + 1 < resources.size() ? resources[i + 1].offset
                                                    : static_cast<std::uint32_t>(file.Size());
    return resources;
}

} // namespace vypx
