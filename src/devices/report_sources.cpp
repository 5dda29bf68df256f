#include "devices/report_sources.h"

#include "devices/agw_source.h"
#include "devices/file_report_source.h"
#include "devices/server_source.h"
#include "devices/tnc_source.h"

namespace ruvenmark {

std::unique_ptr<IReportSource> ReportSources::CreateTnc(IReportSink& sink)
{
    return std::make_unique<TncSource>(m_links, sink, m_counts, &m_events);
}

std::unique_ptr<IReportSource> ReportSources::CreateAgw(IReportSink& sink)
{
    return std::make_unique<AgwSource>(m_links, sink, m_counts, &m_events);
}

std::unique_ptr<IReportSource> ReportSources::CreateServer(IReportSink& sink)
{
    return std::make_unique<ServerSource>(m_links, sink, m_counts, &m_events);
}

std::unique_ptr<IReportSource> ReportSources::CreateFile(IReportSink& sink)
{
    return std::make_unique<FileReportSource>(sink, m_counts);
}

} // namespace ruvenmark
