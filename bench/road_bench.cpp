// The whole road without a window: line in, decoder, filter, marker, tree, record, note. Prints reports a second at
// 10,000 and at 1,000,000 stations in one run, their ratio, and the bytes a station takes.

#include "bench_machine.h"
#include "intake/station_store.h"
#include "lifecycle/start.h"
#include "lifecycle/stop.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace ruvenmark;

std::string Call(std::size_t number)
{
    std::string call = "N0AAAA-0";
    for (std::size_t i = 5; i >= 2; --i) {
        call[i] = static_cast<char>('A' + number % 26);
        number /= 26;
    }
    call.back() = static_cast<char>('0' + number % 10);
    return call;
}

// A position of a usual shape: course, altitude or a comment of some words, by turns.
std::string Line(std::size_t station, std::mt19937& random)
{
    const auto pick = [&](unsigned below) { return static_cast<unsigned>(random() % below); };
    const unsigned latDegrees = 30 + pick(19), lonDegrees = 70 + pick(50);
    const unsigned latMinutes = pick(60), lonMinutes = pick(60), latHundredths = pick(100), lonHundredths = pick(100);
    const char symbol = "->k#"[pick(4)];
    const char* comment = pick(2) == 0 ? "145.350 MHz home station" : "Monitoring 146.52";
    std::array<char, 200> text{};
    std::snprintf(text.data(), text.size(), "%s>APRS,WIDE1-1,WIDE2-1,qAR,N0GATE:!%02u%02u.%02uN/%03u%02u.%02uW%c%s",
                  Call(station).c_str(), latDegrees, latMinutes, latHundredths, lonDegrees, lonMinutes, lonHundredths,
                  symbol, comment);
    return text.data();
}

struct Program {
    BenchMachine<NoYield> machine;
    MainWindow main{machine.Lend()};
    std::unique_ptr<IReportSource> source;

    Program()
    {
        StartMainWindow(main);
        AddChannelTree(main.tvStationList, Channel::FL);
        source = machine.sources.CreateFile(*main.links.sinks[Index(Channel::FL)]);
    }
};

struct Figures {
    double reportsPerSecond = 0;
    double bytesPerStation = 0;
};

Figures Measure(std::size_t stations, std::size_t reports)
{
    std::mt19937 random(7);
    const auto program = std::make_unique<Program>();
    const auto before = mallinfo2().uordblks + mallinfo2().hblkhd;
    for (std::size_t i = 0; i < stations; ++i)
        program->source->ParseLine(Line(i, random));
    Figures figures;
    figures.bytesPerStation =
        static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd - before) / static_cast<double>(stations);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < reports; ++i)
        lines.push_back(Line(random() % stations, random));
    const double start = CpuSeconds();
    for (const std::string& line : lines)
        program->source->ParseLine(line);
    figures.reportsPerSecond = static_cast<double>(reports) / (CpuSeconds() - start);
    return figures;
}

} // namespace

int main(int argc, char** argv)
{
    const std::size_t many = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1000000;
    constexpr std::size_t kReports = 300000;
    const Figures few = Measure(10000, kReports);
    const Figures full = Measure(many, kReports);
    std::printf("%-44s %12s %12s\n", "the whole road, no window", "10,000", std::to_string(many).c_str());
    std::printf("%-44s %12.0f %12.0f\n", "reports a second of CPU time", few.reportsPerSecond, full.reportsPerSecond);
    std::printf("%-44s %12.0f %12.0f\n", "bytes a station, all models", few.bytesPerStation, full.bytesPerStation);
    std::printf("%-44s %12s %12.2f\n", "cost a report against 10,000 stations", "1",
                few.reportsPerSecond / full.reportsPerSecond);
    return 0;
}
