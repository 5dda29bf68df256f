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

// Without an address the stored fields of the link stand, but for which of the two reaches the air.
constexpr std::array<LinkConnect, 5> kConnects = {{
    {LinkName::Tnc,
     [](MainWindow& main, const LinkOption& option) {
         main.commDialog.bConnectSocket = false;
         if (option.address.empty())
             return;
         main.commDialog.sSerialPort = option.address;
         main.commDialog.lLastBaudRate = option.number;
     },
     ConnectSerialTnc, [](const MainWindow& main) { return main.links.bSerialConnected; }},
    {LinkName::Agw,
     [](MainWindow& main, const LinkOption& option) {
         main.commDialog.bConnectSocket = true;
         if (option.address.empty())
             return;
         main.commDialog.sSocketAddress = option.address;
         main.commDialog.iSocketPort = static_cast<std::int16_t>(option.number);
     },
     ConnectAgw, [](const MainWindow& main) { return main.links.bSocketConnected; }},
    {LinkName::Server,
     [](MainWindow& main, const LinkOption& option) {
         main.frmTcp.bCancel = false;
         if (option.address.empty())
             return;
         main.frmTcp.sServerAddress = option.address;
         main.frmTcp.iServerPort = static_cast<std::int16_t>(option.number);
     },
     ConnectServerLink, [](const MainWindow& main) { return main.links.bServerConnected; }},
    {LinkName::Gps,
     [](MainWindow& main, const LinkOption& option) {
         main.frmGps.bConnect = true;
         if (option.address.empty())
             return;
         main.frmGps.sGPSPort = option.address;
         main.frmGps.lGPSBaud = option.number;
     },
     ConnectGps, [](const MainWindow& main) { return main.links.bGpsConnected; }},
    {LinkName::Wx,
     [](MainWindow& main, const LinkOption& option) {
         main.frmWx.sWxPort = option.address;
         main.frmWx.lWxBaud = option.number;
     },
     ConnectWx, [](const MainWindow& main) { return main.links.bWxConnected; }},
}};

} // namespace

const LinkConnect& ConnectOf(LinkName link)
{
    return *std::find_if(kConnects.begin(), kConnects.end(), [&](const LinkConnect& row) { return row.link == link; });
}

} // namespace ruvenmark
