#include "desktop/map/labels/place_labels.h"

#include "desktop/map/labels/place_weight.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr double kGap = 3; // Pixels kept free around a name.
constexpr double kDot = LabelText::kDotRadius;
constexpr double kCapitalBonus = 3;
constexpr std::size_t kMostCities = 500;
constexpr std::size_t kPrefixScan = 3000; // Up to so many places are looked at one by one.

QString Text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// In two lines of about the same length where it is long.
QString Broken(QString text, qsizetype longest)
{
    if (text.size() <= longest)
        return text;
    qsizetype best = -1;
    for (qsizetype i = 0; i < text.size(); ++i)
        if (text[i] == u' ' && (best < 0 || std::abs(2 * i - text.size()) < std::abs(2 * best - text.size())))
            best = i;
    if (best >= 0)
        text[best] = u'\n';
    return text;
}

} // namespace

struct PlaceLabels::Spot {
    std::size_t place;
    double weight; // People; more for a capital.
    QPointF at;
};

PlaceLabels::PlaceLabels(const BaseMap& map)
    : m_map(map), m_countryOrder(LargestFirst(map.CountryCount(), [&](std::size_t i) { return map.Country(i); })),
      m_stateOrder(LargestFirst(map.StateCount(), [&](std::size_t i) { return map.State(i); }))
{
    for (std::size_t i = 0; i < map.PlaceCount(); ++i)
        if (map.Place(i).bCapital)
            m_capitals.push_back(static_cast<std::uint32_t>(i));
}

void PlaceLabels::SetFaces(const How& how)
{
    constexpr std::array<double, 5> kScale{1.45, 1.2, 1.0, 0.9, 0.82};
    const double scale = kScale.at(static_cast<std::size_t>(std::clamp(how.mapFont, 0, 4)));
    const BaseMapPalette palette = PaletteFor(how.style, how.bDark);
    QColor waterHalo = palette.water;
    waterHalo.setAlpha(InfoOf(how.style).land == MapStyleInfo::Land::Relief ? 0 : 160);
    const auto set = [&](Face face, double pixels, double spacing, QFont::Weight weight, bool bItalic,
                         const QColor& color, const QColor& halo) {
        QFont font = QGuiApplication::font();
        font.setPixelSize(std::max(8, static_cast<int>(std::lround(pixels * scale))));
        // A printer would take the spacing for its own, much smaller, pixels and lay the letters far apart.
        font.setLetterSpacing(QFont::AbsoluteSpacing, how.bVector ? 0 : spacing * scale);
        font.setWeight(weight);
        font.setItalic(bItalic);
        m_faces[static_cast<std::size_t>(face)] = {font, color, halo, static_cast<int>(face)};
    };
    set(Face::Ocean, 15, 2.5, QFont::Normal, true, palette.waterName, waterHalo);
    set(Face::Sea, 12, 1, QFont::Normal, true, palette.waterName, waterHalo);
    set(Face::Lake, 11, 0.3, QFont::Normal, true, palette.waterName, waterHalo);
    set(Face::BigCountry, 14, 2.5, QFont::DemiBold, false, palette.country, palette.halo);
    set(Face::Country, 11.5, 1.2, QFont::DemiBold, false, palette.country, palette.halo);
    set(Face::State, 10.5, 1.6, QFont::Normal, false, palette.state, palette.halo);
    set(Face::BigCity, 14, 0, QFont::DemiBold, false, palette.city, palette.halo);
    set(Face::City, 12.5, 0, QFont::Normal, false, palette.city, palette.halo);
    set(Face::Town, 11, 0, QFont::Normal, false, palette.town, palette.halo);
    m_text.SetLook(how.ratio, how.mapFont * 100 + static_cast<int>(how.style) * 10 + (how.bDark ? 1 : 0));
}

void PlaceLabels::Place(const ViewFrame& frame, LabelGrid& grid, const How& how)
{
    m_grid = &grid;
    m_frame = &frame;
    m_how = how;
    m_names.clear();
    SetFaces(how);
    const double least = LeastWeight(frame.zoom, how.style), great = std::max(least * 8, 1e6);
    PlaceWaters(0, 1);
    PlaceCountries();
    PlaceCities(great, INFINITY);
    PlaceWaters(2, 2);
    PlaceStates();
    PlaceCities(least, great);
    PlaceWaters(3, 3);
}

