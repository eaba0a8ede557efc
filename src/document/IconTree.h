#pragma once

#include "companion/Rgb.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace vypx {

/// Numbers of the tree's pictures.
enum TreeImage {
    ImageVY = 1,
    ImageApp = 2,
    ImagePalm = 3,
    ImageUnknown = 4,
    ImageRoot = 5,
    ImageDelete = 6,
};

struct IconNode {
    std::string key;    ///< the row's IconLabel; also the node's text (Latin-1)
    int image = 0;      ///< one of TreeImage
    Rgb colour = Black; ///< of the text
};

/// What `TreeView1` shows: a root and one flat level of icon nodes below it. The reader and the
/// recount write here; the window shows it in one go, sorted by text.
class IconTree {
public:
    void Clear();

    /// Makes the root; its text is its key. There is one root at most.
    void SetRoot(const std::string& text);
    bool HasRoot() const { return m_hasRoot; }
    const std::string& Root() const { return m_root; }

    /// Adds a node. False, and nothing added, when a node or the root has that key.
    bool Add(IconNode node);

    /// Puts a node in the place of the one with the key `old`, which may have the same key. False,
    /// and nothing done, when there is no such node, or another one or the root has the new key.
    bool Replace(const std::string& old, IconNode node);

    /// In the order in which they were added.
    const std::vector<IconNode>& Nodes() const { return m_nodes; }

    /// Null when there is no such node. Valid until the next Add or Clear.
    IconNode* Find(const std::string& key);

private:
    bool m_hasRoot = false;
    std::string m_root;
    std::vector<IconNode> m_nodes;
    std::unordered_map<std::string, std::size_t> m_byKey;
};

} // namespace vypx
