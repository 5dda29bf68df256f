#include "outgoing/position_report.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "outgoing/report_text.h"
#include "outgoing/send_report.h"
#include "outgoing/symbol_lists.h"
#include "platform/geometry.h"
#include "platform/numbers.h"

#include <utility>

namespace ruvenmark {

namespace {

constexpr double kHighestPower = 5000, kHighestGain = 9;

// "" counts as 0.
const std::string& NumberText(const MainWindow& main, Setting setting)
{
    static const std::string kZero = "0";
    const std::string& text = SettingText(main.Settings, setting);
    return text.empty() ? kZero : text;
}

// A value out of bounds counts as 0.
std::int16_t BoundedNumber(const MainWindow& main, Setting setting, double highest)
{
    const double value = ToDouble(NumberText(main, setting));
    return value >= 0 && value <= highest ? ToInt16(value) : std::int16_t{0};
}

std::string MotionText(const MainWindow& main)
{
    const std::string& speed = SettingText(main.Settings, Setting::Speed);
    const std::string& course = SettingText(main.Settings, Setting::Course);
    if (!main.gps.bValidFix || speed.empty() || course.empty())
        return {};
    return Padded(course, 3) + '/' + Padded(std::int64_t{ToInt16(ToDouble(speed) / kMilesPerKnot)}, 3);
}

PositionReportData DataOfSettings(const MainWindow& main)
{
    const std::string& symbol = SettingText(main.Settings, Setting::Symbol);
    return {.lat = ToDouble(SettingText(main.Settings, Setting::Lat)),
            .lon = ToDouble(SettingText(main.Settings, Setting::Lon)),
            .symbol = symbol.empty() ? std::int16_t{-1} : ToInt16(symbol),
            .motion = MotionText(main),
            .power = BoundedNumber(main, Setting::Power, kHighestPower),
            .height = ToInt32(NumberText(main, Setting::Height)),
            .gain = BoundedNumber(main, Setting::Gain, kHighestGain),
            .directivity = ToInt16(NumberText(main, Setting::Directivity)),
            .altitude = ToInt32(NumberText(main, Setting::Alt)),
            .comment = SettingText(main.Settings, Setting::Comment)};
}

// Reports go on being due while the box stands: one is enough.
void TellTail(MainWindow& main)
{
    if (!std::exchange(main.beacons.bTailTold, true))
        Tell(main, "The position is not reported: its comment is too long");
    if (std::exchange(main.beacons.bTailBoxOpen, true))
        return;
    main.services.prompts.Message(kTailTooLong);
    main.beacons.bTailBoxOpen = false;
}

} // namespace

std::optional<std::string> PositionReportText(const PositionReportData& data)
{
    std::string tail =
        data.motion.empty() ? PhgText(data.power, data.height, data.gain, data.directivity) : data.motion;
    if (data.altitude != 0)
        tail += "/A=" + Padded(std::int64_t{data.altitude}, 6);
    tail += data.comment;
    if (tail.size() > kLongestTail)
        return std::nullopt;
    return '!' + LatitudeText(data.lat, '/') + LongitudeText(data.lon) + SymbolCode(PositionSymbols(), data.symbol) +
           tail;
}

void SendPositionReport(MainWindow& main, bool sendOnRf)
{
    Attempt(main.abandoned, "SendPositionReport", [&] {
        const auto text = PositionReportText(DataOfSettings(main));
        if (!text)
            return TellTail(main);
        main.beacons.bTailTold = false;
        SendOwnReport(main, *text, OpenRoads(main.links, sendOnRf, true));
    });
}

} // namespace ruvenmark
