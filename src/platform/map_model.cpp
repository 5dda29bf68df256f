#include "platform/map_model.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/text_hash.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

std::uint64_t Hash(std::string_view name)
{
    return TextHash(HashSeed(), name);
}

std::uint32_t ToFixed(double unit)
{
    return static_cast<std::uint32_t>(std::clamp(unit, 0.0, 0.9999999998) * 4294967296.0);
}

} // namespace

void Map::CheckSerial(const Location& location) const
{
    if (location.m_map != this || location.m_serial != m_serial)
        throw Failure("the location belongs to a map that is gone");
}

PinData& Map::Pin(SlotRef ref)
{
    if (PinData* pin = m_pins.Find(ref))
        return *pin;
    throw Failure("the marker is gone");
}

ShapeData& Map::ShapeOf(SlotRef ref)
{
    if (ShapeData* shape = m_shapes.Find(ref))
        return *shape;
    throw Failure("the shape is gone");
}

void Map::Touch()
{
    m_bSaved = false;
    Changed.Raise();
}

// Two halves of bringing the painters' copy of a pin up to date.
void Map::MarkPlace(SlotRef ref, const PinData& pin)
{
    const MercatorPoint at = ToMercator(pin.point);
    m_points[ref.slot].x = ToFixed(at.x);
    m_points[ref.slot].y = ToFixed(at.y);
}

void Map::MarkLook(SlotRef ref, const PinData& pin)
{
    PinPoint& point = m_points[ref.slot];
    point.symbol = pin.symbol;
    point.bBalloon = pin.balloonState != 0;
    point.bTrail = pin.name.ends_with(kTrailMark);
}

Location Map::GetLocation(double lat, double lon, double /*altitude*/)
{
    if (!(std::abs(lat) <= 90 && std::abs(lon) <= 180))
        throw Failure("the position is not on the earth");
    return {*this, m_serial, {lat, lon}};
}

double Map::Distance(const Location& from, const Location& to) const
{
    CheckSerial(from);
    CheckSerial(to);
    return GreatCircleMiles(from.Point(), to.Point());
}

std::optional<Pushpin> Map::FindPushpin(std::string_view name, SlotRef hint)
{
    const PinData* hinted = m_pins.Find(hint);
    if (hinted && hinted->name == name && IsOldestOfName(hint))
        return Pushpin(*this, hint);
    const std::uint32_t* oldest = OldestOfName(name);
    if (!oldest)
        return std::nullopt;
    return Pushpin(*this, m_pins.RefAt(*oldest));
}

void Map::Expect(SlotRef hint) const
{
    m_pins.Expect(hint.slot);
    if (hint.slot < m_points.size())
        ExpectMemory(&m_points[hint.slot], sizeof(PinPoint));
}

Pushpin Map::AddPushpin(const Location& location, std::string_view name)
{
    CheckSerial(location);
    const SlotRef ref = m_pins.Add({});
    PinData& pin = Pin(ref);
    pin.name = name;
    pin.point = location.Point();
    if (m_points.size() <= ref.slot)
        m_points.resize(ref.slot + 1);
    m_points[ref.slot].bLive = true;
    LinkName(ref);
    m_bPinEverAdded = true;
    MarkLook(ref, pin);
    MarkPlace(ref, pin);
    Touch();
    return {*this, ref};
}

Shape Map::AddLine(const Location& from, const Location& to)
{
    CheckSerial(from);
    CheckSerial(to);
    ShapeData line;
    line.from = from.Point();
    line.to = to.Point();
    const SlotRef ref = m_shapes.Add(line);
    Touch();
    return {*this, ref};
}

Shape Map::AddShape(std::int32_t type, const Location& centre, double width, double height)
{
    CheckSerial(centre);
    if (type != kShapeRadiusCircle || !std::isfinite(width) || !std::isfinite(height))
        throw Failure("no such shape");
    ShapeData circle;
    circle.kind = ShapeData::Kind::Circle;
    circle.from = circle.to = centre.Point();
    circle.width = width;
    circle.height = height;
    const SlotRef ref = m_shapes.Add(circle);
    Touch();
    return {*this, ref};
}

std::vector<Pushpin> Map::AllRecords()
{
    std::vector<Pushpin> records;
    records.reserve(m_pins.Count());
    for (std::size_t slot = 0; slot < m_pins.SlotCount(); ++slot)
        if (m_pins.At(slot))
            records.push_back({*this, m_pins.RefAt(slot)});
    std::sort(records.begin(), records.end(), [](const auto& a, const auto& b) { return a.m_ref.id < b.m_ref.id; });
    return records;
}

// --- Names

bool Map::IsOldestOfName(SlotRef ref) const
{
    return m_pins.RefAt(m_pins.At(ref.slot)->previousOfName).id >= ref.id;
}

const std::uint32_t* Map::OldestOfName(std::string_view name) const
{
    return m_names.Find(Hash(name), [&](std::uint32_t slot) { return m_pins.At(slot)->name == name; });
}

