// A GPS receiver that says anything: every fix is a place on earth, and a loss is never told twice.

#include "devices/gps_server.h"
#include "link_play.h"

using namespace ruvenmark;

namespace {

class GpsSink final : public IGpsSink {
public:
    explicit GpsSink(std::unique_ptr<GpsServer>& server, unsigned dropIn) : m_server(server), m_dropIn(dropIn) {}

    void PositionFix(const GpsReport& fix) override
    {
        fuzz::CheckPlace(fix.lat, fix.lon);
        fuzz::CheckFinite(fix.altitude);
        fuzz::Require(fix.course == kAbsent || (fix.course >= 0 && fix.course <= 360));
        fuzz::Require(fix.speed == kAbsent || fix.speed >= 0);
        fuzz::Require(fix.bValid || !m_bLost);
        m_bLost = !fix.bValid;
        Drop();
    }
    void ConnectionError() override
    {
        fuzz::Require(++m_errors == 1);
        Drop();
    }

private:
    void Drop()
    {
        fuzz::Require(m_server != nullptr);
        if (m_count++ == m_dropIn)
            m_server.reset();
    }

    std::unique_ptr<GpsServer>& m_server;
    unsigned m_dropIn, m_count = 0;
    int m_errors = 0;
    bool m_bLost = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    FakeByteLinks links;
    std::unique_ptr<GpsServer> server;
    GpsSink sink(server, data[0]);
    server = std::make_unique<GpsServer>(links, sink);
    server->OpenGpsPort("port", 4800, kAccessToken);
    fuzz::Play({reinterpret_cast<const char*>(data) + 1, size - 1}, links, [](unsigned) {});
    return 0;
}
