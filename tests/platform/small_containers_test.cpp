// What a node of the tree is made of, against the standard library's plain ones.

#include "platform/block_pool.h"
#include "platform/pointer_list.h"
#include "platform/room_pool.h"
#include "platform/small_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {
namespace {

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
    }
}

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

} // namespace
} // namespace ruvenmark
