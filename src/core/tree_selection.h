#pragma once

#include "core/channel.h"

#include <optional>
#include <string>

namespace ruvenmark {

class KeyedTree;
class TreeNode;

// The channel in whose part of the tree the node stands; nothing under "My station" and roots of other names.
std::optional<Channel> ChannelOf(const TreeNode& node);

// A station node: it stands under a folder, which stands under a root.
struct StationNode {
    TreeNode* node;
    TreeNode* folder;
    std::string rootKey; // The channel word where it is a channel's.
    std::optional<Channel> channel;
};

// The selected station; nothing when no node, or one of another kind, is selected.
std::optional<StationNode> SelectedStation(const KeyedTree& tree);
// The selected node where it is a root, or null.
TreeNode* SelectedRoot(const KeyedTree& tree);

} // namespace ruvenmark
