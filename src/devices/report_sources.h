#pragma once

#include "contracts/byte_link.h"
#include "contracts/report_source.h"
#include "devices/line_counts.h"
#include "devices/link_events.h"

#include <memory>

namespace ruvenmark {

// The sources of the real program, with what became of their lines.
class ReportSources final : public IReportSources {
public:
    // `links` must outlive the sources.
    explicit ReportSources(IByteLinks& links) : m_links(links) {}

    std::unique_ptr<IReportSource> CreateTnc(IReportSink& sink) override;
    std::unique_ptr<IReportSource> CreateAgw(IReportSink& sink) override;
    std::unique_ptr<IReportSource> CreateServer(IReportSink& sink) override;
    std::unique_ptr<IReportSource> CreateFile(IReportSink& sink) override;

    const LineCounts& Counts() const { return m_counts; }
    LinkEvents& Events() { return m_events; }

private:
    IByteLinks& m_links;
    LineCounts m_counts;
    LinkEvents m_events;
};

} // namespace ruvenmark
