// ReportPos and ReportPosExt: a station moves across the map and is filed under "Positions".

#include "core/main_window.h"
#include "core/views.h"
#include "intake/fact_writer.h"
#include "intake/place_marker.h"
#include "intake/report_handlers.h"
#include "intake/station_store.h"
#include "map/markers.h"
#include "platform/numbers.h"
#include "platform/small_text.h"
#include "tracking/filters.h"
#include "tracking/track_lines.h"
#include "tracking/track_lists.h"

#include <array>
#include <string>

namespace ruvenmark {

namespace {

constexpr double kStandingStill = 0.005; // Knots.

bool AddsMarkers(const MainWindow& main, Channel channel)
{
    switch (channel) {
    case Channel::RF:
        return main.commDialog.bAddRFSymbol;
    case Channel::TCP:
        return main.frmTcp.bAddTCPSymbol;
    case Channel::FL:
        return main.frmImport.bFLAdd;
    }
    return false;
}

void PlayTrackSound(MainWindow& main)
{
    if (!SettingBool(main.Settings, Setting::PlayTrack))
        return;
    const std::string_view path = SettingText(main.Settings, Setting::TrackWaveFile);
    if (!path.empty() && main.services.files.Exists(path))
        main.services.sound.PlayAndWait(path);
}

// Everything ahead of the tree: a failure in here leaves out only the rest of it.
void ShowOnMap(MainWindow& main, Channel channel, const PosReport& report, const Record* known)
{
    const bool bTracked = IsTracked(main.Of(channel), report.call);
    if (bTracked || AddsMarkers(main, channel))
        PlaceMarker(main, channel, report, known ? known->Marker : SlotRef(), bTracked);
    if (bTracked)
        PlayTrackSound(main);
}

// What a report costs with many stations is the waits for their memory, so all that this one needs is asked for at
// once.
Record* ExpectStation(MainWindow& main, Channel channel, std::string_view call)
{
    Record* known = main.Of(channel).Stations.Find(call);
    if (!known)
        return nullptr;
    main.tvStationList.Expect(known->PositionNode);
    if (const Map* map = main.mpCtrl.ActiveMap())
        map->Expect(known->Marker);
    known->Expect();
    return known;
}

struct PositionTexts {
    std::string lat, lon;
    std::string_view received;
};

// The station's node.
TreeNode& WritePositionNodes(MainWindow& main, Channel channel, const PosReport& report, const PositionTexts& texts,
                             TreeNode* hint)
{
    FactWriter writer(main.tvStationList, channel, kPositions);
    TreeNode& node = writer.Station(report.call, report.symbol, hint);
    writer.Fact("Lat", "Lat: ", texts.lat, "°", "Parallel");
    writer.Fact("Lon", "Lon: ", texts.lon, "°", "Parallel");
    writer.Fact("Path", "Path: ", report.path, "", "Path");
    if (!report.comment.empty())
        writer.Fact("Comment", report.comment, "Info");
    writer.Fact("Received", "Received: ", texts.received, "", "Received");
    writer.Counts();
    return node;
}

void WritePositionRecord(Record& record, const PosReport& report, const PositionTexts& texts)
{
    record.Set(std::array<Record::Entry, 6>{{{Field::Lat, texts.lat},
                                             {Field::Lon, texts.lon},
                                             {Field::PositionPath, report.path},
                                             {Field::Symbol, report.symbol},
                                             {Field::Comment, report.comment},
                                             {Field::PositionReceived, texts.received}}});
}

Record& WriteMovement(MainWindow& main, Channel channel, const PosExtReport& report)
{
    const bool bAltitude = report.altitude > kAbsent;
    const bool bSpeed = report.speed > kAbsent;
    const bool bCourse = report.course > kAbsent;
    const std::string altitude = bAltitude ? NearestText(report.altitude) : std::string();
    const std::string speed = bSpeed ? NearestText(report.speed * kMilesPerKnot) : std::string();
    const std::string course = bCourse ? NearestText(report.course) : std::string();

    FactWriter writer(main.tvStationList, channel, kPositions);
    writer.Station(report.call);
    if (bAltitude)
        writer.Fact("Altitude", "Altitude: ", altitude, " feet", "Balloon");
    if (bSpeed)
        writer.Fact("Speed", "Speed: ", speed, " mph", "Speed");
    if (bCourse)
        writer.Fact("Course", "Course: ", course, "°", "Course");
    writer.Counts();
    writer.Color(report.speed > kStandingStill ? MobileColor(main.Settings) : 0);

    Record& record = EnsureRecord(main.Of(channel), report.call);
    if (bAltitude)
        record.Set(Field::Alt, altitude);
    if (bSpeed)
        record.Set(Field::Speed, speed);
    if (bCourse)
        record.Set(Field::Course, course);
    return record;
}

} // namespace

void aprs_ReportPos(MainWindow& main, Channel channel, const PosReport& report)
{
    if (IsFiltered(main, channel, report.call, report.dest, report.lat, report.lon))
        return;
    SmallText received; // The clock's own text goes on.
    received.Set(main.services.clock.LocalNowText());
    Record* known = ExpectStation(main, channel, report.call);
    const PositionTexts texts{ShortText(report.lat), ShortText(report.lon), received.View()};
    Attempt(main.abandoned, "ReportPos, map", [&] { ShowOnMap(main, channel, report, known); });
    Attempt(main.abandoned, "ReportPos", [&] {
        main.tvStationList.ExpectChildren(known ? known->PositionNode : nullptr);
        TreeNode& node = WritePositionNodes(main, channel, report, texts, known ? known->PositionNode : nullptr);
        Record& record = known ? *known : EnsureRecord(main.Of(channel), report.call);
        record.PositionNode = &node;
        WritePositionRecord(record, report, texts);
        RefreshMarkerNote(main, channel, report.call, record);
    });
}

void aprs_ReportPosExt(MainWindow& main, Channel channel, const PosExtReport& report)
{
    if (IsFiltered(main, channel, report.call, report.dest, report.lat, report.lon))
        return;
    Attempt(main.abandoned, "ReportPosExt", [&] {
        Record& record = WriteMovement(main, channel, report);
        RefreshMarkerNote(main, channel, report.call, record);
    });
}

} // namespace ruvenmark
