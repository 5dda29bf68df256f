#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ruvenmark {

struct ChannelState;
struct MainWindow;

// Fetches what the stations of the next reports hold before those come. A station is four looks deep in memory: the
// index, its entry, its nodes and marker, its facts. With many stations each look is a wait longer than all the work on
// a report, so one look is taken a report, for four stations at once.
class StationsAhead {
public:
    // A report of the call comes behind those of the calls before.
    void Expect(const MainWindow& main, const ChannelState& channel, std::string_view call);

private:
    std::array<std::uint64_t, 5> m_calls{}; // Hashes, the latest first; 0 for none yet.
};

} // namespace ruvenmark
