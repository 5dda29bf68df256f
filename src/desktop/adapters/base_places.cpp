#include "desktop/adapters/base_places.h"

#include "desktop/map/base_map/place_index.h"
#include "desktop/shown_text.h"
#include "mapfiles/base_map.h"

namespace ruvenmark {

std::vector<FoundPlace> BasePlaces::Search(std::string_view text, std::size_t limit) const
{
    std::vector<FoundPlace> found;
    if (!m_base)
        return found;
    for (const std::size_t index : FindPlaces(*m_base, ForDisplay(text), limit)) {
        const PlaceRecord record = m_base->Place(index);
        FoundPlace& place = found.emplace_back();
        place.name = record.name;
        place.point = FromMercator({record.x, record.y});
        if (record.state)
            place.detail = m_base->State(*record.state).name;
        if (record.country) {
            place.detail += place.detail.empty() ? "" : ", ";
            place.detail += m_base->Country(*record.country).name;
        }
    }
    return found;
}

} // namespace ruvenmark
