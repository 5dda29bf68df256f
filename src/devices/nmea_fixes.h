#pragma once

#include "contracts/byte_link.h"
#include "contracts/report_source.h"

#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

// Makes fixes of the sentences of a GPS receiver: RMC, GGA and GLL of any satellite system, those of one time put
// together. A fix is whole once a sentence of the next comes, or the receiver pauses.
class NmeaFixes {
public:
    // With a limit, a receiver that says nothing of its place for so long has lost it.
    explicit NmeaFixes(Moment begun, std::optional<std::chrono::seconds> silence = {})
        : m_silence(silence), m_lastLine(begun), m_lastPlace(begun)
    {
    }

    void Take(std::string_view line, Moment now);
    void Tick(Moment now);
    // The fix that the last Take or Tick completed: one a time while the place is known, and one without a place when
    // it no longer is.
    std::optional<GpsReport> Next();

private:
    void Finish();
    void TellLost();

    struct Fix {
        std::string time;   // As the sentences tell it, without zeros at its end.
        unsigned kinds = 0; // One bit a kind of sentence.
        bool bVoid = false;
        GpsReport report{};
    };

    std::optional<std::chrono::seconds> m_silence;
    Moment m_lastLine, m_lastPlace;
    Fix m_fix;
    bool m_bLostTold = false;
    std::optional<GpsReport> m_next;
};

} // namespace ruvenmark
