#include "app/send_run.h"

#include "core/main_window.h"
#include "messaging/message_form_rules.h"
#include "messaging/send_message.h"
#include "outgoing/my_station.h"
#include "outgoing/object_report.h"
#include "outgoing/position_report.h"
#include "outgoing/status_report.h"
#include "outgoing/weather_report.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ruvenmark {

namespace {

using Kind = SendOption::Kind;

std::string_view NameOf(SentReport::Road road)
{
    constexpr std::array<std::string_view, 3> kNames = {"TNC", "AGW", "server"};
    return kNames[static_cast<std::size_t>(road)];
}

std::string NameOf(const SendOption& report)
{
    constexpr std::array<std::string_view, 5> kNames = {"position", "weather", "status", "message to ", "object "};
    return std::string(kNames[static_cast<std::size_t>(report.kind)]) + report.to;
}

void Tick(RoadBoxes& roads)
{
    roads.chkRF = roads.bRfEnabled;
    roads.chkTCP = roads.bTcpEnabled;
}

std::string AnswerStatus(MainWindow& main, const SendOption& order)
{
    Tick(main.frmStatus.roads);
    main.frmStatus.txtStatus = order.text;
    return std::string(frmStatus_Accept(main));
}

std::string AnswerMessage(MainWindow& main, const SendOption& order)
{
    MessageForm& form = main.frmMessage;
    Tick(form.roads);
    form.txtTo = order.to;
    form.txtMessage = order.text;
    return frmMessage_Send(form);
}

// Tells what is wrong itself.
void AnswerObject(MainWindow& main, const SendOption& order)
{
    ObjectForm& form = main.frmObject;
    Tick(form.roads);
    form.shown = {.txtName = order.to,
                  .txtLat = order.lat,
                  .txtLon = order.lon,
                  .txtAlt = {},
                  .txtComment = order.text,
                  .cboState = 0,
                  .cboSymbol = 0};
    frmObject_Send(main);
}

// Empty where the report can be made.
std::string_view WhatIsMissing(MainWindow& main, Kind kind)
{
    if (!main.links.IsAnyOpen())
        return "nothing is connected";
    WorkOutDefined(main);
    if (kind == Kind::Position && !main.beacons.PositionDefined)
        return "the settings Call, Lat and Lon are needed";
    if (kind == Kind::Weather && !main.beacons.WeatherDefined)
        return "the settings Call, WindDir, WindSpeed, Gust and Temperature are needed";
    return {};
}

void RunCommand(MainWindow& main, Kind kind)
{
    switch (kind) {
    case Kind::Position:
        return SendPositionReport(main, true);
    case Kind::Weather:
        return SendWeatherReport(main);
    case Kind::Status:
        return mnuSendStatus_Click(main);
    case Kind::Message:
        return mnuSendMessage_Click(main);
    case Kind::Object:
        return mnuSendObject_Click(main);
    }
}

// Of the failure that was not there before.
std::string NewReason(const FailureCounts& before, const FailureCounts& now)
{
    for (const auto& [reason, count] : now) {
        const std::size_t* former = before.Find(reason);
        if (!former || *former < count)
            return reason.substr(reason.find(": ") + 2);
    }
    return {};
}

} // namespace

void SendDialogs::Run(Form form, MainWindow& main)
{
    if (!order)
        return;
    std::string complaint;
    if (form == Form::frmStatus)
        complaint = AnswerStatus(main, *order);
    else if (form == Form::frmMessage)
        complaint = AnswerMessage(main, *order);
    else if (form == Form::frmObject)
        AnswerObject(main, *order);
    if (!complaint.empty())
        main.services.prompts.Message(complaint);
}

SendRun::SendRun(LinkEvents& events, SendDialogs& dialogs, const HeadlessPrompts& prompts, std::ostream& err)
    : m_dialogs(dialogs), m_prompts(prompts), m_notices(err)
{
    events.onSent = [this](const SentReport& report) { Note(report); };
    events.onAgwPorts = [this] { m_bPorts = true; };
}

bool SendRun::IsReady(const MainWindow& main) const
{
    const LinkState& links = main.links;
    const bool bAgwComes = links.aprs && !links.bSerialConnected && !(links.bSocketConnected && m_bPorts);
    const bool bLoginOpen = links.bServerConnected && main.serverStatus.login == ServerStatus::Login::Unanswered;
    return !bAgwComes && !bLoginOpen;
}

void SendRun::SendAll(MainWindow& main, const std::vector<SendOption>& reports)
{
    m_bBegun = true;
    for (const SendOption& report : reports)
        Send(main, report);
}

bool SendRun::IsDone(const MainWindow& main) const
{
    return m_bBegun && (m_atTnc.empty() || !main.links.bSerialConnected);
}

bool SendRun::End()
{
    if (!m_bBegun)
        m_notices.Say("Nothing was sent: the time was over before the links were ready");
    return m_bBegun && m_bWell &&
           std::all_of(m_atTnc.begin(), m_atTnc.end(), [](bool bElsewhere) { return bElsewhere; });
}

void SendRun::Note(const SentReport& report)
{
    if (report.road == SentReport::Road::Tnc && !m_atTnc.empty()) {
        m_bWell = m_bWell && (report.bWent || m_atTnc.front());
        m_atTnc.pop_front();
    }
    if (report.bWent) // What did not is told by the program itself.
        m_notices.Say("Sent over " + std::string(NameOf(report.road)) + ": " + std::string(report.text));
}

void SendRun::Send(MainWindow& main, const SendOption& report)
{
    if (const std::string_view missing = WhatIsMissing(main, report.kind); !missing.empty())
        return SayNothingWent(report, std::string(missing));
    const FailureCounts before = main.abandoned;
    const std::size_t told = m_prompts.Messages().size();
    main.sbStatusBar.SetSent({});
    m_dialogs.order = &report;
    RunCommand(main, report.kind);
    m_dialogs.order = nullptr;
    const std::string reason = NewReason(before, main.abandoned);
    const std::string& sent = main.sbStatusBar.Sent();
    if (sent.empty())
        return SayNothingWent(report, reason.empty() && m_prompts.Messages().size() > told ? m_prompts.Messages().back()
                                                                                           : reason);
    if (!reason.empty())
        m_notices.Say(NameOf(report) + " did not go out over every link: " + reason);
    if (sent.find("TNC") != std::string::npos)
        m_atTnc.push_back(sent.find(',') != std::string::npos);
}

void SendRun::SayNothingWent(const SendOption& report, const std::string& reason)
{
    m_bWell = false;
    m_notices.Say(NameOf(report) + " was not sent" + (reason.empty() ? "" : ": " + reason));
}

} // namespace ruvenmark
