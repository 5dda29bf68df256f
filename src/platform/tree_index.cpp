#include "platform/tree_index.h"

#include "platform/keyed_tree.h"
#include "platform/text_hash.h"

namespace ruvenmark {

namespace {

constexpr float kFull = 0.75F;

} // namespace

TreeIndex::TreeIndex()
{
    m_nodes.max_load_factor(kFull);
}

TreeNode* TreeIndex::Find(const TreeNode* parent, std::string_view word) const
{
    const auto it = m_nodes.find(Place{parent, word});
    return it == m_nodes.end() ? nullptr : *it;
}

std::size_t TreeIndex::Hash::operator()(const Place& place) const
{
    return TextHash(HashSeed() + reinterpret_cast<std::uintptr_t>(place.parent), place.word);
}

std::size_t TreeIndex::Hash::operator()(const TreeNode* node) const
{
    return (*this)(Place{node->Parent(), node->Word()});
}

bool TreeIndex::Equal::operator()(const TreeNode* node, const Place& place) const
{
    return node->Parent() == place.parent && node->Word() == place.word;
}

} // namespace ruvenmark
