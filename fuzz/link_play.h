#pragma once

#include "check_line.h"
#include "support/fake_byte_links.h"

#include <cstdint>
#include <functional>

// Any bytes as what happens on a link: the other end speaks in pieces, time passes, the program sends, the link is
// lost.
namespace ruvenmark::fuzz {

// Play by play: a byte, whose lowest two bits tell what happens and whose others how much or which.
inline void Play(std::string_view script, FakeByteLinks& links, const std::function<void(unsigned)>& send)
{
    constexpr unsigned kTick = 1, kSend = 2;
    while (!script.empty()) {
        const unsigned play = static_cast<unsigned char>(script.front());
        const unsigned amount = play >> 2U;
        script.remove_prefix(1);
        if ((play & 3U) == kTick) {
            links.Tick(std::chrono::milliseconds(250) * amount);
        } else if ((play & 3U) == kSend) {
            try {
                send(amount);
            } catch (const Failure&) {
                // As to the sender: it goes on.
            }
        } else {
            const std::string_view piece = script.substr(0, (play & 3U) == 0 ? amount : amount * 3); // Short, or long.
            links.Say(amount == 0 ? script : piece);
            script.remove_prefix(amount == 0 ? script.size() : piece.size());
        }
    }
    links.Tick(std::chrono::seconds(120));
    links.Lose();
    links.Tick(std::chrono::seconds(10));
}

// Reads all that is raised, and lets the test drop the source inside an event.
class LinkSink final : public CheckingSink {
public:
    std::function<void()> onEvent = [] {};
    int losses = 0;
    bool bGpsLost = false;

    void SocketConnected() override { onEvent(); }
    void SocketConnectionError() override { Lose(); }
    void SocketConnectionClosed() override { Lose(); }
    void ServerConnectionError() override { Lose(); }
    void ReportGpsData(const GpsReport& fix) override
    {
        CheckPlace(fix.lat, fix.lon);
        CheckFinite(fix.altitude);
        Require(fix.bValid || !bGpsLost);
        bGpsLost = !fix.bValid;
        onEvent();
    }
    void ReportRawData(std::string_view packet) override
    {
        CheckingSink::ReportRawData(packet);
        onEvent();
    }

private:
    void Lose()
    {
        Require(++losses == 1);
        onEvent();
    }
};

// The source, dropped in the given event of its own, counted from 0; a number that none reaches drops none.
template <class Source>
void DropInEvent(LinkSink& sink, std::unique_ptr<Source>& source, unsigned event)
{
    sink.onEvent = [&source, event, count = 0U]() mutable {
        Require(source != nullptr);
        if (count++ == event)
            source.reset();
    };
}

} // namespace ruvenmark::fuzz
