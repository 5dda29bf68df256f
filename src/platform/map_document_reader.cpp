#include "platform/failure.h"
#include "platform/map_document.h"
#include "platform/map_document_members.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace ruvenmark {

namespace {

// Objects are sorted maps here, so that a file of a million members costs no square of it.
using InJson = nlohmann::json;

constexpr double kMaxWeight = 100; // Pixels.
constexpr double kNoLimit = std::numeric_limits<double>::max();

[[noreturn]] void Refuse(const std::string& reason)
{
    throw Failure("this is no map file: " + reason);
}

// Null where it is missing.
const InJson* Member(const InJson& object, const char* name)
{
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

const InJson& Required(const InJson& object, const char* name)
{
    if (const InJson* member = Member(object, name))
        return *member;
    Refuse(std::string("\"") + name + "\" is missing");
}

double Number(const InJson& value, const char* name, double least, double most)
{
    const double number = value.is_number() ? value.get<double>() : std::nan("");
    if (!(number >= least && number <= most))
        Refuse(std::string("\"") + name + "\" is no number of its range");
    return number;
}

void GetNumber(const InJson& object, const char* name, double& number)
{
    if (const InJson* member = Member(object, name))
        number = Number(*member, name, -kNoLimit, kNoLimit);
}

template <typename Whole>
void GetWhole(const InJson& object, const char* name, Whole& whole, Whole least = std::numeric_limits<Whole>::min(),
              Whole most = std::numeric_limits<Whole>::max())
{
    const InJson* member = Member(object, name);
    if (!member)
        return;
    const double number = Number(*member, name, least, most);
    if (number != std::trunc(number))
        Refuse(std::string("\"") + name + "\" is no whole number");
    whole = static_cast<Whole>(number);
}

void GetFlag(const InJson& object, const char* name, bool& flag)
{
    const InJson* member = Member(object, name);
    if (member && !member->is_boolean())
        Refuse(std::string("\"") + name + "\" is neither true nor false");
    if (member)
        flag = member->get<bool>();
}

// A text of U+0000 to U+00FF as one byte a character.
std::string BytesOf(const std::string& latin1)
{
    std::string bytes;
    for (std::size_t i = 0; i < latin1.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(latin1[i]);
        if (byte < 0x80) {
            bytes += latin1[i];
        } else if (byte <= 0xC3) {
            ++i;
            bytes += static_cast<char>(((byte & 0x03U) << 6U) | (static_cast<std::uint8_t>(latin1[i]) & 0x3FU));
        } else {
            Refuse("a text of bytes holds a character that is none");
        }
    }
    return bytes;
}

void GetText(const InJson& properties, const char* name, std::string& text)
{
    const InJson* member = Member(properties, name);
    if (!member)
        return;
    if (!member->is_string())
        Refuse(std::string("\"") + name + "\" is no text");
    text = member->get<std::string>();
    const InJson* bytes = Member(properties, kLatin1);
    if (bytes && bytes->is_array() && std::find(bytes->begin(), bytes->end(), name) != bytes->end())
        text = BytesOf(text);
}

void GetColor(const InJson& properties, const char* name, std::uint32_t& color)
{
    std::string text;
    GetText(properties, name, text);
    if (text.empty())
        return;
    if (text.size() != 7 || text[0] != '#' || text.find_first_not_of("0123456789abcdefABCDEF", 1) != std::string::npos)
        Refuse(std::string("\"") + name + "\" is no colour");
    std::uint32_t rgb = 0;
    std::from_chars(text.data() + 1, text.data() + text.size(), rgb, 16);
    color = ((rgb & 0xFFU) << 16U) | (rgb & 0xFF00U) | (rgb >> 16U);
}

// Longitude first; an altitude behind is passed over.
GeoPoint ReadPosition(const InJson& position)
{
    if (!position.is_array() || position.size() < 2)
        Refuse("a position is no list of two numbers");
    return {Number(position[1], "latitude", -90, 90), Number(position[0], "longitude", -180, 180)};
}

PinData ReadPin(const InJson& coordinates, const InJson& properties)
{
    PinData pin;
    pin.point = ReadPosition(coordinates);
    GetText(properties, "name", pin.name);
    GetText(properties, "note", pin.note);
    GetWhole(properties, "symbol", pin.symbol);
    GetWhole(properties, "balloon", pin.balloonState);
    return pin;
}

// Other programs write parts of pixels, and a line as broad as the window only costs time.
void GetWeight(const InJson& properties, const char* name, std::int32_t& weight)
{
    double pixels = weight;
    GetNumber(properties, name, pixels);
    weight = static_cast<std::int32_t>(std::nearbyint(std::clamp(pixels, 0.0, kMaxWeight)));
}

void ReadStroke(const InJson& properties, ShapeData& shape)
{
    GetColor(properties, "stroke", shape.foreColor);
    GetWeight(properties, "stroke-width", shape.weight);
    GetFlag(properties, "visible", shape.bVisible);
    GetFlag(properties, "beginArrow", shape.bBeginArrowhead);
    GetFlag(properties, "endArrow", shape.bEndArrowhead);
}

ShapeData ReadLine(const InJson& coordinates, const InJson& properties)
{
    if (!coordinates.is_array() || coordinates.size() != 2)
        Refuse("a line has not two ends");
    ShapeData line;
    line.from = ReadPosition(coordinates[0]);
    line.to = ReadPosition(coordinates[1]);
    ReadStroke(properties, line);
    return line;
}

ShapeData ReadCircle(const InJson& coordinates, const InJson& properties)
{
    ShapeData circle;
    circle.kind = ShapeData::Kind::Circle;
    circle.from = circle.to = ReadPosition(coordinates);
    GetNumber(properties, "radiusMiles", circle.width);
    circle.height = circle.width;
    GetNumber(properties, "heightMiles", circle.height);
    ReadStroke(properties, circle);
    return circle;
}

void ReadFeature(const InJson& feature, MapDocument& document)
{
    if (!feature.is_object())
        Refuse("a feature is no object");
    const InJson& geometry = Required(feature, "geometry");
    if (!geometry.is_object())
        Refuse("a feature has no place");
    const InJson& coordinates = Required(geometry, "coordinates");
    const InJson* given = Member(feature, "properties");
    const InJson none = InJson::object();
    const InJson& properties = given && given->is_object() ? *given : none;

    const InJson& type = Required(geometry, "type");
    if (type == "LineString")
        document.shapes.push_back(ReadLine(coordinates, properties));
    else if (type != "Point")
        Refuse("a feature is neither a point nor a line");
    else if (Member(properties, "radiusMiles"))
        document.shapes.push_back(ReadCircle(coordinates, properties));
    else
        document.pins.push_back(ReadPin(coordinates, properties));
}

void ReadOwnMember(const InJson& own, MapDocument& document)
{
    if (!own.is_object())
        Refuse(std::string("\"") + kOwnMember + "\" is no object");
    if (own.contains("region"))
        GetWhole(own, "region", document.region.emplace(), kRegionNorthAmerica, kRegionEurope);
    GetWhole(own, "style", document.style, 0, kLastMapStyle);
    GetWhole(own, "font", document.font, 0, kLastMapFont);
    if (const InJson* centre = Member(own, "centre"))
        document.centre = ReadPosition(*centre);
    GetNumber(own, "zoom", document.zoom);
}

InJson ParseJson(std::string_view text)
{
    try {
        return InJson::parse(text);
    } catch (const InJson::parse_error& error) {
        Refuse("it is no JSON text from byte " + std::to_string(error.byte) + " on");
    } catch (const InJson::out_of_range&) {
        Refuse("a number in it is larger than any place or size");
    }
}

} // namespace

MapDocument ReadMapDocument(std::string_view text)
{
    const InJson root = ParseJson(text);
    if (!root.is_object() || Required(root, "type") != "FeatureCollection")
        Refuse("it is no collection of features");
    MapDocument document;
    if (const InJson* own = Member(root, kOwnMember))
        ReadOwnMember(*own, document);
    const InJson& features = Required(root, "features");
    if (!features.is_array())
        Refuse("its features are no list");
    for (const InJson& feature : features)
        ReadFeature(feature, document);
    return document;
}

} // namespace ruvenmark
