#pragma once

#include "contracts/byte_link.h"
#include "platform/failure.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {

// Wires of the test's making, with a clock that only the test moves. What the other end does happens on the wire that
// was opened last, or on the one that is chosen.
class FakeByteLinks : public IByteLinks {
public:
    // Goes on with the wire whose `opened` begins so: the one of them that was opened last.
    void Use(std::string_view how)
    {
        const auto found = std::find_if(m_wires.rbegin(), m_wires.rend(),
                                        [&](const auto& wire) { return wire->how.starts_with(how); });
        m_wire = found == m_wires.rend() ? std::make_shared<Wire>() : *found;
    }
    // What the other end does. Nothing reaches a link that is dropped.
    void Open()
    {
        if (IsKept())
            m_wire->sink->OnOpened(m_now);
    }
    void Say(std::string_view bytes)
    {
        if (IsKept())
            m_wire->sink->OnBytes(bytes, m_now);
    }
    void Say(const std::vector<std::string>& pieces)
    {
        for (const std::string& piece : pieces)
            Say(piece);
    }
    void Lose()
    {
        m_wire->bLost = true;
        if (IsKept())
            m_wire->sink->OnLost(m_now);
    }
    // Time passes, four ticks a second.
    void Tick(std::chrono::milliseconds time)
    {
        constexpr std::chrono::milliseconds kTick{250};
        for (auto passed = kTick; passed <= time; passed += kTick) {
            m_now += kTick;
            for (const auto& wire : std::vector(m_wires))
                if (wire->sink != nullptr)
                    wire->sink->OnTick(m_now);
        }
    }
    // What was written since it was asked last.
    std::string Written() { return std::exchange(m_wire->written, {}); }
    // What is written in answer to bytes, and while time passes, on top of what nobody asked for yet.
    std::string AnswerTo(std::string_view bytes)
    {
        Say(bytes);
        return Written();
    }
    std::string WrittenIn(std::chrono::milliseconds time)
    {
        Tick(time);
        return Written();
    }
    bool IsKept() const { return m_wire->sink != nullptr; }

    std::string opened; // "serial /dev/ttyS0 9600 xon", "socket localhost 8000", "connect localhost 14580 15"
    bool bRefuse = false;
    std::function<std::string(const std::string& written)> answer; // While the program waits.
    std::function<void()> whileConnecting = [] {};                 // While a connect blocks.

    std::unique_ptr<IByteLink> OpenSerial(std::string_view port, std::int32_t baud, SerialFlow flow,
                                          IByteSink& sink) override
    {
        return Make("serial " + std::string(port) + ' ' + std::to_string(baud) +
                        (flow == SerialFlow::XonXoff ? " xon" : ""),
                    sink);
    }
    std::unique_ptr<IByteLink> StartSocket(std::string_view host, std::int32_t port, IByteSink& sink) override
    {
        return Make("socket " + std::string(host) + ' ' + std::to_string(port), sink);
    }
    std::unique_ptr<IByteLink> ConnectSocket(std::string_view host, std::int32_t port, std::chrono::seconds limit,
                                             IByteSink& sink) override
    {
        whileConnecting();
        return Make("connect " + std::string(host) + ' ' + std::to_string(port) + ' ' + std::to_string(limit.count()),
                    sink);
    }
    std::vector<std::string> SerialPorts() override { return {"/dev/ttyS0"}; }
    Moment Now() const override { return m_now; }
    void Advance(std::chrono::milliseconds time) { m_now += time; }

private:
    struct Wire {
        std::string how, written;
        IByteSink* sink = nullptr; // Null once the link is dropped.
        bool bLost = false;
    };
    class Link final : public IByteLink {
    public:
        Link(FakeByteLinks& links, std::shared_ptr<Wire> wire) : m_links(links), m_wire(std::move(wire)) {}
        ~Link() override { m_wire->sink = nullptr; }

        void Write(std::string_view bytes) override
        {
            if (m_wire->bLost)
                throw Failure("lost");
            m_wire->written += bytes;
        }
        Arrival Wait(std::chrono::milliseconds limit) override
        {
            std::string bytes = m_links.answer ? m_links.answer(std::exchange(m_wire->written, {})) : std::string();
            m_links.m_now += limit;
            return {std::move(bytes), m_links.m_now};
        }

    private:
        FakeByteLinks& m_links;
        std::shared_ptr<Wire> m_wire;
    };

    std::unique_ptr<IByteLink> Make(std::string how, IByteSink& sink)
    {
        if (bRefuse)
            throw Failure("refused");
        opened = how;
        m_wire = std::make_shared<Wire>();
        m_wire->how = std::move(how);
        m_wire->sink = &sink;
        m_wires.push_back(m_wire);
        return std::make_unique<Link>(*this, m_wire);
    }

    std::vector<std::shared_ptr<Wire>> m_wires;
    std::shared_ptr<Wire> m_wire = std::make_shared<Wire>();
    Moment m_now{std::chrono::hours{100}};
};

// The bytes as they may arrive: in two pieces cut at every place, then one by one.
template <class Test>
void ForEveryCut(std::string_view bytes, Test test)
{
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut)
        test(std::vector<std::string>{std::string(bytes.substr(0, cut)), std::string(bytes.substr(cut))});
    std::vector<std::string> single;
    for (const char c : bytes)
        single.emplace_back(1, c);
    test(single);
}

} // namespace ruvenmark
