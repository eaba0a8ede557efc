#include "document/IconTree.h"

#include <utility>

namespace vypx {

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

bool IconTree::Replace(const std::string& old, IconNode node)
{
    const auto found = m_byKey.find(old);
    const bool isNew = node.key != old;
    if (found == m_byKey.end()
        || (isNew && ((m_hasRoot && node.key == m_root) || m_byKey.contains(node.key))))
        return false;
    const std::size_t place = found->second;
    m_byKey.erase(found);
    m_byKey.emplace(node.key, place);
    m_nodes[place] = std::move(node);
    return true;
}

IconNode* IconTree::Find(const std::string& key)
{
    const auto found = m_byKey.find(key);
    return found == m_byKey.end() ? nullptr : &m_nodes[found->second];
}

} // namespace vypx
