#include "platform/map_control.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/map_document.h"
#include "platform/map_extent.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ruvenmark {

namespace {

std::size_t ToolbarPlace(std::int32_t index)
{
    if (index < 1 || index > 4)
        throw Failure("no such map tool bar");
    return static_cast<std::size_t>(index) - 1;
}

template <typename Value>
std::vector<Value> OldestFirst(const SlotPool<Value>& pool)
{
    std::vector<SlotRef> refs;
    for (std::size_t slot = 0; slot < pool.SlotCount(); ++slot)
        if (pool.At(slot))
            refs.push_back(pool.RefAt(slot));
    std::sort(refs.begin(), refs.end(), [](SlotRef a, SlotRef b) { return a.id < b.id; });
    std::vector<Value> values;
    values.reserve(refs.size());
    for (const SlotRef ref : refs)
        values.push_back(*pool.At(ref.slot));
    return values;
}

// What a file of another program shows is all that is in it; one with nothing in it shows the region.
void ShowDocument(Map& map, const MapDocument& document)
{
    MapView view = map.View();
    const auto places = PlacesOf(document);
    if (document.centre) {
        view.centre = *document.centre;
        view.zoom = document.zoom;
    } else if (!places.empty()) {
        view = ViewOfAll(places, view);
    }
    map.SetView(view.centre, view.zoom);
}

} // namespace

Pushpin AddPin(Map& map, const PinData& pin)
{
    Pushpin added = map.AddPushpin(map.GetLocation(pin.point.lat, pin.point.lon), pin.name);
    added.SetNote(pin.note);
    added.SetSymbol(pin.symbol);
    added.SetBalloonState(pin.balloonState);
    return added;
}

Shape AddShape(Map& map, const ShapeData& shape)
{
    const Location from = map.GetLocation(shape.from.lat, shape.from.lon);
    Shape added = shape.kind == ShapeData::Kind::Line
                      ? map.AddLine(from, map.GetLocation(shape.to.lat, shape.to.lon))
                      : map.AddShape(kShapeRadiusCircle, from, shape.width, shape.height);
    added.SetForeColor(shape.foreColor);
    added.SetVisible(shape.bVisible);
    added.SetWeight(shape.weight);
    added.SetBeginArrowhead(shape.bBeginArrowhead);
    added.SetEndArrowhead(shape.bEndArrowhead);
    return added;
}

void MapControl::SetNoteMaker(std::unique_ptr<INoteMaker> maker)
{
    if (m_map)
        m_map->SetNoteMaker(maker.get());
    m_noteMaker = std::move(maker);
}

Map& MapControl::RequireMap() const
{
    if (!m_map)
        throw Failure("there is no map");
    return *m_map;
}

Map& MapControl::StartMap(std::int32_t region)
{
    if (!IsMapRegion(region))
        throw Failure("no such map region");
    if (!m_map)
        m_map = std::make_unique<Map>();
    m_map->SetNoteMaker(m_noteMaker.get());
    m_region = region;
    m_map->Replace(region);
    return *m_map;
}

void MapControl::NewMap(std::int32_t region)
{
    StartMap(region);
    Replaced.Raise();
}

void MapControl::OpenMap(std::string_view path)
{
    const MapDocument document = ReadMapDocument(m_files.ReadText(path, FileKind::Map));
    Map& map = StartMap(document.region.value_or(IsMapRegion(m_region) ? m_region : kRegionNorthAmerica));
    for (const PinData& pin : document.pins)
        AddPin(map, pin);
    for (const ShapeData& shape : document.shapes)
        AddShape(map, shape);
    map.SetMapStyle(document.style);
    map.SetMapFont(document.font);
    ShowDocument(map, document);
    map.SetSaved(true);
    Replaced.Raise();
}

void MapControl::SaveMapAs(std::string_view path)
{
    Map& map = RequireMap();
    MapDocument document = EmptyDocument();
    document.pins = OldestFirst(map.Pins());
    for (PinData& pin : document.pins)
        map.SettleNote(pin);
    document.shapes = OldestFirst(map.Shapes());
    m_files.WriteText(WriteMapDocument(document), path, FileKind::Map);
    map.SetSaved(true);
}

MapDocument MapControl::EmptyDocument() const
{
    const Map& map = RequireMap();
    MapDocument document;
    document.region = m_region;
    document.style = map.MapStyle();
    document.font = map.MapFont();
    document.centre = map.View().centre;
    document.zoom = map.View().zoom;
    return document;
}

bool MapControl::ToolbarVisible(std::int32_t index) const
{
    return m_toolbars[ToolbarPlace(index)];
}

void MapControl::SetToolbarVisible(std::int32_t index, bool bVisible)
{
    if (std::exchange(m_toolbars[ToolbarPlace(index)], bVisible) != bVisible)
        ControlChanged.Raise();
}

void MapControl::SetItineraryVisible(bool bVisible)
{
    if (std::exchange(m_bItineraryVisible, bVisible) != bVisible)
        ControlChanged.Raise();
}

void MapControl::SetMousePointer(std::int32_t pointer)
{
    if (std::exchange(m_mousePointer, pointer) != pointer)
        ControlChanged.Raise();
}

} // namespace ruvenmark
