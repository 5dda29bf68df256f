#include "outgoing/road_boxes.h"

#include "core/link_state.h"
#include "core/settings.h"
#include "platform/text.h"

namespace ruvenmark {

void Load(RoadBoxes& boxes, const LinkState& links)
{
    boxes.bRfEnabled = links.IsOnAir();
    boxes.bTcpEnabled = links.bServerConnected;
}

Roads Wanted(const RoadBoxes& boxes, const LinkState& links)
{
    return OpenRoads(links, boxes.chkRF, boxes.chkTCP);
}

void Load(CallBoxes& boxes, const SettingsState& settings)
{
    const auto shown = [&](const std::string& kept, Setting setting) {
        return kept.empty() ? SettingText(settings, setting) : kept;
    };
    boxes.txtFrom = shown(boxes.From, Setting::Call);
    boxes.txtTo = shown(boxes.To, Setting::Dest);
    boxes.txtVia = shown(boxes.Via, Setting::Path);
}

void Keep(CallBoxes& boxes)
{
    boxes.From = ToUpper(Trim(boxes.txtFrom));
    boxes.To = ToUpper(Trim(boxes.txtTo));
    boxes.Via = ToUpper(Trim(boxes.txtVia));
}

} // namespace ruvenmark
