#pragma once

#include "core/channel.h"
#include "platform/geometry.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

enum class StationColumn : std::uint8_t {
    Call,
    Symbol,
    Channel,
    LastHeard,
    Distance,
    Bearing,
    Course,
    Speed,
    Path,
    Comment
};
inline constexpr std::size_t kStationColumns = 10;
std::string_view TitleOf(StationColumn column);

// A station as its list shows it.
struct StationRow {
    std::string call, symbol, path, comment;
    Channel channel = Channel::RF;
    std::int64_t heard = 0; // See SecondsOfLocalText.
    std::optional<double> miles, bearing, course, speed;
};

// From the station's record; nothing is measured without an own place. False where there is none any more.
bool FillRow(StationRow& row, const MainWindow& main, const std::optional<GeoPoint>& ownPlace);

std::string TextOf(const StationRow& row, StationColumn column);

// Rows stand in the order of their keys; where these are equal, of their texts.
inline constexpr std::uint64_t kUnknownSortKey = std::numeric_limits<std::uint64_t>::max();
// The eight letters behind `part` times eight others, case ignored.
std::uint64_t KeyPart(std::string_view text, std::size_t part);
std::uint64_t SortKeyOf(const StationRow& row, StationColumn column);
std::string_view SortText(const StationRow& row, StationColumn column); // Empty for a column of numbers.

} // namespace ruvenmark
