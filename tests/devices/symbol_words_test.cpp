#include "devices/symbol_words.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

// What the station sends must come back under the word that its own lists use.
TEST(SymbolWords, OwnSymbolsComeBack)
{
    struct Row {
        char code;
        std::string_view word;
    };
    const Row primary[] = {
        {')', "Default"}, {'#', "Digi"},      {'&', "HFGateway"}, {'\'', "Plane"},     {'*', "Snowmobile"},
        {'+', "Church"},  {'-', "House"},     {';', "Park"},      {'<', "Motorcycle"}, {'>', "Car"},
        {'E', "Eye"},     {'H', "Hotel"},     {'I', "TCP"},       {'N', "NTS"},        {'O', "Balloon"},
        {'R', "RV"},      {'S', "Shuttle"},   {'U', "Bus"},       {'W', "NWS"},        {'Y', "Sail"},
        {'[', "Jogger"},  {'\\', "Triangle"}, {'_', "Weather"},   {'b', "Bicycle"},    {'j', "Jeep"},
        {'k', "Truck"},   {'r', "Antenna"},   {'s', "Ship"},      {'u', "Wheeler18"},  {'v', "Van"},
        {'y', "Yagi"},
    };
    const Row alternate[] = {
        {')', "Default"},   {'^', "Plane"},      {'`', "Rain"},       {'*', "Snow"},       {'J', "Lightning"},
        {'@', "Hurricane"}, {'t', "Tornado"},    {'Q', "Earthquake"}, {'\'', "CrashSite"}, {'%', "Radiation"},
        {'Z', "Explosion"}, {'=', "RoadClosed"}, {']', "Detour"},     {'9', "GasStation"}, {'M', "FirstAid"},
        {'c', "Races"},     {'C', "CoastGuard"}, {'x', "PhoneBooth"}, {'y', "PostOffice"}, {'r', "Restroom"},
        {'1', "Num1"},      {'8', "Num8"},
    };
    for (const Row& row : primary)
        EXPECT_EQ(SymbolWord({'/', row.code}), row.word) << row.code;
    for (const Row& row : alternate)
        EXPECT_EQ(SymbolWord({'\\', row.code}), row.word) << row.code;
}

TEST(SymbolWords, OverlaysAndStrangers)
{
    EXPECT_EQ(SymbolWord({'S', '#'}), "Digi");
    EXPECT_EQ(SymbolWord({'3', '>'}), "Car");
    EXPECT_EQ(SymbolWord({'W', '_'}), "Weather");
    EXPECT_EQ(SymbolWord({'7', '0'}), "Circle");
    EXPECT_EQ(SymbolWord({'/', '7'}), "Circle");
    EXPECT_EQ(SymbolWord({'/', 'X'}), "Plane");
    EXPECT_EQ(SymbolWord({'/', 'C'}), "Ship");
    EXPECT_EQ(SymbolWord({'/', '~'}), "Default");
    EXPECT_EQ(SymbolWord({'/', ' '}), "Default");
    EXPECT_EQ(SymbolWord({'/', '\x7f'}), "Default");
    EXPECT_EQ(SymbolWord({'\\', '\xff'}), "Default");
}

} // namespace
} // namespace ruvenmark
