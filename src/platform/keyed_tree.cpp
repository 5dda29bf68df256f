#include "platform/keyed_tree.h"

#include "platform/expect_memory.h"
#include "platform/failure.h"
#include "platform/text.h"

#include <algorithm>
#include <limits>

namespace ruvenmark {

namespace {

// Up to this many children a look at each of them is faster than the index, and stays within the station's memory.
constexpr std::size_t kFewChildren = 16;

} // namespace

std::string TreeNode::Key() const
{
    std::string key = m_parent ? m_parent->Key() : std::string();
    key += Word();
    return key;
}

KeyedTree::KeyedTree() : m_looks(1) {}

KeyedTree::~KeyedTree() = default;

struct KeyedTree::Highest {
    TreeNode* node = nullptr;
    std::size_t level = 0;
};

TreeNode* KeyedTree::Find(std::string_view key) const
{
    Highest found;
    SearchBelow(m_root, key, 0, found);
    return found.node;
}

template <typename Work>
void KeyedTree::ForEachAhead(const TreeNode& parent, std::string_view key, const Work& work) const
{
    if (!parent.m_bIndexed) {
        for (TreeNode* child : parent.Children())
            if (key.starts_with(child->Word()))
                work(*child);
        return;
    }
    for (std::size_t size = 0; size <= key.size(); ++size)
        if (TreeNode* child = m_index.Find(Told(parent), key.substr(0, size)))
            work(*child);
}

void KeyedTree::SearchBelow(const TreeNode& parent, std::string_view key, std::size_t level, Highest& found) const
{
    ForEachAhead(parent, key, [&](TreeNode& child) {
        if (found.node && found.level <= level)
            return;
        const std::string_view rest = key.substr(child.Word().size());
        if (rest.empty())
            found = {&child, level};
        else
            SearchBelow(child, rest, level + 1, found);
    });
}

void KeyedTree::Expect(const TreeNode* node) const
{
    constexpr std::size_t kNodes = 6; // A station and its first facts.
    if (node)
        ExpectMemory(node, kNodes * sizeof(TreeNode));
}

void KeyedTree::ExpectChildren(const TreeNode* node) const
{
    if (node && !node->Children().empty())
        ExpectMemory(node->Children().data(), sizeof(TreeNode));
}

void KeyedTree::ExpectTexts(const TreeNode* node) const
{
    if (node && node->Children().size() <= kFewChildren)
        for (const TreeNode* child : node->Children())
            child->m_text.Expect();
}

TreeNode* KeyedTree::Search(const TreeNode& parent, std::string_view word) const
{
    if (parent.m_bIndexed)
        return m_index.Find(Told(parent), word);
    for (TreeNode* child : parent.Children())
        if (child->Word() == word)
            return child;
    return nullptr;
}

TreeNode& KeyedTree::AddRoot(std::string_view key, std::string_view text, std::string_view image,
                             std::string_view expandedImage)
{
    return AddBelow(m_root, key, text, image, expandedImage);
}

TreeNode& KeyedTree::Add(TreeNode& parent, std::string_view word, std::string_view text, std::string_view image,
                         std::string_view expandedImage)
{
    return AddBelow(parent, word, text, image, expandedImage);
}

TreeNode& KeyedTree::AddBelow(TreeNode& parent, std::string_view word, std::string_view text, std::string_view image,
                              std::string_view expandedImage)
{
    if (Find(parent, word))
        throw Failure("the key is taken");
    const std::uint16_t look = LookIndex(image, expandedImage);
    TreeNode& node = TakeNode();
    node.m_text.Set(text);
    node.m_word = word == text ? nullptr : &m_words.Take(word);
    node.m_parent = &parent == &m_root ? nullptr : &parent;
    node.m_look = look;

    const std::size_t row = parent.m_bSorted ? SortedRow(parent, text) : parent.m_children.Count();
    node.m_rowHint = static_cast<std::uint32_t>(row);
    WillInsert.Raise(Told(parent), row);
    parent.m_children.Insert(row, &node);
    ++m_nodeCount;
    EnterInIndex(parent, node);
    Inserted.Raise(node);
    return node;
}

void KeyedTree::EnterInIndex(TreeNode& parent, TreeNode& added)
{
    if (parent.m_bIndexed) {
        m_index.Add(added);
    } else if (parent.m_children.Count() > kFewChildren) {
        for (TreeNode* child : parent.Children())
            m_index.Add(*child);
        parent.m_bIndexed = true;
    }
}

void KeyedTree::Remove(TreeNode& node)
{
    struct Dropping {
        KeyedTree& tree;
        TreeNode& gone;
        ~Dropping() { tree.Drop(gone); }
    };
    TreeNode& parent = node.m_parent ? *node.m_parent : m_root;
    const std::size_t row = Row(node);
    const TreeNode* selectedBefore = m_selected;
    WillRemove.Raise(node);
    if (parent.m_bIndexed)
        m_index.Remove(node);
    parent.m_children.Erase(row);
    const Dropping dropping{*this, node};
    Forget(node);
    Removed.Raise(Told(parent));
    if (m_selected != selectedBefore)
        SelectionChanged.Raise();
}

// Takes what stands below the node out of the index, and the selection away.
void KeyedTree::Forget(TreeNode& node)
{
    for (TreeNode* child : node.Children()) {
        if (node.m_bIndexed)
            m_index.Remove(*child);
        Forget(*child);
    }
    --m_nodeCount;
    if (m_selected == &node)
        m_selected = nullptr;
}

TreeNode& KeyedTree::TakeNode()
{
    if (m_unused.empty())
        return m_nodes.Make();
    TreeNode& node = *m_unused.back();
    m_unused.pop_back();
    return node;
}

void KeyedTree::Drop(TreeNode& node)
{
    for (TreeNode* child : node.Children())
        Drop(*child);
    if (node.m_word)
        m_words.Return(*node.m_word);
    node.~TreeNode();
    m_unused.push_back(new (&node) TreeNode());
}

void KeyedTree::SetText(TreeNode& node, std::string_view text)
{
    if (node.Text() == text)
        return;
    if (!node.m_word)
        node.m_word = &m_words.Take(node.Text()); // The word stays.
    node.m_text.Set(text);
    Changed.Raise(node);
    if (node.m_parent && node.m_parent->m_bSorted)
        SortChildren(*node.m_parent);
}

void KeyedTree::SetImage(TreeNode& node, std::string_view image)
{
    if (Image(node) == image)
        return;
    node.m_look = LookIndex(image, ExpandedImage(node));
    Changed.Raise(node);
}

void KeyedTree::SetBold(TreeNode& node, bool bBold)
{
    if (node.m_bBold == bBold)
        return;
    node.m_bBold = bBold;
    Changed.Raise(node);
}

void KeyedTree::SetColor(TreeNode& node, std::uint32_t color)
{
    if (node.m_color == (color & 0xFFFFFFU))
        return;
    node.m_color = color & 0xFFFFFFU;
    Changed.Raise(node);
}

void KeyedTree::SetExpanded(TreeNode& node, bool bExpanded)
{
    if (node.m_bExpanded == bExpanded)
        return;
    node.m_bExpanded = bExpanded;
    Changed.Raise(node);
}

void KeyedTree::SetSorted(TreeNode& node, bool bSorted)
{
    if (node.m_bSorted == bSorted)
        return;
    node.m_bSorted = bSorted;
    if (bSorted)
        SortChildren(node);
}

void KeyedTree::Select(TreeNode* node)
{
    if (m_selected == node)
        return;
    m_selected = node;
    SelectionChanged.Raise();
}

std::size_t KeyedTree::SortedRow(const TreeNode& parent, std::string_view text) const
{
    const auto children = parent.Children();
    const auto place =
        std::upper_bound(children.begin(), children.end(), text,
                         [](std::string_view a, const TreeNode* b) { return CompareIgnoringCase(a, b->Text()) < 0; });
    return static_cast<std::size_t>(place - children.begin());
}

void KeyedTree::SortChildren(TreeNode& node)
{
    const auto children = node.m_children.All();
    const auto before = [](const TreeNode* a, const TreeNode* b) {
        return CompareIgnoringCase(a->Text(), b->Text()) < 0;
    };
    if (std::is_sorted(children.begin(), children.end(), before))
        return;
    WillSort.Raise(node);
    std::stable_sort(children.begin(), children.end(), before);
    for (std::size_t row = 0; row < children.size(); ++row)
        children[row]->m_rowHint = static_cast<std::uint32_t>(row);
    Sorted.Raise(node);
}

// Insertions and removals make hints stale rather than renumber every sibling; the search goes outward from the hint.
std::size_t KeyedTree::Row(const TreeNode& node) const
{
    const auto siblings = (node.m_parent ? *node.m_parent : m_root).Children();
    const std::size_t start = std::min<std::size_t>(node.m_rowHint, siblings.size() - 1);
    for (std::size_t step = 0;; ++step) {
        std::size_t found = siblings.size();
        if (start >= step && siblings[start - step] == &node)
            found = start - step;
        else if (start + step < siblings.size() && siblings[start + step] == &node)
            found = start + step;
        if (found != siblings.size()) {
            siblings[found]->m_rowHint = static_cast<std::uint32_t>(found);
            return found;
        }
    }
}

std::uint16_t KeyedTree::LookIndex(std::string_view image, std::string_view expandedImage)
{
    const auto found = std::find_if(m_looks.begin(), m_looks.end(), [&](const Look& look) {
        return look.first == image && look.second == expandedImage;
    });
    if (found != m_looks.end())
        return static_cast<std::uint16_t>(found - m_looks.begin());
    if (m_looks.size() > std::numeric_limits<std::uint16_t>::max())
        return 0;
    m_looks.emplace_back(image, expandedImage);
    return static_cast<std::uint16_t>(m_looks.size() - 1);
}

} // namespace ruvenmark
