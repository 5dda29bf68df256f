#pragma once

#include "contracts/byte_link.h"

#include <functional>
#include <utility>

namespace ruvenmark {

// The wires of this machine. Used on one thread, whose Qt event loop tells the sinks.
class QtByteLinks final : public IByteLinks {
public:
    // `paint` is called while a connect holds everything else up: it may paint and must not let any other event in.
    explicit QtByteLinks(std::function<void()> paint = {}) : m_paint(std::move(paint)) {}

    std::unique_ptr<IByteLink> OpenSerial(std::string_view port, std::int32_t baud, SerialFlow flow,
                                          IByteSink& sink) override;
    std::unique_ptr<IByteLink> StartSocket(std::string_view host, std::int32_t port, IByteSink& sink) override;
    std::unique_ptr<IByteLink> ConnectSocket(std::string_view host, std::int32_t port, std::chrono::seconds limit,
                                             IByteSink& sink) override;
    std::vector<std::string> SerialPorts() override;
    Moment Now() const override;

private:
    std::function<void()> m_paint;
};

} // namespace ruvenmark
