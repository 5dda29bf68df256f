#include "outgoing/send_report.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "outgoing/road_boxes.h"

#include <string>
#include <utility>

namespace ruvenmark {

namespace {

std::string NamesOf(Roads roads)
{
    std::string names;
    for (const auto& [bOn, name] :
         {std::pair(roads.bTnc, "TNC"), std::pair(roads.bAgw, "AGW"), std::pair(roads.bServer, "server")})
        if (bOn)
            names.append(names.empty() ? "" : ", ").append(name);
    return names;
}

std::string SentLine(Roads taken, std::string_view timeOfDay)
{
    return taken.IsAny() ? "Sent over " + NamesOf(taken) + " at " + std::string(timeOfDay) : std::string();
}

void TellSent(MainWindow& main, std::string_view text, Roads taken)
{
    if (!taken.IsAny())
        return;
    constexpr std::size_t kTimeOfDay = 11; // In "2026-11-22 20:15:03".
    const std::string now(main.services.clock.LocalNowText().substr(kTimeOfDay));
    main.sbStatusBar.SetSent(SentLine(taken, now));
    main.beacons.tncText = taken.bTnc ? text : std::string_view();
    taken.bTnc = false;
    main.beacons.sentElsewhere = SentLine(taken, now);
}

} // namespace

void SendReport(MainWindow& main, const OutgoingReport& report, Roads wanted)
{
    if (!wanted.IsAny())
        return;
    if (report.source.empty())
        throw Failure("there is no call sign to send under");
    if (!std::exchange(main.beacons.bRoadsTold, true))
        Tell(main, "Reports go out over " + NamesOf(OpenRoads(main.links, true, true)));
    Roads taken;
    try {
        SendToLinks(main.links, report, wanted, taken);
    } catch (const Failure&) {
        TellSent(main, report.text, taken);
        throw;
    }
    TellSent(main, report.text, taken);
}

void aprs_ReportNotSent(MainWindow& main, std::string_view text)
{
    Tell(main, "Not sent over TNC, which refused or was silent: " + std::string(text));
    if (main.beacons.tncText != text)
        return; // Something else has been sent since.
    main.beacons.tncText.clear();
    main.sbStatusBar.SetSent(main.beacons.sentElsewhere);
}

void SendOwnReport(MainWindow& main, std::string_view text, Roads wanted)
{
    const std::string& tactical = SettingText(main.Settings, Setting::Tactical);
    const bool bTactical = !tactical.empty() && SettingBool(main.Settings, Setting::BeaconTactical);
    SendReport(main,
               {.source = bTactical ? tactical : SettingText(main.Settings, Setting::Call),
                .dest = SettingText(main.Settings, Setting::Dest),
                .via = SettingText(main.Settings, Setting::Path),
                .text = text},
               wanted);
}

void SendByHand(MainWindow& main, const CallBoxes& calls, const RoadBoxes& boxes, std::string_view text,
                std::string_view complaint)
{
    const OutgoingReport report{calls.From, calls.To, calls.Via, text};
    if (!Attempt(main.abandoned, complaint, [&] { SendReport(main, report, Wanted(boxes, main.links)); }))
        main.services.prompts.Message(complaint);
}

} // namespace ruvenmark
