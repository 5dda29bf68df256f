#include "core/tree_selection.h"

#include "platform/keyed_tree.h"

namespace ruvenmark {

std::optional<Channel> ChannelOf(const TreeNode& node)
{
    const TreeNode* root = &node;
    while (root->Parent())
        root = root->Parent();
    return ChannelOfWord(root->Word());
}

std::optional<StationNode> SelectedStation(const KeyedTree& tree)
{
    TreeNode* node = tree.Selected();
    TreeNode* folder = node ? node->Parent() : nullptr;
    TreeNode* root = folder ? folder->Parent() : nullptr;
    if (!root || root->Parent())
        return std::nullopt;
    return StationNode{node, folder, root->Key(), ChannelOf(*root)};
}

TreeNode* SelectedRoot(const KeyedTree& tree)
{
    TreeNode* node = tree.Selected();
    return node && !node->Parent() ? node : nullptr;
}

} // namespace ruvenmark
