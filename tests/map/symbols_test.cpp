#include "map/symbols.h"
#include "platform/map_model.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace ruvenmark
