#pragma once

#include <chrono>
#include <cstdint>

namespace ruvenmark {

class ISleep {
public:
    virtual ~ISleep() = default;
    virtual void SleepMs(std::int32_t milliseconds) = 0;
};

class SystemSleep final : public ISleep {
public:
    void SleepMs(std::int32_t milliseconds) override;
};

// Lets the user interface and the other sources do what is pending. Anything may have changed when it returns.
class IYield {
public:
    virtual ~IYield() = default;
    virtual void ProcessPending() = 0;
    // The same with what happens within this time. Returns when something did, or when the time is over.
    virtual void Wait(std::chrono::milliseconds atMost) = 0;
};

} // namespace ruvenmark
