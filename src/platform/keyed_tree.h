#pragma once

#include "platform/block_pool.h"
#include "platform/event.h"
#include "platform/pointer_list.h"
#include "platform/small_text.h"
#include "platform/tree_index.h"
#include "platform/word_table.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ruvenmark {

// A node of a KeyedTree. Only the tree makes and changes it. There are millions of them, and each is one cache line.
class TreeNode {
public:
    // The whole key: the keys of the nodes above it and its own word, one behind the other.
    std::string Key() const;
    // What this node adds to its parent's key.
    std::string_view Word() const { return m_word ? WordTable::Text(*m_word) : m_text.View(); }
    std::string_view Text() const { return m_text.View(); }
    TreeNode* Parent() const { return m_parent; } // Null for a root.
    std::span<TreeNode* const> Children() const { return m_children.All(); }
    std::uint32_t Color() const { return m_color; } // Red in the low byte; 0 is the ordinary text colour.
    bool IsBold() const { return m_bBold; }
    bool IsSorted() const { return m_bSorted; }
    bool IsExpanded() const { return m_bExpanded; }

private:
    friend class KeyedTree;
    friend class BlockPool<TreeNode>;

    TreeNode() = default;
    ~TreeNode() = default;

    TreeNode* m_parent = nullptr;
    PointerList<TreeNode> m_children;
    const WordTable::Entry* m_word = nullptr; // Null where the text is the word, as it is of stations.
    SmallText m_text;
    std::uint16_t m_look = 0;
    std::uint32_t m_rowHint = 0;
    std::uint32_t m_color : 24 = 0;
    bool m_bBold : 1 = false;
    bool m_bSorted : 1 = false;
    bool m_bExpanded : 1 = false;
    bool m_bIndexed : 1 = false; // The index holds its children.
};
static_assert(sizeof(TreeNode) == 64 || sizeof(void*) != 8);

// A tree of texts. A node is what its place says, its parent and its word: no two children of one parent have the same
// word; case counts. Its key, the words from the root down joined into one, finds it too, but other splits of the same
// letters may stand elsewhere: station "AB" with a fact "Path" beside a station "ABPath".
class KeyedTree {
public:
    KeyedTree();
    ~KeyedTree();
    KeyedTree(const KeyedTree&) = delete;
    KeyedTree& operator=(const KeyedTree&) = delete;

    // Walks down from the roots. Of several nodes with the key one on the highest level, a station before a fact. Null
    // when there is none.
    TreeNode* Find(std::string_view key) const;
    // The parent's child of this word, or null. A hint is a node that was found before; it may be gone since. Where it
    // is the one, there is no search.
    TreeNode* Find(const TreeNode& parent, std::string_view word, TreeNode* hint = nullptr) const
    {
        return hint && hint->m_parent == &parent && hint->Word() == word ? hint : Search(parent, word);
    }
    TreeNode* FindRoot(std::string_view word) const { return Search(m_root, word); }
    // The node, and what was added below it at once, will be needed. It may be gone.
    void Expect(const TreeNode* node) const;
    // What tells its children will be needed; the node was expected before.
    void ExpectChildren(const TreeNode* node) const;
    void ExpectTexts(const TreeNode* node) const; // Of the children, which were expected before.

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

    const std::string& Image(const TreeNode& node) const { return m_looks[node.m_look].first; }
    const std::string& ExpandedImage(const TreeNode& node) const { return m_looks[node.m_look].second; }

    std::span<TreeNode* const> Roots() const { return m_root.Children(); }
    std::size_t Row(const TreeNode& node) const; // Among its siblings.
    std::size_t NodeCount() const { return m_nodeCount; }

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
    using Look = std::pair<std::string, std::string>; // The images of a node and of an expanded one.
    struct Highest;                                   // Of a search for a whole key.

    TreeNode* Search(const TreeNode& parent, std::string_view word) const;
    void SearchBelow(const TreeNode& parent, std::string_view key, std::size_t level, Highest& found) const;
    // The work on each child whose word the key begins with.
    template <typename Work>
    void ForEachAhead(const TreeNode& parent, std::string_view key, const Work& work) const;
    TreeNode& AddBelow(TreeNode& parent, std::string_view word, std::string_view text, std::string_view image,
                       std::string_view expandedImage);
    std::size_t SortedRow(const TreeNode& parent, std::string_view text) const;
    void SortChildren(TreeNode& node);
    void EnterInIndex(TreeNode& parent, TreeNode& added);
    void Forget(TreeNode& node);
    TreeNode& TakeNode();
    void Drop(TreeNode& node);
    std::uint16_t LookIndex(std::string_view image, std::string_view expandedImage);
    // What stands for a parent outside: null for the node above the roots.
    const TreeNode* Told(const TreeNode& node) const { return &node == &m_root ? nullptr : &node; }

    WordTable m_words;
    BlockPool<TreeNode> m_nodes;
    std::vector<TreeNode*> m_unused; // Nodes that are gone: blank, and so no hint's.
    TreeNode m_root;                 // Above the roots; never shown.
    TreeIndex m_index;               // The children of those that have many.
    std::vector<Look> m_looks;       // Those in use; the first is the empty one.
    std::size_t m_nodeCount = 0;
    TreeNode* m_selected = nullptr;
};

} // namespace ruvenmark
