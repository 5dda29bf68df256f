#include "aprs/position_report.h"

#include "aprs/comment_extras.h"
#include "aprs/compressed_position.h"
#include "aprs/extension.h"
#include "aprs/plain_position.h"
#include "aprs/text.h"
#include "aprs/time_stamp.h"
#include "aprs/weather.h"

namespace ruvenmark::aprs {

namespace {

constexpr char kWeatherStation = '_';
constexpr std::string_view kNoWind = ".../...g";

// Whether weather may follow: the symbol says so, or, of gateways and trackers with sensors, a wind that is not known.
bool MayTellWeather(char code, std::string_view text)
{
    return code == kWeatherStation || text.starts_with(kNoWind);
}

// Whether a weather station's text is weather; the values, and its comment, are then taken from it.
[[gnu::noinline]] bool TakeWeather(std::string_view text, PositionReport& report)
{
    Weather& weather = report.weather.emplace();
    if (!ParseWeather(text, weather)) {
        report.weather.reset();
        return false;
    }
    if (report.position.form == PositionForm::Compressed && report.speed && !weather.windSpeed) {
        weather.windDirection = report.course;
        weather.windSpeed = *report.speed * kMphPerKnot;
    }
    ParseComment(text, report);
    return true;
}

// Whether a plain position stands where its time should. A compressed one might be any text.
[[gnu::noinline]] bool LeavesTimeOut(std::string_view text)
{
    Position position;
    return ParsePlainPosition(text, position) == Refusal::None;
}

// Six figures, known or not, and the letter that tells their kind, right or wrong.
bool LooksLikeTime(std::string_view text)
{
    for (const char c : text.substr(0, kTimeSize - 1))
        if (!IsDigit(c) && c != '.' && c != ' ')
            return false;
    return !IsDigit(text[kTimeSize - 1]);
}

} // namespace

Refusal ParsePositionReport(std::string_view text, PositionReport& report)
{
    if (text.empty())
        return Refusal::PositionTooShort;
    std::string_view rest;
    if (IsDigit(text.front())) {
        if (const Refusal refusal = ParsePlainPosition(text, report.position); refusal != Refusal::None)
            return refusal;
        rest = text.substr(kPlainSize);
    } else if (StartsCompressed(text.front())) {
        if (const Refusal refusal = ParseCompressedPosition(text, report); refusal != Refusal::None)
            return refusal;
        rest = text.substr(kCompressedSize);
    } else {
        return Refusal::BadPosition;
    }
    if (MayTellWeather(report.position.symbol.code, rest) && TakeWeather(rest, report))
        return Refusal::None;
    ParseComment(ParseExtension(rest, report), report);
    return Refusal::None;
}

Refusal ParseTimedPosition(std::string_view text, PositionReport& report)
{
    if (text.size() <= kTimeSize)
        return Refusal::PositionTooShort;
    ParseTime(text.substr(0, kTimeSize), report.time);
    if (report.time.IsBad() && LeavesTimeOut(text)) {
        report.time = {};
        return ParsePositionReport(text, report);
    }
    if (report.time.IsBad() && !IsDigit(text[kTimeSize]) && !LooksLikeTime(report.time.text))
        return Refusal::BadPosition; // No time at all: what stands there only by chance reads as compressed.
    return ParsePositionReport(text.substr(kTimeSize), report);
}

} // namespace ruvenmark::aprs
