#pragma once

#include "contracts/report_source.h"
#include "devices/line_counts.h"
#include "devices/own_events.h"

namespace ruvenmark {

// The report source of a saved packet file: lines in, events out. What a line had still to say when the source was
// dropped in one of its events is never raised.
class FileReportSource final : public IReportSource {
public:
    // Both must outlive the source.
    FileReportSource(IReportSink& sink, LineCounts& counts) : m_sink(sink), m_counts(counts) {}

    void ParseLine(std::string_view line) override;
    void ExpectLine(std::string_view line) override;

private:
    IReportSink& m_sink;
    LineCounts& m_counts;
    OwnEvents m_events;
};

} // namespace ruvenmark
