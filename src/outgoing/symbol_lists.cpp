#include "outgoing/symbol_lists.h"

#include <array>
#include <cstddef>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::array kPositions = {
    SymbolChoice{"Default", ')'},
    SymbolChoice{"Digipeater", '#'},
    SymbolChoice{"HF Gateway", '&'},
    SymbolChoice{"Plane", '\''},
    SymbolChoice{"Snowmobile", '*'},
    SymbolChoice{"Church/Red Cross", '+'},
    SymbolChoice{"House", '-'},
    SymbolChoice{"Park/Campground", ';'},
    SymbolChoice{"Motorcycle", '<'},
    SymbolChoice{"Car", '>'},
    SymbolChoice{"Eyeball", 'E'},
    SymbolChoice{"Hotel", 'H'},
    SymbolChoice{"TCP/IP", 'I'},
    SymbolChoice{"NTS", 'N'},
    SymbolChoice{"Balloon", 'O'},
    SymbolChoice{"RV", 'R'},
    SymbolChoice{"Space Shuttle", 'S'},
    SymbolChoice{"Bus", 'U'},
    SymbolChoice{"National Weather Service Site", 'W'},
    SymbolChoice{"Sailboat/Yacht", 'Y'},
    SymbolChoice{"Jogger", '['},
    SymbolChoice{"Triangle", '\\'},
    SymbolChoice{"Weather Station", '_'},
    SymbolChoice{"Bicycle", 'b'},
    SymbolChoice{"Jeep", 'j'},
    SymbolChoice{"Pickup Truck", 'k'},
    SymbolChoice{"Antenna", 'r'},
    SymbolChoice{"Ship/Power Boat", 's'},
    SymbolChoice{"Truck (18 Wheeler)", 'u'},
    SymbolChoice{"Van", 'v'},
    SymbolChoice{"Yagi at QTH!", 'y'},
};

constexpr std::array kObjects = {
    SymbolChoice{"Default", ')'},
    SymbolChoice{"Aircraft", '^'},
    SymbolChoice{"Satellite", 'S'},
    SymbolChoice{"Rain", '`'},
    SymbolChoice{"Snow", '*'},
    SymbolChoice{"Lightning", 'J'},
    SymbolChoice{"Hurricane", '@'},
    SymbolChoice{"Tornado", 't'},
    SymbolChoice{"Earthquake", 'Q'},
    SymbolChoice{"Crash Site", '\''},
    SymbolChoice{"Radiation", '%'},
    SymbolChoice{"Explosion", 'Z'},
    SymbolChoice{"Road Closed", '='},
    SymbolChoice{"Detour", ']'},
    SymbolChoice{"Gas Station", '9'},
    SymbolChoice{"First Aid", 'M'},
    SymbolChoice{"Civil Defense (RACES)", 'c'},
    SymbolChoice{"Coast Guard", 'C'},
    SymbolChoice{"Phone Booth", 'x'},
    SymbolChoice{"Post Office", 'y'},
    SymbolChoice{"Rest Rooms", 'r'},
    SymbolChoice{"Number 1", '1'},
    SymbolChoice{"Number 2", '2'},
    SymbolChoice{"Number 3", '3'},
    SymbolChoice{"Number 4", '4'},
    SymbolChoice{"Number 5", '5'},
    SymbolChoice{"Number 6", '6'},
    SymbolChoice{"Number 7", '7'},
    SymbolChoice{"Number 8", '8'},
};

} // namespace

std::span<const SymbolChoice> PositionSymbols()
{
    return kPositions;
}

std::span<const SymbolChoice> ObjectSymbols()
{
    return kObjects;
}

char SymbolCode(std::span<const SymbolChoice> list, std::int32_t index)
{
    const bool bListed = index >= 0 && std::cmp_less(index, list.size());
    return list[bListed ? static_cast<std::size_t>(index) : 0].code;
}

} // namespace ruvenmark
