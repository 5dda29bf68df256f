#pragma once

#include "contracts/byte_link.h"
#include "contracts/gps_server.h"
#include "devices/line_splitter.h"
#include "devices/nmea_fixes.h"
#include "devices/own_events.h"

namespace ruvenmark {

// A GPS receiver that talks NMEA 0183.
class GpsServer final : public IGpsServer, private IByteSink {
public:
    // Both must outlive the server.
    GpsServer(IByteLinks& links, IGpsSink& sink) : m_links(links), m_sink(sink) {}

    void OpenGpsPort(std::string_view port, std::int32_t baud, std::string_view token) override;
    void CloseGpsPort() override;

private:
    void OnOpened(Moment /*now*/) override {}
    void OnBytes(std::string_view bytes, Moment now) override;
    void OnLost(Moment now) override;
    void OnTick(Moment now) override;

    void RaiseFix(const bool& bDropped);

    static constexpr std::size_t kMaxLine = 256;

    IByteLinks& m_links;
    IGpsSink& m_sink;
    LineSplitter m_lines{kMaxLine};
    std::optional<NmeaFixes> m_fixes;
    OwnEvents m_events;
    std::unique_ptr<IByteLink> m_link; // Last, so that it falls silent first.
};

class GpsServers final : public IGpsServers {
public:
    explicit GpsServers(IByteLinks& links) : m_links(links) {}

    std::unique_ptr<IGpsServer> CreateGps(IGpsSink& sink) override
    {
        return std::make_unique<GpsServer>(m_links, sink);
    }

private:
    IByteLinks& m_links;
};

} // namespace ruvenmark
