#include "devices/symbol_words.h"
#include "map/symbols.h"
#include "platform/map_model.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace ruvenmark {
namespace {

// A word that the map or the tree does not know would show the default pin, or no picture at all.
TEST(SymbolWords, AllHaveTheirPictures)
{
    const std::filesystem::path tree = RUVENMARK_SOURCE_DIR "/data/icons/tree";
    std::set<std::string> seen;
    for (const char table : {'/', '\\', 'D', '7'}) {
        for (char code = '!'; code <= '~'; ++code) {
            const std::string word(SymbolWord({table, code}));
            seen.insert(word);
            EXPECT_TRUE(std::filesystem::exists(tree / (word + ".svg"))) << word;
            EXPECT_TRUE(word == "Default" || SymbolId(word) != kDefaultSymbol) << word;
        }
    }
    EXPECT_GT(seen.size(), 45U);
    for (const char beyond : {' ', '\x7f', '\xff'})
        EXPECT_EQ(SymbolWord({'/', beyond}), "Default");
}

} // namespace
} // namespace ruvenmark
