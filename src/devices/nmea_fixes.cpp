#include "devices/nmea_fixes.h"

#include "aprs/nmea.h"
#include "aprs/text.h"

#include <array>
#include <cmath>
#include <utility>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

// Longer than a sentence takes at 4800 baud, shorter than the time between two fixes.
constexpr auto kPause = 400ms;
constexpr std::size_t kMaxSentence = 128; // The standard says 82; some write more digits.
constexpr std::size_t kTalker = 2;

struct Kind {
    std::string_view name;
    std::size_t timeField;
};
constexpr std::array<Kind, 3> kKinds{{{"RMC", 1}, {"GGA", 1}, {"GLL", 5}}};

struct Sentence {
    std::size_t kind; // Of kKinds.
    std::string_view text;
};

bool IsSum(std::string_view text, std::string_view told)
{
    if (told.size() != 2 || aprs::HexValue(told[0]) < 0 || aprs::HexValue(told[1]) < 0)
        return false;
    unsigned sum = 0;
    for (const char c : text)
        sum ^= static_cast<unsigned char>(c);
    return sum == static_cast<unsigned>(aprs::HexValue(told[0]) * 16 + aprs::HexValue(told[1]));
}

// What tells a place, from its talker on, with the checksum tested and taken off. Makers' own sentences begin with P
// and may end like one of these.
std::optional<Sentence> ReadSentence(std::string_view line)
{
    const std::size_t dollar = line.rfind('$'); // Some of it may be lost in front.
    if (dollar == std::string_view::npos)
        return std::nullopt;
    std::string_view text = aprs::TrimRight(line.substr(dollar + 1));
    if (text.size() > kMaxSentence || text.starts_with('P'))
        return std::nullopt;
    if (const std::size_t star = text.find('*'); star != std::string_view::npos) {
        if (!IsSum(text.substr(0, star), text.substr(star + 1)))
            return std::nullopt;
        text = text.substr(0, star);
    }
    const std::size_t comma = text.find(',');
    for (std::size_t kind = 0; kind < kKinds.size(); ++kind)
        if (comma == kTalker + kKinds[kind].name.size() && text.substr(kTalker, 3) == kKinds[kind].name)
            return Sentence{kind, text};
    return std::nullopt;
}

// "123519", "123519.0" and "123519.000" are one time.
std::string_view TimeOf(const Sentence& sentence)
{
    std::string_view text = sentence.text;
    for (std::size_t field = 0; field < kKinds[sentence.kind].timeField; ++field) {
        const std::size_t comma = text.find(',');
        if (comma == std::string_view::npos)
            return {};
        text.remove_prefix(comma + 1);
    }
    text = text.substr(0, text.find(','));
    if (text.find('.') == std::string_view::npos)
        return text;
    while (text.ends_with('0'))
        text.remove_suffix(1);
    return text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
}

// Degrees as the program shows them: to a millionth, some 11 cm.
double Degrees(double value)
{
    constexpr double kMillion = 1e6;
    return std::nearbyint(value * kMillion) / kMillion;
}

} // namespace

void NmeaFixes::Take(std::string_view line, Moment now)
{
    m_lastLine = now;
    const auto sentence = ReadSentence(line);
    if (!sentence)
        return;
    aprs::PositionReport report;
    const std::string asGps = "$GP" + std::string(sentence->text.substr(kTalker));
    const aprs::Refusal refusal = aprs::ParseNmea(asGps, {}, report);
    if (refusal != aprs::Refusal::None && refusal != aprs::Refusal::NmeaNoFix)
        return;
    m_lastPlace = now;
    const unsigned kind = 1U << sentence->kind;
    const std::string_view time = TimeOf(*sentence);
    if (m_fix.kinds != 0 && (time != m_fix.time || (m_fix.kinds & kind) != 0))
        Finish();
    m_fix.time = time;
    m_fix.kinds |= kind;
    if (refusal == aprs::Refusal::NmeaNoFix) {
        m_fix.bVoid = true;
        return;
    }
    m_fix.report.lat = Degrees(report.position.latitude);
    m_fix.report.lon = Degrees(report.position.longitude);
    m_fix.report.altitude = report.altitude.value_or(m_fix.report.altitude);
    m_fix.report.course = report.course.value_or(m_fix.report.course);
    m_fix.report.speed = report.speed.value_or(m_fix.report.speed);
}

void NmeaFixes::Tick(Moment now)
{
    if (m_fix.kinds != 0 && now - m_lastLine >= kPause)
        Finish();
    else if (m_silence && now - m_lastPlace >= *m_silence)
        TellLost();
}

std::optional<GpsReport> NmeaFixes::Next()
{
    return std::exchange(m_next, std::nullopt);
}

void NmeaFixes::Finish()
{
    const Fix fix = std::exchange(m_fix, {});
    if (fix.bVoid) {
        TellLost();
        return;
    }
    m_next = fix.report;
    m_next->bValid = true;
    m_bLostTold = false;
}

void NmeaFixes::TellLost()
{
    if (!m_bLostTold)
        m_next = GpsReport{.lat = kNoPosition, .lon = kNoPosition, .bValid = false};
    m_bLostTold = true;
}

} // namespace ruvenmark
