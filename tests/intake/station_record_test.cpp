#include "core/station_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {
namespace {

using Plain = std::vector<std::pair<Field, std::string>>;

// A record beside a plain list of what it should hold: values of the same size and of another, parts of the record
// itself, many at once.
TEST(Record, RandomEditsAsAListHasThem)
{
    std::mt19937 random(8);
    const auto anyField = [&] { return static_cast<Field>(random() % kFieldNames.size()); };
    const auto anyText = [&] { // Of sizes on both sides of what one byte can tell.
        const std::size_t size = random() % 8 == 0 ? random() % 600 : random() % 20;
        return std::string(size, static_cast<char>(random()));
    };
    for (int round = 0; round < 200; ++round) {
        Record record;
        Plain plain;
        const auto note = [&](Field field, const std::string& text) {
            const auto at = std::find_if(plain.begin(), plain.end(), [&](const auto& e) { return e.first == field; });
            if (at == plain.end())
                plain.emplace_back(field, text);
            else
                at->second = text;
        };
        for (int i = 0; i < 100; ++i) {
            if (i % 3 == 0) { // As reports do it: in any order, one field twice too.
                Plain edits(random() % 7);
                std::vector<Record::Entry> values;
                for (auto& [field, text] : edits) {
                    field = anyField();
                    text = anyText();
                    values.push_back({field, text});
                }
                record.Set(values);
                for (const auto& [field, text] : edits)
                    note(field, text);
            } else if (!plain.empty() && random() % 5 == 0) {
                const auto [other, text] = plain[random() % plain.size()];
                const std::size_t from = random() % (text.size() + 1);
                const Field field = anyField();
                record.Set(field, record.Get(other).substr(from));
                note(field, text.substr(from));
            } else {
                const Field field = anyField();
                const std::string text = anyText();
                record.Set(field, text);
                note(field, text);
            }
            Plain held;
            for (const auto& [field, text] : record)
                held.emplace_back(field, text);
            ASSERT_EQ(held, plain);
        }
    }
}

} // namespace
} // namespace ruvenmark
