#pragma once

#include "contracts/byte_link.h"
#include "contracts/report_source.h"
#include "devices/line_counts.h"
#include "devices/link_events.h"
#include "devices/nmea_fixes.h"
#include "devices/own_events.h"
#include "devices/tnc_terminal.h"

namespace ruvenmark {

// The report source of a TNC on a serial port. What is sent waits for the TNC's prompt and goes out from the event
// loop; closing the port waits some seconds for what is not yet sent. A port that goes away raises
// SocketConnectionClosed.
class TncSource final : public IReportSource, private IByteSink {
public:
    // All must outlive the source.
    TncSource(IByteLinks& links, IReportSink& sink, LineCounts& counts, const LinkEvents* events = nullptr)
        : m_links(links), m_sink(sink), m_counts(counts), m_listener(events), m_fixes(links.Now())
    {
    }

    void OpenPort(std::string_view port, std::int32_t baud, std::string_view token) override;
    void ClosePort() override;
    // Raises Failure while the TNC does not answer: the attempt shows whether it does again.
    void EnterCommandMode() override;
    void SendCommand(std::string_view line) override;
    std::int32_t GetUtcOffset() override;

private:
    void OnOpened(Moment /*now*/) override {}
    void OnBytes(std::string_view bytes, Moment now) override;
    void OnLost(Moment now) override;
    void OnTick(Moment now) override;

    void CheckOpen() const;
    void RaiseAll(Moment now);
    void Raise(const TncLine& line, Moment now, const bool& bDropped);
    void RaiseFix(const bool& bDropped);
    void Write(Moment now);
    void TryWrite(Moment now);
    void TellFates();
    void Finish();
    void End();

    IByteLinks& m_links;
    IReportSink& m_sink;
    LineCounts& m_counts;
    const LinkEvents* m_listener;
    TncTerminal m_terminal;
    NmeaFixes m_fixes;
    OwnEvents m_events;
    std::unique_ptr<IByteLink> m_link; // Last, so that it falls silent first.
};

} // namespace ruvenmark
