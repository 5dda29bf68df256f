#include "platform/map_document.h"
#include "platform/map_document_members.h"
#include "platform/text.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <utility>

namespace ruvenmark {

namespace {

using OutJson = nlohmann::ordered_json;

OutJson PositionOf(GeoPoint point)
{
    return OutJson::array({point.lon, point.lat});
}

std::string ColorText(std::uint32_t color)
{
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", color & 0xFFU, (color >> 8U) & 0xFFU,
                  (color >> 16U) & 0xFFU);
    return text.data();
}

void PutText(OutJson& properties, const char* member, std::string_view text)
{
    properties[member] = ShownText(text);
    if (!IsUtf8(text))
        properties[kLatin1].push_back(member);
}

OutJson FeatureOf(const char* geometry, OutJson coordinates, OutJson properties)
{
    OutJson feature;
    feature["type"] = "Feature";
    feature["geometry"] = {{"type", geometry}, {"coordinates", std::move(coordinates)}};
    feature["properties"] = std::move(properties);
    return feature;
}

OutJson FeatureOf(const PinData& pin)
{
    OutJson properties = {{"kind", "pin"}};
    PutText(properties, "name", pin.name);
    PutText(properties, "note", pin.note);
    properties["symbol"] = pin.symbol;
    properties["balloon"] = pin.balloonState;
    return FeatureOf("Point", PositionOf(pin.point), std::move(properties));
}

OutJson FeatureOf(const ShapeData& shape)
{
    const bool bLine = shape.kind == ShapeData::Kind::Line;
    OutJson properties = {{"kind", bLine ? "line" : "circle"}};
    if (!bLine)
        properties["radiusMiles"] = shape.width;
    if (!bLine && shape.height != shape.width)
        properties["heightMiles"] = shape.height;
    properties["stroke"] = ColorText(shape.foreColor);
    properties["stroke-width"] = shape.weight;
    properties["visible"] = shape.bVisible;
    properties["beginArrow"] = shape.bBeginArrowhead;
    properties["endArrow"] = shape.bEndArrowhead;
    if (!bLine)
        return FeatureOf("Point", PositionOf(shape.from), std::move(properties));
    return FeatureOf("LineString", OutJson::array({PositionOf(shape.from), PositionOf(shape.to)}),
                     std::move(properties));
}

} // namespace

std::string WriteMapDocument(const MapDocument& document)
{
    OutJson own;
    if (document.region)
        own["region"] = *document.region;
    own["style"] = document.style;
    own["font"] = document.font;
    if (document.centre)
        own["centre"] = PositionOf(*document.centre);
    own["zoom"] = document.zoom;
    std::string text = "{\"type\":\"FeatureCollection\",\n";
    text += "\"" + std::string(kOwnMember) + "\":" + own.dump() + ",\n";
    text += "\"features\":[";
    const char* separator = "\n";
    const auto put = [&](const OutJson& feature) {
        text += separator;
        text += feature.dump();
        separator = ",\n";
    };
    for (const PinData& pin : document.pins)
        put(FeatureOf(pin));
    for (const ShapeData& shape : document.shapes)
        put(FeatureOf(shape));
    text += "\n]}\n";
    return text;
}

} // namespace ruvenmark
