#include "map/directions.h"

#include "core/main_window.h"
#include "map/coordinates.h"
#include "map/marker_names.h"
#include "map/pointer_tools.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <array>
#include <cmath>
#include <utility>

namespace ruvenmark {

namespace {

constexpr double kKilometresPerMile = 1.609344;

std::optional<DirectionsEnd> FindMarker(const MainWindow& main, std::string_view name)
{
    Map* map = main.mpCtrl.ActiveMap();
    const auto pin = map ? map->FindPushpin(name) : std::nullopt;
    if (!pin)
        return std::nullopt;
    return DirectionsEnd{pin->Name(), pin->Location().Point()};
}

std::optional<DirectionsEnd> FindStation(const MainWindow& main, std::string_view call)
{
    for (const ChannelState& channel : main.channels) {
        const Record* record = channel.Stations.Find(call);
        if (const auto point = record ? PositionOf(*record) : std::nullopt)
            return DirectionsEnd{MarkerName(Traits(channel.channel).word, call), *point};
    }
    return std::nullopt;
}

std::string BearingText(double bearing)
{
    const auto degrees = std::lround(bearing) % 360;
    return ShortText(std::int64_t{degrees}) + "° (" + std::string(CompassPoint(bearing)) + ")";
}

bool AreDirectionsVisible(const MainWindow& main)
{
    return main.mpCtrl.ItineraryVisible();
}

template <std::size_t kEnd>
void TakeEnd(MainWindow& main, GeoPoint point)
{
    SetDirectionsEnd(main, kEnd, {"", point});
}

} // namespace

Directions WorkOutDirections(GeoPoint from, GeoPoint to)
{
    return {GreatCircleMiles(from, to), InitialBearing(from, to), InitialBearing(to, from)};
}

std::string_view CompassPoint(double bearing)
{
    constexpr std::array<std::string_view, 16> kPoints = {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE",
                                                          "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};
    const auto sector = std::lround(bearing / (360.0 / kPoints.size()));
    return kPoints[static_cast<std::size_t>(sector) % kPoints.size()];
}

std::optional<DirectionsEnd> ReadDirectionsEnd(const MainWindow& main, std::string_view text)
{
    const std::string_view typed = Trim(text);
    if (typed.empty())
        return std::nullopt;
    if (const auto point = ReadLatLon(typed))
        return DirectionsEnd{"", *point};
    const std::string upper = ToUpper(typed);
    for (const std::string_view name : {typed, std::string_view(upper)}) {
        if (auto marker = FindMarker(main, name))
            return marker;
        if (auto station = FindStation(main, name))
            return station;
    }
    // A call may look like a locator.
    if (const auto point = ReadLocator(typed))
        return DirectionsEnd{"", *point};
    if (auto place = main.services.places.Named(typed))
        return DirectionsEnd{std::move(place->name), place->point};
    return std::nullopt;
}

std::string DirectionsEndText(const DirectionsEnd& end)
{
    if (!end.name.empty())
        return end.name;
    return CoordinateText(end.point, CoordinateForm::Decimal);
}

bool SetDirectionsEnd(MainWindow& main, std::size_t end, std::string_view text)
{
    std::optional<DirectionsEnd>& value = main.map.directions.at(end);
    value = ReadDirectionsEnd(main, text);
    const bool bTaken = value || Trim(text).empty();
    main.map.DirectionsChanged.Raise();
    return bTaken;
}

void SetDirectionsEnd(MainWindow& main, std::size_t end, const DirectionsEnd& value)
{
    main.map.directions.at(end) = value;
    main.map.DirectionsChanged.Raise();
}

void PinPointDirectionsEnd(MainWindow& main, std::size_t end)
{
    StartPinPoint(main, {AreDirectionsVisible, end == 0 ? TakeEnd<0> : TakeEnd<1>, std::nullopt});
}

std::string DirectionsText(const MainWindow& main)
{
    const auto& [from, to] = main.map.directions;
    if (!from || !to)
        return {};
    const Directions way = WorkOutDirections(from->point, to->point);
    std::string text = "From: " + DirectionsEndText(*from) + "\r\nTo: " + DirectionsEndText(*to) +
                       "\r\nDistance: " + ShortText(RoundDecimals(way.miles, 1)) + " miles (" +
                       ShortText(RoundDecimals(way.miles * kKilometresPerMile, 1)) + " km)";
    if (from->point == to->point)
        return text;
    return text + "\r\nBearing: " + BearingText(way.bearing) + "\r\nBack bearing: " + BearingText(way.backBearing);
}

} // namespace ruvenmark
