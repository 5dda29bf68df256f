#include "core/station_record.h"

#include "platform/numbers.h"

namespace ruvenmark {

std::optional<GeoPoint> PositionOf(const Record& record)
{
    const auto lat = ReadNumber(record.Get(Field::Lat));
    const auto lon = ReadNumber(record.Get(Field::Lon));
    if (!lat || !lon)
        return std::nullopt;
    return GeoPoint{*lat, *lon};
}

} // namespace ruvenmark
