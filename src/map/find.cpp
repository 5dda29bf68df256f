#include "map/find.h"

#include "core/main_window.h"
#include "core/views.h"
#include "map/coordinates.h"
#include "map/marker_names.h"
#include "map/selection.h"
#include "map/show_on_map.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace ruvenmark {

namespace {

// Hits of a walk, those first that begin with what is looked for.
class Hits {
public:
    Hits(std::string_view text, std::size_t limit) : m_text(text), m_limit(limit) {}

    bool IsFull() const { return m_first.size() >= m_limit; }

    // Makes the place only for a hit that has room.
    template <typename MakePlace>
    void Offer(std::string_view name, MakePlace&& makePlace)
    {
        if (!ContainsIgnoringCase(name, m_text))
            return;
        const bool bBegins = CompareIgnoringCase(name.substr(0, m_text.size()), m_text) == 0;
        auto& hits = bBegins ? m_first : m_others;
        if (hits.size() >= m_limit)
            return;
        if (std::optional<FoundPlace> place = makePlace())
            hits.push_back(std::move(*place));
    }

    std::vector<FoundPlace> Take()
    {
        std::move(m_others.begin(), m_others.end(), std::back_inserter(m_first));
        m_first.resize(std::min(m_first.size(), m_limit));
        return std::move(m_first);
    }

private:
    std::string_view m_text;
    std::size_t m_limit;
    std::vector<FoundPlace> m_first, m_others;
};

std::vector<FoundPlace> FindStations(const MainWindow& main, std::string_view text, std::size_t limit)
{
    if (text.empty())
        return {};
    Hits hits(text, limit);
    for (const ChannelState& state : main.channels) {
        const std::string_view word = Traits(state.channel).word;
        for (const auto& [call, record] : state.Stations) {
            if (hits.IsFull())
                return hits.Take();
            hits.Offer(call, [&, &name = call, &facts = record]() -> std::optional<FoundPlace> {
                const auto point = PositionOf(facts);
                if (!point)
                    return std::nullopt;
                return FoundPlace{
                    FoundPlace::Kind::Station, MarkerName(word, name), std::string(word), *point, name, state.channel};
            });
        }
    }
    return hits.Take();
}

// Track points and markers of stations are found by their stations.
bool BelongsToStation(const MainWindow& main, std::string_view name)
{
    if (name.ends_with('*'))
        return true;
    const std::string_view call = CallOfMarkerName(name);
    return std::any_of(main.channels.begin(), main.channels.end(), [&](const ChannelState& state) {
        return state.Stations.Contains(call) && name == MarkerName(Traits(state.channel).word, call);
    });
}

std::vector<FoundPlace> FindMarkers(const MainWindow& main, std::string_view text, std::size_t limit)
{
    Hits hits(text, limit);
    const Map* map = main.mpCtrl.ActiveMap();
    if (!map)
        return {};
    for (std::size_t slot = 0; slot < map->Pins().SlotCount() && !hits.IsFull(); ++slot) {
        const PinData* pin = map->Pins().At(slot);
        if (!pin)
            continue;
        hits.Offer(pin->name, [&]() -> std::optional<FoundPlace> {
            if (BelongsToStation(main, pin->name))
                return std::nullopt;
            return FoundPlace{FoundPlace::Kind::Marker, pin->name, "", pin->point, "", Channel::RF};
        });
    }
    return hits.Take();
}

std::optional<FoundPlace> FindCoordinates(std::string_view typed)
{
    const auto written = ReadLatLon(typed);
    const auto point = written ? written : ReadLocator(typed);
    if (!point)
        return std::nullopt;
    FoundPlace place;
    place.point = *point;
    place.name = written ? CoordinateText(*point, CoordinateForm::Decimal) : std::string(typed);
    place.detail = written ? LocatorOf(*point) : CoordinateText(*point, CoordinateForm::Minutes);
    return place;
}

void Append(std::vector<FoundPlace>& places, std::vector<FoundPlace> more, std::size_t limit)
{
    const std::size_t room = limit - std::min(places.size(), limit);
    more.resize(std::min(more.size(), room));
    std::move(more.begin(), more.end(), std::back_inserter(places));
}

} // namespace

std::vector<FoundPlace> Find(const MainWindow& main, const IPlaceSearch& places, std::string_view text,
                             std::size_t limit)
{
    const std::string_view typed = Trim(text);
    if (typed.empty())
        return {};
    std::vector<FoundPlace> onMap = places.Search(typed, limit);
    if (auto point = FindCoordinates(typed))
        onMap.insert(onMap.begin(), *std::move(point));
    // Neither stations nor places crowd the others out.
    const std::size_t roomForStations = std::max(limit - std::min(onMap.size(), limit), (limit + 1) / 2);
    std::vector<FoundPlace> found = FindStations(main, CallOfMarkerName(typed), roomForStations);
    Append(found, FindMarkers(main, typed, roomForStations - found.size()), roomForStations);
    Append(found, std::move(onMap), limit);
    return found;
}

void GoToFound(MainWindow& main, const FoundPlace& found)
{
    ShowMapView(main.window);
    Attempt(main.abandoned, "GoToFound", [&] {
        Map& map = main.mpCtrl.RequireMap();
        const auto pin = found.kind == FoundPlace::Kind::Place ? std::nullopt : map.FindPushpin(found.name);
        if (pin)
            ShowOnMap(main, *pin);
        else
            ShowPoint(main, found.point);
    });
    if (found.kind == FoundPlace::Kind::Station)
        SelectStationNode(main, {found.channel, found.call});
}

void mnuFind_Click(MainWindow& main)
{
    ShowMapView(main.window);
    main.services.dialogs.Show(Form::frmFind, main);
}

void mnuDirections_Click(MainWindow& main)
{
    ShowMapView(main.window);
    main.mpCtrl.SetItineraryVisible(!main.mpCtrl.ItineraryVisible());
}

} // namespace ruvenmark
