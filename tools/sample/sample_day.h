#pragma once

#include "packet_text.h"
#include "places.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

// One invented day on the air: who sends what is told by the other files, this one keeps time and order.
namespace ruvenmark::sample {

using packet_text::Place;

inline constexpr int kMinute = 60;
inline constexpr int kHour = 3600;
inline constexpr int kDay = 24 * kHour;

class SampleDay {
public:
    // `second` counts from midnight UTC; lines outside the day are left out.
    void Add(int second, std::string line);
    // All lines in the order of their time; those of one second as they were added.
    std::string ToString() const;
    std::size_t Count() const { return m_lines.size(); }

    // Randomness, the same in every run.
    int Below(int limit) { return static_cast<int>(m_engine() % static_cast<std::uint32_t>(limit)); }
    int Between(int low, int high) { return low + Below(high - low + 1); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <class List>
    auto Pick(const List& list)
    {
        return list[static_cast<std::size_t>(Below(static_cast<int>(list.size())))];
    }

    const Town& AnyTown() { return Towns()[static_cast<std::size_t>(Below(static_cast<int>(Towns().size())))]; }
    // A place within so many kilometres.
    Place Near(Place place, double kilometres);
    Place Near(const Town& town, double kilometres = 6) { return Near(Place{town.lat, town.lon}, kilometres); }

    // A call that was not given before. Its suffix is taken from the Q signals, which nobody gets as a call.
    std::string NewCall(std::string_view prefix);
    // How a packet from somewhere near a town came in, over the air or by the Internet.
    std::string RadioPath(const Town& town);
    std::string InternetPath();

    static std::string ZuluStamp(int second);  // Day, hour, minute, z.
    static std::string ClockStamp(int second); // Hour, minute, second, h.

private:
    struct TimedLine {
        int second;
        std::string text;
    };

    std::mt19937 m_engine{20260614};
    std::vector<TimedLine> m_lines;
    std::vector<std::string> m_calls;
};

// The parts of the day.
void AddFixedStations(SampleDay& day);
void AddWeatherStations(SampleDay& day);
void AddMovingStations(SampleDay& day);
void AddTraffic(SampleDay& day); // Objects, messages, telemetry, and what cannot be read.

// What people write in their comments, in the language of the place.
std::string_view AnyComment(SampleDay& day, const Town& town);

} // namespace ruvenmark::sample
