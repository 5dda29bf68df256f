#pragma once

#include "platform/geometry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ruvenmark {

enum class Field : std::uint8_t {
    Call,
    Lat,
    Lon,
    PositionPath,
    Symbol,
    Comment,
    PositionReceived,
    Alt,
    Speed,
    Course,
    Power,
    Height,
    Gain,
    Directivity,
    PositionTime,
    WeatherTime,
    StatusTime,
    Status,
    Capabilities,
    Info,
    StatusPath,
    StatusReceived,
    WindDir,
    WindSpeed,
    Temperature,
    Rain,
    Humidity,
    Pressure,
    WeatherPath,
    WeatherReceived,
    Sender
};

inline constexpr std::array<std::string_view, 31> kFieldNames = {"Call",
                                                                 "Lat",
                                                                 "Lon",
                                                                 "PositionPath",
                                                                 "Symbol",
                                                                 "Comment",
                                                                 "PositionReceived",
                                                                 "Alt",
                                                                 "Speed",
                                                                 "Course",
                                                                 "Power",
                                                                 "Height",
                                                                 "Gain",
                                                                 "Directivity",
                                                                 "PositionTime",
                                                                 "WeatherTime",
                                                                 "StatusTime",
                                                                 "Status",
                                                                 "Capabilities",
                                                                 "Info",
                                                                 "StatusPath",
                                                                 "StatusReceived",
                                                                 "WindDir",
                                                                 "WindSpeed",
                                                                 "Temperature",
                                                                 "Rain",
                                                                 "Humidity",
                                                                 "Pressure",
                                                                 "WeatherPath",
                                                                 "WeatherReceived",
                                                                 "Sender"};

constexpr std::string_view FieldName(Field field)
{
    return kFieldNames[static_cast<std::size_t>(field)];
}

// What has been reported of a station on one channel so far: only the fields that were given, in order of first report.
class Record {
public:
    bool Has(Field field) const { return Find(m_entries, field) != nullptr; }

    // Empty for a field that was never set.
    std::string_view Get(Field field) const
    {
        const auto* entry = Find(m_entries, field);
        return entry ? std::string_view(entry->second) : std::string_view();
    }

    void Set(Field field, std::string_view value)
    {
        if (auto* entry = Find(m_entries, field))
            entry->second = value;
        else
            m_entries.emplace_back(field, value);
    }

    auto begin() const { return m_entries.begin(); }
    auto end() const { return m_entries.end(); }

private:
    // Null where there is none; as constant as the entries are.
    template <typename Entries>
    static auto Find(Entries& entries, Field field) -> decltype(entries.data())
    {
        for (auto& entry : entries)
            if (entry.first == field)
                return &entry;
        return nullptr;
    }

    std::vector<std::pair<Field, std::string>> m_entries;
};

// Where the station was last reported; nothing where no position is known.
std::optional<GeoPoint> PositionOf(const Record& record);

} // namespace ruvenmark
