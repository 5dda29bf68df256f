#include "aprs/time_stamp.h"

#include "aprs/digit_block.h"
#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

std::uint8_t Pair(std::string_view text, std::size_t at)
{
    return static_cast<std::uint8_t>(DigitValue(text[at]) * 10 + DigitValue(text[at + 1]));
}

bool IsDay(std::uint8_t day)
{
    return day >= 1 && day <= 31;
}
bool IsClock(std::uint8_t hour, std::uint8_t minute)
{
    return hour < 24 && minute < 60;
}

} // namespace

void ParseTime(std::string_view text, TimeStamp& time)
{
    time.text = text;
    const DigitBlock digits = DigitBlock::OfSeven(text.data());
    if (!digits.Begins(kTimeSize - 1))
        return;
    const auto first = static_cast<std::uint8_t>(digits.Two(0));
    const auto second = static_cast<std::uint8_t>(digits.Two(2));
    const auto third = static_cast<std::uint8_t>(digits.Two(4));
    if (text[6] == 'h' && IsClock(first, second) && third < 60) {
        time.form = TimeForm::HourMinuteSecond;
        time.hour = first;
        time.minute = second;
        time.second = third;
    } else if ((text[6] == 'z' || text[6] == '/') && IsDay(first) && IsClock(second, third)) {
        time.form = TimeForm::DayHourMinute;
        time.bLocal = text[6] == '/';
        time.day = first;
        time.hour = second;
        time.minute = third;
    }
}

void ParseMonthTime(std::string_view text, TimeStamp& time)
{
    time.text = text;
    if (text.size() != kMonthTimeSize || !AllDigits(text))
        return;
    time.month = Pair(text, 0);
    time.day = Pair(text, 2);
    time.hour = Pair(text, 4);
    time.minute = Pair(text, 6);
    if (time.month >= 1 && time.month <= 12 && IsDay(time.day) && IsClock(time.hour, time.minute))
        time.form = TimeForm::MonthDayHourMinute;
}

} // namespace ruvenmark::aprs
