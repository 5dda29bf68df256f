#include "desktop/map/labels/station_labels.h"

#include "desktop/map/labels/station_label_picture.h"
#include "desktop/map/markers/marker_painter.h"
#include "desktop/shown_text.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr std::size_t kMostKept = 10000;
constexpr std::size_t kMostCharacters = 200; // Measured of a name.
constexpr double kHalf = kMarkerPixels / 2.0;
constexpr double kGap = 1, kRingGap = 5; // Pixels from the marker, and from a selected one.

// What no name may cover of a marker.
QSizeF CoreOf(const MarkerItem& item)
{
    const double side = 2 * HalfOf(item) - (item.bTrail ? 2 : 6);
    return {side, side};
}

QRectF Around(QPointF centre, QSizeF size)
{
    return {centre.x() - size.width() / 2, centre.y() - size.height() / 2, size.width(), size.height()};
}

// Beside a marker, so many pixels from its middle: right, left, below, above; for one in view first where the whole
// name is in view too.
std::array<QPointF, 4> NamePlaces(QPointF at, QSizeF size, double away, const QRectF& view)
{
    const double sideways = away + size.width() / 2, upright = away + size.height() / 2;
    std::array places{at + QPointF(sideways, 0), at - QPointF(sideways, 0), at + QPointF(0, upright),
                      at - QPointF(0, upright)};
    if (view.contains(at)) {
        std::stable_partition(places.begin(), places.end(),
                              [&](QPointF centre) { return view.contains(Around(centre, size)); });
    }
    return places;
}

std::array<QPointF, 4> BadgePlaces(QPointF at)
{
    constexpr double kOut = kHalf - 2;
    return {at + QPointF(kOut, -kOut), at + QPointF(-kOut, -kOut), at + QPointF(kOut, kOut), at + QPointF(-kOut, kOut)};
}

// Counts of one text as one number.
std::uint32_t WithoutUnseen(std::uint32_t count)
{
    std::uint32_t unit = 1;
    if (count >= 1000)
        unit = count < 10000 ? 100 : count < 1000000 ? 1000 : count < 10000000 ? 100000 : 1000000;
    return count / unit * unit;
}

bool IsSameLook(const MapLook& a, const MapLook& b)
{
    return a.nameFont == b.nameFont && a.text == b.text && a.halo == b.halo && a.badge == b.badge;
}

} // namespace

void StationLabels::SetLook(const MapLook& look, qreal ratio)
{
    const bool bSame = m_look && m_ratio == ratio && IsSameLook(*m_look, look);
    m_look = look;
    m_ratio = ratio;
    if (!bSame || m_names.size() > kMostKept) {
        m_names.clear();
        m_badges.clear();
    }
}

QString StationLabels::CountText(std::uint32_t count)
{
    const auto tenths = [](std::uint32_t value, const char* unit) {
        return QString::number(value / 10) +
               (value < 100 && value % 10 != 0 ? QStringLiteral(".%1").arg(value % 10) : QString()) +
               QLatin1String(unit);
    };
    if (count < 1000)
        return QString::number(count);
    return count < 1000000 ? tenths(count / 100, "k") : tenths(count / 100000, "M");
}

StationLabels::Text& StationLabels::Name(const std::string& name)
{
    const auto [it, bNew] = m_names.try_emplace(name);
    if (bNew) {
        const QFontMetricsF metrics(m_look->nameFont);
        QString text = ForDisplay(FirstCharacters(name, kMostCharacters));
        double width = metrics.horizontalAdvance(text); // Laying letters out is what a new name costs: mostly once.
        if (width > kMostWidth) {
            text = metrics.elidedText(text, Qt::ElideRight, kMostWidth);
            width = metrics.horizontalAdvance(text);
        }
        it->second.shown = text;
        it->second.size = {std::ceil(width) + 2 * kNameHalo, std::ceil(metrics.height())};
    }
    return it->second;
}

StationLabels::Text& StationLabels::Badge(std::uint32_t count)
{
    const auto [it, bNew] = m_badges.try_emplace(WithoutUnseen(count));
    if (bNew) {
        const QFontMetricsF metrics(m_look->badgeFont);
        it->second.shown = CountText(count);
        const double height = std::ceil(metrics.height());
        const double width = std::ceil(metrics.horizontalAdvance(it->second.shown)) + 7;
        it->second.size = {std::max(width, height), height};
    }
    return it->second;
}

void StationLabels::SetGround(const ViewFrame& frame)
{
    constexpr int kMargin = MarkerLayout::kMargin, kPeriod = 4; // Pixels of the grid's squares.
    const auto phase = [](double edge) { return edge - std::floor(edge / kPeriod) * kPeriod; };
    m_view = frame.Rect();
    m_onGround = {kMargin + phase(frame.left * frame.world), kMargin + phase(frame.top * frame.world)};
    m_grid.Reset(frame.width + 2 * kMargin + kPeriod, frame.height + 2 * kMargin + kPeriod);
}

