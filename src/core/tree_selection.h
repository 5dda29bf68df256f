#pragma once

#include "core/channel.h"

#include <optional>
#include <string>

namespace ruvenmark {

class KeyedTree;
class TreeNode;

// A station node: it stands under a folder, which stands under a root.
struct StationNode {
    TreeNode* node;
    TreeNode* folder;
    TreeNode* root;
    std::string rootKey; // The channel word.
};

// The selected station; nothing when no node, or one of another kind, is selected.
std::optional<StationNode> SelectedStation(const KeyedTree& tree);
// The selected node where it is a root, or null.
TreeNode* SelectedRoot(const KeyedTree& tree);

} // namespace ruvenmark
