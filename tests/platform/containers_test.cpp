#include "platform/dictionary.h"
#include "platform/event.h"
#include "platform/hash_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {
namespace {

TEST(Event, ObserversMayComeAndGoWhileItIsRaised)
{
    Event<int> event;
    std::string told;
    Subscription second;
    Subscription late;
    const Subscription first = event.Observe([&](int value) {
        told += "1:" + std::to_string(value) + " ";
        second.reset();
        if (!late)
            late = event.Observe([&](int other) { told += "late:" + std::to_string(other) + " "; });
    });
    second = event.Observe([&](int) { told += "gone "; });

    event.Raise(7);
    EXPECT_EQ(told, "1:7 "); // The second went before its turn, the late one hears the next.
    event.Raise(8);
    EXPECT_EQ(told, "1:7 1:8 late:8 ");
}

TEST(Event, AnObserverMayDropItselfAndOutliveTheEvent)
{
    Subscription own;
    int calls = 0;
    {
        Event<> event;
        own = event.Observe([&] {
            ++calls;
            own.reset();
            ++calls; // Its captures still stand.
        });
        event.Raise();
        event.Raise();
        own = event.Observe([] {});
    }
    EXPECT_EQ(calls, 2);
}

// Few places and few hashes, so that items stand far from where they would like to be, also around the end of the
// table: one that moved up past its place, or did not move up, is not found again.
TEST(HashIndex, RandomEditsAsAListHasThem)
{
    std::mt19937 random(8);
    HashIndex<int> index;
    std::vector<std::pair<std::uint64_t, int>> plain;
    for (int i = 0; i < 30000; ++i) {
        const bool bShrinking = i / 1000 % 2 == 1;
        if (plain.empty() || random() % 10 < (bShrinking ? 3U : 7U)) {
            const std::uint64_t tag = random() % 2, place = random() % 5 == 0 ? random() % 1024 : 6;
            plain.emplace_back((tag << 33U) | place, i);
            index.Add(plain.back().first, i);
        } else {
            const std::size_t at = random() % plain.size();
            const auto [hash, item] = plain[at];
            ASSERT_TRUE(index.Remove(hash, [&](int other) { return other == item; }));
            ASSERT_FALSE(index.Remove(hash, [&](int other) { return other == item; }));
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(at));
        }
        if (i % 50 != 0)
            continue;
        for (const auto& [hash, item] : plain) {
            const int* found = index.Find(hash, [&, wanted = item](int other) { return other == wanted; });
            ASSERT_TRUE(found && *found == item) << "at edit " << i;
            ASSERT_NE(index.Guess(hash), nullptr);
        }
    }
    index.Clear();
    EXPECT_EQ(index.Guess(plain.front().first), nullptr);
}

// Order of first insertion, found by key, values where they were: also while the index grows, shrinks and is full of
// holes, and in a copy or a move that stands on its own.
TEST(Dictionary, RandomEditsAsAListHasThem)
{
    std::mt19937 random(4);
    Dictionary<int> dictionary;
    std::vector<std::pair<std::string, int>> plain;
    for (int i = 0; i < 20000; ++i) {
        const std::string key = std::to_string(random() % (i < 10000 ? 300 : 20)) + std::string(random() % 2 * 30, 'k');
        const auto at = std::find_if(plain.begin(), plain.end(), [&](const auto& entry) { return entry.first == key; });
        const bool bStands = at != plain.end();
        if (random() % 3 == 0) {
            ASSERT_EQ(dictionary.Remove(key), bStands);
            if (bStands)
                plain.erase(at);
        } else {
            dictionary.Set(key, i);
            bStands ? static_cast<void>(at->second = i) : static_cast<void>(plain.emplace_back(key, i));
        }
        ASSERT_EQ(dictionary.Count(), plain.size());
        if (i % 500 == 0) {
            Dictionary<int> copy = dictionary;
            dictionary.Clear();
            ASSERT_FALSE(dictionary.Contains(key));
            if (i % 1000 == 0)
                dictionary = copy;
            else
                dictionary = std::move(copy);
        }
    }
    auto expected = plain.begin();
    for (const auto& [key, value] : dictionary) {
        EXPECT_EQ(key, expected->first);
        EXPECT_EQ(value, expected->second);
        EXPECT_EQ(dictionary.Find(key), &value);
        ++expected;
    }
}

} // namespace
} // namespace ruvenmark
