#include "app/packet_json.h"

#include "aprs/area.h"
#include "aprs/bearing.h"
#include "aprs/comment_telemetry.h"
#include "aprs/destination_device.h"
#include "aprs/frequency.h"
#include "aprs/messaging.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace ruvenmark {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kDegreeDecimals = 6; // A tenth of a metre.
constexpr int kValueDecimals = 2;
constexpr int kFrequencyDecimals = 6; // A hertz.

void PutText(Json& json, const char* key, std::string_view text)
{
    if (!text.empty())
        json[key] = ShownText(text);
}

void PutNumber(Json& json, const char* key, const std::optional<double>& value, int decimals = kValueDecimals)
{
    if (value) {
        const double rounded = RoundDecimals(*value, decimals);
        if (rounded == static_cast<double>(static_cast<std::int64_t>(rounded)))
            json[key] = static_cast<std::int64_t>(rounded);
        else
            json[key] = rounded;
    }
}

void PutPlace(Json& json, double latitude, double longitude)
{
    json["lat"] = RoundDecimals(latitude, kDegreeDecimals);
    json["lon"] = RoundDecimals(longitude, kDegreeDecimals);
}

void PutTime(Json& json, const aprs::TimeStamp& time)
{
    PutText(json, "time", time.text);
    if (time.IsBad())
        json["warning"] = "bad time stamp";
}

void PutReach(Json& json, const aprs::Reach& reach)
{
    PutText(json, reach.bDirectionFinding ? "dfs" : "phg", reach.digits);
    if (reach.power)
        json["power"] = *reach.power;
    if (reach.height)
        json["height"] = *reach.height;
    json["gain"] = reach.gain;
    PutText(json, "directivity", reach.directivity);
}

void PutFrequency(Json& json, std::string_view comment)
{
    const auto frequency = aprs::FindFrequency(comment);
    if (!frequency)
        return;
    PutNumber(json, "frequency_mhz", frequency->megahertz, kFrequencyDecimals);
    PutNumber(json, "tone_hz", frequency->tone);
    PutText(json, "dcs", frequency->digitalCode);
    PutNumber(json, "offset_mhz", frequency->offset, kFrequencyDecimals);
}

void PutBearing(Json& json, const aprs::PositionReport& report)
{
    if (const auto bearing = aprs::FindBearing(report)) {
        json["bearing"] = bearing->degrees;
        json["bearing_hits"] = bearing->hits;
        json["bearing_range_miles"] = bearing->rangeMiles;
        json["bearing_accuracy"] = bearing->accuracy;
    }
}

void PutArea(Json& json, const aprs::PositionReport& report)
{
    if (const auto area = aprs::FindArea(report)) {
        json["area"] = area->shape;
        json["area_colour"] = area->colour;
        PutNumber(json, "area_lat", area->latitude, kDegreeDecimals);
        PutNumber(json, "area_lon", area->longitude, kDegreeDecimals);
        if (area->width)
            json["area_width_miles"] = *area->width;
    }
}

template <class Values>
Json NumberList(const Values& values)
{
    Json list = Json::array();
    for (const auto& value : values)
        list.push_back(value ? Json(*value) : Json(nullptr));
    return list;
}

void PutCommentTelemetry(Json& json, std::string_view digits)
{
    if (digits.empty())
        return;
    const aprs::CommentTelemetry telemetry = aprs::ReadCommentTelemetry(digits);
    PutText(json, "telemetry", digits);
    json["telemetry_sequence"] = telemetry.sequence;
    json["telemetry_values"] = NumberList(telemetry.values);
    if (telemetry.bits)
        json["telemetry_bits"] = *telemetry.bits;
}

void PutWeather(Json& json, const aprs::Weather& weather)
{
    PutNumber(json, "wind_direction", weather.windDirection);
    PutNumber(json, "wind_mph", weather.windSpeed);
    PutNumber(json, "gust_mph", weather.gust);
    PutNumber(json, "temperature_f", weather.temperature);
    PutNumber(json, "rain_1h_in", weather.rainHour);
    PutNumber(json, "rain_24h_in", weather.rainDay);
    PutNumber(json, "rain_midnight_in", weather.rainMidnight);
    PutNumber(json, "snow_24h_in", weather.snowDay);
    PutNumber(json, "humidity", weather.humidity);
    PutNumber(json, "pressure_mbar", weather.pressure);
    PutNumber(json, "luminosity_wm2", weather.luminosity);
}

class BodyWriter {
public:
    explicit BodyWriter(Json& json) : m_json(json) {}

