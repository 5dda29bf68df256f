#include "desktop/tree/call_search.h"

#include "platform/keyed_tree.h"
#include "platform/text.h"

#include <span>

namespace ruvenmark {

namespace {

constexpr int kStationLevel = 2;

bool BeginsWith(std::string_view text, std::string_view letters)
{
    return text.size() >= letters.size() && CompareIgnoringCase(text.substr(0, letters.size()), letters) == 0;
}

struct Walk {
    std::string_view letters;
    const TreeNode* from;
    bool bPassed;               // The node that the search starts from.
    TreeNode* before = nullptr; // The first fit ahead of it.
    TreeNode* after = nullptr;  // The first fit behind it.

    void Visit(std::span<TreeNode* const> nodes, int level)
    {
        for (TreeNode* node : nodes) {
            if (node == from)
                bPassed = true;
            else if (TreeNode*& place = bPassed ? after : before; !place && BeginsWith(node->Text(), letters))
                place = node;
            if (level < kStationLevel && !after)
                Visit(node->Children(), level + 1);
            if (after)
                return;
        }
    }
};

} // namespace

TreeNode* FindByFirstLetters(const KeyedTree& tree, std::string_view letters, TreeNode* from, bool bFromComesFirst)
{
    const bool bFromFits = from && BeginsWith(from->Text(), letters);
    if (bFromFits && bFromComesFirst)
        return from;
    Walk walk{letters, from, from == nullptr};
    walk.Visit(tree.Roots(), 0);
    if (walk.after)
        return walk.after;
    if (walk.before)
        return walk.before;
    return bFromFits ? from : nullptr;
}

} // namespace ruvenmark
