// A packet engine that says anything; and any texts as a packet to send, which must read as they were meant.

#include "devices/agw_source.h"
#include "devices/ax25.h"
#include "link_play.h"

using namespace ruvenmark;

namespace {

void CheckRoundTrip(std::string_view bytes)
{
    const std::size_t call = bytes.find('\n'), info = bytes.find('\n', call == std::string_view::npos ? 0 : call + 1);
    if (call == std::string_view::npos || info == std::string_view::npos)
        return;
    try {
        const auto line = ReadUiFrame(MakeUiFrame(bytes.substr(0, call), "APRS",
                                                  bytes.substr(call + 1, info - call - 1), bytes.substr(info + 1)));
        fuzz::Require(line && line->ends_with(bytes.substr(info + 1)));
    } catch (const Failure&) {
        // No packet.
    }
    ReadUiFrame(bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view script(reinterpret_cast<const char*>(data) + 1, size - 1);
    FakeByteLinks links;
    fuzz::LinkSink sink;
    LineCounts counts;
    auto source = std::make_unique<AgwSource>(links, sink, counts);
    fuzz::DropInEvent(sink, source, data[0]);
    source->ConnectSocket("engine", 8000, kAccessToken);
    links.Open();
    fuzz::Play(script, links, [&](unsigned what) {
        if (source != nullptr && what == 0)
            source->CloseSocket();
        else if (source != nullptr)
            source->SendFrame("W1AW", "APRS", "WIDE1-1", ">Hi");
    });
    CheckRoundTrip(script);
    return 0;
}
