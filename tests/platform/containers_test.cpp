#include "platform/dictionary.h"
#include "platform/event.h"

#include <gtest/gtest.h>

#include <string>
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

std::vector<std::string> Keys(const Dictionary<int>& dictionary)
{
    std::vector<std::string> keys;
    for (const auto& entry : dictionary)
        keys.push_back(entry.key);
    return keys;
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
