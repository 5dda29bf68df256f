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

TEST(KeyedTree, ManyChildrenAreFoundByTheIndex)
{
    KeyedTree tree;
    TreeNode& folder = tree.AddRoot("F", "");
    for (int i = 0; i < 100; ++i)
        tree.Add(folder, std::to_string(i), "");
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(tree.Find(folder, std::to_string(i)), folder.Children()[static_cast<std::size_t>(i)].get());
    EXPECT_EQ(tree.Find(folder, "100"), nullptr);
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

// What a view would show that knows the tree from its events alone.
class Mirror {
public:
    struct Node {
        const TreeNode* source = nullptr;
        std::string text;
        bool bBold = false;
        std::uint32_t color = 0;
        std::vector<Node*> children;
    };

    explicit Mirror(KeyedTree& tree) : m_tree(tree)
    {
        m_observing = {
            tree.WillInsert.Observe([this](const TreeNode* parent, std::size_t row) { WillInsert(parent, row); }),
            tree.Inserted.Observe([this](const TreeNode& node) { Inserted(node); }),
            tree.Changed.Observe([this](const TreeNode& node) { Read(node); }),
            tree.WillRemove.Observe([this](const TreeNode& node) { WillRemove(node); }),
            tree.Removed.Observe([this](const TreeNode* parent) { Removed(parent); }),
            tree.Sorted.Observe([this](const TreeNode& parent) { Sorted(parent); }),
        };
    }

    void Expect() const { ExpectSame(m_nodes.at(nullptr), m_tree.Roots()); }

private:
    static const std::vector<std::unique_ptr<TreeNode>>& ChildrenOf(const KeyedTree& tree, const TreeNode* parent)
    {
        return parent ? parent->Children() : tree.Roots();
    }
    void WillInsert(const TreeNode* parent, std::size_t row)
    {
        EXPECT_FALSE(m_bPending);
        EXPECT_EQ(ChildrenOf(m_tree, parent).size(), m_nodes.at(parent).children.size());
        m_bPending = true;
        m_parent = parent;
        m_row = row;
    }
    void Inserted(const TreeNode& node)
    {
        EXPECT_TRUE(m_bPending);
        EXPECT_EQ(node.Parent(), m_parent);
        EXPECT_EQ(m_tree.Row(node), m_row);
        m_bPending = false;
        Node& made = m_nodes[&node];
        made.source = &node;
        auto& siblings = m_nodes.at(m_parent).children;
        siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(m_row), &made);
        Read(node);
    }
    void Read(const TreeNode& node)
    {
        Node& shown = m_nodes.at(&node);
        shown.text = node.Text();
        shown.bBold = node.IsBold();
        shown.color = node.Color();
    }
    void WillRemove(const TreeNode& node)
    {
        EXPECT_FALSE(m_bPending);
        m_bPending = true;
        m_parent = node.Parent();
        m_row = m_tree.Row(node);
    }
    void Removed(const TreeNode* parent)
    {
        EXPECT_TRUE(m_bPending);
        EXPECT_EQ(parent, m_parent);
        m_bPending = false;
        auto& siblings = m_nodes.at(parent).children;
        Forget(*siblings[m_row]);
        siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(m_row));
    }
    void Forget(Node& node)
    {
        for (Node* child : node.children)
            Forget(*child);
        m_nodes.erase(node.source);
    }
    void Sorted(const TreeNode& parent)
    {
        auto& children = m_nodes.at(&parent).children;
        std::stable_sort(children.begin(), children.end(),
                         [](const Node* a, const Node* b) { return CompareIgnoringCase(a->text, b->text) < 0; });
    }
    static void ExpectSame(const Node& shown, const std::vector<std::unique_ptr<TreeNode>>& actual)
    {
        ASSERT_EQ(shown.children.size(), actual.size());
        for (std::size_t row = 0; row < actual.size(); ++row) {
            const Node& child = *shown.children[row];
            ASSERT_EQ(child.source, actual[row].get());
            EXPECT_EQ(child.text, actual[row]->Text());
            EXPECT_EQ(child.bBold, actual[row]->IsBold());
            EXPECT_EQ(child.color, actual[row]->Color());
            ExpectSame(child, actual[row]->Children());
        }
    }

    KeyedTree& m_tree;
    std::map<const TreeNode*, Node> m_nodes{{nullptr, {}}};
    std::vector<Subscription> m_observing;
    bool m_bPending = false;
    const TreeNode* m_parent = nullptr;
    std::size_t m_row = 0;
};

// Random edits, and beside them the plainest model of what the keys mean.
class RandomEdits {
public:
    void Step()
    {
        const bool bCrowded = m_byKey.size() > 300;
        switch (m_byKey.empty() ? 0 : Below(bCrowded ? 12 : 9)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
            Add();
            break;
        case 5:
            tree.SetText(Any(), Word());
            break;
        case 6:
            tree.SetBold(Any(), Below(2) != 0);
            tree.SetColor(Any(), static_cast<std::uint32_t>(Below(3)));
            break;
        case 7:
            tree.SetSorted(Any(), Below(3) != 0);
            break;
        default:
            Remove(Any());
        }
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

TEST(KeyedTree, EventsAloneRebuildTheTreeUnderRandomEdits)
{
    RandomEdits edits;
    const Mirror mirror(edits.tree);
    for (int i = 0; i < 10000; ++i) {
        edits.Step();
        if (i % 50 == 0) {
            mirror.Expect();
            edits.ExpectConsistent();
        }
        ASSERT_FALSE(testing::Test::HasFailure()) << "at edit " << i;
    }
    mirror.Expect();
    edits.ExpectConsistent();
}

} // namespace
} // namespace ruvenmark
