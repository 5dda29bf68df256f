#pragma once

#include "platform/event.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace ruvenmark {

enum class Panel : std::size_t { Tnc, Server, Gps, NewMessage, Call };

// The status bar's five panels, the packet line and the progress bar that take one place, the wait pointer and the
// coordinates under the pointer.
class StatusBar {
public:
    void SetPanel(Panel panel, std::string_view text);
    const std::string& PanelText(Panel panel) const { return m_panels[static_cast<std::size_t>(panel)]; }

    // What is to be known beyond the text, and whether it calls for a look.
    void SetPanelTip(Panel panel, std::string_view text);
    const std::string& PanelTip(Panel panel) const { return m_tips[static_cast<std::size_t>(panel)]; }
    void SetPanelWarning(Panel panel, bool bWarning);
    bool IsPanelWarning(Panel panel) const { return m_warnings[static_cast<std::size_t>(panel)]; }

    void SetPacketLine(std::string_view text);
    const std::string& PacketLine() const { return m_packetLine; }

    // What went wrong last, in the packet line's place; the next packet line or command ends it.
    void SetNotice(std::string_view text);
    const std::string& Notice() const { return m_notice; }

    // What the operator is to do next, above all else in that place, until it is emptied.
    void SetPrompt(std::string_view text);
    const std::string& Prompt() const { return m_prompt; }

    // The packet line is hidden while the progress bar shows.
    void ShowProgress();
    void SetProgress(int percent);
    void HideProgress();
    bool IsProgressVisible() const { return m_bProgress; }
    int Progress() const { return m_progress; }

    void SetWaitPointer(bool bWait);
    bool IsWaitPointer() const { return m_bWait; }

    // What went out last, and over what.
    void SetSent(std::string_view text);
    const std::string& Sent() const { return m_sent; }

    void SetCoordinates(std::string_view text);
    const std::string& Coordinates() const { return m_coordinates; }

    Event<> Changed;

private:
    std::array<std::string, 5> m_panels;
    std::array<std::string, 5> m_tips;
    std::array<bool, 5> m_warnings{};
    std::string m_packetLine;
    std::string m_notice;
    std::string m_prompt;
    std::string m_sent;
    std::string m_coordinates;
    int m_progress = 0;
    bool m_bProgress = false;
    bool m_bWait = false;
};

} // namespace ruvenmark
