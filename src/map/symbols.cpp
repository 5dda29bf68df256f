#include "map/symbols.h"

#include "platform/map_model.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

struct WordSymbol {
    std::string_view word;
    std::int16_t symbol;
};

// In the order of their sizes.
constexpr auto kSymbols = [] {
    std::array<WordSymbol, 58> symbols = {{
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
        {"Num6", 213},      {"Num7", 214},       {"Num8", 215},
    }};
    std::sort(symbols.begin(), symbols.end(),
              [](const auto& a, const auto& b) { return a.word.size() < b.word.size(); });
    return symbols;
}();

// Where the words of each size begin; two more than the longest word has letters.
constexpr auto kFirstOfSize = [] {
    std::array<std::size_t, kSymbols.back().word.size() + 2> first{};
    for (std::size_t size = 0; size < first.size(); ++size)
        for (const WordSymbol& symbol : kSymbols)
            first[size] += symbol.word.size() < size ? 1 : 0;
    return first;
}();

} // namespace

std::int16_t SymbolId(std::string_view word)
{
    if (word.size() >= kFirstOfSize.size() - 1)
        return kDefaultSymbol;
    for (std::size_t i = kFirstOfSize[word.size()]; i < kFirstOfSize[word.size() + 1]; ++i)
        if (kSymbols[i].word == word)
            return kSymbols[i].symbol;
    return kDefaultSymbol;
}

} // namespace ruvenmark
