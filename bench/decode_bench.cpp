// Decoding against a bare split of the same lines into source, destination, path and payload. Lines come from the
// generated mix and, where RUVENMARK_LOGS names a folder, from the log files in it. The ratio is printed at the end.

#include "aprs/decode.h"
#include "devices/packet_events.h"
#include "packet_mix.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace ruvenmark;

constexpr std::size_t kMixLines = 20000;

struct LineSet {
    std::string name;
    std::vector<std::string> lines;
};

struct BareSplit {
    std::string_view source, dest, path, payload;
};

BareSplit Split(std::string_view line)
{
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos)
        return {};
    const std::string_view head = line.substr(0, colon);
    const std::size_t angle = head.find('>');
    if (angle == std::string_view::npos)
        return {};
    const std::size_t comma = head.find(',', angle + 1);
    if (comma == std::string_view::npos)
        return {head.substr(0, angle), head.substr(angle + 1), {}, line.substr(colon + 1)};
    return {head.substr(0, angle), head.substr(angle + 1, comma - angle - 1), head.substr(comma + 1),
            line.substr(colon + 1)};
}

// Takes every event and does nothing with it.
class IdleSink final : public IReportSink {
public:
    void ReportPos(const PosReport& report) override { benchmark::DoNotOptimize(report.lat); }
    void ReportPacket(std::string_view packet) override { benchmark::DoNotOptimize(packet.data()); }
    void ReportTime(const TimeReport& report) override { benchmark::DoNotOptimize(report.hour); }
    void ReportDataExt(const DataExtReport& report) override { benchmark::DoNotOptimize(report.power); }
    void ReportPosExt(const PosExtReport& report) override { benchmark::DoNotOptimize(report.speed); }
    void ReportStatus(const StatusReport& report) override { benchmark::DoNotOptimize(report.lat); }
    void ReportStatusTime(const StatusTimeReport& report) override { benchmark::DoNotOptimize(report.day); }
    void ReportInfo(const InfoReport& report) override { benchmark::DoNotOptimize(report.info.data()); }
    void ReportWeather(const WeatherReport& report) override { benchmark::DoNotOptimize(report.rain); }
    void ReportCapabilities(const CapabilitiesReport& report) override
    {
        benchmark::DoNotOptimize(report.capabilities.data());
    }
    void ReportAprsMsg(const MessageReport& report) override { benchmark::DoNotOptimize(report.text.data()); }
    void SocketConnected() override {}
    void SocketConnectionError() override {}
    void SocketConnectionClosed() override {}
    void ServerConnectionError() override {}
    void ReportObjectItem(const ObjectItemReport& report) override { benchmark::DoNotOptimize(report.state); }
    void ReportGpsData(const GpsReport& report) override { benchmark::DoNotOptimize(report.lat); }
    void ReportRawData(std::string_view packet) override { benchmark::DoNotOptimize(packet.data()); }
};

std::vector<std::string> ReadLines(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        if (!line.empty())
            lines.push_back(line);
    return lines;
}

std::vector<LineSet> MakeLineSets()
{
    std::vector<LineSet> sets{{"mix", MakePacketMix(kMixLines)}};
    const char* const folder = std::getenv("RUVENMARK_LOGS");
    if (folder == nullptr)
        return sets;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".log")
            sets.push_back({entry.path().stem().string(), ReadLines(entry.path())});
    return sets;
}

using PerLine = std::function<void(const std::vector<std::string>&)>;

void SplitAll(const std::vector<std::string>& lines)
{
    for (const std::string& line : lines)
        benchmark::DoNotOptimize(Split(line));
}

void DecodeAll(const std::vector<std::string>& lines)
{
    for (const std::string& line : lines)
        benchmark::DoNotOptimize(aprs::Decode(line));
}

void RaiseAll(const std::vector<std::string>& lines)
{
    IdleSink sink;
    const bool bStopped = false;
    for (const std::string& line : lines)
        RaisePacketEvents(aprs::Decode(line), RawData::No, sink, bStopped);
}

void Register(const LineSet& set, const std::string& work, const PerLine& run)
{
    benchmark::RegisterBenchmark((work + "/" + set.name).c_str(), [&set, run](benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state)
            run(set.lines);
        state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) *
                                static_cast<std::int64_t>(set.lines.size()));
    });
}

double NanosecondsPerLine(const std::vector<std::string>& lines, const PerLine& run)
{
    const auto start = std::chrono::steady_clock::now();
    run(lines);
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / static_cast<double>(lines.size());
}

// Best of many passes, the three kinds of work taking turns, so that a busy machine slows them alike.
void PrintRatio(const LineSet& set)
{
    constexpr int kPasses = 60;
    double split = 1e30;
    double decode = 1e30;
    double events = 1e30;
    for (int i = 0; i < kPasses; ++i) {
        split = std::min(split, NanosecondsPerLine(set.lines, SplitAll));
        decode = std::min(decode, NanosecondsPerLine(set.lines, DecodeAll));
        events = std::min(events, NanosecondsPerLine(set.lines, RaiseAll));
    }
    std::printf("%-32s split %6.1f ns  decode %6.1f ns (1/%.1f of the split's speed)  with events %6.1f ns\n",
                set.name.c_str(), split, decode, decode / split, events);
}

} // namespace

int main(int count, char** arguments)
{
    const std::vector<LineSet> sets = MakeLineSets();
    for (const LineSet& set : sets) {
        Register(set, "split", SplitAll);
        Register(set, "decode", DecodeAll);
        Register(set, "events", RaiseAll);
    }
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    for (const LineSet& set : sets)
        PrintRatio(set);
    return 0;
}
