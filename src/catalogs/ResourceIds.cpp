#include "catalogs/ResourceIds.h"

#include "companion/Numbers.h"
#include "document/Document.h"

#include <algorithm>

namespace vypx {

std::optional<int> ResourceIds::Next(SizeClass size)
{
    constexpr int Lowest = 3500;
    for (; m_seen < IconTable.size(); ++m_seen) {
        const int id = ResourceId(IconTable[m_seen].ResourceKey);
        if (id >= Lowest && id < Highest)
            m_maximum = std::max(m_maximum, id);
    }
    int id = std::max(m_maximum + 1, Lowest);
    if (id > Highest)
        return std::nullopt;
    id += id % 2;
    m_maximum = id;
    // On purpose: what is kept stays even, so a large and a small icon need not be neighbours.
    return size == SizeClass::Small ? id + 1 : id;
}

std::string ResourceKeyOf(int id) { return "tAIB" + std::to_string(id); }

} // namespace vypx
