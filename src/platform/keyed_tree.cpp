#include "platform/keyed_tree.h"

#include "platform/failure.h"
#include "platform/text.h"

#include <algorithm>
#include <limits>
#include <random>
#include <utility>

namespace ruvenmark {

namespace {

// Up to this many children a look at each of them is faster than the index, and stays within the station's memory.
constexpr std::size_t kFewChildren = 16;

// Whether the node's whole key is the text.
bool KeyIs(const TreeNode* node, std::string_view key)
{
    for (; node; node = node->Parent()) {
        const std::string& word = node->Word();
        if (!key.ends_with(word))
            return false;
        key.remove_suffix(word.size());
    }
    return key.empty();
}

std::size_t LevelOf(const TreeNode& node)
{
    std::size_t level = 0;
    for (const TreeNode* above = node.Parent(); above; above = above->Parent())
        ++level;
    return level;
}

} // namespace

std::string TreeNode::Key() const
{
    if (!m_parent)
        return m_word;
    std::string key = m_parent->Key();
    key += m_word;
    return key;
}

bool KeyedTree::KeyEqual::operator()(TreeNode* node, const KeyHash::Whole& probe) const
{
    if (node->m_hash == probe.hash && KeyIs(node, probe.key) &&
        (!probe.highest || LevelOf(*node) < LevelOf(*probe.highest)))
        probe.highest = node;
    return false;
}

bool KeyedTree::KeyEqual::operator()(const TreeNode* node, const KeyHash::Below& probe) const
{
    return node->m_hash == probe.hash && node->m_parent == probe.parent && node->m_word == probe.word;
}

KeyedTree::KeyedTree() : m_images(1)
{
    m_root.m_hash = std::random_device{}();
}

KeyedTree::~KeyedTree() = default;

// FNV-1a: a key's hash goes on from its parent's.
std::uint32_t KeyedTree::HashOf(std::uint32_t start, std::string_view text)
{
    std::uint32_t hash = start;
    for (const char c : text) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 16777619U;
    }
    return hash;
}

TreeNode* KeyedTree::Find(std::string_view key) const
{
    TreeNode* highest = nullptr;
    m_index.find(KeyHash::Whole{key, HashOf(m_root.m_hash, key), highest});
    return highest;
}

TreeNode* KeyedTree::Find(const TreeNode& parent, std::string_view word) const
{
    if (parent.m_children.size() > kFewChildren) {
        const auto it = m_index.find(KeyHash::Below{Told(parent), word, HashOf(parent.m_hash, word)});
        return it == m_index.end() ? nullptr : *it;
    }
    for (const auto& child : parent.m_children)
        if (child->m_word == word)
            return child.get();
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
    auto node = std::make_unique<TreeNode>();
    node->m_word = word;
    node->m_text = text;
    node->m_parent = &parent == &m_root ? nullptr : &parent;
    node->m_hash = HashOf(parent.m_hash, word);
    node->m_image = ImageIndex(image);
    node->m_expandedImage = ImageIndex(expandedImage);

    const std::size_t row = parent.m_bSorted ? SortedRow(parent, text) : parent.m_children.size();
    node->m_rowHint = static_cast<std::uint32_t>(row);
    TreeNode& added = *node;
    WillInsert.Raise(Told(parent), row);
    parent.m_children.insert(parent.m_children.begin() + static_cast<std::ptrdiff_t>(row), std::move(node));
    m_index.insert(&added);
    Inserted.Raise(added);
    return added;
}

void KeyedTree::Remove(TreeNode& node)
{
    TreeNode& parent = node.m_parent ? *node.m_parent : m_root;
    const std::size_t row = Row(node);
    const TreeNode* selectedBefore = m_selected;
    WillRemove.Raise(node);
    Forget(node);
    const auto gone = std::move(parent.m_children[row]);
    parent.m_children.erase(parent.m_children.begin() + static_cast<std::ptrdiff_t>(row));
    Removed.Raise(Told(parent));
    if (m_selected != selectedBefore)
        SelectionChanged.Raise();
}

void KeyedTree::Forget(TreeNode& node)
{
    for (const auto& child : node.m_children)
        Forget(*child);
    m_index.erase(&node);
    if (m_selected == &node)
        m_selected = nullptr;
}

void KeyedTree::SetText(TreeNode& node, std::string_view text)
{
    if (node.m_text == text)
        return;
    node.m_text = text;
    Changed.Raise(node);
    if (node.m_parent && node.m_parent->m_bSorted)
        SortChildren(*node.m_parent);
}

void KeyedTree::SetImage(TreeNode& node, std::string_view image)
{
    if (m_images[node.m_image] == image)
        return;
    node.m_image = ImageIndex(image);
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
    if (node.m_color == color)
        return;
    node.m_color = color;
    Changed.Raise(node);
}

void KeyedTree::SetExpanded(TreeNode& node, bool bExpanded)
{
    if (std::exchange(node.m_bExpanded, bExpanded) != bExpanded)
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
    const auto& children = parent.m_children;
    const auto place = std::upper_bound(children.begin(), children.end(), text, [](std::string_view a, const auto& b) {
        return CompareIgnoringCase(a, b->m_text) < 0;
    });
    return static_cast<std::size_t>(place - children.begin());
}

void KeyedTree::SortChildren(TreeNode& node)
{
    auto& children = node.m_children;
    const auto before = [](const auto& a, const auto& b) { return CompareIgnoringCase(a->m_text, b->m_text) < 0; };
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
    const auto& siblings = node.m_parent ? node.m_parent->m_children : m_root.m_children;
    const std::size_t start = std::min<std::size_t>(node.m_rowHint, siblings.size() - 1);
    for (std::size_t step = 0;; ++step) {
        std::size_t found = siblings.size();
        if (start >= step && siblings[start - step].get() == &node)
            found = start - step;
        else if (start + step < siblings.size() && siblings[start + step].get() == &node)
            found = start + step;
        if (found != siblings.size()) {
            siblings[found]->m_rowHint = static_cast<std::uint32_t>(found);
            return found;
        }
    }
}

std::uint16_t KeyedTree::ImageIndex(std::string_view image)
{
    const auto found = std::find(m_images.begin(), m_images.end(), image);
    if (found != m_images.end())
        return static_cast<std::uint16_t>(found - m_images.begin());
    if (m_images.size() > std::numeric_limits<std::uint16_t>::max())
        return 0;
    m_images.emplace_back(image);
    return static_cast<std::uint16_t>(m_images.size() - 1);
}

} // namespace ruvenmark
