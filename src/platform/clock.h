#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ruvenmark {

// Of a time stamp on the air.
struct UtcTime {
    std::int32_t month, day, hour, minute; // 1 to 12, 1 to 31.
};

class IClock {
public:
    virtual ~IClock() = default;
    // Local date and time as shown and stored: "2026-11-22 20:15:03".
    virtual std::string_view LocalNowText() = 0; // Lives until the next call.
    virtual UtcTime UtcNow() = 0;
    virtual std::int64_t UnixSeconds() = 0; // Since 1970.
};

class SystemClock final : public IClock {
public:
    std::string_view LocalNowText() override;
    UtcTime UtcNow() override;
    std::int64_t UnixSeconds() override;

private:
    std::int64_t m_second = -1; // What m_text was made for.
    std::string m_text;
};

} // namespace ruvenmark
