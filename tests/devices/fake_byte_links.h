#pragma once

#include "contracts/byte_link.h"
#include "platform/failure.h"

#include <functional>
#include <string>
#include <utility>

namespace ruvenmark {

// Wires of the test's making, one at a time, with a clock that only the test moves.
class FakeByteLinks final : public IByteLinks {
public:
    // What the other end does. Nothing reaches a link that is dropped.
    void Open()
    {
        if (m_sink != nullptr)
            m_sink->OnOpened(m_now);
    }
    void Say(std::string_view bytes)
    {
        if (m_sink != nullptr)
            m_sink->OnBytes(bytes, m_now);
    }
    void Lose()
    {
        m_bLost = true;
        if (m_sink != nullptr)
            m_sink->OnLost(m_now);
    }
    // Time passes, four ticks a second.
    void Tick(std::chrono::milliseconds time)
    {
        constexpr std::chrono::milliseconds kTick{250};
        for (auto passed = kTick; passed <= time; passed += kTick) {
            m_now += kTick;
            if (m_sink != nullptr)
                m_sink->OnTick(m_now);
        }
    }
    // What was written since it was asked last.
    std::string Written() { return std::exchange(m_written, {}); }
    bool IsKept() const { return m_sink != nullptr; }

    std::string opened; // "serial /dev/ttyS0 9600", "socket localhost 8000", "connect localhost 14580 15"
    bool bRefuse = false;
    std::function<std::string(const std::string& written)> answer; // While the program waits.

    std::unique_ptr<IByteLink> OpenSerial(std::string_view port, std::int32_t baud, IByteSink& sink) override
    {
        return Make("serial " + std::string(port) + ' ' + std::to_string(baud), sink);
    }
    std::unique_ptr<IByteLink> StartSocket(std::string_view host, std::int32_t port, IByteSink& sink) override
    {
        return Make("socket " + std::string(host) + ' ' + std::to_string(port), sink);
    }
    std::unique_ptr<IByteLink> ConnectSocket(std::string_view host, std::int32_t port, std::chrono::seconds limit,
                                             IByteSink& sink) override
    {
        return Make("connect " + std::string(host) + ' ' + std::to_string(port) + ' ' + std::to_string(limit.count()),
                    sink);
    }
    std::vector<std::string> SerialPorts() override { return {"/dev/ttyS0"}; }
    Moment Now() const override { return m_now; }

private:
    class Link final : public IByteLink {
    public:
        explicit Link(FakeByteLinks& links) : m_links(links) {}
        ~Link() override { m_links.m_sink = nullptr; }

        void Write(std::string_view bytes) override
        {
            if (m_links.m_bLost)
                throw Failure("lost");
            m_links.m_written += bytes;
        }
        Arrival Wait(std::chrono::milliseconds limit) override
        {
            std::string bytes = m_links.answer ? m_links.answer(m_links.Written()) : std::string();
            m_links.m_now += limit;
            return {std::move(bytes), m_links.m_now};
        }

    private:
        FakeByteLinks& m_links;
    };

    std::unique_ptr<IByteLink> Make(std::string how, IByteSink& sink)
    {
        if (bRefuse)
            throw Failure("refused");
        opened = std::move(how);
        m_bLost = false;
        m_sink = &sink;
        return std::make_unique<Link>(*this);
    }

    IByteSink* m_sink = nullptr;
    bool m_bLost = false;
    std::string m_written;
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
