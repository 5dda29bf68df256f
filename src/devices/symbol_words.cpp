#include "devices/symbol_words.h"

#include <array>
#include <cstddef>

namespace ruvenmark {

namespace {

constexpr char kFirstCode = '!';
constexpr std::size_t kCodes = '~' - kFirstCode + 1;
constexpr std::string_view kDefault = "Default";

struct Entry {
    char code;
    std::string_view word;
};

template <std::size_t size>
constexpr std::array<std::string_view, kCodes> MakeTable(const std::array<Entry, size>& entries)
{
    std::array<std::string_view, kCodes> table{};
    table.fill(kDefault);
    for (const Entry& entry : entries)
        table[static_cast<std::size_t>(entry.code - kFirstCode)] = entry.word;
    return table;
}

// The codes that this station sends itself come first, its kin behind them.
constexpr auto kPrimary = MakeTable(std::to_array<Entry>({
    {'#', "Digi"},       {'&', "HFGateway"},  {'\'', "Plane"},     {'*', "Snowmobile"}, {'+', "Church"},
    {'-', "House"},      {';', "Park"},       {'<', "Motorcycle"}, {'>', "Car"},        {'E', "Eye"},
    {'H', "Hotel"},      {'I', "TCP"},        {'N', "NTS"},        {'O', "Balloon"},    {'R', "RV"},
    {'S', "Shuttle"},    {'U', "Bus"},        {'W', "NWS"},        {'Y', "Sail"},       {'[', "Jogger"},
    {'\\', "Triangle"},  {'_', "Weather"},    {'b', "Bicycle"},    {'j', "Jeep"},       {'k', "Truck"},
    {'r', "Antenna"},    {'s', "Ship"},       {'u', "Wheeler18"},  {'v', "Van"},        {'y', "Yagi"},
    {'!', "Car"},        {'$', "PhoneBooth"}, {',', "Park"},       {'/', "Circle"},     {'0', "Circle"},
    {'1', "Circle"},     {'2', "Circle"},     {'3', "Circle"},     {'4', "Circle"},     {'5', "Circle"},
    {'6', "Circle"},     {'7', "Circle"},     {'8', "Circle"},     {'9', "Circle"},     {'?', "TCP"},
    {'@', "Hurricane"},  {'A', "FirstAid"},   {'C', "Ship"},       {'F', "Truck"},      {'P', "Car"},
    {'Q', "Earthquake"}, {'X', "Plane"},      {'^', "Plane"},      {'g', "Plane"},      {']', "PostOffice"},
    {'`', "Antenna"},    {'a', "FirstAid"},   {'c', "Races"},      {'f', "Truck"},      {'h', "FirstAid"},
    {'m', "Antenna"},    {'n', "Digi"},       {'o', "Races"},      {'t', "GasStation"}, {'%', "TCP"},
    {'(', "Antenna"},    {':', "Explosion"},  {'=', "Bus"},        {'B', "TCP"},        {'G', "Circle"},
    {'K', "House"},      {'L', "TCP"},        {'M', "TCP"},        {'T', "Eye"},        {'V', "Antenna"},
    {'Z', "TCP"},        {'d', "FirstAid"},   {'e', "Jogger"},     {'i', "Circle"},     {'l', "TCP"},
    {'p', "Car"},        {'q', "Circle"},     {'w', "FirstAid"},   {'x', "TCP"},        {'z', "House"},
}));

constexpr auto kAlternate = MakeTable(std::to_array<Entry>({
    {'^', "Plane"},      {'S', "Shuttle"},    {'`', "Rain"},       {'*', "Snow"},       {'J', "Lightning"},
    {'@', "Hurricane"},  {'t', "Tornado"},    {'Q', "Earthquake"}, {'\'', "CrashSite"}, {'%', "Radiation"},
    {'Z', "Explosion"},  {'=', "RoadClosed"}, {']', "Detour"},     {'9', "GasStation"}, {'M', "FirstAid"},
    {'c', "Races"},      {'C', "CoastGuard"}, {'x', "PhoneBooth"}, {'y', "PostOffice"}, {'r', "Restroom"},
    {'1', "Num1"},       {'2', "Num2"},       {'3', "Num3"},       {'4', "Num4"},       {'5', "Num5"},
    {'6', "Num6"},       {'7', "Num7"},       {'8', "Num8"},       {'#', "Digi"},       {'&', "HFGateway"},
    {'+', "Church"},     {'-', "House"},      {'0', "Circle"},     {';', "Park"},       {'>', "Car"},
    {'A', "Circle"},     {'B', "Snow"},       {'D', "Rain"},       {'F', "Rain"},       {'G', "Snow"},
    {'I', "Rain"},       {'O', "Balloon"},    {'T', "Lightning"},  {'W', "NWS"},        {'[', "Jogger"},
    {'_', "Weather"},    {'e', "Snow"},       {'f', "Tornado"},    {'j', "Jeep"},       {'k', "Truck"},
    {'n', "Triangle"},   {'o', "Circle"},     {'s', "Ship"},       {'u', "Wheeler18"},  {'v', "Van"},
    {'/', "Circle"},     {':', "Snow"},       {'<', "NWS"},        {'?', "House"},      {'K', "Jogger"},
    {'L', "CoastGuard"}, {'N', "CoastGuard"}, {'P', "Car"},        {'R', "House"},      {'V', "Antenna"},
    {'X', "FirstAid"},   {'Y', "Antenna"},    {'a', "FirstAid"},   {'d', "TCP"},        {'g', "NWS"},
    {'h', "House"},      {'i', "Circle"},     {'w', "Rain"},       {'z', "House"},      {'{', "Rain"},
}));

// With a letter on it the sign of first aid is that of a club's or a network's own station.
constexpr char kClubStation = 'a';

} // namespace

std::string_view SymbolWord(aprs::Symbol symbol)
{
    if (symbol.code == kClubStation && symbol.table != '/' && symbol.table != '\\')
        return "Antenna";
    const auto place = static_cast<unsigned char>(symbol.code - kFirstCode);
    if (place >= kCodes)
        return kDefault;
    return symbol.table == '/' ? kPrimary[place] : kAlternate[place];
}

} // namespace ruvenmark
