#pragma once

#include "contracts/report_source.h"

#include <deque>
#include <iosfwd>
#include <memory>

namespace ruvenmark {

class FollowingSink;

// The live links' sources, with every line that is heard printed at once; saved files are loaded unprinted.
class FollowedSources final : public IReportSources {
public:
    // Both outlive this, and this the sources.
    FollowedSources(IReportSources& sources, std::ostream& out);
    ~FollowedSources() override;

    std::unique_ptr<IReportSource> CreateTnc(IReportSink& sink) override;
    std::unique_ptr<IReportSource> CreateAgw(IReportSink& sink) override;
    std::unique_ptr<IReportSource> CreateServer(IReportSink& sink) override;
    std::unique_ptr<IReportSource> CreateFile(IReportSink& sink) override;

private:
    IReportSink& Follow(IReportSink& sink);

    IReportSources& m_sources;
    std::ostream& m_out;
    std::deque<std::unique_ptr<FollowingSink>> m_sinks; // One a connection; a sink outlives its source.
};

} // namespace ruvenmark
