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
        texts.push_back(child->Text());
    return texts;
}

TEST(KeyedTree, SortedParentTakesChildrenAtTheirPlace)
{
    KeyedTree tree;
    TreeNode& folder = tree.AddRoot("RF", "Stations");
    for (const char* call : {"delta", "ALFA", "Charlie"})
        tree.Add(folder, call, call);
    EXPECT_EQ(Texts(folder), (std::vector<std::string>{"delta", "ALFA", "Charlie"}));

    tree.SetSorted(folder, true);
    tree.Add(folder, "b", "bravo");
    tree.Add(folder, "A2", "alfa"); // Equal but for case: behind the one that was there.
    EXPECT_EQ(Texts(folder), (std::vector<std::string>{"ALFA", "alfa", "bravo", "Charlie", "delta"}));

    tree.SetText(*tree.Find("RFb"), "ZULU");
    EXPECT_EQ(Texts(folder).back(), "ZULU");

    tree.SetSorted(folder, false);
    tree.Add(folder, "last", "aaa");
    EXPECT_EQ(Texts(folder).back(), "aaa");
}

TEST(KeyedTree, KeysAreUniqueHoweverTheyAreSplit)
{
    KeyedTree tree;
    TreeNode& folder = tree.AddRoot("RFPositions", "Positions");
    TreeNode& station = tree.Add(folder, "N0CALL", "N0CALL");
    TreeNode& fact = tree.Add(station, "Lat", "Lat: 1");

    EXPECT_EQ(fact.Key(), "RFPositionsN0CALLLat");
    EXPECT_EQ(tree.Find("RFPositionsN0CALLLat"), &fact);
    EXPECT_EQ(tree.Find(folder, "N0CALLLat"), &fact); // As a station of that name would be looked for.
    EXPECT_THROW(tree.Add(folder, "N0CALLLat", ""), Failure);
    EXPECT_THROW(tree.AddRoot("RFPositionsN0CALL", ""), Failure);
    EXPECT_THROW(tree.Add(station, "", ""), Failure); // The parent's own key.

    // The same the other way round: the station first, then the fact.
    TreeNode& other = tree.Add(folder, "N0CALL-1Lat", "N0CALL-1Lat");
    TreeNode& short1 = tree.Add(folder, "N0CALL-1", "N0CALL-1");
    EXPECT_THROW(tree.Add(short1, "Lat", ""), Failure);
    tree.Remove(other);
    EXPECT_EQ(tree.Find(short1, "Lat"), nullptr);
    tree.Add(short1, "Lat", "");
    EXPECT_EQ(tree.Find("rfpositions"), nullptr); // Case counts.
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
    EXPECT_EQ(tree.NodeCount(), 1U);
    EXPECT_EQ(tree.Find("FSx"), nullptr);
}

// Random edits, and beside them the plainest model of what the keys mean.
class RandomEdits {
public:
    void Step()
    {
        const std::size_t what = Below(m_byKey.size() > 300 ? 10 : 8);
        if (m_byKey.empty() || what < 5)
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
        EXPECT_EQ(tree.NodeCount(), m_byKey.size());
        for (const auto& [key, node] : m_byKey) {
            EXPECT_EQ(tree.Find(key), node);
            EXPECT_EQ(node->Key(), key);
            const auto& siblings = node->Parent() ? node->Parent()->Children() : tree.Roots();
            EXPECT_EQ(siblings[tree.Row(*node)].get(), node);
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
    std::size_t Below(std::size_t limit) { return m_random() % limit; }
    // Of so few letters that splits collide often.
    std::string Word()
    {
        std::string word;
        for (std::size_t length = 1 + Below(3); length > 0; --length)
            word += "aAbC"[Below(4)];
        return word;
    }
    TreeNode& Any() { return *std::next(m_byKey.begin(), static_cast<std::ptrdiff_t>(Below(m_byKey.size())))->second; }
    void Add()
    {
        TreeNode* parent = m_byKey.empty() || Below(10) == 0 ? nullptr : &Any();
        const std::string word = Word();
        const std::string key = parent ? parent->Key() + word : word;
        const auto taken = m_byKey.find(key);
        if (parent) {
            EXPECT_EQ(tree.Find(*parent, word), taken == m_byKey.end() ? nullptr : taken->second);
        }
        try {
            m_byKey[key] = parent ? &tree.Add(*parent, word, Word()) : &tree.AddRoot(word, Word());
            EXPECT_EQ(taken, m_byKey.end()) << key;
        } catch (const Failure&) {
            EXPECT_NE(taken, m_byKey.end()) << key;
        }
    }
    void Remove(TreeNode& node)
    {
        Forget(node);
        tree.Remove(node);
    }
    void Forget(const TreeNode& node)
    {
        for (const auto& child : node.Children())
            Forget(*child);
        m_byKey.erase(node.Key());
    }

    std::map<std::string, TreeNode*> m_byKey;
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
