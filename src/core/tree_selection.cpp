#include "core/tree_selection.h"

#include "platform/keyed_tree.h"

namespace ruvenmark {

std::optional<StationNode> SelectedStation(const KeyedTree& tree)
{
    TreeNode* node = tree.Selected();
    TreeNode* folder = node ? node->Parent() : nullptr;
    TreeNode* root = folder ? folder->Parent() : nullptr;
    if (!root || root->Parent())
        return std::nullopt;
    return StationNode{node, folder, root, root->Key()};
}

TreeNode* SelectedRoot(const KeyedTree& tree)
{
    TreeNode* node = tree.Selected();
    return node && !node->Parent() ? node : nullptr;
}

} // namespace ruvenmark
