#pragma once

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
};

} // namespace ruvenmark
