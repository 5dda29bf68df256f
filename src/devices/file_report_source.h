#pragma once

#include "contracts/report_source.h"
#include "devices/line_counts.h"

namespace ruvenmark {

// The report source of a saved packet file: lines in, events out. Its sink may drop it inside any of its events; what
// the line at hand had still to say is then never raised. All but ParseLine belongs to other channels and fails.
class FileReportSource final : public IReportSource {
public:
    // Both must outlive the source.
    FileReportSource(IReportSink& sink, LineCounts& counts);
    ~FileReportSource() override;
    FileReportSource(const FileReportSource&) = delete;
    FileReportSource& operator=(const FileReportSource&) = delete;

    void OpenPort(std::string_view port, std::int32_t baud, std::string_view token) override;
    void ClosePort() override;
    void EnterCommandMode() override;
    void SendCommand(std::string_view line) override;
    std::int32_t GetUtcOffset() override;
    void ConnectSocket(std::string_view host, std::int32_t port, std::string_view token) override;
    void CloseSocket() override;
    void SendFrame(std::string_view source, std::string_view dest, std::string_view via,
                   std::string_view info) override;
    void ConnectServer(std::string_view host, std::int32_t port, std::string_view token) override;
    void CloseServer() override;
    void SendServerLine(std::string_view line) override;
    void ParseLine(std::string_view line) override;

private:
    // One running ParseLine; they nest where a sink parses a line inside an event.
    struct Call {
        bool bDropped = false;
        Call* outer = nullptr;
    };

    IReportSink& m_sink;
    LineCounts& m_counts;
    Call* m_call = nullptr;
};

} // namespace ruvenmark
