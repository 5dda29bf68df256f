#include "platform/dictionary.h"

#include <gtest/gtest.h>

#include <vector>

namespace ruvenmark {
namespace {

std::vector<std::string> Keys(const Dictionary<int>& dictionary)
{
    std::vector<std::string> keys;
    for (const auto& entry : dictionary)
        keys.push_back(entry.key);
    return keys;
}

TEST(Dictionary, KeepsTheOrderOfFirstInsertion)
{
    Dictionary<int> dictionary;
    for (const char* key : {"zulu", "alfa", "Alfa", ""})
        dictionary.Set(key, 1);
    dictionary.Set("zulu", 2); // Keeps its place.
    EXPECT_FALSE(dictionary.Add("alfa", 9));
    EXPECT_EQ(Keys(dictionary), (std::vector<std::string>{"zulu", "alfa", "Alfa", ""}));
    EXPECT_EQ(*dictionary.Find("zulu"), 2);
    EXPECT_EQ(*dictionary.Find("alfa"), 1);

    EXPECT_TRUE(dictionary.Remove("zulu"));
    EXPECT_FALSE(dictionary.Remove("zulu"));
    dictionary.Ensure("zulu") += 5; // Back at the end, from 0.
    EXPECT_EQ(Keys(dictionary), (std::vector<std::string>{"alfa", "Alfa", "", "zulu"}));
    EXPECT_EQ(*dictionary.Find("zulu"), 5);
}

TEST(Dictionary, CopiesAndMovesStandOnTheirOwn)
{
    Dictionary<int> first;
    first.Set("a", 1);
    first.Set("b", 2);
    Dictionary<int> copy = first;
    first.Clear();
    EXPECT_EQ(*copy.Find("a"), 1);
    copy.Remove("a");
    copy.Set("c", 3);
    const Dictionary<int> moved = std::move(copy);
    EXPECT_EQ(Keys(moved), (std::vector<std::string>{"b", "c"}));
    EXPECT_EQ(*moved.Find("c"), 3);
    first = moved;
    EXPECT_EQ(*first.Find("b"), 2);
    EXPECT_FALSE(first.Contains("a"));
}

} // namespace
} // namespace ruvenmark
