#include "devices/packet_events.h"

#include "aprs/destination_symbol.h"
#include "devices/event_text.h"
#include "devices/symbol_words.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr std::size_t kMaxAckText = 3 + 5;

// Values are shown as they come: what counting in binary and changing units leave behind the last digit that a packet
// can tell is taken off.
double Degrees(double value)
{
    constexpr double kMillion = 1e6; // About 11 cm.
    return std::nearbyint(value * kMillion) / kMillion;
}

double Figure(const std::optional<double>& value)
{
    constexpr double kHundred = 100;
    return value ? std::nearbyint(*value * kHundred) / kHundred : kAbsent;
}

double ValueOr(const std::optional<double>& value)
{
    return value.value_or(kAbsent);
}

std::string_view ZoneText(const aprs::TimeStamp& time)
{
    return time.bLocal ? "local" : "UTC";
}

class EventRaiser {
public:
    EventRaiser(const aprs::Packet& packet, IReportSink& sink, const bool& bStopped)
        : m_packet(packet), m_header(packet.header), m_sink(sink), m_bStopped(bStopped), m_bClean(IsClean(packet.line))
    {
    }

    void RaiseRaw()
    {
        Raise([&] { m_sink.ReportRawData(EventText(m_packet.line, m_bClean)); });
    }
    void RaiseUndecoded()
    {
        Raise([&] { m_sink.ReportPacket(EventText(m_packet.line, m_bClean)); });
    }

    void operator()(const std::monostate&) { RaiseUndecoded(); }
    void operator()(const aprs::PositionReport& report)
    {
        RaisePosition(m_header.source, report);
        RaiseWeather(m_header.source, report);
    }
    void operator()(const aprs::ObjectReport& object);
    void operator()(const aprs::WeatherReport& report);
    void operator()(const aprs::StatusReport& status);
    void operator()(const aprs::GridBeacon& beacon);
    void operator()(const aprs::Message& message);
    void operator()(const aprs::Capabilities& capabilities);
    void operator()(const aprs::Telemetry&) { RaiseInfo(); }
    void operator()(const aprs::Query&) { RaiseInfo(); }
    void operator()(const aprs::UserDefined&) { RaiseInfo(); }
    void operator()(const aprs::TestData&) { RaiseInfo(); }

private:
    template <class Event>
    void Raise(Event event)
    {
        if (!m_bStopped)
            event();
    }

    std::string_view WordOf(const aprs::PositionReport& report) const;
    void RaisePosition(std::string_view call, const aprs::PositionReport& report);
    void RaisePositionExt(std::string_view call, const aprs::PositionReport& report);
    void RaiseReach(std::string_view call, const aprs::PositionReport& report);
    void RaiseTime(std::string_view call, const aprs::PositionReport& report);
    void RaiseWeather(std::string_view call, const aprs::PositionReport& report);
    void RaiseWeatherValues(std::string_view call, double lat, double lon, const aprs::Weather& weather);
    void RaiseInfo();
    void RaiseMessage(std::string_view to, std::string_view text, std::string_view number);
    void RaiseNumberWord(std::string_view to, std::string_view word, std::string_view number);

    const aprs::Packet& m_packet;
    const aprs::Header& m_header;
    IReportSink& m_sink;
    const bool& m_bStopped;
    const bool m_bClean;
};

std::string_view EventRaiser::WordOf(const aprs::PositionReport& report) const
{
    if (report.position.form == aprs::PositionForm::Nmea && !aprs::DestinationSymbol(m_header.dest)) {
        const auto symbol = aprs::SsidSymbol(m_header.source);
        return symbol ? SymbolWord(*symbol) : SymbolWord({'/', ')'});
    }
    return SymbolWord(report.position.symbol);
}

void EventRaiser::RaisePosition(std::string_view call, const aprs::PositionReport& report)
{
    Raise([&] {
        const CommentText comment(report.comment);
        const EventText clean(comment, m_bClean);
        m_sink.ReportPos({call, m_header.dest, m_header.path, Degrees(report.position.latitude),
                          Degrees(report.position.longitude), WordOf(report), clean});
    });
    RaisePositionExt(call, report);
    RaiseReach(call, report);
    RaiseTime(call, report);
}

// Course and speed of a weather station are its wind.
void EventRaiser::RaisePositionExt(std::string_view call, const aprs::PositionReport& report)
{
    const bool bMoves = !report.weather && (report.speed || report.course);
    if (!report.altitude && !bMoves)
        return;
    Raise([&] {
        m_sink.ReportPosExt({call, m_header.dest, Degrees(report.position.latitude), Degrees(report.position.longitude),
                             ValueOr(report.altitude), bMoves ? ValueOr(report.speed) : kAbsent,
                             bMoves ? ValueOr(report.course) : kAbsent});
    });
}

void EventRaiser::RaiseReach(std::string_view call, const aprs::PositionReport& report)
{
    if (!report.reach)
        return;
    Raise([&] {
        const aprs::Reach& reach = *report.reach;
        m_sink.ReportDataExt({call, m_header.dest, Degrees(report.position.latitude),
                              Degrees(report.position.longitude), reach.power.value_or(kAbsentLong),
                              reach.height.value_or(kAbsentLong), reach.gain, reach.directivity});
    });
}

void EventRaiser::RaiseTime(std::string_view call, const aprs::PositionReport& report)
{
    const aprs::TimeStamp& time = report.time;
    if (!time.IsGiven())
        return;
    Raise([&] {
        TimeReport event{};
        event.call = call;
        event.dest = m_header.dest;
        event.lat = Degrees(report.position.latitude);
        event.lon = Degrees(report.position.longitude);
        const bool bDay = time.form == aprs::TimeForm::DayHourMinute;
        event.day = bDay ? time.day : kAbsentLong;
        event.hour = time.hour;
        event.minute = time.minute;
        event.second = bDay ? kAbsentLong : time.second;
        event.zone = ZoneText(time);
        event.kind = kPositions;
        m_sink.ReportTime(event);
    });
}

