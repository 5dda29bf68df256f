#include "app/link_run.h"
#include "core/main_window.h"
#include "links/gps_link.h"
#include "links/server_link.h"
#include "links/tnc_link.h"
#include "links/weather_link.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

// The options stand among the stored values of this run already, but for those of the weather station, which has none.
constexpr std::array<LinkConnect, 5> kConnects = {{
    {LinkName::Tnc, [](MainWindow& main, const LinkOption& /*option*/) { ConnectSerialTnc(main); },
     [](const MainWindow& main) { return main.links.bSerialConnected; }},
    {LinkName::Agw, [](MainWindow& main, const LinkOption& /*option*/) { ConnectAgw(main); },
     [](const MainWindow& main) { return main.links.bSocketConnected; }},
    {LinkName::Server, [](MainWindow& main, const LinkOption& /*option*/) { ConnectServerLink(main); },
     [](const MainWindow& main) { return main.links.bServerConnected; }},
    {LinkName::Gps, [](MainWindow& main, const LinkOption& /*option*/) { ConnectGps(main); },
     [](const MainWindow& main) { return main.links.bGpsConnected; }},
    {LinkName::Wx,
     [](MainWindow& main, const LinkOption& option) {
         main.frmWx.sWxPort = option.address;
         main.frmWx.lWxBaud = option.number;
         ConnectWx(main);
     },
     [](const MainWindow& main) { return main.links.bWxConnected; }},
}};

} // namespace

const LinkConnect& ConnectOf(LinkName link)
{
    return *std::find_if(kConnects.begin(), kConnects.end(), [&](const LinkConnect& row) { return row.link == link; });
}

} // namespace ruvenmark
