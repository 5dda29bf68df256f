// Containers against the standard library's plain ones, and events.

#include "platform/block_pool.h"
#include "platform/dictionary.h"
#include "platform/event.h"
#include "platform/hash_index.h"
#include "platform/pointer_list.h"
#include "platform/room_pool.h"
#include "platform/row_list.h"
#include "platform/small_text.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <random>
#include <set>
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
    second = event.Observe([&](int) { told += "gone "; }); // Goes before its turn; the late one hears the next.
    for (const int value : {7, 8})
        event.Raise(value);
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

// Sizes around the 29 bytes that stand inside; parts of the text itself, inside and in its block.
TEST(SmallText, HoldsWhatItIsGiven)
{
    std::mt19937 random(5);
    std::array<SmallText, 8> texts;
    std::array<std::string, 8> plain;
    for (int i = 0; i < 20000; ++i) {
        const std::size_t at = random() % texts.size();
        if (random() % 3 == 0) {
            const std::size_t from = random() % (plain[at].size() + 1), size = random() % 60;
            plain[at] = plain[at].substr(from, size);
            texts[at].Set(texts[at].View().substr(from, size));
        } else {
            plain[at].assign(random() % 10 == 0 ? random() % 3000 : random() % 35, static_cast<char>(random()));
            texts[at].Set(plain[at]);
        }
        ASSERT_EQ(texts[at].View(), plain[at]);
    }
}

TEST(PointerList, RandomEditsAsAVectorHasThem)
{
    std::mt19937 random(6);
    std::array<int, 100> values{};
    PointerList<int> list;
    std::vector<int*> plain;
    EXPECT_TRUE(list.All().empty());
    for (int i = 0; i < 20000; ++i) {
        if (plain.empty() || random() % 1000 < 510) {
            const std::size_t row = random() % (plain.size() + 1);
            int* const value = &values[random() % values.size()];
            plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(row), value);
            list.Insert(row, value);
        } else {
            const std::size_t row = random() % plain.size();
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(row));
            list.Erase(row);
        }
        ASSERT_TRUE(std::ranges::equal(list.All(), plain)) << "at edit " << i;
    }
}

// Rooms over the size of a large page too. A room given to two shows as the other's byte, one past its block to the
// sanitizer; returned ones that are not taken again as more rooms than were ever out at once.
TEST(RoomPool, NobodySharesARoom)
{
    std::mt19937 random(9);
    for (const std::size_t size : {8U, 104U, 70000U, 3000000U}) {
        RoomPool pool(size);
        void* const kept = pool.Take(); // With the last room the memory would go.
        std::vector<std::pair<unsigned char*, unsigned char>> out;
        std::set<void*> rooms;
        std::size_t most = 0;
        for (int i = 0; i < (size < 1000 ? 60000 : 300); ++i) {
            if (out.empty() || random() % 5 < 3) {
                auto* room = static_cast<unsigned char*>(pool.Take());
                out.emplace_back(room, static_cast<unsigned char>(random()));
                room[0] = room[size - 1] = out.back().second;
                rooms.insert(room);
                most = std::max(most, out.size());
            } else {
                std::swap(out[random() % out.size()], out.back());
                ASSERT_EQ(out.back().first[0], out.back().second);
                ASSERT_EQ(out.back().first[size - 1], out.back().second);
                pool.Return(out.back().first);
                out.pop_back();
            }
        }
        EXPECT_EQ(rooms.size(), most) << size;
        EXPECT_FALSE(rooms.contains(kept));
    }
}

#ifdef __linux__

std::size_t ResidentPages()
{
    std::size_t total = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident;
}

// A station left running for months clears its lists: what they took goes back to the system.
TEST(RoomPool, GivesItsMemoryBackWithTheLastRoom)
{
    constexpr std::size_t kSize = 4096, kRooms = 20000;
    RoomPool pool(kSize);
    std::vector<void*> rooms(kRooms);
    for (int i = 0; i < 2; ++i) {
        const std::size_t before = ResidentPages();
        for (void*& room : rooms)
            std::memset(room = pool.Take(), 1, kSize);
        EXPECT_GT(ResidentPages(), before + kRooms / 2);
        for (void* room : rooms)
            pool.Return(room);
        EXPECT_LT(ResidentPages(), before + kRooms / 2);
    }
}

#endif

// A place given twice shows as a number that is not the value's own, a value that is forgotten at the end as one too
// many.
TEST(BlockPool, ValuesKeepTheirPlaceAndGoWithThePool)
{
    static int alive = 0;
    struct Numbered {
        Numbered() { ++alive; }
        ~Numbered() { --alive; }
        std::array<int, 3> numbers{};
    };
    {
        BlockPool<Numbered> pool;
        std::vector<Numbered*> made;
        for (int i = 0; i < 30000; ++i) {
            made.push_back(&pool.Make());
            made.back()->numbers.fill(i);
        }
        for (int i = 0; i < 30000; ++i)
            ASSERT_EQ(made[static_cast<std::size_t>(i)]->numbers, (std::array{i, i, i}));
        EXPECT_EQ(alive, 30000);
    }
    EXPECT_EQ(alive, 0);
}

// The index must give what a search from the top gives, whatever was added, removed or sorted before.
TEST(RowListTest, AnIndexFindsWhatASearchFromTheTopFinds)
{
    RowList list({[](const ListRow::Texts& row) { return ToUpper(row[0]); }});
    std::mt19937 random(5);
    for (int step = 0; step < 3000; ++step) {
        const auto any = [&] { return random() % (list.Count() + 1); };
        const auto what = random() % 12;
        if (what == 0) {
            list.ClickHeader(random() % 2);
        } else if (what == 1) {
            for (int i = 0; i < (step % 100 == 0 ? 90 : 3); ++i)
                list.Select(any(), true);
            list.RemoveSelected();
        } else {
            list.Add({std::string(1, "aAbBcC"[random() % 6]), std::to_string(step)}, false);
        }
        for (const char* key : {"A", "B", "C"}) {
            const ListRow* expected = nullptr;
            for (std::size_t i = 0; !expected && i < list.Count(); ++i)
                expected = ToUpper(list.At(i).Text(0)) == key ? &list.At(i) : nullptr;
            ASSERT_EQ(list.FindFirst(0, key), expected) << step;
        }
    }
    for (std::size_t i = 0; i < list.Count(); ++i)
        ASSERT_EQ(list.At(i).Row(), i);
}

TEST(RowListTest, EveryClickTurnsTheOrderAround)
{
    RowList list;
    for (const char* text : {"b", "A", "c"})
        list.Add({text, std::string(3, *text)}, false);
    for (const std::size_t column : {0U, 1U}) { // Another column turns it too.
        list.ClickHeader(column);
        std::string order;
        for (std::size_t i = 0; i < list.Count(); ++i)
            order += list.At(i).Text(0);
        EXPECT_EQ(order, column == 0 ? "cbA" : "Abc");
    }
}

} // namespace
} // namespace ruvenmark
