#include "desktop/adapters/base_places.h"

#include "desktop/map/base_map/place_index.h"
#include "desktop/shown_text.h"
#include "mapfiles/base_map.h"

#include <algorithm>
#include <string>

namespace ruvenmark {

const OtherNames& BasePlaces::Others() const
{
    if (!m_others)
        m_others.emplace(*m_base, m_otherNames);
    return *m_others;
}

FoundPlace BasePlaces::PlaceOf(std::size_t index, std::string_view otherName) const
{
    const PlaceRecord record = m_base->Place(index);
    FoundPlace place;
    place.name = record.name;
    if (!otherName.empty())
        place.name += " (" + std::string(otherName) + ")";
    place.point = FromMercator({record.x, record.y});
    if (record.state)
        place.detail = m_base->State(*record.state).name;
    if (record.country) {
        place.detail += place.detail.empty() ? "" : ", ";
        place.detail += m_base->Country(*record.country).name;
    }
    return place;
}

// Names that begin with the text come first, by the size of the place, whatever language they are of.
std::vector<FoundPlace> BasePlaces::Search(std::string_view text, std::size_t limit) const
{
    if (!m_base)
        return {};
    struct Hit {
        bool bLaterWord;
        std::size_t index;
        std::string_view otherName;
    };
    const QString typed = ForDisplay(text);
    const std::string start = FoldForSearch(QStringView(typed).trimmed());
    std::vector<Hit> hits;
    for (const std::size_t index : FindPlaces(*m_base, typed, limit))
        hits.push_back({!BeginsWith(m_base->FoldedName(index), start), index, {}});
    for (const OtherNames::Row& row : Others().Find(start))
        hits.push_back({false, row.place, row.name});
    const auto isBefore = [](const Hit& a, const Hit& b) {
        return a.bLaterWord != b.bLaterWord ? b.bLaterWord : a.index < b.index;
    };
    std::stable_sort(hits.begin(), hits.end(), isBefore);
    std::vector<FoundPlace> found;
    std::vector<std::size_t> taken;
    for (const Hit& hit : hits) {
        if (found.size() == limit)
            break;
        if (std::find(taken.begin(), taken.end(), hit.index) != taken.end())
            continue;
        taken.push_back(hit.index);
        found.push_back(PlaceOf(hit.index, hit.otherName));
    }
    return found;
}

// Lower numbers are larger places.
std::optional<FoundPlace> BasePlaces::Named(std::string_view name) const
{
    if (!m_base)
        return std::nullopt;
    const QString typed = ForDisplay(name);
    const std::string folded = FoldForSearch(QStringView(typed).trimmed());
    std::optional<std::size_t> largest;
    const auto offer = [&](std::size_t index, std::string_view itsName) {
        if (itsName.size() == folded.size() && BeginsWith(itsName, folded) && (!largest || index < *largest))
            largest = index;
    };
    for (const std::size_t index : FindPlaces(*m_base, typed, m_base->PlaceCount()))
        offer(index, m_base->FoldedName(index));
    for (const OtherNames::Row& row : Others().Find(folded))
        offer(row.place, row.folded);
    return largest ? std::optional(PlaceOf(*largest, {})) : std::nullopt;
}

} // namespace ruvenmark
