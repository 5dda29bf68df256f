#include "platform/event.h"

#include <gtest/gtest.h>

#include <string>

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

TEST(Event, MayBeRaisedFromItsOwnObserver)
{
    Event<int> event;
    int deepest = 0;
    const Subscription observing = event.Observe([&](int depth) {
        deepest = std::max(deepest, depth);
        if (depth < 3)
            event.Raise(depth + 1);
    });
    event.Raise(1);
    EXPECT_EQ(deepest, 3);
}

} // namespace
} // namespace ruvenmark
