#include "app/print_state.h"
#include "core/main_window.h"
#include "devices/line_counts.h"
#include "platform/text.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace ruvenmark {

namespace {

using Json = nlohmann::ordered_json;

Json NodeJson(const KeyedTree& tree, const TreeNode& node)
{
    Json json = {{"key", ShownText(node.Key())},
                 {"text", ShownText(node.Text())},
                 {"image", tree.Image(node)},
                 {"bold", node.IsBold()},
                 {"color", node.Color()}};
    Json children = Json::array();
    for (const auto& child : node.Children())
        children.push_back(NodeJson(tree, *child));
    json["children"] = std::move(children);
    return json;
}

Json TreeJson(const KeyedTree& tree)
{
    Json roots = Json::array();
    for (const auto& root : tree.Roots())
        roots.push_back(NodeJson(tree, *root));
    return roots;
}

Json MarkersJson(Map* map)
{
    Json markers = Json::array();
    if (!map)
        return markers;
    for (const Pushpin& pin : map->AllRecords()) {
        const GeoPoint at = pin.Location().Point();
        markers.push_back({{"name", ShownText(pin.Name())},
                           {"lat", at.lat},
                           {"lon", at.lon},
                           {"symbol", pin.Symbol()},
                           {"note", ShownText(pin.Note())},
                           {"balloon", pin.BalloonState()}});
    }
    return markers;
}

Json PointJson(GeoPoint point)
{
    return {{"lat", point.lat}, {"lon", point.lon}};
}

// The lines, or the circles, of the map.
Json ShapesJson(const Map* map, ShapeData::Kind kind)
{
    Json shapes = Json::array();
    for (std::size_t slot = 0; map && slot < map->Shapes().SlotCount(); ++slot) {
        const ShapeData* shape = map->Shapes().At(slot);
        if (!shape || shape->kind != kind)
            continue;
        Json json;
        if (kind == ShapeData::Kind::Line) {
            json = {{"from", PointJson(shape->from)},
                    {"to", PointJson(shape->to)},
                    {"begin_arrow", shape->bBeginArrowhead},
                    {"end_arrow", shape->bEndArrowhead}};
        } else {
            json = {{"centre", PointJson(shape->from)}, {"width", shape->width}, {"height", shape->height}};
        }
        json["weight"] = shape->weight;
        json["color"] = shape->foreColor;
        json["visible"] = shape->bVisible;
        shapes.push_back(std::move(json));
    }
    return shapes;
}

Json RecordsJson(const MainWindow& main)
{
    Json channels = Json::object();
    for (const ChannelState& state : main.channels) {
        Json records = Json::object();
        for (const auto& [call, record] : state.Stations) {
            Json& fields = records[ShownText(call)] = Json::object();
            for (const auto& [field, value] : record)
                fields[std::string(FieldName(field))] = ShownText(value);
        }
        channels[std::string(Traits(state.channel).word)] = std::move(records);
    }
    return channels;
}

Json CountsJson(const RunState& state)
{
    Json undecoded = Json::object();
    for (std::size_t i = 0; i < state.lines.undecoded.size(); ++i)
        if (state.lines.undecoded[i] > 0)
            undecoded[std::string(RefusalText(static_cast<aprs::Refusal>(i)))] = state.lines.undecoded[i];
    Json abandoned = Json::object();
    std::size_t abandonedSum = 0;
    for (const auto& [reason, count] : state.main.abandoned) {
        abandoned[reason] = count;
        abandonedSum += count;
    }
    return {{"decoded", state.lines.decoded},
            {"undecoded", state.lines.Undecoded()},
            {"undecoded_reasons", std::move(undecoded)},
            {"abandoned", abandonedSum},
            {"abandoned_reasons", std::move(abandoned)}};
}

} // namespace

void PrintJson(std::ostream& out, const RunState& state)
{
    Json json;
    json["tree"] = TreeJson(state.main.tvStationList);
    json["markers"] = MarkersJson(state.main.mpCtrl.ActiveMap());
    json["lines"] = ShapesJson(state.main.mpCtrl.ActiveMap(), ShapeData::Kind::Line);
    json["circles"] = ShapesJson(state.main.mpCtrl.ActiveMap(), ShapeData::Kind::Circle);
    json["records"] = RecordsJson(state.main);
    json["messages"] = Json::array();
    for (const std::string& message : state.messages)
        json["messages"].push_back(ShownText(message));
    json["counts"] = CountsJson(state);
    out << TerminalJson(json.dump(1, ' ', false, Json::error_handler_t::replace)) << '\n';
}

} // namespace ruvenmark
