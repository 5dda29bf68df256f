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

void TellSent(MainWindow& main, Roads taken)
{
    if (!taken.IsAny())
        return;
    constexpr std::size_t kTimeOfDay = 11; // In "2026-11-22 20:15:03".
    const std::string_view now = main.services.clock.LocalNowText();
    main.sbStatusBar.SetSent("Sent over " + NamesOf(taken) + " at " + std::string(now.substr(kTimeOfDay)));
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
        TellSent(main, taken);
        throw;
    }
    TellSent(main, taken);
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
