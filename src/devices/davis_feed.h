#pragma once

#include "devices/weather_history.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

// The dialogue with a Davis console, which sleeps until it is woken and then sends as many readings as it is asked for.
class DavisFeed {
public:
    void Take(std::string_view bytes, Moment now);
    // The next reading; nothing once all that was taken is read.
    std::optional<WeatherReading> Next();
    // What is to be written now, to wake the console or to ask for more.
    std::string ToWrite(Moment now);

private:
    enum class Stage : std::uint8_t { Asleep, Waking, AskedForGauge, Reading };

    std::string Ask(Stage stage, std::string_view question, Moment now);
    bool TakeGauge();

    Stage m_stage = Stage::Asleep;
    Moment m_begun{}; // The question; then the last reading.
    Moment m_lastBytes{};
    bool m_bAnswered = false; // The question was.
    int m_left = 0;           // Readings still to come.
    std::string m_in;
    bool m_bGaugeAsked = false; // Once: amounts of rain must not change their measure on the way.
    double m_hundredthsPerClick = 1;
};

} // namespace ruvenmark
