#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// What the interval lists show, and how many ticks each stands for.
struct BeaconInterval {
    std::string_view text;
    std::int32_t ticks; // Of 15 seconds; 0 by hand only.
};
inline constexpr std::array<BeaconInterval, 12> kPositionIntervals = {{{"Manual", 0},
                                                                       {"15 Seconds", 1},
                                                                       {"30 Seconds", 2},
                                                                       {"1 Minute", 4},
                                                                       {"2 Minutes", 8},
                                                                       {"5 Minutes", 20},
                                                                       {"10 Minutes", 40},
                                                                       {"30 Minutes", 120},
                                                                       {"1 Hour", 240},
                                                                       {"2 Hours", 480},
                                                                       {"6 Hours", 1440},
                                                                       {"12 Hours", 2880}}};
inline constexpr std::array<BeaconInterval, 8> kWeatherIntervals = {{{"Manual", 0},
                                                                     {"5 Minutes", 20},
                                                                     {"10 Minutes", 40},
                                                                     {"30 Minutes", 120},
                                                                     {"1 Hour", 240},
                                                                     {"2 Hours", 480},
                                                                     {"6 Hours", 1440},
                                                                     {"12 Hours", 2880}}};

// From the settings; the counts go on.
void WorkOutIntervals(MainWindow& main);

inline constexpr int kBeaconTickMs = 15000;

// Every kBeaconTickMs. One inside another, as while a box stands, is ignored.
void intervalTimer_Timer(MainWindow& main);

} // namespace ruvenmark