void EventRaiser::RaiseWeather(std::string_view call, const aprs::PositionReport& report)
{
    if (report.weather) {
        RaiseWeatherValues(call, Degrees(report.position.latitude), Degrees(report.position.longitude),
                           *report.weather);
    }
}

void EventRaiser::RaiseWeatherValues(std::string_view call, double lat, double lon, const aprs::Weather& weather)
{
    Raise([&] {
        WeatherReport event{};
        event.call = call;
        event.dest = m_header.dest;
        event.path = m_header.path;
        event.lat = lat;
        event.lon = lon;
        if (weather.windDirection)
            event.windDir = static_cast<std::int32_t>(std::lround(*weather.windDirection));
        event.windSpeed = Figure(weather.gust ? weather.gust : weather.windSpeed);
        event.temperature = Figure(weather.temperature);
        event.rain = Figure(weather.rainDay ? weather.rainDay : weather.rainMidnight);
        event.humidity = Figure(weather.humidity);
        event.pressure = Figure(weather.pressure);
        m_sink.ReportWeather(event);
    });
}

void EventRaiser::operator()(const aprs::ObjectReport& object)
{
    const EventText name(object.name, m_bClean);
    if (object.name.empty()) {
        RaiseUndecoded(); // A name of blanks only: heard on the air, but there is nothing to file it under.
        return;
    }
    if (object.bAlive) {
        RaisePosition(name, object.report);
        RaiseWeather(name, object.report);
    }
    Raise([&] {
        m_sink.ReportObjectItem({name, m_header.dest, Degrees(object.report.position.latitude),
                                 Degrees(object.report.position.longitude), m_header.source, object.bAlive ? 1 : 0});
    });
}

void EventRaiser::operator()(const aprs::WeatherReport& report)
{
    RaiseWeatherValues(m_header.source, kNoPosition, kNoPosition, report.weather);
    const aprs::TimeStamp& time = report.time;
    if (!time.IsGiven())
        return;
    Raise([&] {
        m_sink.ReportTime({m_header.source, m_header.dest, kNoPosition, kNoPosition, time.month, time.day, time.hour,
                           time.minute, kAbsentLong, ZoneText(time), kWeather});
    });
}

void EventRaiser::operator()(const aprs::StatusReport& status)
{
    Raise([&] {
        const EventText text(status.text, m_bClean);
        m_sink.ReportStatus({m_header.source, m_header.dest, m_header.path,
                             status.grid ? Degrees(status.grid->latitude) : kNoPosition,
                             status.grid ? Degrees(status.grid->longitude) : kNoPosition, text});
    });
    if (!status.time.IsGiven())
        return;
    Raise([&] {
        m_sink.ReportStatusTime({m_header.source, m_header.dest, status.time.day, status.time.hour, status.time.minute,
                                 ZoneText(status.time)});
    });
}

void EventRaiser::operator()(const aprs::GridBeacon& beacon)
{
    Raise([&] {
        const EventText comment(beacon.comment, m_bClean);
        m_sink.ReportPos({m_header.source, m_header.dest, m_header.path, Degrees(beacon.grid.latitude),
                          Degrees(beacon.grid.longitude), SymbolWord({'/', ')'}), comment});
    });
}

void EventRaiser::RaiseMessage(std::string_view to, std::string_view text, std::string_view number)
{
    Raise([&] {
        const EventText clean(text, m_bClean);
        m_sink.ReportAprsMsg({m_header.source, m_header.dest, m_header.path, to, clean, number});
    });
}

// Acknowledgements and rejections are messages of a word and the number it is about.
void EventRaiser::RaiseNumberWord(std::string_view to, std::string_view word, std::string_view number)
{
    std::array<char, kMaxAckText> store{};
    char* const end = std::copy(number.begin(), number.end(), std::copy(word.begin(), word.end(), store.data()));
    RaiseMessage(to, {store.data(), static_cast<std::size_t>(end - store.data())}, {});
}

void EventRaiser::operator()(const aprs::Message& message)
{
    switch (message.kind) {
    case aprs::MessageKind::Acknowledgement:
        RaiseNumberWord(message.addressee, "ack", message.ack);
        break;
    case aprs::MessageKind::Rejection:
        RaiseNumberWord(message.addressee, "rej", message.rejected);
        break;
    case aprs::MessageKind::TelemetryDefinition:
        RaiseInfo();
        break;
    case aprs::MessageKind::Text:
    case aprs::MessageKind::Bulletin:
        RaiseMessage(message.addressee, message.text, message.id);
        if (!message.ack.empty())
            RaiseNumberWord(message.addressee, "ack", message.ack); // A reply that acknowledges an earlier message.
        break;
    }
}

void EventRaiser::operator()(const aprs::Capabilities& capabilities)
{
    Raise([&] {
        const EventText text(capabilities.text, m_bClean);
        m_sink.ReportCapabilities({m_header.source, m_header.dest, m_header.path, text});
    });
}

void EventRaiser::RaiseInfo()
{
    Raise([&] {
        const EventText info(m_packet.info, m_bClean);
        m_sink.ReportInfo({m_header.source, m_header.dest, m_header.path, info});
    });
}

} // namespace

void RaisePacketEvents(const aprs::Packet& packet, RawData rawData, IReportSink& sink, const bool& bStopped)
{
    EventRaiser raiser(packet, sink, bStopped);
    if (rawData == RawData::Yes)
        raiser.RaiseRaw();
    std::visit(raiser, packet.body);
}

} // namespace ruvenmark
