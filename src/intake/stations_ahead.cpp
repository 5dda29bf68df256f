#include "intake/stations_ahead.h"

#include "core/main_window.h"

#include <algorithm>

namespace ruvenmark {

namespace {

void ExpectModels(const MainWindow& main, const Record& record)
{
    main.tvStationList.Expect(record.PositionNode);
    if (const Map* map = main.mpCtrl.ActiveMap())
        map->Expect(record.Marker);
    record.Expect();
}

} // namespace

void StationsAhead::Expect(const MainWindow& main, const ChannelState& channel, std::string_view call)
{
    const Dictionary<Record>& stations = channel.Stations;
    std::shift_right(m_calls.begin(), m_calls.end(), 1);
    m_calls[0] = stations.Hash(call);
    stations.ExpectPlace(m_calls[0]);
    stations.ExpectEntry(m_calls[1]);
    if (const Record* record = stations.Guess(m_calls[2]))
        ExpectModels(main, *record);
    if (const Record* record = stations.Guess(m_calls[3]))
        main.tvStationList.ExpectChildren(record->PositionNode);
    if (const Record* record = stations.Guess(m_calls[4]))
        main.tvStationList.ExpectTexts(record->PositionNode);
}

} // namespace ruvenmark