void StationLabels::Place(const std::vector<MarkerItem>& items, const SlotPool<PinData>& pins, const ViewFrame& frame,
                          std::optional<std::uint32_t> selected, std::span<const QRectF> taken)
{
    m_nameTodo.clear();
    m_badgeTodo.clear();
    m_namesPlaced.clear();
    m_badgesPlaced.clear();
    SetGround(frame);
    for (const QRectF& rect : taken)
        m_grid.Block(rect.translated(m_onGround));
    const auto isSelected = [&](const MarkerItem& item) { return selected == item.slot; };
    for (const MarkerItem& item : items)
        if (isSelected(item))
            PlaceSelected(item, pins);
    for (std::size_t i = items.size(); i-- > 0;)
        if (items[i].count > 1)
            PlaceBadge(items[i]);
    for (const MarkerItem& item : items)
        m_grid.Block(Around(item.at, CoreOf(item)).translated(m_onGround));
    for (std::size_t i = items.size(); i-- > 0;)
        if (items[i].bBalloon && !items[i].bTrail && !items[i].bFaded && !isSelected(items[i]))
            PlaceName(items[i], pins);
}

void StationLabels::PlaceTrails(const std::vector<MarkerItem>& items, const SlotPool<PinData>& pins,
                                const ViewFrame& frame, LabelGrid& grid)
{
    std::vector<const Text*> written;
    for (std::size_t i = items.size(); i-- > 0;) {
        const MarkerItem& item = items[i];
        const PinData* pin = item.bTrail && item.bBalloon && !item.bFaded ? pins.At(item.slot) : nullptr;
        if (!pin || !frame.Rect().contains(item.at))
            continue;
        Text& text = Name(pin->name);
        if (std::find(written.begin(), written.end(), &text) != written.end())
            continue;
        for (const QPointF centre : NamePlaces(item.at, text.size, HalfOf(item) + kGap, m_view)) {
            const QRectF rect = Around(centre, text.size);
            if (!grid.TryPlace(rect))
                continue;
            Write(item.slot, text, rect);
            written.push_back(&text);
            break;
        }
    }
}

// Over whatever lies there, where no side is free.
void StationLabels::PlaceSelected(const MarkerItem& item, const SlotPool<PinData>& pins)
{
    const PinData* pin = pins.At(item.slot);
    if (!pin || pin->name.empty() || !m_view.adjusted(-kHalf, -kHalf, kHalf, kHalf).contains(item.at))
        return;
    Text& text = Name(pin->name);
    const auto places = NamePlaces(item.at, text.size, kHalf + kRingGap, m_view);
    const auto isFree = [&](QPointF centre) { return m_grid.IsFree(Around(centre, text.size).translated(m_onGround)); };
    const auto* free = std::find_if(places.begin(), places.end(), isFree);
    const QRectF rect = Around(free == places.end() ? places.front() : *free, text.size);
    m_grid.Block(rect.translated(m_onGround));
    Write(item.slot, text, rect);
}

void StationLabels::Write(std::uint32_t slot, Text& text, const QRectF& rect)
{
    m_nameTodo.push_back({&text, rect});
    m_namesPlaced.push_back({slot, rect});
}

void StationLabels::BlockIn(LabelGrid& grid, const std::vector<MarkerItem>& items) const
{
    for (const MarkerItem& item : items)
        grid.Block(Around(item.at, CoreOf(item)));
    for (const Placed& name : m_namesPlaced)
        grid.Block(name.rect);
    for (const Placed& badge : m_badgesPlaced)
        grid.Block(badge.rect);
}

void StationLabels::Take(std::uint32_t slot, const std::array<QPointF, 4>& centres, Text& text, std::vector<Todo>& todo,
                         std::vector<Placed>& placed)
{
    for (const QPointF centre : centres) {
        const QRectF rect = Around(centre, text.size);
        if (!m_grid.TryPlace(rect.translated(m_onGround)))
            continue;
        if (m_view.intersects(rect)) {
            todo.push_back({&text, rect});
            placed.push_back({slot, rect});
        }
        return;
    }
}

void StationLabels::PlaceBadge(const MarkerItem& item)
{
    Take(item.slot, BadgePlaces(item.at), Badge(item.count), m_badgeTodo, m_badgesPlaced);
}

void StationLabels::PlaceName(const MarkerItem& item, const SlotPool<PinData>& pins)
{
    const PinData* pin = pins.At(item.slot);
    if (!pin || pin->name.empty())
        return;
    Text& text = Name(pin->name);
    Take(item.slot, NamePlaces(item.at, text.size, kHalf + kGap, m_view), text, m_nameTodo, m_namesPlaced);
}

void StationLabels::Paint(QPainter& painter, bool bVector, const QRegion* only)
{
    painter.save();
    PaintAll(painter, m_nameTodo, bVector, only, PaintName, NamePicture);
    PaintAll(painter, m_badgeTodo, bVector, only, PaintBadge, BadgePicture);
    painter.restore();
}

template <typename PaintText, typename Picture>
void StationLabels::PaintAll(QPainter& painter, std::vector<Todo>& todo, bool bVector, const QRegion* only,
                             PaintText paintText, Picture picture) const
{
    const auto snap = [this](double value) { return std::round(value * m_ratio) / m_ratio; };
    for (const Todo& one : todo) {
        if (only && !only->intersects(one.rect.toAlignedRect().adjusted(-1, -1, 1, 1)))
            continue;
        if (bVector) {
            paintText(painter, *m_look, one.text->shown, one.rect);
            continue;
        }
        if (one.text->picture.isNull())
            one.text->picture = picture(*m_look, one.text->shown, one.text->size, m_ratio);
        painter.drawPixmap(QPointF(snap(one.rect.left()), snap(one.rect.top())), one.text->picture);
    }
}

} // namespace ruvenmark
