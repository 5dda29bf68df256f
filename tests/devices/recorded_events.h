#pragma once

#include "app/event_json.h"
#include "contracts/report_source.h"
#include "platform/failure.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ruvenmark {

// Each event of a source as its name and, of some, what it brings: "ReportRawData N0CALL>APRS:>Hi".
struct RecordedEvents {
    std::vector<std::string> events;
    std::function<void()> onEvent = [] {}; // Runs inside each event, after it is written down.
    EventJsonSink sink{[this](const nlohmann::ordered_json& event) {
        std::string text = event["event"].get<std::string>();
        for (const char* key : {"Packet", "Status"})
            if (event.contains(key))
                text += ' ' + event[key].get<std::string>();
        events.push_back(std::move(text));
        onEvent();
    }};

    // The lines as received alone.
    std::vector<std::string> Raw() const
    {
        constexpr std::string_view kRaw = "ReportRawData ";
        std::vector<std::string> lines;
        for (const std::string& event : events)
            if (event.starts_with(kRaw))
                lines.push_back(event.substr(kRaw.size()));
        return lines;
    }
};

// Runs what a source is told with the source dropped inside its first event, its second and so on, and asks that it is
// silent from there on. `run` makes the source anew and lets it be told; it must come to `count` events.
template <class Source, class Recorded>
bool IsSilentOnceDropped(std::size_t count, Recorded& recorded, std::unique_ptr<Source>& source,
                         const std::function<void()>& run)
{
    for (std::size_t last = 1; last <= count + 1; ++last) {
        recorded.events.clear();
        recorded.onEvent = [&] {
            if (recorded.events.size() == last)
                source.reset();
        };
        run();
        recorded.onEvent = [] {};
        if (recorded.events.size() != std::min(last, count) || (source == nullptr) != (last <= count))
            return false;
    }
    return true;
}

} // namespace ruvenmark
