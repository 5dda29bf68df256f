// What a node of the tree is made of, against the standard library's plain ones.

#include "platform/block_pool.h"
#include "platform/pointer_list.h"
#include "platform/small_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <string>
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

// A place given twice, or given back into use while its value lives, shows as a number that is not the value's own.
TEST(BlockPool, ValuesKeepTheirPlaceAndPlacesAreUsedAgain)
{
    struct Numbered {
        std::array<std::size_t, 3> numbers{};
    };
    std::mt19937 random(7);
    BlockPool<Numbered> pool;
    std::map<std::size_t, Numbered*> alive;
    std::map<Numbered*, int> places;
    for (std::size_t i = 1; i < 30000; ++i) {
        if (alive.size() > 2000 || (!alive.empty() && random() % 5 < 2)) {
            const auto gone = std::next(
                alive.begin(), static_cast<std::ptrdiff_t>(random() % std::min<std::size_t>(alive.size(), 50)));
            ASSERT_EQ(gone->second->numbers, (std::array{gone->first, gone->first, gone->first}));
            pool.Drop(*gone->second);
            alive.erase(gone);
        } else {
            Numbered& made = pool.Make();
            made.numbers.fill(i);
            alive[i] = &made;
            ++places[&made];
        }
    }
    EXPECT_LE(places.size(), 2001U);
    for (const auto& [number, value] : alive)
        EXPECT_EQ(value->numbers, (std::array{number, number, number}));
}

} // namespace
} // namespace ruvenmark
