#include "intake/place_marker.h"

#include "contracts/report_source.h"
#include "core/main_window.h"
#include "core/views.h"
#include "map/marker_names.h"
#include "map/markers.h"
#include "map/names_state.h"
#include "map/symbols.h"
#include "tracking/track_lines.h"

#include <string>

namespace ruvenmark {

namespace {

void AddMarker(MainWindow& main, Channel channel, const Location& location, std::string_view name,
               std::string_view symbolWord, bool bTracked)
{
    Pushpin pin = main.mpCtrl.RequireMap().AddPushpin(location, name);
    pin.SetBalloonState(bTracked ? main.tracking.NewMarkerBalloon : NamesState(main, channel));
    pin.SetSymbol(SymbolId(symbolWord));
}

} // namespace

void PlaceMarker(MainWindow& main, Channel channel, const PosReport& report, SlotRef hint, bool bTracked)
{
    Map& map = main.mpCtrl.RequireMap();
    const Location location = map.GetLocation(report.lat, report.lon);
    const std::string name = MarkerName(channel, report.call);
    auto pin = map.FindPushpin(name, hint);
    if (!pin) {
        AddMarker(main, channel, location, name, report.symbol, bTracked);
    } else if (bTracked && pin->NoteBeginsWith(Traits(channel).word)) {
        AddTrackPoint(main, channel, report.call, *pin, location, report.symbol);
    } else {
        pin->SetLocation(location);
        pin->SetSymbol(SymbolId(report.symbol));
    }
    if (bTracked && main.tracking.bTrackStationPosition) {
        location.GoTo();
        ShowMapView(main.window);
    }
}

} // namespace ruvenmark
