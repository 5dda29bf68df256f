#include "devices/davis_feed.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

constexpr std::string_view kWake = "\n";
constexpr std::string_view kAskForGauge = "EEBRD 2B 01\n"; // One byte of the set-up memory.
constexpr std::string_view kAskForReadings = "LOOP 200\n"; // One about every two seconds.
constexpr int kAsked = 200;

constexpr auto kWakeAgain = 1200ms; // What the maker says a console takes at most.
constexpr auto kGaugeLimit = 2s;
constexpr auto kReadingLimit = 10s;

constexpr char kAck = 0x06;
constexpr std::string_view kAnswers = "\x06\x15!"; // Yes, no, not understood.
constexpr std::size_t kGaugeSize = 3;              // The byte and its checksum.
constexpr std::string_view kSign = "LOO";
constexpr std::size_t kPacketSize = 99;
constexpr std::size_t kPressureAt = 7, kTemperatureAt = 12, kWindAt = 14, kAverageWindAt = 15, kDirectionAt = 16,
                      kHumidityAt = 33, kDayRainAt = 50;
constexpr int kNoByte = 0xFF;
constexpr int kNoTemperature = 0x7FFF;
constexpr int kNoRain = 0xFFFF;

int ByteAt(std::string_view packet, std::size_t at)
{
    return static_cast<unsigned char>(packet[at]);
}

int WordAt(std::string_view packet, std::size_t at)
{
    return ByteAt(packet, at) | ByteAt(packet, at + 1) << 8;
}

// CRC-CCITT, from 0, highest bit first; 0 over bytes with their own checksum behind them.
bool IsWhole(std::string_view bytes)
{
    unsigned crc = 0;
    for (const char c : bytes) {
        crc ^= static_cast<unsigned>(static_cast<unsigned char>(c)) << 8U;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc << 1U ^ ((crc & 0x8000U) != 0 ? 0x1021U : 0U)) & 0xFFFFU;
    }
    return crc == 0;
}

WeatherReading ReadingOf(std::string_view packet, double hundredthsPerClick)
{
    constexpr double kTenthMillibarPerMil = 0.338639; // A thousandth of an inch of mercury.
    WeatherReading reading;
    if (const int pressure = WordAt(packet, kPressureAt); pressure != 0)
        reading.pressure = static_cast<int>(std::lround(pressure * kTenthMillibarPerMil));
    if (const int temperature = WordAt(packet, kTemperatureAt); temperature != kNoTemperature)
        reading.temperature = static_cast<std::int16_t>(temperature) / 10.0;
    const int wind = ByteAt(packet, kWindAt);
    if (const int average = ByteAt(packet, kAverageWindAt); average != kNoByte)
        reading.windSpeed = average;
    else if (wind != kNoByte)
        reading.windSpeed = wind;
    if (const int direction = WordAt(packet, kDirectionAt); direction >= 1 && direction <= 360)
        reading.windDir = direction;
    if (const int humidity = ByteAt(packet, kHumidityAt); humidity >= 1 && humidity <= 100)
        reading.humidity = humidity;
    if (const int rain = WordAt(packet, kDayRainAt); rain != kNoRain)
        reading.rainCount = reading.rainToday = rain * hundredthsPerClick;
    return reading;
}

// Bits 4 and 5 of the set-up byte tell what a click of the rain gauge stands for.
double ClickOf(int setUp)
{
    constexpr double kHundredthsPerMillimetre = 100 / 25.4;
    switch (setUp >> 4 & 3) {
    case 1:
        return 0.2 * kHundredthsPerMillimetre;
    case 2:
        return 0.1 * kHundredthsPerMillimetre;
    default:
        return 1;
    }
}

} // namespace

void DavisFeed::Take(std::string_view bytes, Moment now)
{
    if (m_stage == Stage::Asleep)
        return; // What was under way when nobody asked.
    m_in += bytes;
    m_lastBytes = now;
    if (m_stage == Stage::Waking && m_in.find_first_of("\r\n") != std::string::npos)
        m_bAnswered = true;
    else if (m_stage == Stage::AskedForGauge)
        m_bAnswered = m_bAnswered || TakeGauge();
}

// Whether the question is answered; a console that does not know it has the usual gauge.
bool DavisFeed::TakeGauge()
{
    const std::size_t answer = m_in.find_first_of(kAnswers);
    if (answer == std::string::npos)
        return false;
    if (m_in[answer] != kAck)
        return true;
    if (m_in.size() < answer + 1 + kGaugeSize)
        return false;
    const std::string_view gauge = std::string_view(m_in).substr(answer + 1, kGaugeSize);
    if (IsWhole(gauge))
        m_hundredthsPerClick = ClickOf(ByteAt(gauge, 0));
    return true;
}

std::optional<WeatherReading> DavisFeed::Next()
{
    if (m_stage != Stage::Reading) {
        m_in.erase(0, m_in.size() - std::min(m_in.size(), kPacketSize));
        return std::nullopt;
    }
    for (std::size_t at = 0; (at = m_in.find(kSign)) != std::string::npos;) {
        m_in.erase(0, at);
        if (m_in.size() < kPacketSize)
            return std::nullopt;
        const std::string_view packet = std::string_view(m_in).substr(0, kPacketSize);
        if (IsWhole(packet)) {
            const WeatherReading reading = ReadingOf(packet, m_hundredthsPerClick);
            m_in.erase(0, kPacketSize);
            m_left -= 1;
            m_begun = m_lastBytes;
            return reading;
        }
        m_in.erase(0, 1); // Spoilt, or the sign stood inside another.
    }
    m_in.erase(0, m_in.size() - std::min(m_in.size(), kSign.size() - 1));
    return std::nullopt;
}

std::string DavisFeed::ToWrite(Moment now)
{
    switch (m_stage) {
    case Stage::Asleep:
        return Ask(Stage::Waking, kWake, now);
    case Stage::Waking:
        if (m_bAnswered && !m_bGaugeAsked)
            return Ask(Stage::AskedForGauge, kAskForGauge, now);
        if (m_bAnswered)
            return Ask(Stage::Reading, kAskForReadings, now);
        return now - m_begun >= kWakeAgain ? Ask(Stage::Waking, kWake, now) : std::string();
    case Stage::AskedForGauge:
        m_bGaugeAsked = true;
        if (m_bAnswered || now - m_begun >= kGaugeLimit)
            return Ask(Stage::Reading, kAskForReadings, now);
        return {};
    case Stage::Reading:
        if (m_left <= 0 || now - m_begun >= kReadingLimit)
            return Ask(Stage::Waking, kWake, now);
        return {};
    }
    return {};
}

std::string DavisFeed::Ask(Stage stage, std::string_view question, Moment now)
{
    m_stage = stage;
    m_begun = now;
    m_bAnswered = false;
    m_left = kAsked;
    m_in.clear();
    return std::string(question);
}

} // namespace ruvenmark
