#include "devices/symbol_words.h"
#include "map/symbols.h"
#include "platform/map_model.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

namespace ruvenmark {
namespace {

const std::map<std::string_view, int> kPictures = {
    {"Digi", 169},      {"Weather", 250},    {"Car", 82},         {"Wheeler18", 81},   {"Jeep", 181},
    {"Truck", 86},      {"Van", 87},         {"House", 79},       {"RV", 85},          {"Yagi", 77},
    {"Default", 1},     {"Bus", 180},        {"NWS", 73},         {"HFGateway", 114},  {"NTS", 241},
    {"Plane", 89},      {"Snowmobile", 148}, {"Church", 119},     {"Park", 92},        {"Motorcycle", 168},
    {"Eye", 14},        {"Hotel", 104},      {"Balloon", 68},     {"Shuttle", 67},     {"Sail", 91},
    {"Jogger", 93},     {"Triangle", 58},    {"Bicycle", 168},    {"Antenna", 152},    {"Ship", 80},
    {"Circle", 25},     {"TCP", 111},        {"Rain", 98},        {"Snow", 99},        {"Lightning", 100},
    {"Hurricane", 102}, {"Tornado", 96},     {"Earthquake", 103}, {"CrashSite", 195},  {"Radiation", 64},
    {"Explosion", 196}, {"RoadClosed", 69},  {"Detour", 158},     {"GasStation", 142}, {"FirstAid", 119},
    {"Races", 199},     {"CoastGuard", 66},  {"PhoneBooth", 184}, {"PostOffice", 189}, {"Restroom", 206},
    {"Num1", 208},      {"Num2", 209},       {"Num3", 210},       {"Num4", 211},       {"Num5", 212},
    {"Num6", 213},      {"Num7", 214},       {"Num8", 215}};

TEST(SymbolId, IsThePictureOfTheWordAndOneForAnyOther)
{
    for (const auto& [word, picture] : kPictures) {
        EXPECT_EQ(SymbolId(word), picture) << word;
        EXPECT_EQ(SymbolId(std::string(word) + " "), kDefaultSymbol) << word;
    }
    for (const char* word : {"", "car", "CAR", "Num0", "Num9", "Zeppelin"})
        EXPECT_EQ(SymbolId(word), 1) << word;
    EXPECT_EQ(kMyStationSymbol, 111);
}

// A word that the report source makes up, or one misspelled on either side, would be drawn as nothing in particular.
TEST(SymbolId, KnowsEveryWordOfTheReportSource)
{
    std::map<std::string, int, std::less<>> seen;
    for (const char table : {'/', '\\', '1', 'A'}) {
        for (char code = '!'; code <= '~'; ++code) {
            const std::string word(SymbolWord({table, code}));
            ++seen[word];
            EXPECT_TRUE(kPictures.contains(word)) << word << " of " << table << code;
        }
    }
    EXPECT_GT(seen.size(), 45U);
}

} // namespace
} // namespace ruvenmark
