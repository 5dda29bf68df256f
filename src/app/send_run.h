#pragma once

#include "app/options.h"
#include "core/bare_surface.h"
#include "devices/link_events.h"
#include "platform/headless.h"

#include <deque>
#include <iosfwd>
#include <string>
#include <vector>

namespace ruvenmark {

// Fills the dialog that a command opens as the command line says, and presses its button; without such an order every
// dialog is closed.
class SendDialogs final : public BareDialogs {
public:
    void Run(Form form, MainWindow& main) override;
    void Show(Form form, MainWindow& main) override { Run(form, main); }

    const SendOption* order = nullptr;
};

// The reports of the command line, each sent once by the operator's own commands. What went out over what, and why
// something did not, goes to `err`.
class SendRun {
public:
    // All outlive this. Made ahead of the first connect.
    SendRun(LinkEvents& events, SendDialogs& dialogs, const HeadlessPrompts& prompts, std::ostream& err);

    // No link is still on its way: the packet engine has listed its ports and the server has answered the login.
    bool IsReady(const MainWindow& main) const;
    void SendAll(MainWindow& main, const std::vector<SendOption>& reports);
    bool IsBegun() const { return m_bBegun; }
    // A TNC takes its text when it has prompted.
    bool IsDone(const MainWindow& main) const;
    // Whether each report went out over something.
    bool End();

private:
    void Note(const SentReport& report);
    void Send(MainWindow& main, const SendOption& report);
    void SayNothingWent(const SendOption& report, const std::string& reason);

    SendDialogs& m_dialogs;
    const HeadlessPrompts& m_prompts;
    PrintedNotices m_notices;
    bool m_bPorts = false;
    bool m_bBegun = false;
    bool m_bWell = true;
    std::deque<bool> m_atTnc; // Texts that the TNC has not taken yet; whether they went out over another link, too.
};

} // namespace ruvenmark
