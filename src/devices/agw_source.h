#pragma once

#include "contracts/byte_link.h"
#include "contracts/report_source.h"
#include "devices/agw_frames.h"
#include "devices/line_counts.h"
#include "devices/link_events.h"
#include "devices/own_events.h"

namespace ruvenmark {

// The report source of an AGW packet engine. It hears whole frames and sends whole frames, as the engine's own texts
// lose bytes and who repeated a packet. It sends on the engine's first radio port.
class AgwSource final : public IReportSource, private IByteSink {
public:
    // All must outlive the source.
    AgwSource(IByteLinks& links, IReportSink& sink, LineCounts& counts, const LinkEvents* events = nullptr)
        : m_links(links), m_sink(sink), m_counts(counts), m_listener(events)
    {
    }

    void ConnectSocket(std::string_view host, std::int32_t port, std::string_view token) override;
    void CloseSocket() override;
    void SendFrame(std::string_view source, std::string_view dest, std::string_view via,
                   std::string_view info) override;
    std::int32_t GetUtcOffset() override;

private:
    void OnOpened(Moment now) override;
    void OnBytes(std::string_view bytes, Moment now) override;
    void OnLost(Moment now) override;
    void OnTick(Moment now) override;

    void CheckOpen() const;
    void Take(const AgwFrame& frame, const bool& bDropped);
    void Ask(char kind, Moment now);
    void Fail();

    IByteLinks& m_links;
    IReportSink& m_sink;
    LineCounts& m_counts;
    const LinkEvents* m_listener;
    AgwReader m_reader;
    bool m_bOpen = false;
    bool m_bAsked = false; // A question, or the connect, is not answered yet.
    Moment m_asked{};
    Moment m_lastHeard{};
    std::optional<int> m_ports; // Of the engine's radios; not known at first.
    OwnEvents m_events;
    std::unique_ptr<IByteLink> m_link; // Last, so that it falls silent first.
};

} // namespace ruvenmark