void PlaceLabels::Paint(QPainter& painter, const QRegion* only)
{
    painter.save();
    for (const Name& name : m_names) {
        if (only && !only->intersects(name.rect.toAlignedRect()))
            continue;
        if (name.dot)
            m_text.PaintDot(painter, Look(name.face), name.bFullDot, *name.dot, m_how.bVector);
        m_text.Paint(painter, Look(name.face), name.text, name.centre, m_how.bVector);
    }
    painter.restore();
}

bool PlaceLabels::IsInView(const AreaLabel& area) const
{
    return IsInView(m_frame->ToPixel({area.x, area.y}));
}

bool PlaceLabels::IsInView(QPointF at) const
{
    return m_frame->Rect().contains(at);
}

void PlaceLabels::PlaceArea(Face face, const QString& text, const AreaLabel& area)
{
    const QPointF at = m_frame->ToPixel({area.x, area.y});
    const QSizeF size = m_text.Size(Look(face), text);
    const QRectF rect(at.x() - size.width() / 2, at.y() - size.height() / 2, size.width(), size.height());
    if (m_grid->TryPlace(rect.adjusted(-kGap, -kGap, kGap, kGap)))
        m_names.push_back({face, text, rect.center(), rect.adjusted(-kGap, -kGap, kGap, kGap), {}, false});
}

void PlaceLabels::PlaceWaters(int firstRank, int lastRank)
{
    struct Range {
        double from, to;
    };
    constexpr std::array<Range, 4> kZooms{{{1.5, 6}, {3.2, 8}, {4.8, 10}, {6.2, 12.5}}};
    for (std::size_t i = 0; i < m_map.WaterCount(); ++i) {
        const AreaLabel water = m_map.Water(i);
        if (water.rank < firstRank || water.rank > lastRank)
            continue;
        const Range& range = kZooms.at(static_cast<std::size_t>(std::clamp(water.rank, 0, 3)));
        if (m_frame->zoom < range.from || m_frame->zoom > range.to || !IsInView(water))
            continue;
        const Face face = water.rank == 0 ? Face::Ocean : water.rank == 1 ? Face::Sea : Face::Lake;
        PlaceArea(face, Broken(Text(water.name), 12), water);
    }
}

void PlaceLabels::PlaceCountries()
{
    if (m_frame->zoom > 7.5)
        return;
    for (const std::uint32_t index : m_countryOrder) {
        const AreaLabel country = m_map.Country(index);
        const double side = std::sqrt(country.area) * m_frame->world;
        if (side < 26)
            break;
        if (!IsInView(country))
            continue;
        const Face face = side > 260 ? Face::BigCountry : Face::Country;
        const QString text = Broken(Text(country.name).toUpper(), 13);
        const double room = std::max(country.width * m_frame->world, 1.6 * side);
        if (!text.isEmpty() && m_text.Size(Look(face), text).width() < room * 1.15)
            PlaceArea(face, text, country);
    }
}

void PlaceLabels::PlaceStates()
{
    if (m_frame->zoom < 3.6 || m_frame->zoom > 10)
        return;
    for (const std::uint32_t index : m_stateOrder) {
        const AreaLabel state = m_map.State(index);
        const double side = std::sqrt(state.area) * m_frame->world;
        if (side < 55)
            break;
        if (!IsInView(state))
            continue;
        const QString text = Broken(Text(state.name).toUpper(), 12);
        if (!text.isEmpty() &&
            m_text.Size(Look(Face::State), text).width() < std::max(state.width * m_frame->world, side))
            PlaceArea(Face::State, text, state);
    }
}

// Numbers of the places with so many people in the cells that the view touches.
std::vector<std::size_t> PlaceLabels::PlacesInView(double leastPopulation) const
{
    std::vector<std::size_t> places;
    const double cells = m_map.CellsPerSide(), world = m_frame->world;
    const auto cell = [&](double v) { return static_cast<std::int64_t>(std::floor(v * cells)); };
    const std::int64_t count = m_map.CellsPerSide();
    const auto firstRow = std::max<std::int64_t>(cell(m_frame->top), 0);
    const auto lastRow = std::min(cell(m_frame->top + m_frame->height / world), count - 1);
    for (auto row = firstRow; row <= lastRow; ++row) {
        for (auto column = cell(m_frame->left); column <= cell(m_frame->left + m_frame->width / world); ++column) {
            const auto wrapped = static_cast<std::uint32_t>((column % count + count) % count);
            for (const std::uint32_t index : m_map.PlacesInCell(wrapped, static_cast<std::uint32_t>(row))) {
                if (m_map.Place(index).population < leastPopulation)
                    break;
                places.push_back(index);
            }
        }
    }
    return places;
}

