#include "platform/row_list.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace ruvenmark {
namespace {

// The index must give what a search from the top gives, whatever was added, removed or sorted before.
TEST(RowListTest, AnIndexFindsWhatASearchFromTheTopFinds)
{
    RowList list({[](const ListRow::Texts& row) { return ToUpper(row[0]); }});
    std::mt19937 random(5);
    for (int step = 0; step < 3000; ++step) {
        const auto any = [&] { return random() % (list.Count() + 1); };
        switch (random() % 12) {
        case 0:
            list.ClickHeader(random() % 2);
            break;
        case 1:
            for (int i = 0; i < (step % 100 == 0 ? 90 : 3); ++i)
                list.Select(any(), true);
            list.RemoveSelected();
            break;
        default:
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
    const auto order = [&] {
        std::string texts;
        for (std::size_t i = 0; i < list.Count(); ++i)
            texts += list.At(i).Text(0);
        return texts;
    };
    list.ClickHeader(0);
    EXPECT_EQ(order(), "cbA");
    list.ClickHeader(1); // Another column turns it too.
    EXPECT_EQ(order(), "Abc");
    list.Add({"a"}, false);
    EXPECT_EQ(order(), "Abca");
}

} // namespace
} // namespace ruvenmark