void Map::LinkName(SlotRef ref)
{
    PinData& pin = Pin(ref);
    const std::uint32_t* found = OldestOfName(pin.name);
    if (!found) {
        pin.previousOfName = pin.nextOfName = ref.slot;
        m_names.Add(Hash(pin.name), ref.slot);
        return;
    }
    const auto isYounger = [&](std::uint32_t slot) { return m_pins.RefAt(slot).id > ref.id; };
    const std::uint32_t oldest = *found;
    std::uint32_t before = m_pins.At(oldest)->previousOfName; // The newest; a renamed pin may be older than some.
    while (isYounger(before) && before != oldest)
        before = m_pins.At(before)->previousOfName;
    const bool bBecomesOldest = isYounger(before);
    if (bBecomesOldest)
        before = m_pins.At(oldest)->previousOfName;
    const std::uint32_t after = m_pins.At(before)->nextOfName;
    pin.previousOfName = before;
    pin.nextOfName = after;
    m_pins.At(before)->nextOfName = ref.slot;
    m_pins.At(after)->previousOfName = ref.slot;
    if (bBecomesOldest) {
        m_names.Remove(Hash(pin.name), [&](std::uint32_t slot) { return slot == oldest; });
        m_names.Add(Hash(pin.name), ref.slot);
    }
}

void Map::UnlinkName(SlotRef ref)
{
    const PinData& pin = Pin(ref);
    const bool bOldest = IsOldestOfName(ref);
    if (bOldest)
        m_names.Remove(Hash(pin.name), [&](std::uint32_t slot) { return slot == ref.slot; });
    if (pin.nextOfName == ref.slot)
        return;
    m_pins.At(pin.previousOfName)->nextOfName = pin.nextOfName;
    m_pins.At(pin.nextOfName)->previousOfName = pin.previousOfName;
    if (bOldest)
        m_names.Add(Hash(pin.name), pin.nextOfName);
}

// --- Notes

std::string Map::NoteOf(const PinData& pin) const
{
    if (pin.noteSource == kOwnNote || !m_noteMaker)
        return pin.note;
    return m_noteMaker->Note(pin.noteSource, pin.name).value_or(pin.note);
}

void Map::SettleNote(PinData& pin) const
{
    if (pin.noteSource == kOwnNote)
        return;
    pin.note = NoteOf(pin);
    pin.noteSource = kOwnNote;
}

void Map::SettleNotes(std::uint8_t source)
{
    for (std::size_t slot = 0; slot < m_pins.SlotCount(); ++slot)
        if (PinData* pin = m_pins.At(slot); pin && pin->noteSource == source)
            SettleNote(*pin);
}

// --- Style and view

void Map::SetMapStyle(std::int32_t style)
{
    if (!IsMapStyle(style))
        throw Failure("no such map style");
    m_style = style;
    Touch();
}

void Map::SetMapFont(std::int32_t font)
{
    if (font < 0 || font > kLastMapFont)
        throw Failure("no such map font");
    m_font = font;
    Touch();
}

void Map::SetView(GeoPoint centre, double zoom)
{
    if (!std::isfinite(centre.lat) || !std::isfinite(centre.lon) || !std::isfinite(zoom))
        return;
    m_view.centre = {std::clamp(centre.lat, -85.0, 85.0), std::remainder(centre.lon, 360.0)};
    m_view.zoom = std::clamp(zoom, kMinZoom, kMaxZoom);
    ViewChanged.Raise();
}

void Map::SetSize(int width, int height)
{
    m_view.width = std::max(width, 1);
    m_view.height = std::max(height, 1);
    ViewChanged.Raise();
}

Location Map::XYToLocation(double x, double y)
{
    const GeoPoint point = FromPixel(m_view, {x, y});
    return GetLocation(point.lat, point.lon);
}

std::int32_t Map::LocationToX(const Location& location) const
{
    CheckSerial(location);
    return ToInt32(ToPixel(m_view, location.Point()).x);
}

std::int32_t Map::LocationToY(const Location& location) const
{
    CheckSerial(location);
    return ToInt32(ToPixel(m_view, location.Point()).y);
}

Pushpin Map::PinAt(std::size_t slot)
{
    if (slot >= m_pins.SlotCount() || !m_pins.At(slot))
        throw Failure("the marker is gone");
    return {*this, m_pins.RefAt(slot)};
}

Shape Map::ShapeAt(std::size_t slot)
{
    if (slot >= m_shapes.SlotCount() || !m_shapes.At(slot))
        throw Failure("the shape is gone");
    return {*this, m_shapes.RefAt(slot)};
}

void Map::Replace(std::int32_t region)
{
    m_names.Clear();
    m_pins.Clear();
    m_shapes.Clear();
    m_points.clear();
    ++m_serial;
    m_style = kFirstMapStyle;
    m_font = kFirstMapFont;
    m_bSaved = true;
    m_bPinEverAdded = false;
    m_view = RegionView(region, m_view.width, m_view.height);
    Changed.Raise();
    ViewChanged.Raise();
}

} // namespace ruvenmark
