// The whole road without a window: line in, decoder, filter, marker, tree, record, note. Prints reports a second at
// 10,000 and at 1,000,000 stations in one run, their ratio, the bytes a station takes, and those left
// when all are cleared.

#include "bench_machine.h"
#include "intake/station_store.h"
#include "lifecycle/start.h"
#include "lifecycle/stop.h"
#include "platform/files.h"
#include "platform/line_stream.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

using namespace ruvenmark;

// Bytes of memory that this process really takes.
std::size_t ResidentBytes()
{
    std::size_t total = 0, resident = 0; // Pages.
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

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

// A file in memory.
class TextBytes final : public IByteStream {
public:
    explicit TextBytes(std::string_view text) : m_text(text) {}

    std::optional<std::size_t> Read(std::span<char> room, std::chrono::milliseconds /*wait*/) override
    {
        const std::size_t count = m_text.copy(room.data(), room.size());
        m_text.remove_prefix(count);
        return count > 0 ? std::optional(count) : std::nullopt;
    }

    std::optional<std::uint64_t> Size() const override { return std::nullopt; }

private:
    std::string_view m_text;
};

// A file's reader looks some lines ahead, a link hands them on one by one.
enum class Reader : std::uint8_t { File, Link };

// One program with its stations, and how long it took for the reports since.
class Road {
public:
    explicit Road(std::size_t stations) : m_stations(stations)
    {
        const auto before = ResidentBytes();
        for (std::size_t i = 0; i < stations; ++i)
            m_program.source->ParseLine(Line(i, m_random));
        m_bytes = ResidentBytes() - before;
    }

    // Leaves no station.
    void Clear()
    {
        const auto full = ResidentBytes();
        ClearChannelReports(m_program.main, Channel::FL);
        const auto freed = full - std::min(full, ResidentBytes());
        m_left = m_bytes - std::min(m_bytes, freed);
    }

    void Report(Reader reader, std::size_t reports)
    {
        std::string text;
        for (std::size_t i = 0; i < reports; ++i)
            text += Line(m_random() % m_stations, m_random) + '\n';
        TextBytes bytes(text);
        const double start = CpuSeconds();
        for (LineStream lines(bytes); lines.Next({}) == LineStream::Step::Line;) {
            if (reader == Reader::File) {
                while (const auto ahead = lines.Ahead())
                    m_program.source->ExpectLine(*ahead);
            }
            m_program.source->ParseLine(lines.Line());
        }
        Work& work = m_work[static_cast<std::size_t>(reader)];
        work.seconds += CpuSeconds() - start;
        work.reports += reports;
    }

    double ReportsPerSecond(Reader reader) const
    {
        const Work& work = m_work[static_cast<std::size_t>(reader)];
        return static_cast<double>(work.reports) / work.seconds;
    }
    double BytesPerStation() const { return static_cast<double>(m_bytes) / static_cast<double>(m_stations); }
    double BytesLeftPerStation() const { return static_cast<double>(m_left) / static_cast<double>(m_stations); }

private:
    struct Work {
        std::size_t reports = 0;
        double seconds = 0;
    };

    std::mt19937 m_random{7};
    Program m_program;
    std::size_t m_stations;
    std::size_t m_bytes = 0, m_left = 0;
    std::array<Work, 2> m_work;
};

void Print(const char* lines, const Road& few, const Road& full, Reader reader)
{
    const double fewPerSecond = few.ReportsPerSecond(reader), fullPerSecond = full.ReportsPerSecond(reader);
    std::printf("%-44s %12.0f %12.0f  (%.2f times the cost)\n", lines, fewPerSecond, fullPerSecond,
                fewPerSecond / fullPerSecond);
}

} // namespace

int main(int argc, char** argv)
{
    const std::size_t many = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1000000;
    // By turns, as a machine's clock may jump within a run.
    constexpr std::size_t kTurns = 20, kReports = 20000;
    Road few(10000), full(many);
    for (std::size_t turn = 0; turn < kTurns; ++turn) {
        for (const Reader reader : {Reader::File, Reader::Link}) {
            few.Report(reader, kReports);
            full.Report(reader, kReports);
        }
    }
    std::printf("%-44s %12s %12s\n", "the whole road, no window", "10,000", std::to_string(many).c_str());
    Print("reports a second of CPU time, of a file", few, full, Reader::File);
    Print("the same, of a link", few, full, Reader::Link);
    std::printf("%-44s %12.0f %12.0f\n", "bytes a station, all models", few.BytesPerStation(), full.BytesPerStation());
    few.Clear();
    full.Clear();
    std::printf("%-44s %12.0f %12.0f\n", "the same, once all are cleared", few.BytesLeftPerStation(),
                full.BytesLeftPerStation());
    return 0;
}
