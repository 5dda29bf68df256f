#pragma once

#include "desktop/map/base_map/base_map_style.h"
#include "desktop/map/labels/label_grid.h"
#include "desktop/map/labels/label_text.h"
#include "desktop/map/view/view_frame.h"

#include <QPointF>
#include <QRectF>
#include <QRegion>
#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

class QPainter;

namespace ruvenmark {

// The names of countries, states, waters and places: as many as fit, the weightiest first, each whole or not at all.
class PlaceLabels {
public:
    struct How {
        MapStyle style = MapStyle::Road;
        bool bDark = false;
        std::int32_t mapFont = 2; // 0 largest to 4 smallest.
        double ratio = 1;         // Device pixels for one of the view.
        bool bVector = false;     // For printers: letters instead of kept pictures.
    };

    explicit PlaceLabels(const BaseMap& map); // The map must outlive this.

    enum class Face { Ocean, Sea, Lake, Country, BigCountry, State, BigCity, City, Town };
    struct Name {
        Face face;
        QString text;
        QPointF centre;
        QRectF rect;                // Of all that is painted.
        std::optional<QPointF> dot; // Of a place; nothing: it names an area.
        bool bFullDot = false;
    };

    // Where the grid is free; takes the places in the grid.
    void Place(const ViewFrame& frame, LabelGrid& grid, const How& how);
    const std::vector<Name>& Names() const { return m_names; } // As last placed.
    // From the painter's origin on; those that a region touches where one is given.
    void Paint(QPainter& painter, const QRegion* only = nullptr);

private:
    struct Spot; // A place that would like its name shown.

    void SetFaces(const How& how);
    void PlaceWaters(int firstRank, int lastRank);
    void PlaceCountries();
    void PlaceStates();
    void PlaceCities(double leastWeight, double belowWeight);
    std::vector<std::size_t> PlacesInView(double leastPopulation) const;
    std::vector<std::size_t> LargePlaces(double leastPopulation) const;
    std::vector<Spot> CitiesIn(double leastWeight) const;
    void PlaceArea(Face face, const QString& text, const AreaLabel& area);
    const LabelFace& Look(Face face) const { return m_faces[static_cast<std::size_t>(face)]; }
    Face FaceOf(const PlaceRecord& place, double weight) const;
    void PlaceCity(const Spot& spot);
    bool IsInView(QPointF at) const;
    bool IsInView(const AreaLabel& area) const;

    const BaseMap& m_map;
    std::vector<std::uint32_t> m_capitals, m_countryOrder, m_stateOrder; // Areas: the largest first.
    LabelText m_text;
    std::array<LabelFace, 9> m_faces; // By Face.

    std::vector<Name> m_names;

    // Of the frame at hand.
    LabelGrid* m_grid = nullptr;
    const ViewFrame* m_frame = nullptr;
    How m_how;
};

} // namespace ruvenmark
