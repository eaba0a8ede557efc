#include "document/IconTree.h"

#include "companion/IconRow.h"

#include <utility>

namespace vypx {

int ImageOfKind(std::string_view iconKind)
{
    struct KindImage {
        std::string_view kind;
        int image;
    };
    static constexpr KindImage Images[] = {
        { KindVY, ImageVY },
        { KindApp, ImageApp },
        { KindPalm, ImagePalm },
        { KindUnknown, ImageUnknown },
    };
    for (const KindImage& entry : Images)
        if (entry.kind == iconKind)
            return entry.image;
    return 0;
}

void IconTree::Clear()
{
    m_hasRoot = false;
    m_root.clear();
    m_nodes.clear();
    m_byKey.clear();
}

void IconTree::SetRoot(const std::string& text)
{
    m_hasRoot = true;
    m_root = text;
}

bool IconTree::Add(IconNode node)
{
    if ((m_hasRoot && node.key == m_root) || m_byKey.contains(node.key))
        return false;
    m_byKey.emplace(node.key, m_nodes.size());
    m_nodes.push_back(std::move(node));
    return true;
}

IconNode* IconTree::Find(const std::string& key)
{
    const auto found = m_byKey.find(key);
    return found == m_byKey.end() ? nullptr : &m_nodes[found->second];
}

} // namespace vypx
