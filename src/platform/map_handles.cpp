// The handles of map_model.h: what they change, the map tells.

#include "platform/map_model.h"

namespace ruvenmark {

void Location::GoTo() const
{
    m_map->CheckSerial(*this);
    m_map->SetView(m_point, m_map->View().zoom);
}

const std::string& Pushpin::Name() const
{
    return m_map->Pin(m_ref).name;
}

void Pushpin::SetName(std::string_view name)
{
    PinData& pin = m_map->Pin(m_ref);
    if (pin.name == name)
        return;
    m_map->SettleNote(pin);
    m_map->UnlinkName(m_ref);
    pin.name = name;
    m_map->LinkName(m_ref);
    m_map->MarkLook(m_ref, pin);
    m_map->Touch();
}

ruvenmark::Location Pushpin::Location() const
{
    return {*m_map, m_map->m_serial, m_map->Pin(m_ref).point};
}

void Pushpin::SetLocation(const ruvenmark::Location& location)
{
    m_map->CheckSerial(location);
    PinData& pin = m_map->Pin(m_ref);
    pin.point = location.Point();
    m_map->MarkPlace(m_ref, pin);
    m_map->Touch();
}

std::string Pushpin::Note() const
{
    return m_map->NoteOf(m_map->Pin(m_ref));
}

bool Pushpin::NoteBeginsWith(std::string_view text) const
{
    const PinData& pin = m_map->Pin(m_ref);
    if (pin.noteSource != kOwnNote && m_map->m_noteMaker) {
        const std::string_view beginning = m_map->m_noteMaker->Beginning(pin.noteSource);
        if (text.size() <= beginning.size())
            return beginning.starts_with(text);
    }
    return m_map->NoteOf(pin).starts_with(text);
}

void Pushpin::SetNote(std::string_view note)
{
    PinData& pin = m_map->Pin(m_ref);
    pin.note = note;
    pin.noteSource = kOwnNote;
    m_map->Touch();
}

void Pushpin::SetNoteSource(std::uint8_t source)
{
    m_map->Pin(m_ref).noteSource = source;
    m_map->Touch();
}

void Pushpin::SettleNote()
{
    m_map->SettleNote(m_map->Pin(m_ref));
}

std::int16_t Pushpin::Symbol() const
{
    return m_map->Pin(m_ref).symbol;
}

void Pushpin::SetSymbol(std::int16_t symbol)
{
    PinData& pin = m_map->Pin(m_ref);
    pin.symbol = symbol;
    m_map->MarkLook(m_ref, pin);
    m_map->Touch();
}

std::int32_t Pushpin::BalloonState() const
{
    return m_map->Pin(m_ref).balloonState;
}

void Pushpin::SetBalloonState(std::int32_t state)
{
    PinData& pin = m_map->Pin(m_ref);
    pin.balloonState = state;
    m_map->MarkLook(m_ref, pin);
    m_map->Touch();
}

std::uint32_t Pushpin::Heard() const
{
    return m_map->Pin(m_ref).heard;
}

// Nothing that is painted changes with it at once.
void Pushpin::SetHeard(std::int64_t seconds)
{
    m_map->Pin(m_ref).heard = static_cast<std::uint32_t>(seconds);
}

void Pushpin::Delete()
{
    m_map->Pin(m_ref); // Raises where it is gone already.
    m_map->UnlinkName(m_ref);
    m_map->m_pins.Remove(m_ref);
    if (m_map->m_pins.Count() > 0)
        m_map->m_points[m_ref.slot] = PinPoint();
    else
        m_map->m_points = {};
    m_map->Touch();
}

void Shape::SetForeColor(std::uint32_t color)
{
    m_map->ShapeOf(m_ref).foreColor = color;
    m_map->Touch();
}
void Shape::SetVisible(bool bVisible)
{
    m_map->ShapeOf(m_ref).bVisible = bVisible;
    m_map->Touch();
}
void Shape::SetWeight(std::int32_t weight)
{
    m_map->ShapeOf(m_ref).weight = weight;
    m_map->Touch();
}
void Shape::SetBeginArrowhead(bool bArrow)
{
    m_map->ShapeOf(m_ref).bBeginArrowhead = bArrow;
    m_map->Touch();
}
void Shape::SetEndArrowhead(bool bArrow)
{
    m_map->ShapeOf(m_ref).bEndArrowhead = bArrow;
    m_map->Touch();
}
void Shape::Delete()
{
    m_map->ShapeOf(m_ref);
    m_map->m_shapes.Remove(m_ref);
    m_map->Touch();
}

} // namespace ruvenmark
