#include "sample_day.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ruvenmark::sample {

namespace {

using packet_text::Digits;
using packet_text::Join;

constexpr int kDayOfMonth = 14;
constexpr double kKilometresPerDegree = 111.2;

// Suffixes of digipeaters and gates, and of those that appear by name.
constexpr auto kTaken = std::to_array<std::string_view>({"QSO", "QSL", "QTH", "QRM", "QRN", "QRX"});
constexpr auto kServers =
    std::to_array<std::string_view>({"T2NORTH", "T2LAKES", "T2ALPS", "FIFTH", "T2PLAINS", "T2RHEIN"});

struct LocaleComments {
    std::string_view locale;
    std::array<std::string_view, 6> comments;
};
constexpr auto kComments = std::to_array<LocaleComments>({
    {"en",
     {"", "Monitoring 146.520", "Home QTH, 5W into a dipole", "73 and thanks for the gate",
      "Club net Monday 2000 local", "Pi gate running since spring"}},
    {"de",
     {"", "Grüße aus dem Süden", "QRV auf 145,500 MHz", "Ortsrunde Sonntag 10 Uhr", "Fill-in-Digi, 10 W",
      "Heimatstation, Außentemperatur folgt"}},
    {"fr",
     {"", "Relais local 145.650 CTCSS 88.5", "Météo et passerelle à domicile", "QRV 144.800 et 145.500",
      "Bonjour de la région", "Réseau du dimanche à 10h"}},
    {"es",
     {"", "Saludos desde el valle", "Estación fija, antena en el tejado", "QRV en 145.500", "Rueda los lunes a las 21",
      "Pasarela de pruebas"}},
    {"it",
     {"", "Saluti dalla collina", "QRV su 145.500", "Digi di zona, potenza 10W", "Stazione di casa, città alta",
      "Ruota locale il lunedì"}},
    {"pl",
     {"", "Pozdrowienia z południa", "Nasłuch 145.500", "Bramka domowa", "Zapraszam na łączność", "Antena na dachu"}},
    {"cs",
     {"", "Zdraví z kopců", "Příjem 144.800", "Domácí stanice", "Digi na kopci, 15 W", "Děkuji za brány v okolí"}},
    {"fi",
     {"", "Terveisiä järven rannalta", "Kuuntelulla 145.500", "Kotiasema", "Kerhon digi, 25 W", "Sää ja seuranta"}},
});

} // namespace

std::string_view AnyComment(SampleDay& day, const Town& town)
{
    for (const LocaleComments& entry : kComments)
        if (entry.locale == town.locale)
            return day.Pick(entry.comments);
    return {};
}

void SampleDay::Add(int second, std::string line)
{
    if (second >= 0 && second < kDay)
        m_lines.push_back({second, std::move(line)});
}

std::string SampleDay::ToString() const
{
    std::vector<TimedLine> lines = m_lines;
    std::stable_sort(lines.begin(), lines.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    std::string text;
    for (const TimedLine& line : lines)
        text.append(line.text).append("\n");
    return text;
}

Place SampleDay::Near(Place place, double kilometres)
{
    const double distance = kilometres * Below(1000) / 1000.0 / kKilometresPerDegree;
    const double angle = Below(360) * std::numbers::pi / 180;
    return {place.lat + distance * std::cos(angle),
            place.lon + distance * std::sin(angle) / std::cos(place.lat * std::numbers::pi / 180)};
}

std::string SampleDay::NewCall(std::string_view prefix)
{
    while (true) {
        const std::array<char, 3> suffix = {'Q', static_cast<char>('R' + Below(4)), static_cast<char>('A' + Below(26))};
        const std::string_view letters(suffix.data(), suffix.size());
        if (std::find(kTaken.begin(), kTaken.end(), letters) != kTaken.end())
            continue;
        std::string call = Join({prefix, letters});
        if (std::find(m_calls.begin(), m_calls.end(), call) == m_calls.end()) {
            m_calls.push_back(call);
            return call;
        }
    }
}

std::string SampleDay::RadioPath(const Town& town)
{
    const std::string gate = Join({town.prefix, "QTH-10"});
    const std::string digi = Join({town.prefix, "QSO-", std::to_string(Between(1, 3))});
    switch (Below(5)) {
    case 0:
        return Join({"WIDE1-1,WIDE2-1,qAR,", gate});
    case 1:
        return Join({digi, ",WIDE1*,WIDE2-1,qAR,", gate});
    case 2:
        return Join({digi, "*,WIDE2-1,qAo,", gate});
    case 3:
        return Join({"WIDE2-2,qAS,", gate});
    default:
        return Join({digi, "*,", town.prefix, "QSL-3*,WIDE2*,qAR,", gate});
    }
}

std::string SampleDay::InternetPath()
{
    return Join({"TCPIP*,qAC,", Pick(kServers)});
}

std::string SampleDay::ZuluStamp(int second)
{
    return Join({Digits(kDayOfMonth, 2), Digits(second / kHour, 2), Digits(second % kHour / kMinute, 2), "z"});
}

std::string SampleDay::ClockStamp(int second)
{
    return Join({Digits(second / kHour, 2), Digits(second % kHour / kMinute, 2), Digits(second % kMinute, 2), "h"});
}

} // namespace ruvenmark::sample
