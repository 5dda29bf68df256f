#include "devices/tnc_source.h"

#include "devices/event_text.h"
#include "devices/live_lines.h"

#include <algorithm>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

// How long closing waits for what is not yet sent.
constexpr auto kFinishSilence = 3s;
constexpr auto kFinishLimit = 15s;
constexpr auto kFinishStep = 250ms;

} // namespace

void TncSource::OpenPort(std::string_view port, std::int32_t baud, std::string_view token)
{
    CheckToken(token);
    if (m_link)
        throw Failure("the TNC's port is open");
    m_link = m_links.OpenSerial(port, baud, SerialFlow::XonXoff, *this);
    m_terminal.EnterCommandMode(); // The last user may have left it in converse mode.
    Write(m_links.Now());
}

void TncSource::ClosePort()
{
    CheckOpen();
    try {
        Finish();
    } catch (const Failure&) {
        // Nothing more can be sent.
    }
    End();
}

// What still waits will not be sent.
void TncSource::End()
{
    m_link.reset();
    m_terminal.GiveUpAll();
    TellFates();
}

// What is heard meanwhile is not told any more: the source is about to be dropped.
void TncSource::Finish()
{
    Moment now = m_links.Now();
    const Moment begun = now;
    Moment heard = now;
    while (!m_terminal.IsIdle() && now - heard < kFinishSilence && now - begun < kFinishLimit) {
        Write(now);
        const Arrival arrival = m_link->Wait(kFinishStep);
        now = arrival.now;
        if (!arrival.bytes.empty())
            heard = now;
        m_terminal.Take(arrival.bytes, now);
        while (m_terminal.Next()) {
        }
        Write(now);
    }
}

void TncSource::EnterCommandMode()
{
    CheckOpen();
    const bool bMute = m_terminal.IsMute();
    m_terminal.EnterCommandMode();
    Write(m_links.Now());
    if (bMute)
        throw Failure("the TNC does not answer");
}

void TncSource::SendCommand(std::string_view line)
{
    CheckOpen();
    m_terminal.SendCommand(line);
    Write(m_links.Now());
}

std::int32_t TncSource::GetUtcOffset()
{
    CheckOpen();
    return UtcOffsetNow();
}

void TncSource::CheckOpen() const
{
    if (!m_link)
        throw Failure("the TNC's port is not open");
}

void TncSource::OnBytes(std::string_view bytes, Moment now)
{
    m_terminal.Take(bytes, now);
    RaiseAll(now);
}

void TncSource::OnTick(Moment now)
{
    TryWrite(now);
    m_fixes.Tick(now);
    RaiseAll(now);
}

void TncSource::OnLost(Moment /*now*/)
{
    End();
    const OwnEvents::Raising raising(m_events);
    m_sink.SocketConnectionClosed();
}

void TncSource::RaiseAll(Moment now)
{
    const OwnEvents::Raising raising(m_events);
    const bool& bDropped = raising.IsDropped();
    RaiseFix(bDropped);
    while (!bDropped && m_link) {
        const auto line = m_terminal.Next();
        if (!line)
            break;
        Raise(*line, now, bDropped);
    }
    if (!bDropped)
        TryWrite(now);
}

void TncSource::Raise(const TncLine& line, Moment now, const bool& bDropped)
{
    switch (line.kind) {
    case TncLine::Kind::Packet:
        RaiseLiveLine(line.text, m_counts, m_sink, bDropped);
        break;
    case TncLine::Kind::Sentence:
        m_fixes.Take(line.text, now);
        RaiseFix(bDropped);
        break;
    case TncLine::Kind::Fault:
        m_sink.ReportRawData(line.text);
        break;
    }
}

void TncSource::RaiseFix(const bool& bDropped)
{
    if (const auto fix = bDropped ? std::nullopt : m_fixes.Next())
        m_sink.ReportGpsData(*fix);
}

void TncSource::Write(Moment now)
{
    if (const std::string bytes = m_terminal.ToWrite(now); !bytes.empty())
        m_link->Write(bytes);
    TellFates();
}

void TncSource::TellFates()
{
    for (const TncTerminal::Fate& fate : m_terminal.TakeFates()) {
        if (m_listener && m_listener->onSent)
            m_listener->onSent({SentReport::Road::Tnc, fate.bTyped, fate.text});
        if (!fate.bTyped)
            m_sink.ReportNotSent(fate.text);
    }
}

// From the event loop: a port that fails tells its loss itself.
void TncSource::TryWrite(Moment now)
{
    try {
        if (m_link)
            Write(now);
    } catch (const Failure&) {
    }
}

} // namespace ruvenmark
