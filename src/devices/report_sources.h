#pragma once

#include "contracts/report_source.h"
#include "devices/file_report_source.h"
#include "devices/line_counts.h"

#include <memory>

namespace ruvenmark {

// The sources of the real program, with what became of their lines.
class ReportSources final : public IReportSources {
public:
    std::unique_ptr<IReportSource> CreateFile(IReportSink& sink) override
    {
        return std::make_unique<FileReportSource>(sink, m_counts);
    }
    const LineCounts& Counts() const { return m_counts; }

private:
    LineCounts m_counts;
};

} // namespace ruvenmark
