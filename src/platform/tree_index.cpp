#include "platform/tree_index.h"

#include "platform/keyed_tree.h"
#include "platform/text_hash.h"

namespace ruvenmark {

namespace {

std::uint64_t Hash(const TreeNode* parent, std::string_view word)
{
    return TextHash(HashSeed() + reinterpret_cast<std::uintptr_t>(parent), word);
}

} // namespace

TreeNode* TreeIndex::Find(const TreeNode* parent, std::string_view word) const
{
    TreeNode* const* node = m_nodes.Find(
        Hash(parent, word), [&](const TreeNode* other) { return other->Parent() == parent && other->Word() == word; });
    return node ? *node : nullptr;
}

void TreeIndex::Add(TreeNode& node)
{
    m_nodes.Add(Hash(node.Parent(), node.Word()), &node);
}

void TreeIndex::Remove(const TreeNode& node)
{
    m_nodes.Remove(Hash(node.Parent(), node.Word()), [&](const TreeNode* other) { return other == &node; });
}

} // namespace ruvenmark
