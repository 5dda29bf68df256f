#pragma once

#include <array>
#include <cstdint>

namespace ruvenmark {

// How a map's ground looks. Map documents know the styles by their numbers.
enum class MapStyle : std::int32_t { Road, RoadAndData, Data, Terrain, Political };

struct MapStyleInfo {
    enum class Land : std::uint8_t { Plain, Grey, Relief, Countries };

    MapStyle style;
    Land land;
    bool bTiles; // Pictures from elsewhere cover the built-in map where they are had.
    bool bPale;  // Everything paler, tiles too, so that markers stand out.
};
inline constexpr std::array<MapStyleInfo, 5> kMapStyles{{
    {MapStyle::Road, MapStyleInfo::Land::Plain, true, false},
    {MapStyle::RoadAndData, MapStyleInfo::Land::Plain, true, true},
    {MapStyle::Data, MapStyleInfo::Land::Grey, false, false},
    {MapStyle::Terrain, MapStyleInfo::Land::Relief, false, false},
    {MapStyle::Political, MapStyleInfo::Land::Countries, false, false},
}};

constexpr std::int32_t NumberOf(MapStyle style)
{
    return static_cast<std::int32_t>(style);
}
constexpr bool IsMapStyle(std::int32_t number)
{
    return number >= 0 && number < static_cast<std::int32_t>(kMapStyles.size());
}
// Any number that is no style counts as Road.
constexpr MapStyle ToMapStyle(std::int32_t number)
{
    return IsMapStyle(number) ? static_cast<MapStyle>(number) : MapStyle::Road;
}
constexpr const MapStyleInfo& InfoOf(MapStyle style)
{
    return kMapStyles[static_cast<std::size_t>(style)];
}

} // namespace ruvenmark
