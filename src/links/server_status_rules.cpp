#include "links/server_status_rules.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "links/link_status_rules.h"
#include "platform/text.h"

#include <array>
#include <chrono>
#include <string>

namespace ruvenmark {

namespace {

constexpr std::chrono::seconds kQuietLimit{60}; // Servers give a sign of life about every 20.
constexpr std::string_view kSilent = "The APRS server has said nothing for a minute: the connection may be lost";
constexpr std::array<std::string_view, 4> kLoginWords = {"no login, as there is no call sign", "login not answered yet",
                                                         "login verified",
                                                         "login not verified: nothing that is sent is passed on"};

// What follows a word of the server, up to the end.
std::string_view Behind(std::string_view line, std::string_view word)
{
    const auto found = line.find(word);
    return found == std::string_view::npos ? std::string_view() : Trim(line.substr(found + word.size()));
}

// A server with a narrow filter sends few lines: its keepalives are told of where they are newer.
std::string SignOfLife(const ServerStatus& status, Moment now, std::chrono::milliseconds silence)
{
    const std::string age = AgeText(silence);
    if (status.bSilent)
        return "; silent for " + age + ": the connection may be lost";
    if (age == AgeText(now - status.lastHeard.value_or(*status.since)))
        return {};
    return "; last sign of life " + age + " ago";
}

std::string Tip(const MainWindow& main)
{
    const ServerStatus& status = main.serverStatus;
    const Moment now = main.services.wires.Now();
    std::string tip = StatusText(status, now, "line");
    if (main.links.aprstcp)
        tip += SignOfLife(status, now, main.links.aprstcp->SilentFor());
    if (!status.serverName.empty())
        tip += "; server " + status.serverName;
    tip += "; ";
    tip += kLoginWords[static_cast<std::size_t>(status.login)];
    if (!status.complaint.empty())
        tip += "; the server says: " + status.complaint;
    return tip;
}

// "# logresp W1AW verified, server T2LOOP"
void TakeLoginAnswer(MainWindow& main, std::string_view line)
{
    ServerStatus& status = main.serverStatus;
    const bool bToldBefore = status.login == ServerStatus::Login::Unverified;
    if (ContainsIgnoringCase(line, "unverified"))
        status.login = ServerStatus::Login::Unverified;
    else if (ContainsIgnoringCase(line, "verified"))
        status.login = ServerStatus::Login::Verified;
    const std::string_view name = Behind(line, "server ");
    status.serverName = name.substr(0, name.find(' '));
    if (status.login == ServerStatus::Login::Unverified && !bToldBefore)
        Tell(main, "The APRS server has not verified the login: nothing that is sent is passed on");
}

bool IsComplaint(std::string_view line)
{
    return ContainsIgnoringCase(line, "error") || ContainsIgnoringCase(line, "invalid");
}

void TakeNotice(MainWindow& main, std::string_view line)
{
    if (ContainsIgnoringCase(line, "logresp")) {
        TakeLoginAnswer(main, line);
    } else if (IsComplaint(line)) {
        const std::string complaint(Trim(line.substr(1)));
        if (complaint != main.serverStatus.complaint)
            Tell(main, "The APRS server says: " + complaint);
        main.serverStatus.complaint = complaint;
    }
}

} // namespace

void BeginServerStatus(MainWindow& main)
{
    main.serverStatus = {};
    main.serverStatus.since = main.services.wires.Now();
    ShowServerStatus(main);
}

void NoteServerLogin(MainWindow& main)
{
    main.serverStatus.login = ServerStatus::Login::Unanswered;
    ShowServerStatus(main);
}

void NoteServerLine(MainWindow& main, std::string_view line)
{
    ServerStatus& status = main.serverStatus;
    if (!status.since) // No connection of ours.
        return;
    NoteLine(status, main.services.wires.Now());
    if (!line.starts_with('#'))
        return;
    TakeNotice(main, line);
    ShowServerStatus(main);
}

void CheckServerSilence(MainWindow& main)
{
    ServerStatus& status = main.serverStatus;
    if (!status.since || !main.links.aprstcp)
        return;
    const bool bSilent = main.links.aprstcp->SilentFor() >= kQuietLimit;
    if (bSilent == status.bSilent)
        return;
    status.bSilent = bSilent;
    if (bSilent)
        Tell(main, kSilent);
    else if (main.sbStatusBar.Notice() == kSilent)
        main.sbStatusBar.SetNotice({});
    ShowServerStatus(main);
}

void ShowServerStatus(MainWindow& main)
{
    const ServerStatus& status = main.serverStatus;
    if (!status.since)
        return;
    main.sbStatusBar.SetPanelTip(Panel::Server, Tip(main));
    main.sbStatusBar.SetPanelWarning(Panel::Server, status.login == ServerStatus::Login::Unverified ||
                                                        !status.complaint.empty() || status.bSilent);
}

void EndServerStatus(MainWindow& main)
{
    main.serverStatus = {};
    main.sbStatusBar.SetPanelTip(Panel::Server, {});
    main.sbStatusBar.SetPanelWarning(Panel::Server, false);
}

} // namespace ruvenmark