// Numbers of the places with so many people; where they are many, of those in view.
std::vector<std::size_t> PlaceLabels::LargePlaces(double leastPopulation) const
{
    std::vector<std::size_t> places;
    while (places.size() < m_map.PlaceCount() && m_map.Place(places.size()).population >= leastPopulation) {
        places.push_back(places.size());
        if (places.size() > kPrefixScan)
            return PlacesInView(leastPopulation);
    }
    return places;
}

std::vector<PlaceLabels::Spot> PlaceLabels::CitiesIn(double leastWeight) const
{
    std::vector<Spot> spots;
    const auto add = [&](std::size_t index) {
        const PlaceRecord place = m_map.Place(index);
        const double weight = place.population * (place.bCapital ? kCapitalBonus : 1.0);
        const QPointF at = m_frame->ToPixel({place.x, place.y});
        if (weight >= leastWeight && IsInView(at) && (!place.bPartOfCity || m_frame->zoom > 11))
            spots.push_back({index, weight, at});
    };
    for (const std::size_t place : LargePlaces(leastWeight))
        add(place);
    for (const std::uint32_t capital : m_capitals)
        if (m_map.Place(capital).population < leastWeight)
            add(capital);
    return spots;
}

void PlaceLabels::PlaceCities(double leastWeight, double belowWeight)
{
    std::vector<Spot> spots = CitiesIn(leastWeight);
    std::erase_if(spots, [&](const Spot& spot) { return spot.weight >= belowWeight; });
    std::sort(spots.begin(), spots.end(), [](const Spot& a, const Spot& b) {
        return a.weight != b.weight ? a.weight > b.weight : a.place < b.place;
    });
    // A view that is nearly as wide as the world meets a cell at both its edges.
    spots.erase(
        std::unique(spots.begin(), spots.end(), [](const Spot& a, const Spot& b) { return a.place == b.place; }),
        spots.end());
    if (spots.size() > kMostCities)
        spots.resize(kMostCities);
    for (const Spot& spot : spots)
        PlaceCity(spot);
}

// Rank follows what else is named at this zoom; from close by, what is large anywhere.
PlaceLabels::Face PlaceLabels::FaceOf(const PlaceRecord& place, double weight) const
{
    const double least = LeastWeight(m_frame->zoom, MapStyle::Road);
    if (weight >= std::clamp(20 * least, 3e5, 1.5e7))
        return place.bPartOfCity ? Face::City : Face::BigCity;
    return weight >= std::clamp(3.5 * least, 4e4, 5e6) || place.bCapital ? Face::City : Face::Town;
}

// Right of its dot, else left, above or below.
void PlaceLabels::PlaceCity(const Spot& spot)
{
    const PlaceRecord place = m_map.Place(spot.place);
    const Face face = FaceOf(place, spot.weight);
    const QString text = Text(place.name);
    const QSizeF size = m_text.Size(Look(face), text);
    const double beside = kDot + 4 + size.width() / 2, over = kDot + 1 + size.height() / 2;
    const std::array<QPointF, 4> offsets{QPointF(beside, -0.5), QPointF(-beside, -0.5), QPointF(0, -over),
                                         QPointF(0, over)};
    const QRectF dot = QRectF(-kDot, -kDot, 2 * kDot, 2 * kDot).translated(spot.at);
    for (const QPointF& offset : offsets) {
        const QRectF rect =
            QRectF(-size.width() / 2, -size.height() / 2, size.width(), size.height()).translated(spot.at + offset);
        if (!m_grid->TryPlace(rect.united(dot).adjusted(-kGap, -1, kGap, 1)))
            continue;
        m_names.push_back(
            {face, text, rect.center(), rect.united(dot).adjusted(-kGap, -kGap, kGap, kGap), spot.at, place.bCapital});
        return;
    }
}

} // namespace ruvenmark
