#include "devices/symbol_words.h"
#include "map/symbols.h"
#include "platform/map_model.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace ruvenmark {
namespace {

TEST(SymbolId, IsThePictureOfTheWordAndOneForAnyOther)
{
    EXPECT_EQ(SymbolId("Digi"), 169);
    EXPECT_EQ(SymbolId("Car"), 82);
    EXPECT_EQ(SymbolId("Num8"), 215);
    EXPECT_EQ(SymbolId("Wheeler18"), 81);
    for (const char* word : {"", "car", "CAR", "Car ", "Num0", "Num9", "Zeppelin"})
        EXPECT_EQ(SymbolId(word), kDefaultSymbol) << word;
}

// A word that the report source makes up, or one misspelled on either side, would be drawn as nothing in particular.
TEST(SymbolId, KnowsEveryWordOfTheReportSource)
{
    std::set<std::string> seen;
    for (const char table : {'/', '\\', '1', 'A'}) {
        for (char code = '!'; code <= '~'; ++code) {
            const std::string word(SymbolWord({table, code}));
            seen.insert(word);
            EXPECT_TRUE(SymbolId(word) != kDefaultSymbol || word == "Default") << word << " of " << table << code;
        }
    }
    EXPECT_GT(seen.size(), 45U);
}

} // namespace
} // namespace ruvenmark
