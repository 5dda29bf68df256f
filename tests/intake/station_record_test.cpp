#include "core/station_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ruvenmark {
namespace {

// A record beside a plain list of what it should hold.
class RandomEdits {
public:
    void SetOne()
    {
        const Field field = AnyField();
        std::string value = AnyText();
        if (!m_plain.empty() && m_random() % 5 == 0) {
            const auto& other = m_plain[m_random() % m_plain.size()];
            const std::size_t from = m_random() % (other.second.size() + 1);
            value = other.second.substr(from);
            m_record.Set(field, m_record.Get(other.first).substr(from));
        } else {
            m_record.Set(field, value);
        }
        Note(field, value);
        EXPECT_TRUE(m_record.Has(field));
    }
    // As reports do it: in any order, one field twice too.
    void SetSome()
    {
        std::vector<std::string> texts(m_random() % 7);
        std::vector<Record::Entry> values;
        for (std::string& text : texts) {
            text = AnyText();
            values.push_back({AnyField(), text});
        }
        m_record.Set(values);
        for (const auto& [field, text] : values)
            Note(field, text);
    }
    void ExpectTheSame() const
    {
        auto expected = m_plain.begin();
        for (const auto& [field, text] : m_record) {
            ASSERT_NE(expected, m_plain.end());
            ASSERT_EQ(field, expected->first);
            ASSERT_EQ(text, expected->second);
            ++expected;
        }
        EXPECT_EQ(expected, m_plain.end());
    }

private:
    Field AnyField() { return static_cast<Field>(m_random() % kFieldNames.size()); }
    // Of sizes on both sides of what one byte can tell.
    std::string AnyText()
    {
        const std::size_t size = m_random() % 8 == 0 ? m_random() % 600 : m_random() % 20;
        return std::string(size, static_cast<char>(m_random()));
    }
    void Note(Field field, std::string_view value)
    {
        const auto at = std::find_if(m_plain.begin(), m_plain.end(), [&](const auto& e) { return e.first == field; });
        if (at == m_plain.end())
            m_plain.emplace_back(field, value);
        else
            at->second = value;
    }

    Record m_record;
    std::vector<std::pair<Field, std::string>> m_plain;
    inline static std::mt19937 m_random{8};
};

// Values of the same size and of another, parts of the record itself, many at once.
TEST(Record, RandomEditsAsAListHasThem)
{
    for (int round = 0; round < 200; ++round) {
        RandomEdits edits;
        for (int i = 0; i < 100 && !testing::Test::HasFatalFailure(); ++i) {
            i % 3 == 0 ? edits.SetSome() : edits.SetOne();
            edits.ExpectTheSame();
        }
    }
}

} // namespace
} // namespace ruvenmark
