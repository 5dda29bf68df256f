#include "devices/symbol_words.h"
#include "map/symbols.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace ruvenmark {
namespace {

TEST(SymbolId, IsExactAndAnythingElseIsTheDefault)
{
    EXPECT_EQ(SymbolId("Digi"), 169);
    EXPECT_EQ(SymbolId("Weather"), 250);
    EXPECT_EQ(SymbolId("Antenna"), 152); // First and last of the search.
    EXPECT_EQ(SymbolId("Yagi"), 77);
    EXPECT_EQ(SymbolId("Wheeler18"), 81);
    for (int i = 1; i <= 8; ++i)
        EXPECT_EQ(SymbolId("Num" + std::to_string(i)), 207 + i);
    EXPECT_EQ(SymbolId("Motorcycle"), SymbolId("Bicycle"));
    EXPECT_EQ(SymbolId("Church"), SymbolId("FirstAid"));
    for (const char* word : {"Default", "", "car", "Num0", "Num9", " Car", "Car ", "Zebra", "\xff"})
        EXPECT_EQ(SymbolId(word), 1) << word;
}

// A word that the report source makes up, or one misspelled on either side, would be drawn as nothing in particular.
TEST(SymbolId, KnowsEveryWordOfTheReportSource)
{
    std::map<std::string, int, std::less<>> seen;
    for (const char table : {'/', '\\', '1', 'A'}) {
        for (char code = '!'; code <= '~'; ++code) {
            const std::string word(SymbolWord({table, code}));
            ++seen[word];
            EXPECT_EQ(SymbolId(word) == 1, word == "Default") << word << " of " << table << code;
        }
    }
    EXPECT_GT(seen.size(), 45U);
}

} // namespace
} // namespace ruvenmark
