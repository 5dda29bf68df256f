#include "core/station_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {
namespace {

// Sizes on both sides of what one byte can tell, values of the same size and of another, parts of the record itself.
TEST(Record, RandomEditsAsAListHasThem)
{
    std::mt19937 random(8);
    for (int round = 0; round < 200; ++round) {
        Record record;
        std::vector<std::pair<Field, std::string>> plain;
        EXPECT_FALSE(record.Has(Field::Call));
        for (int i = 0; i < 100; ++i) {
            const auto field = static_cast<Field>(random() % kFieldNames.size());
            std::string value(random() % 8 == 0 ? random() % 600 : random() % 20, static_cast<char>(random()));
            if (!plain.empty() && random() % 5 == 0) {
                const auto& other = plain[random() % plain.size()];
                const std::size_t from = random() % (other.second.size() + 1);
                value = other.second.substr(from);
                record.Set(field, record.Get(other.first).substr(from));
            } else {
                record.Set(field, value);
            }
            const auto at = std::find_if(plain.begin(), plain.end(), [&](const auto& e) { return e.first == field; });
            if (at == plain.end())
                plain.emplace_back(field, value);
            else
                at->second = value;
            EXPECT_TRUE(record.Has(field));
            ASSERT_EQ(record.Get(field), value);
        }
        auto expected = plain.begin();
        for (const auto& [field, text] : record) {
            ASSERT_NE(expected, plain.end());
            ASSERT_EQ(field, expected->first);
            ASSERT_EQ(text, expected->second);
            ++expected;
        }
        EXPECT_EQ(expected, plain.end());
    }
}

} // namespace
} // namespace ruvenmark
