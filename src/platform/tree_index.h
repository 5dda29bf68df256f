#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <tsl/robin_set.h>

namespace ruvenmark {

class TreeNode;

// Nodes of a tree by their place: the parent, null for the roots, and the word.
class TreeIndex {
public:
    TreeIndex();

    TreeNode* Find(const TreeNode* parent, std::string_view word) const; // Null where there is none.
    // The node's parent and word must stay as they are while it is here.
    void Add(TreeNode& node) { m_nodes.insert(&node); }
    void Remove(TreeNode& node) { m_nodes.erase(&node); }

private:
    struct Place {
        const TreeNode* parent;
        std::string_view word;
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const Place& place) const;
        std::size_t operator()(const TreeNode* node) const;
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(const TreeNode* a, const TreeNode* b) const { return a == b; }
        bool operator()(const TreeNode* node, const Place& place) const;
    };

    // Flat and with the hashes in it, as a report pays for every cache line that it has to wait for.
    tsl::robin_set<TreeNode*, Hash, Equal, std::allocator<TreeNode*>, true> m_nodes;
};

} // namespace ruvenmark