    void operator()(const std::monostate&) {}
    void operator()(const aprs::PositionReport& report)
    {
        const aprs::Position& position = report.position;
        PutPlace(m_json, position.latitude, position.longitude);
        if (position.ambiguity > 0)
            m_json["ambiguity"] = position.ambiguity;
        m_json["symbol"] = std::string{position.symbol.table, position.symbol.code};
        PutNumber(m_json, "course", report.course);
        PutNumber(m_json, "speed_knots", report.speed);
        PutNumber(m_json, "altitude_ft", report.altitude);
        if (report.reach)
            PutReach(m_json, *report.reach);
        PutNumber(m_json, "range_miles", report.range);
        PutTime(m_json, report.time);
        PutText(m_json, "mic_e_status", report.micEStatus);
        PutBearing(m_json, report);
        PutArea(m_json, report);
        PutCommentTelemetry(m_json, report.telemetry);
        const std::string comment = report.comment.ToString();
        PutFrequency(m_json, comment);
        PutText(m_json, "comment", comment);
        if (report.weather)
            PutWeather(m_json, *report.weather);
    }
    void operator()(const aprs::ObjectReport& object)
    {
        (*this)(object.report);
        m_json["name"] = ShownText(object.name);
        m_json["alive"] = object.bAlive;
    }
    void operator()(const aprs::WeatherReport& report)
    {
        PutTime(m_json, report.time);
        PutText(m_json, "comment", report.comment);
        PutWeather(m_json, report.weather);
    }
    void operator()(const aprs::StatusReport& status)
    {
        if (status.grid)
            PutPlace(m_json, status.grid->latitude, status.grid->longitude);
        PutTime(m_json, status.time);
        m_json["status"] = ShownText(status.text);
        if (status.grid)
            PutText(m_json, "grid", status.grid->locator);
    }
    void operator()(const aprs::GridBeacon& beacon)
    {
        PutPlace(m_json, beacon.grid.latitude, beacon.grid.longitude);
        PutText(m_json, "comment", beacon.comment);
        PutText(m_json, "grid", beacon.grid.locator);
    }
    void operator()(const aprs::Message& message)
    {
        m_json["addressee"] = ShownText(message.addressee);
        PutText(m_json, "text", message.text);
        PutText(m_json, "id", message.id);
        PutText(m_json, "ack", message.ack);
        PutText(m_json, "rej", message.rejected);
    }
    void operator()(const aprs::Telemetry& telemetry)
    {
        PutText(m_json, "sequence", telemetry.sequence);
        m_json["values"] = NumberList(telemetry.values);
        PutText(m_json, "bits", telemetry.bits);
        PutText(m_json, "comment", telemetry.comment);
    }
    void operator()(const aprs::Capabilities& capabilities) { PutText(m_json, "capabilities", capabilities.text); }
    void operator()(const aprs::Query& query) { PutText(m_json, "query", query.text); }
    void operator()(const aprs::UserDefined& data)
    {
        PutText(m_json, "user_id", data.id);
        PutText(m_json, "text", data.data);
    }
    void operator()(const aprs::TestData& data) { PutText(m_json, "text", data.text); }

private:
    Json& m_json;
};

std::string_view MessageTypeName(aprs::MessageKind kind)
{
    switch (kind) {
    case aprs::MessageKind::Acknowledgement:
        return "ack";
    case aprs::MessageKind::Rejection:
        return "reject";
    case aprs::MessageKind::Bulletin:
        return "bulletin";
    case aprs::MessageKind::TelemetryDefinition:
        return "telemetry-definition";
    case aprs::MessageKind::Text:
        break;
    }
    return "message";
}

struct TypeName {
    std::string_view operator()(const std::monostate&) const { return "undecoded"; }
    std::string_view operator()(const aprs::PositionReport& report) const
    {
        return report.weather ? "weather" : "position";
    }
    std::string_view operator()(const aprs::ObjectReport& object) const { return object.bItem ? "item" : "object"; }
    std::string_view operator()(const aprs::WeatherReport&) const { return "weather"; }
    std::string_view operator()(const aprs::StatusReport&) const { return "status"; }
    std::string_view operator()(const aprs::GridBeacon&) const { return "grid"; }
    std::string_view operator()(const aprs::Message& message) const { return MessageTypeName(message.kind); }
    std::string_view operator()(const aprs::Telemetry&) const { return "telemetry"; }
    std::string_view operator()(const aprs::Capabilities&) const { return "capabilities"; }
    std::string_view operator()(const aprs::Query&) const { return "query"; }
    std::string_view operator()(const aprs::UserDefined&) const { return "user-defined"; }
    std::string_view operator()(const aprs::TestData&) const { return "test"; }
};

void PutHeader(Json& json, const aprs::Header& header)
{
    PutText(json, "source", header.source);
    PutText(json, "dest", header.dest);
    if (!header.source.empty())
        json["path"] = ShownText(header.path);
}

// By the text of Mic-E, whose destination is part of its position, else by the destination.
std::string_view DeviceOf(const aprs::Packet& packet)
{
    const auto* const report = std::get_if<aprs::PositionReport>(&packet.body);
    if (report != nullptr && report->position.form == aprs::PositionForm::MicE)
        return report->device;
    return packet.IsDecoded() ? aprs::DestinationDeviceName(packet.header.dest) : std::string_view();
}

} // namespace

std::string_view PacketTypeName(const aprs::Packet& packet)
{
    return std::visit(TypeName(), packet.body);
}

nlohmann::ordered_json PacketJson(const aprs::Packet& packet, std::string_view stamp)
{
    Json json;
    PutText(json, "log", stamp);
    json["line"] = ShownText(packet.line);
    json["ok"] = packet.IsDecoded();
    if (packet.IsDecoded())
        json["type"] = PacketTypeName(packet);
    PutHeader(json, packet.header);
    if (packet.relay)
        PutHeader(json["third_party"], *packet.relay);
    PutText(json, "device", DeviceOf(packet));
    if (aprs::TakesMessages(packet))
        json["messaging"] = true;
    std::visit(BodyWriter(json), packet.body);
    if (!packet.IsDecoded())
        json["error"] = RefusalText(packet.refusal);
    return json;
}

} // namespace ruvenmark
