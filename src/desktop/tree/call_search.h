#pragma once

#include <string_view>

namespace ruvenmark {

class KeyedTree;
class TreeNode;

// The first root, folder or station whose text begins with the letters, case ignored, in the order of the tree from
// `from` on and round to it again; `from` itself comes first or last. Null when there is none.
TreeNode* FindByFirstLetters(const KeyedTree& tree, std::string_view letters, TreeNode* from, bool bFromComesFirst);

} // namespace ruvenmark
