#pragma once

#include "platform/hash_index.h"

#include <string_view>

namespace ruvenmark {

class TreeNode;

// Nodes of a tree by their place: the parent, null for the roots, and the word.
class TreeIndex {
public:
    TreeNode* Find(const TreeNode* parent, std::string_view word) const; // Null where there is none.
    // The node's parent and word must stay as they are while it is here.
    void Add(TreeNode& node);
    void Remove(const TreeNode& node);

private:
    HashIndex<TreeNode*> m_nodes;
};

} // namespace ruvenmark
