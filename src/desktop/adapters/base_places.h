#pragma once

#include "map/find.h"

namespace ruvenmark {

class BaseMap;

// The places of the built-in map, in the order of FindPlaces; none where there is no map.
class BasePlaces final : public IPlaceSearch {
public:
    explicit BasePlaces(const BaseMap* base) : m_base(base) {}

    std::vector<FoundPlace> Search(std::string_view text, std::size_t limit) const override;

private:
    const BaseMap* m_base;
};

} // namespace ruvenmark
