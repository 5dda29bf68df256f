#include "links/server_link.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "links/server_form_rules.h"
#include "links/server_password.h"
#include "links/server_status_rules.h"
#include "outgoing/position_report.h"
#include "platform/numbers.h"
#include "platform/program_name.h"
#include "platform/text.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>

namespace ruvenmark {

namespace {

constexpr std::string_view kFailed = "APRS server connection failed";

// The map's own pointer is left alone: it may wait for a click.
class WaitPointer {
public:
    explicit WaitPointer(StatusBar& status) : m_status(status), m_bFormer(status.IsWaitPointer())
    {
        m_status.SetWaitPointer(true);
    }
    ~WaitPointer() { m_status.SetWaitPointer(m_bFormer); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;

private:
    StatusBar& m_status;
    bool m_bFormer;
};

void SetServerPanel(MainWindow& main, std::string_view text)
{
    main.sbStatusBar.SetPanel(Panel::Server, text);
}

void DropServer(MainWindow& main)
{
    main.links.bServerConnected = false;
    main.links.aprstcp.reset();
    EndServerStatus(main);
}

// A failure ends the link where it is; only a connection that stood and is lost brings another attempt.
void TryLink(MainWindow& main, const std::function<void()>& work)
{
    if (AttemptAloud(main, kFailed, work))
        return;
    DropServer(main);
    SetServerPanel(main, kFailed);
}

struct Target {
    const std::string& host;
    std::int16_t port;
    const std::string& filter;
    bool bBeacon;
};

Target PrimaryServer(const ServerForm& form)
{
    return {form.sServerAddress, form.iServerPort, form.sServerFilter, form.bServerBeacon};
}

Target BackupServer(const ServerForm& form)
{
    return {form.sBackupServer, form.iBackupPort, form.sBackupFilter, form.bBackupBeacon};
}

// "4.4" of "4.04.1".
std::string MajorAndMinor()
{
    const auto numbers = Split(ProgramVersion(), '.');
    return ShortText(std::int64_t{ToInt32(numbers.at(0))}) + "." + ShortText(std::int64_t{ToInt32(numbers.at(1))});
}

std::string LoginLine(MainWindow& main, const std::string& call, const std::string& filter)
{
    std::string line = "user " + call + " pass " + GetServerPassword(main, call);
    line.append(" vers ").append(kProgramName).append(" ").append(MajorAndMinor());
    return filter.empty() ? line : line + " " + filter;
}

void BeaconAfterLogin(MainWindow& main, bool bBeacon)
{
    if (bBeacon && main.beacons.PositionDefined)
        SendPositionReport(main, false);
}

// Without a call sign the connection stays open and only listens.
void Login(MainWindow& main, const Target& target)
{
    const std::string& call = SettingText(main.Settings, Setting::Call);
    if (!main.links.bServerConnected || main.links.bLoginSent || call.empty())
        return;
    main.links.bLoginSent = true;
    main.links.aprstcp->SendServerLine(LoginLine(main, call, target.filter));
    NoteServerLogin(main);
    BeaconAfterLogin(main, target.bBeacon);
}

// `mark` stands behind what is told of a connection.
void Connect(MainWindow& main, const Target& target, const std::string& mark)
{
    const std::string address = target.host + ":" + ShortText(std::int64_t{target.port});
    const WaitPointer wait(main.sbStatusBar);
    SetServerPanel(main, "Connecting " + address);
    main.links.aprstcp = main.services.sources.CreateServer(main.links.SinkOf(Channel::TCP));
    main.links.aprstcp->ConnectServer(target.host, target.port, kAccessToken);
    main.links.bServerConnected = true;
    main.links.bLoginSent = false;
    BeginServerStatus(main);
    SetServerPanel(main, "Connected to " + address + mark);
}

void Reconnect(MainWindow& main, const Target& target, const std::string& mark)
{
    TryLink(main, [&] {
        Connect(main, target, mark);
        Login(main, target);
    });
}

} // namespace

void mnuConnectServer_Click(MainWindow& main)
{
    if (main.links.bServerConnected) {
        TryLink(main, [&] {
            main.links.aprstcp->CloseServer();
            DropServer(main);
            SetServerPanel(main, "APRS server connection closed");
        });
        return;
    }
    frmTcp_Load(main.frmTcp);
    main.services.dialogs.Run(Form::frmTcp, main);
    if (!main.frmTcp.bCancel)
        ConnectServerLink(main);
}

void ConnectServerLink(MainWindow& main)
{
    TryLink(main, [&] {
        const Target target = PrimaryServer(main.frmTcp);
        Connect(main, target, {});
        main.links.ReconnectCount = 0;
        Login(main, target);
    });
}

void ReconnectServerLink(MainWindow& main)
{
    const ServerForm& form = main.frmTcp;
    if (!form.bReconnectServer)
        return;
    std::int16_t& count = main.links.ReconnectCount;
    if (count < std::numeric_limits<std::int16_t>::max())
        ++count;
    if (form.iReconnectAttempt >= count)
        Reconnect(main, PrimaryServer(form), " [" + ShortText(std::int64_t{count}) + "]");
    else if (form.iBackupPort >= 0 && !form.sBackupServer.empty())
        Reconnect(main, BackupServer(form), " [B]");
}

void aprstcp_ServerConnectionError(MainWindow& main)
{
    SetServerPanel(main, kFailed);
    DropServer(main);
    ReconnectServerLink(main);
}

void EndServerLink(MainWindow& main)
{
    if (!main.links.bServerConnected)
        return;
    Attempt(main.abandoned, "EndServerLink", [&] { main.links.aprstcp->CloseServer(); });
    DropServer(main);
}

} // namespace ruvenmark
