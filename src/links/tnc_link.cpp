#include "links/tnc_link.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "links/gps_link.h"
#include "links/link_status_rules.h"
#include "links/tnc_form_rules.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/records.h"
#include "platform/text.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::string_view kFailed = "TNC connection failed";

void Show(MainWindow& main, std::string_view text)
{
    main.sbStatusBar.SetPanel(Panel::Tnc, text);
}

// Raises Failure.
IReportSource& Source(MainWindow& main)
{
    if (!main.links.aprs)
        throw Failure("the TNC link is gone");
    return *main.links.aprs;
}

// However a TNC goes, nothing more is known of the receiver behind it.
void DropSource(MainWindow& main)
{
    if (main.links.bSerialConnected && main.commDialog.bTncGps)
        ForgetFix(main);
    main.links.bSerialConnected = false;
    main.links.bSocketConnected = false;
    main.links.aprs.reset();
    EndRadioStatus(main);
}

void Drop(MainWindow& main, std::string_view text)
{
    DropSource(main);
    Show(main, text);
}

void SendCommandFile(MainWindow& main, std::string_view name)
{
    std::string text;
    try {
        text = main.services.files.ReadText(JoinPath(main.services.programFolder, name), FileKind::List);
    } catch (const Failure&) { // The operator wrote none.
        return;
    }
    Source(main).EnterCommandMode();
    for (const std::string_view line : Lines(text))
        if (IsUsedLine(line))
            Source(main).SendCommand(line);
}

void StartGps(MainWindow& main)
{
    const TncForm& form = main.commDialog;
    IReportSource& source = Source(main);
    source.EnterCommandMode();
    source.SendCommand("GBAUD 4800");
    source.SendCommand("GPSTEXT " + form.sGpsSentence);
    source.SendCommand("LTMH OFF");
    main.gps.GpsUpdateSeconds = UpdateRateSeconds(form.iUpdateRateIndex);
    source.SendCommand("LTM " + ShortText(std::int64_t{main.gps.GpsUpdateSeconds}));
}

void DisconnectSerial(MainWindow& main)
{
    if (main.commDialog.bTncGps) {
        Source(main).EnterCommandMode();
        Source(main).SendCommand("LTM 0");
    }
    SendOriginalSettings(main);
    Source(main).ClosePort();
    Drop(main, "TNC disconnected");
}

void Toggle(MainWindow& main)
{
    if (main.links.bSerialConnected) {
        DisconnectSerial(main);
    } else if (main.links.bSocketConnected) {
        Source(main).CloseSocket();
        Drop(main, "TNC disconnected");
    } else {
        commDialog_Load(main.commDialog);
        main.services.dialogs.Run(Form::commDialog, main);
        if (main.commDialog.lSerialBaud == 0)
            return;
        main.commDialog.bConnectSocket ? ConnectAgw(main) : ConnectSerialTnc(main);
    }
}

// Whatever fails ends the link.
void OpenLink(MainWindow& main, const std::function<void()>& open)
{
    DropSource(main); // One that is still connecting, or that connected behind the dialog.
    if (!AttemptAloud(main, kFailed, open))
        Drop(main, kFailed);
}

} // namespace

void ConnectTnc(MainWindow& main)
{
    if (!AttemptAloud(main, kFailed, [&] { Toggle(main); }))
        Drop(main, kFailed);
}

void ConnectSerialTnc(MainWindow& main)
{
    OpenLink(main, [&main, &form = std::as_const(main.commDialog)] {
        main.links.aprs = main.services.sources.CreateTnc(main.links.SinkOf(Channel::RF));
        Source(main).OpenPort(form.sSerialPort, form.lLastBaudRate, kAccessToken);
        main.links.bSerialConnected = true;
        SendTncSettings(main);
        if (form.bTncGps)
            StartGps(main);
        Show(main,
             "Connected to port " + form.sSerialPort + " at " + ShortText(std::int64_t{form.lLastBaudRate}) + "bps");
        BeginRadioStatus(main);
    });
}

void ConnectAgw(MainWindow& main)
{
    OpenLink(main, [&main, &form = std::as_const(main.commDialog)] {
        main.links.aprs = main.services.sources.CreateAgw(main.links.SinkOf(Channel::RF));
        Source(main).ConnectSocket(form.sSocketAddress, form.iSocketPort, kAccessToken);
        Show(main, "Connecting to AGW Packet Engine");
    });
}

void SendTncSettings(MainWindow& main)
{
    SendCommandFile(main, "tncsettings.txt");
}

void SendOriginalSettings(MainWindow& main)
{
    SendCommandFile(main, "originalsettings.txt");
}

void CloseTncLink(MainWindow& main)
{
    Attempt(main.abandoned, "CloseTncLink", [&] {
        if (!main.links.aprs)
            return;
        if (main.links.bSerialConnected) {
            // The port is closed whatever becomes of the commands.
            Attempt(main.abandoned, "SendOriginalSettings", [&] { SendOriginalSettings(main); });
            main.links.aprs->ClosePort();
        } else if (main.links.bSocketConnected) {
            main.links.aprs->CloseSocket();
        }
    });
    main.links.aprs.reset();
}

void aprs_SocketConnected(MainWindow& main)
{
    main.links.bSocketConnected = true;
    Show(main, "Connected to AGW Packet Engine");
    BeginRadioStatus(main);
}

void aprs_SocketConnectionError(MainWindow& main)
{
    Drop(main, "AGW connection failed");
}

void aprs_SocketConnectionClosed(MainWindow& main)
{
    const bool bSerial = main.links.bSerialConnected;
    Drop(main, bSerial ? "TNC connection unexpectedly closed" : "AGW connection unexpectedly closed");
}

} // namespace ruvenmark
