#pragma once

#include "platform/event.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <tsl/robin_set.h>
#include <vector>

namespace ruvenmark {

class KeyedTree;

// A node of a KeyedTree. Only the tree changes it.
class TreeNode {
public:
    // The whole key: the keys of the nodes above it and its own word, one behind the other.
    std::string Key() const;
    // What this node adds to its parent's key.
    const std::string& Word() const { return m_word; }
    const std::string& Text() const { return m_text; }
    TreeNode* Parent() const { return m_parent; } // Null for a root.
    const std::vector<std::unique_ptr<TreeNode>>& Children() const { return m_children; }
    std::uint32_t Color() const { return m_color; } // Red in the low byte; 0 is the ordinary text colour.
    bool IsBold() const { return m_bBold; }
    bool IsSorted() const { return m_bSorted; }
    bool IsExpanded() const { return m_bExpanded; }

private:
    friend class KeyedTree;

    std::string m_word;
    std::string m_text;
    TreeNode* m_parent = nullptr;
    std::vector<std::unique_ptr<TreeNode>> m_children;
    std::uint32_t m_hash = 0; // Of the whole key.
    std::uint32_t m_color = 0;
    std::uint32_t m_rowHint = 0;
    std::uint16_t m_image = 0;
    std::uint16_t m_expandedImage = 0;
    bool m_bBold = false;
    bool m_bSorted = false;
    bool m_bExpanded = false;
};

// A tree of texts. A node is what its place says, its parent and its word: no two children of one parent have the same
// word; case counts. Its key, the words from the root down joined into one, finds it too, but other splits of the same
// letters may stand elsewhere: station "AB" with a fact "Path" beside a station "ABPath".
class KeyedTree {
public:
    KeyedTree();
    ~KeyedTree();
    KeyedTree(const KeyedTree&) = delete;
    KeyedTree& operator=(const KeyedTree&) = delete;

    // Of several nodes with the key one on the highest level, a station before a fact. Null when there is none.
    TreeNode* Find(std::string_view key) const;
    // The parent's child of this word, or null.
    TreeNode* Find(const TreeNode& parent, std::string_view word) const;

    // Raises Failure when the parent, or the roots, have the word. A sorted parent takes the node at its place, any
    // other at the end.
    TreeNode& AddRoot(std::string_view key, std::string_view text, std::string_view image = {},
                      std::string_view expandedImage = {});
    TreeNode& Add(TreeNode& parent, std::string_view word, std::string_view text, std::string_view image = {},
                  std::string_view expandedImage = {});
    void Remove(TreeNode& node); // With all below it.

    void SetText(TreeNode& node, std::string_view text);
    void SetImage(TreeNode& node, std::string_view image);
    void SetBold(TreeNode& node, bool bBold);
    void SetColor(TreeNode& node, std::uint32_t color);
    // A sorted node keeps its children in the order of their texts, case ignored, equal ones as they came.
    void SetSorted(TreeNode& node, bool bSorted);
    void SetExpanded(TreeNode& node, bool bExpanded);

    const std::string& Image(const TreeNode& node) const { return m_images[node.m_image]; }
    const std::string& ExpandedImage(const TreeNode& node) const { return m_images[node.m_expandedImage]; }

    const std::vector<std::unique_ptr<TreeNode>>& Roots() const { return m_root.m_children; }
    std::size_t Row(const TreeNode& node) const; // Among its siblings.
    std::size_t NodeCount() const { return m_index.size(); }

    // What commands act on; null when nothing is selected or the node is gone.
    TreeNode* Selected() const { return m_selected; }
    void Select(TreeNode* node);

    // A null node stands for "the roots" as a parent. Structure is told before and after, nothing is read in between.
    Event<const TreeNode*, std::size_t> WillInsert; // Parent, row.
    Event<const TreeNode&> Inserted;
    Event<const TreeNode&> Changed;
    Event<const TreeNode&> WillRemove;
    Event<const TreeNode*> Removed;  // Parent.
    Event<const TreeNode&> WillSort; // The parent of what is put in order.
    Event<const TreeNode&> Sorted;
    Event<> SelectionChanged;

private:
    struct KeyHash {
        using is_transparent = void;
        // Equal to no node, so that a search meets every node of the hash; it leaves the highest of the key here.
        struct Whole {
            std::string_view key;
            std::uint32_t hash;
            TreeNode*& highest;
        };
        struct Below {
            const TreeNode* parent; // Null for the roots.
            std::string_view word;
            std::uint32_t hash;
        };
        std::size_t operator()(const TreeNode* node) const { return node->m_hash; }
        std::size_t operator()(const Whole& probe) const { return probe.hash; }
        std::size_t operator()(const Below& probe) const { return probe.hash; }
    };
    struct KeyEqual {
        using is_transparent = void;
        bool operator()(const TreeNode* a, const TreeNode* b) const { return a == b; }
        bool operator()(TreeNode* node, const KeyHash::Whole& probe) const;
        bool operator()(const TreeNode* node, const KeyHash::Below& probe) const;
    };

    static std::uint32_t HashOf(std::uint32_t start, std::string_view text);
    TreeNode& AddBelow(TreeNode& parent, std::string_view word, std::string_view text, std::string_view image,
                       std::string_view expandedImage);
    std::size_t SortedRow(const TreeNode& parent, std::string_view text) const;
    void SortChildren(TreeNode& node);
    void Forget(TreeNode& node);
    std::uint16_t ImageIndex(std::string_view image);
    // What stands for a parent outside: null for the node above the roots.
    const TreeNode* Told(const TreeNode& node) const { return &node == &m_root ? nullptr : &node; }

    TreeNode m_root; // Above the roots; never shown. Its hash is a seed, so that nobody on the air can choose calls
                     // that collide.
    // Flat, as a report pays for every cache line that it has to wait for.
    tsl::robin_set<TreeNode*, KeyHash, KeyEqual, std::allocator<TreeNode*>, true> m_index;
    std::vector<std::string> m_images; // The words in use; the first is the empty one.
    TreeNode* m_selected = nullptr;
};

} // namespace ruvenmark
