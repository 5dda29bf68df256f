#pragma once

#include "contracts/byte_link.h"
#include "contracts/report_source.h"
#include "devices/line_counts.h"
#include "devices/link_events.h"
#include "devices/own_events.h"
#include "devices/password_mask.h"
#include "devices/server_session.h"

#include <optional>

namespace ruvenmark {

// The report source of an APRS internet server. What the server says of the login and the filter is raised as received
// data too: such a line begins with '#', which no packet does, and tells the operator that nothing sent is passed on.
// Of the login that was sent, no line that comes back tells the password.
class ServerSource final : public IReportSource, private IByteSink {
public:
    // All must outlive the source.
    ServerSource(IByteLinks& links, IReportSink& sink, LineCounts& counts, const LinkEvents* events = nullptr)
        : m_links(links), m_sink(sink), m_counts(counts), m_listener(events)
    {
    }

    // Blocks up to 15 seconds. ServerConnectionError is for what happens later, from the event loop.
    void ConnectServer(std::string_view host, std::int32_t port, std::string_view token) override;
    void CloseServer() override;
    void SendServerLine(std::string_view line) override;
    std::chrono::milliseconds SilentFor() const override;
    std::int32_t GetUtcOffset() override;

private:
    void OnOpened(Moment /*now*/) override {}
    void OnBytes(std::string_view bytes, Moment now) override;
    void OnLost(Moment now) override;
    void OnTick(Moment now) override;

    void CheckOpen() const;
    void Raise(const ServerLine& line, const bool& bDropped);

    IByteLinks& m_links;
    IReportSink& m_sink;
    LineCounts& m_counts;
    const LinkEvents* m_listener;
    std::optional<ServerSession> m_session;
    PasswordMask m_mask;
    OwnEvents m_events;
    std::unique_ptr<IByteLink> m_link; // Last, so that it falls silent first.
};

} // namespace ruvenmark
