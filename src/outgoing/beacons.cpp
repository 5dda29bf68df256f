#include "outgoing/beacons.h"

#include "core/main_window.h"
#include "outgoing/my_station.h"
#include "outgoing/position_report.h"
#include "outgoing/weather_report.h"

#include <span>
#include <utility>

namespace ruvenmark {

namespace {

// An index outside the list, or none, means by hand.
std::int32_t TicksOf(MainWindow& main, Setting setting, std::span<const BeaconInterval> intervals)
{
    std::int32_t ticks = 0;
    Attempt(main.abandoned, "beacon interval", [&] {
        const std::int32_t index = SettingInt32(main.Settings, setting);
        if (index >= 0 && std::cmp_less(index, intervals.size()))
            ticks = intervals[static_cast<std::size_t>(index)].ticks;
    });
    return ticks;
}

bool IsDue(bool bDefined, std::int32_t interval, std::int32_t& ticks)
{
    if (!bDefined || interval <= 0 || ++ticks < interval)
        return false;
    ticks = 0;
    return true;
}

} // namespace

void WorkOutIntervals(MainWindow& main)
{
    main.beacons.positionInterval = TicksOf(main, Setting::PositionInt, kPositionIntervals);
    main.beacons.weatherInterval = TicksOf(main, Setting::WeatherInt, kWeatherIntervals);
}

void intervalTimer_Timer(MainWindow& main)
{
    BeaconState& beacons = main.beacons;
    if (std::exchange(beacons.bInTick, true))
        return;
    WorkOutDefined(main);
    if (main.links.IsAnyOpen()) {
        if (IsDue(beacons.PositionDefined, beacons.positionInterval, beacons.positionTicks))
            SendPositionReport(main, true);
        if (IsDue(beacons.WeatherDefined, beacons.weatherInterval, beacons.weatherTicks))
            SendWeatherReport(main);
    }
    beacons.bInTick = false;
}

} // namespace ruvenmark
