#include "platform/status_bar.h"

#include <algorithm>

namespace ruvenmark {

namespace {

// Whether it differed.
template <typename Fact, typename Value>
bool Renew(Fact& fact, const Value& value)
{
    if (fact == value)
        return false;
    fact = value;
    return true;
}

} // namespace

void StatusBar::SetPanel(Panel panel, std::string_view text)
{
    if (Renew(m_panels[static_cast<std::size_t>(panel)], text))
        Changed.Raise();
}

void StatusBar::SetPanelTip(Panel panel, std::string_view text)
{
    if (Renew(m_tips[static_cast<std::size_t>(panel)], text))
        Changed.Raise();
}

void StatusBar::SetPanelWarning(Panel panel, bool bWarning)
{
    if (Renew(m_warnings[static_cast<std::size_t>(panel)], bWarning))
        Changed.Raise();
}

void StatusBar::SetPacketLine(std::string_view text)
{
    const bool bNoticeEnds = Renew(m_notice, std::string_view());
    if (Renew(m_packetLine, text) || bNoticeEnds)
        Changed.Raise();
}

void StatusBar::SetNotice(std::string_view text)
{
    if (Renew(m_notice, text))
        Changed.Raise();
}

void StatusBar::SetPrompt(std::string_view text)
{
    if (Renew(m_prompt, text))
        Changed.Raise();
}

void StatusBar::SetSent(std::string_view text)
{
    if (Renew(m_sent, text))
        Changed.Raise();
}

void StatusBar::ShowProgress()
{
    const bool bRestarted = Renew(m_progress, 0);
    if (Renew(m_bProgress, true) || bRestarted)
        Changed.Raise();
}

void StatusBar::SetProgress(int percent)
{
    if (Renew(m_progress, std::clamp(percent, 0, 100)))
        Changed.Raise();
}

void StatusBar::HideProgress()
{
    const bool bReset = Renew(m_progress, 0);
    if (Renew(m_bProgress, false) || bReset)
        Changed.Raise();
}

void StatusBar::SetWaitPointer(bool bWait)
{
    if (Renew(m_bWait, bWait))
        Changed.Raise();
}

void StatusBar::SetCoordinates(std::string_view text)
{
    if (Renew(m_coordinates, text))
        Changed.Raise();
}

} // namespace ruvenmark
