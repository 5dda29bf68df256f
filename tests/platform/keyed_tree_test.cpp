#include "platform/failure.h"
#include "platform/keyed_tree.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace ruvenmark {
namespace {

std::vector<std::string> Texts(const TreeNode& parent)
{
    std::vector<std::string> texts;
    for (const auto& child : parent.Children())
        texts.emplace_back(child->Text());
    return texts;
}

TEST(KeyedTree, SortedParentTakesChildrenAtTheirPlaceAndAnyOtherAtItsEnd)
{
    KeyedTree tree;
    TreeNode& folder = tree.AddRoot("RF", "Stations");
    for (const char* call : {"delta", "ALFA"})
        tree.Add(folder, call, call);
    tree.SetSorted(folder, true);
    tree.Add(folder, "A2", "alfa"); // Equal but for case: behind the one that was there.
    EXPECT_EQ(Texts(folder), (std::vector<std::string>{"ALFA", "alfa", "delta"}));
    tree.SetSorted(folder, false);
    tree.Add(folder, "last", "aaa");
    EXPECT_EQ(Texts(folder).back(), "aaa");
}

TEST(KeyedTree, RemovingTheSelectedNodeOrOneAboveItEndsTheSelection)
{
    KeyedTree tree;
    TreeNode& folder = tree.AddRoot("F", "");
    TreeNode& station = tree.Add(folder, "S", "");
    TreeNode& fact = tree.Add(station, "x", "");
    int told = 0;
    const auto observing = tree.SelectionChanged.Observe([&] { ++told; });

    tree.Select(&fact);
    tree.Select(&fact);
    EXPECT_EQ(told, 1);
    tree.Remove(station);
    EXPECT_EQ(tree.Selected(), nullptr);
    EXPECT_EQ(told, 2);
}

// Random edits, and beside them the plainest model of what stands where. Calls and facts share their few letters, so
// that a station whose call is another's call and a fact's word must neither take that fact over nor be taken for it.
class RandomEdits {
public:
    void Step()
    {
        const std::size_t what = Below(m_nodes.size() > 300 ? 10 : 8);
        if (m_nodes.empty() || what < 5)
            Add();
        else if (what == 5)
            tree.SetText(Any(), Word());
        else if (what == 6)
            tree.SetSorted(Any(), Below(3) != 0);
        else
            Remove(Any());
    }

    void ExpectConsistent()
    {
        EXPECT_EQ(tree.NodeCount(), m_nodes.size());
        std::map<std::string, std::size_t> highestLevels; // By key.
        for (const auto& [path, node] : m_nodes) {
            auto& highest = highestLevels.try_emplace(Joined(path), path.size()).first->second;
            highest = std::min(highest, path.size());
        }
        for (const auto& [path, node] : m_nodes) {
            EXPECT_EQ(node->Key(), Joined(path));
            const auto* found = tree.Find(Joined(path));
            ASSERT_NE(found, nullptr);
            EXPECT_EQ(PathOf(*found).size(), highestLevels[Joined(path)]);
            EXPECT_EQ(found->Key(), Joined(path));
            if (node->Parent()) {
                EXPECT_EQ(tree.Find(*node->Parent(), node->Word()), node);
            }
            const auto siblings = node->Parent() ? node->Parent()->Children() : tree.Roots();
            EXPECT_EQ(siblings[tree.Row(*node)], node);
            if (node->IsSorted()) {
                EXPECT_TRUE(
                    std::is_sorted(node->Children().begin(), node->Children().end(), [](const auto& a, const auto& b) {
                        return CompareIgnoringCase(a->Text(), b->Text()) < 0;
                    }));
            }
        }
    }

    KeyedTree tree;

private:
    using Path = std::vector<std::string>; // The words from the root down.

    static Path PathOf(const TreeNode& node)
    {
        Path path = node.Parent() ? PathOf(*node.Parent()) : Path();
        path.emplace_back(node.Word());
        return path;
    }
    static std::string Joined(const Path& path)
    {
        std::string key;
        for (const std::string& word : path)
            key += word;
        return key;
    }
    std::size_t Below(std::size_t limit) { return m_random() % limit; }
    // Of so few letters that splits collide often, and of so many that a parent has many children.
    std::string Word()
    {
        std::string word;
        for (std::size_t length = 1 + Below(3); length > 0; --length)
            word += "aAbC"[Below(4)];
        return word;
    }
    TreeNode& Any() { return *std::next(m_nodes.begin(), static_cast<std::ptrdiff_t>(Below(m_nodes.size())))->second; }
    void Add()
    {
        TreeNode* parent = m_nodes.empty() || Below(5) == 0 ? nullptr : &Any();
        const std::string word = Word();
        Path path = parent ? PathOf(*parent) : Path();
        path.push_back(word);
        const auto taken = m_nodes.find(path);
        if (parent) {
            EXPECT_EQ(tree.Find(*parent, word), taken == m_nodes.end() ? nullptr : taken->second);
            // A hint that is right, stands elsewhere or is gone makes no difference.
            EXPECT_EQ(tree.Find(*parent, word, Hint()), tree.Find(*parent, word));
        }
        const bool bWasTaken = taken != m_nodes.end();
        try {
            const std::string text = Below(2) == 0 ? word : Word(); // Stations' texts are their words.
            m_nodes[path] = parent ? &tree.Add(*parent, word, text) : &tree.AddRoot(word, text);
            EXPECT_FALSE(bWasTaken) << Joined(path);
        } catch (const Failure&) {
            EXPECT_TRUE(bWasTaken) << Joined(path);
        }
    }
    TreeNode* Hint() { return m_hints.empty() ? nullptr : m_hints[Below(m_hints.size())]; }
    void Remove(TreeNode& node)
    {
        m_hints.push_back(&node);
        m_hints.push_back(&Any());
        Forget(node);
        tree.Remove(node);
    }
    void Forget(const TreeNode& node)
    {
        for (const auto& child : node.Children())
            Forget(*child);
        m_nodes.erase(PathOf(node));
    }

    std::map<Path, TreeNode*> m_nodes;
    std::vector<TreeNode*> m_hints;
    std::mt19937 m_random{20261122};
};

TEST(KeyedTree, KeysRowsAndOrderHoldUnderRandomEdits)
{
    RandomEdits edits;
    for (int i = 0; i < 10000; ++i) {
        edits.Step();
        if (i % 50 == 0)
            edits.ExpectConsistent();
        ASSERT_FALSE(testing::Test::HasFailure()) << "at edit " << i;
    }
    edits.ExpectConsistent();
}

} // namespace
} // namespace ruvenmark
