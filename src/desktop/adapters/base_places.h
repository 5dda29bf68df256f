#pragma once

#include "core/place_search.h"
#include "desktop/map/base_map/other_names.h"

#include <QString>

#include <optional>

namespace ruvenmark {

class BaseMap;

// The places of the built-in map, in the order of FindPlaces, and under their other names; none where there is no map.
class BasePlaces final : public IPlaceSearch {
public:
    BasePlaces(const BaseMap* base, QString otherNames) : m_base(base), m_otherNames(std::move(otherNames)) {}

    std::vector<FoundPlace> Search(std::string_view text, std::size_t limit) const override;
    std::optional<FoundPlace> Named(std::string_view name) const override;

private:
    FoundPlace PlaceOf(std::size_t index, std::string_view otherName) const;
    const OtherNames& Others() const;

    const BaseMap* m_base;
    QString m_otherNames;                       // The file.
    mutable std::optional<OtherNames> m_others; // Read for the first search.
};

} // namespace ruvenmark
