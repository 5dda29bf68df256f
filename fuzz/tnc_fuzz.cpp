// A TNC that says anything at any moment. Whatever it says, only what was asked for is typed, each text at most once
// and none without its CONV.

#include "devices/tnc_source.h"
#include "link_play.h"

using namespace ruvenmark;

namespace {

void CheckTyped(std::string_view typed)
{
    bool bConverse = false;
    unsigned nextText = 0; // Texts are numbered: none may come back.
    while (!typed.empty()) {
        if (typed.front() == '\x03') {
            bConverse = false;
            typed.remove_prefix(1);
            continue;
        }
        const std::size_t end = typed.find('\r');
        fuzz::Require(end != std::string_view::npos);
        const std::string_view line = typed.substr(0, end);
        typed.remove_prefix(end + 1);
        if (line.starts_with('>')) {
            const unsigned number = static_cast<unsigned>(std::stoul(std::string(line.substr(1))));
            fuzz::Require(bConverse && number >= nextText);
            nextText = number + 1;
        } else {
            fuzz::Require(!bConverse && (line == "MYCALL W1AW" || line == "CONV"));
            bConverse = line == "CONV";
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    FakeByteLinks links;
    fuzz::LinkSink sink;
    LineCounts counts;
    auto source = std::make_unique<TncSource>(links, sink, counts);
    fuzz::DropInEvent(sink, source, data[0]);
    source->OpenPort("port", 9600, kAccessToken);
    unsigned text = 0;
    fuzz::Play({reinterpret_cast<const char*>(data) + 1, size - 1}, links, [&](unsigned what) {
        if (source == nullptr)
            return;
        if (what == 0) {
            source->ClosePort();
            return;
        }
        source->EnterCommandMode();
        source->SendCommand("MYCALL W1AW");
        source->SendCommand("CONV");
        source->SendCommand('>' + std::to_string(text++));
    });
    CheckTyped(links.Written());
    return 0;
}
