#include "links/server_status_rules.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <string>

namespace ruvenmark {

namespace {

constexpr std::chrono::seconds kTipInterval{1}; // A full feed has thousands of lines in it.
constexpr std::array<std::string_view, 4> kLoginWords = {"no login, as there is no call sign", "login not answered yet",
                                                         "login verified",
                                                         "login not verified: nothing that is sent is passed on"};

// What follows a word of the server, up to the end.
std::string_view Behind(std::string_view line, std::string_view word)
{
    const auto found = line.find(word);
    return found == std::string_view::npos ? std::string_view() : Trim(line.substr(found + word.size()));
}

// A server that repeats the login line must not show the password to whoever looks at the window.
std::string WithoutPassword(std::string_view line)
{
    constexpr std::string_view kWord = "pass ";
    std::string text(line);
    for (auto at = text.find(kWord); at != std::string::npos; at = text.find(kWord, at + 1)) {
        const auto from = at + kWord.size();
        const auto end = text.find(' ', from);
        text.replace(from, end == std::string::npos ? end : end - from, "...");
    }
    return text;
}

std::string Tip(const ServerStatus& status)
{
    std::string tip = "Connected since " + status.since + "; ";
    tip += ShortText(static_cast<std::int64_t>(status.lines));
    tip += status.lines == 1 ? " line heard" : " lines heard";
    if (!status.lastHeard.empty())
        tip += ", the last one at " + status.lastHeard;
    if (!status.serverName.empty())
        tip += "; server " + status.serverName;
    tip += "; ";
    tip += kLoginWords[static_cast<std::size_t>(status.login)];
    if (!status.complaint.empty())
        tip += "; the server says: " + status.complaint;
    return tip;
}

void ShowStatus(MainWindow& main)
{
    ServerStatus& status = main.serverStatus;
    status.shown = main.services.wires.Now();
    main.sbStatusBar.SetPanelTip(Panel::Server, Tip(status));
    main.sbStatusBar.SetPanelWarning(Panel::Server,
                                     status.login == ServerStatus::Login::Unverified || !status.complaint.empty());
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
        const std::string complaint = WithoutPassword(Trim(line.substr(1)));
        if (complaint != main.serverStatus.complaint)
            Tell(main, "The APRS server says: " + complaint);
        main.serverStatus.complaint = complaint;
    }
}

} // namespace

void BeginServerStatus(MainWindow& main)
{
    main.serverStatus = {};
    main.serverStatus.since = main.services.clock.LocalNowText();
    ShowStatus(main);
}

void NoteServerLogin(MainWindow& main)
{
    main.serverStatus.login = ServerStatus::Login::Unanswered;
    ShowStatus(main);
}

void NoteServerLine(MainWindow& main, std::string_view line)
{
    constexpr std::size_t kDateWidth = 11; // Of "2026-11-22 20:15:03".
    ServerStatus& status = main.serverStatus;
    if (status.since.empty()) // No connection of ours.
        return;
    ++status.lines;
    status.lastHeard = main.services.clock.LocalNowText().substr(kDateWidth);
    const bool bNotice = line.starts_with('#');
    if (bNotice)
        TakeNotice(main, line);
    if (bNotice || main.services.wires.Now() - status.shown >= kTipInterval)
        ShowStatus(main);
}

void EndServerStatus(MainWindow& main)
{
    main.serverStatus = {};
    main.sbStatusBar.SetPanelTip(Panel::Server, {});
    main.sbStatusBar.SetPanelWarning(Panel::Server, false);
}

} // namespace ruvenmark
