#include "options/option_boxes.h"

#include "outgoing/beacons.h"
#include "outgoing/symbol_lists.h"

#include <algorithm>
#include <limits>

namespace ruvenmark {

namespace {

using F = OptionFrame;
using K = OptionKind;
using S = Setting;

constexpr double kEndless = std::numeric_limits<double>::infinity();
constexpr std::array<std::string_view, 8> kMobileColors = {"Black", "Red",     "Green", "Yellow",
                                                           "Blue",  "Magenta", "Cyan",  "White"};

constexpr NumberRule Whole(double lowest, double highest, std::string_view message)
{
    return {NumberRule::Kind::Whole, lowest, highest, message, ""};
}

constexpr NumberRule Decimal(double lowest, double highest, std::string_view message)
{
    return {NumberRule::Kind::Decimal, lowest, highest, message, ""};
}

// The texts of one column of a table.
template <class Rows>
std::vector<std::string_view> Texts(const Rows& rows)
{
    std::vector<std::string_view> texts;
    texts.reserve(rows.size());
    for (const auto& row : rows)
        texts.push_back(row.text);
    return texts;
}

} // namespace

const std::array<OptionBox, kOptionCount> kOptionBoxes = {{
    {F::Station, K::Text, S::Call, "txtCall", "&Call Sign", ""},
    {F::Station, K::Text, S::Dest, "txtDest", "&Unproto", ""},
    {F::Station, K::Text, S::Path, "txtVia", "&Via", "(optional)"},
    {F::Station, K::List, S::Symbol, "cboSymbol", "S&ymbol", ""},
    {F::Names, K::DigitTick, S::ShowRFNames, "chkShowRfNames", "Show map symbol names for &RF stations", ""},
    {F::Names, K::DigitTick, S::ShowTCPNames, "chkShowTcpNames", "Show map symbol names for &TCP stations", ""},
    {F::Reception, K::Tick, S::ReceiveBulletin, "chkBulletin", "&Receive bulletins and announcements", ""},
    {F::Reception, K::Tick, S::MatchSSID, "chkMatch", "&Match secondary station ID", ""},
    {F::Sound, K::Tick, S::PlayAll, "chkPlayAll", "&Play wave file for all incoming messages", ""},
    {F::Senders, K::Radio, S::All, "optAll", "&All messages", ""},
    {F::Intervals, K::List, S::PositionInt, "cboPositionInterval", "&Position", ""},
    {F::Intervals, K::List, S::WeatherInt, "cboWeatherInterval", "&Weather", ""},

    {F::Place, K::Number, S::Lat, "txtLat", "&Latitude", "degrees, north positive",
     Decimal(-90, 90, "Enter a value between -90 and 90 for latitude!")},
    {F::Place, K::Number, S::Lon, "txtLon", "L&ongitude", "degrees, east positive",
     Decimal(-180, 180, "Enter a value between -180 and 180 for longitude!")},
    {F::Place, K::Number, S::Alt, "txtAlt", "&Altitude", "feet (optional)",
     Whole(0, 999999, "Enter a number between 0 and 999999 for altitude!")},
    {F::Antenna, K::Number, S::Power, "txtPower", "Po&wer", "watt (optional)",
     Decimal(0, kEndless, "Enter a positive number for station power!")},
    {F::Antenna, K::Number, S::Height, "txtHeight", "&Height", "feet (optional)",
     Whole(0, 2000000000, "Enter a number between 0 and 2000000000 for height!")},
    {F::Antenna, K::Number, S::Gain, "txtGain", "&Gain", "dB (optional)", Decimal(-kEndless, kEndless, "")},
    {F::Antenna, K::Number, S::Directivity, "txtPosDir", "&Directivity", "degrees from north (optional)",
     Whole(0, 360, "Enter an interger between 0 and 360 for directivity!")},
    {F::Comment, K::Text, S::Comment, "txtComment", "&Comment", "(43 characters max)"},

    {F::Wind, K::Number, S::WindDir, "txtDir", "Wind &direction", "degrees from north",
     Whole(0, 360, "Enter an interger between 0 and 360 for wind direction!")},
    {F::Wind, K::Number, S::WindSpeed, "txtSpeed", "Sustained &one minute wind speed", "mph",
     Whole(0, 999, "Enter an interger between 0 and 999 for wind speed!")},
    {F::Wind, K::Number, S::Gust, "txtGust", "Pea&k wind speed in the last 5 minutes", "mph",
     Whole(0, 999, "Enter an interger between 0 and 999 for gust!")},
    {F::Air, K::Number, S::Temperature, "txtTemp", "&Temperature", "degrees Fahrenheit",
     Whole(-99, 999, "Enter an interger between -99 and 999 for temperature!")},
    {F::Rain, K::Number, S::Rain1, "txtRain1", "&Rainfall in the last hour", "0.01 inch",
     Whole(0, 999, "Enter an interger between 0 and 999 for rain in the last hour!")},
    {F::Rain, K::Number, S::Rain24, "txtRain24", "Rainfall in the last &24 hours", "0.01 inch",
     Whole(0, 999, "Enter an interger between 0 and 999 for rain in the last 24 hours!")},
    {F::Rain, K::Number, S::Rain12, "txtRain12", "Rainfall since &midnight", "0.01 inch",
     Whole(0, 999, "Enter an interger between 0 and 999 for rain since midnight!")},
    {F::Air, K::Number, S::Humidity, "txtHumidity", "&Humidity", "percent",
     Whole(0, 99, "Enter an interger between 0 and 99 for humidity!")},
    {F::Air, K::Number, S::Pressure, "txtPressure", "&Barometric pressure", "0.1 milibar/hPascal",
     Whole(0, 99999, "Enter an interger between 0 and 99999 for pressure!")},

    {F::Reception, K::Text, S::MessageSubnet, "txtSubnet", "Sub&net", "(optional)"},
    {F::Sound, K::Wave, S::WaveFile, "txtWaveFile", "&Wave file", ""},
    {F::Files, K::Map, S::DefaultMap, "txtDefaultMap", "&Initial Map View", ""},
    {F::Files, K::Log, S::TNCLog, "txtTNCLog", "T&nc Log File", ""},
    {F::Files, K::Log, S::TCPLog, "txtTCPLog", "T&cp Log File", ""},
    {F::Files, K::Tick, S::LogTcpData, "chkLogTcpData", "&Log Tcp Data", ""},
    {F::StationTree, K::List, S::MobileColor, "cboMobileColor", "&Mobile Station", ""},
    {F::Tactical, K::Text, S::Tactical, "txtTactical", "&Tactical Call", "(optional)"},
    {F::Tactical, K::Tick, S::BeaconTactical, "chkTactical", "&Beacon Tactical Call", ""},
}};

namespace {

std::size_t IndexOf(const OptionBox& box)
{
    return static_cast<std::size_t>(&box - kOptionBoxes.data());
}

} // namespace

OptionPage PageOf(const OptionBox& box)
{
    return kOptionFrames[static_cast<std::size_t>(box.frame)].page;
}

const OptionBox& BoxOf(Setting setting)
{
    return *std::find_if(kOptionBoxes.begin(), kOptionBoxes.end(),
                         [&](const OptionBox& box) { return box.setting == setting; });
}

OptionField& FieldOf(OptionsForm& form, const OptionBox& box)
{
    return form.fields.at(IndexOf(box));
}

OptionField& FieldOf(OptionsForm& form, Setting setting)
{
    return FieldOf(form, BoxOf(setting));
}

bool IsTouched(const OptionsForm& form, const OptionBox& box)
{
    return form.fields.at(IndexOf(box)) != form.opened.at(IndexOf(box));
}

std::vector<std::string_view> ChoicesOf(const OptionBox& box)
{
    switch (box.setting) {
    case Setting::Symbol:
        return Texts(PositionSymbols());
    case Setting::PositionInt:
        return Texts(kPositionIntervals);
    case Setting::WeatherInt:
        return Texts(kWeatherIntervals);
    case Setting::MobileColor:
        return {kMobileColors.begin(), kMobileColors.end()};
    default:
        return {};
    }
}

} // namespace ruvenmark
