// An internet server that says anything; and any text as a line to send, which stays one line.

#include "devices/server_source.h"
#include "link_play.h"

using namespace ruvenmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view script(reinterpret_cast<const char*>(data) + 1, size - 1);
    FakeByteLinks links;
    fuzz::LinkSink sink;
    LineCounts counts;
    auto source = std::make_unique<ServerSource>(links, sink, counts);
    fuzz::DropInEvent(sink, source, data[0]);
    source->ConnectServer("server", 14580, kAccessToken);
    fuzz::Play(script, links, [&](unsigned what) {
        if (source != nullptr && what == 0)
            source->CloseServer();
        else if (source != nullptr)
            source->SendServerLine(script.substr(0, what));
    });
    std::string written = links.Written();
    while (!written.empty()) {
        const std::size_t end = written.find("\r\n");
        fuzz::Require(end != std::string::npos);
        fuzz::CheckText(std::string_view(written).substr(0, end));
        written.erase(0, end + 2);
    }
    return 0;
}
