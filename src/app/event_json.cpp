#include "app/event_json.h"

#include "platform/numbers.h"
#include "platform/text.h"

#include <cmath>
#include <utility>

namespace ruvenmark {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kDecimals = 6;

// An event under construction; arguments in their order.
class Event {
public:
    explicit Event(std::string_view name) { m_json["event"] = name; }

    Event& Text(const char* key, std::string_view text)
    {
        m_json[key] = ShownText(text);
        return *this;
    }
    Event& Number(const char* key, double value)
    {
        const double rounded = RoundDecimals(value, kDecimals);
        m_json[key] = rounded;
        if (std::abs(rounded) < 1e15 && rounded == std::trunc(rounded))
            m_json[key] = static_cast<std::int64_t>(rounded);
        return *this;
    }
    Event& Place(double lat, double lon) { return Number("Lat", lat).Number("Lon", lon); }
    Event& Flag(const char* key, bool value)
    {
        m_json[key] = value;
        return *this;
    }
    const Json& Done() const { return m_json; }

private:
    Json m_json;
};

// What an event of a station begins with; not every one has a path and a position.
template <typename Report>
Event Head(std::string_view name, const Report& report)
{
    Event event(name);
    event.Text("Call", report.call).Text("Dest", report.dest);
    if constexpr (requires { report.path; })
        event.Text("Path", report.path);
    if constexpr (requires { report.lat; })
        event.Place(report.lat, report.lon);
    return event;
}

} // namespace

EventJsonSink::EventJsonSink(std::function<void(const nlohmann::ordered_json&)> onEvent) : m_onEvent(std::move(onEvent))
{
}

void EventJsonSink::ReportPos(const PosReport& report)
{
    m_onEvent(Head("ReportPos", report).Text("Symbol", report.symbol).Text("Comment", report.comment).Done());
}

void EventJsonSink::ReportPacket(std::string_view packet)
{
    m_onEvent(Event("ReportPacket").Text("Packet", packet).Done());
}

void EventJsonSink::ReportTime(const TimeReport& report)
{
    Event event = Head("ReportTime", report);
    event.Number("Month", report.month).Number("Day", report.day).Number("Hour", report.hour);
    event.Number("Minute", report.minute).Number("Second", report.second);
    m_onEvent(event.Text("Zone", report.zone).Text("Kind", report.kind).Done());
}

void EventJsonSink::ReportDataExt(const DataExtReport& report)
{
    Event event = Head("ReportDataExt", report);
    event.Number("Power", report.power).Number("Height", report.height).Number("Gain", report.gain);
    m_onEvent(event.Text("Directivity", report.directivity).Done());
}

void EventJsonSink::ReportPosExt(const PosExtReport& report)
{
    Event event = Head("ReportPosExt", report);
    event.Number("Altitude", report.altitude).Number("Speed", report.speed).Number("Course", report.course);
    m_onEvent(event.Done());
}

void EventJsonSink::ReportStatus(const StatusReport& report)
{
    m_onEvent(Head("ReportStatus", report).Text("Status", report.status).Done());
}

void EventJsonSink::ReportStatusTime(const StatusTimeReport& report)
{
    Event event = Head("ReportStatusTime", report);
    event.Number("Day", report.day).Number("Hour", report.hour).Number("Minute", report.minute);
    m_onEvent(event.Text("Zone", report.zone).Done());
}

void EventJsonSink::ReportInfo(const InfoReport& report)
{
    m_onEvent(Head("ReportInfo", report).Text("Info", report.info).Done());
}

void EventJsonSink::ReportWeather(const WeatherReport& report)
{
    Event event = Head("ReportWeather", report);
    event.Number("WindDir", report.windDir).Number("WindSpeed", report.windSpeed);
    event.Number("Temperature", report.temperature).Number("Rain", report.rain);
    m_onEvent(event.Number("Humidity", report.humidity).Number("Pressure", report.pressure).Done());
}

void EventJsonSink::ReportCapabilities(const CapabilitiesReport& report)
{
    m_onEvent(Head("ReportCapabilities", report).Text("Capabilities", report.capabilities).Done());
}

void EventJsonSink::ReportAprsMsg(const MessageReport& report)
{
    Event event("ReportAprsMsg");
    event.Text("Source", report.source).Text("Dest", report.dest).Text("Path", report.path).Text("To", report.to);
    m_onEvent(event.Text("Text", report.text).Text("MessageNumber", report.messageNumber).Done());
}

void EventJsonSink::SocketConnected()
{
    m_onEvent(Event("SocketConnected").Done());
}

void EventJsonSink::SocketConnectionError()
{
    m_onEvent(Event("SocketConnectionError").Done());
}

void EventJsonSink::SocketConnectionClosed()
{
    m_onEvent(Event("SocketConnectionClosed").Done());
}

void EventJsonSink::ServerConnectionError()
{
    m_onEvent(Event("ServerConnectionError").Done());
}

void EventJsonSink::ReportObjectItem(const ObjectItemReport& report)
{
    Event event("ReportObjectItem");
    event.Text("Name", report.name).Text("Dest", report.dest).Place(report.lat, report.lon);
    m_onEvent(event.Text("Sender", report.sender).Number("State", report.state).Done());
}

void EventJsonSink::ReportGpsData(const GpsReport& report)
{
    Event event("ReportGpsData");
    event.Place(report.lat, report.lon).Number("Altitude", report.altitude);
    m_onEvent(event.Number("Course", report.course).Number("Speed", report.speed).Flag("Valid", report.bValid).Done());
}

void EventJsonSink::ReportRawData(std::string_view packet)
{
    m_onEvent(Event("ReportRawData").Text("Packet", packet).Done());
}

} // namespace ruvenmark
