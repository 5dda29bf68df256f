#pragma once

#include "platform/file_descriptor.h"

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

namespace ruvenmark {

// An APRS server on this machine that has lines for whoever connects, and never listens to what it is told.
class FeedServer {
public:
    FeedServer(); // Ends the program where no port is free.
    ~FeedServer();
    FeedServer(const FeedServer&) = delete;
    FeedServer& operator=(const FeedServer&) = delete;

    std::int16_t Port() const { return m_port; }
    void Accept(); // Whoever connected last.

    // Begins to send from a thread of its own; 0 lines a second: as fast as the other end takes them.
    void Send(std::vector<std::string> lines, int perSecond);
    // Once all is sent. The thread's own processor time, in seconds.
    double Finish();

private:
    void Run(const std::vector<std::string>& lines, int perSecond);

    Descriptor m_listener, m_peer{-1};
    std::int16_t m_port = 0;
    std::thread m_thread;
    double m_cpuSeconds = 0;
};

} // namespace ruvenmark
