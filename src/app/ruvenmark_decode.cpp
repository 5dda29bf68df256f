#include "app/decode_summary.h"
#include "app/event_json.h"
#include "app/line_reader.h"
#include "app/packet_json.h"
#include "aprs/decode.h"
#include "devices/log_line.h"
#include "devices/packet_events.h"
#include "platform/program_name.h"
#include "platform/text.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

using namespace ruvenmark;

constexpr int kWrongUse = 2;
constexpr int kWriteFailed = 1;
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF"; // Editors put it in front of a file.

constexpr std::string_view kHelp =
    R"(Usage: ruvenmark-decode [OPTION] [FILE|-]

Decodes APRS packets in text form (SOURCE>DEST,PATH:information), one a line, from
FILE or standard input, and prints one JSON object a line, in the same order.
Blank lines give none. Output follows input at once, so it can stand behind a live feed.

  -e, --events    print the report events that each line raises instead
  -s, --summary   print how many packets there are of each type, and why lines were
                  refused, instead
  -h, --help      print this help and end
  -V, --version   print the version and end

Lines may come from the logs of other programs: a date, time or port before the packet is
left out, bytes written as <0x1c> are read back.

Every object has:
  line, ok        the packet as read; whether it could be decoded
  type            position, weather, object, item, status, message, ack, reject,
                  bulletin, telemetry, telemetry-definition, capabilities, query, grid,
                  user-defined, test; absent where ok is false
  error           why the line was refused, where ok is false
  source, dest, path; third_party: who relayed it, for third-party packets
and what the packet has of:
  log (what a log put before it), device, messaging (the sender takes messages),
  lat, lon (degrees), ambiguity (digits left blank), symbol (table or overlay, then
  code), course, speed_knots, altitude_ft, phg, dfs, power (watts), height (feet),
  gain (dB), directivity, range_miles, time and warning, mic_e_status,
  bearing, bearing_hits, bearing_range_miles, bearing_accuracy (degrees),
  area, area_colour, area_lat, area_lon (degrees), area_width_miles,
  telemetry, telemetry_sequence, telemetry_values, telemetry_bits,
  frequency_mhz, tone_hz, dcs, offset_mhz, comment; name, alive; status; addressee, text, id, ack, rej; sequence,
  values, bits; capabilities; query; user_id; grid;
  wind_direction, wind_mph, gust_mph, temperature_f, rain_1h_in, rain_24h_in,
  rain_midnight_in, snow_24h_in, humidity, pressure_mbar, luminosity_wm2
Text that is not UTF-8 is shown as Latin-1; the output is always valid JSON.

Examples:
  ruvenmark-decode day.log | jq -c 'select(.type == "weather") | {source, temperature_f}'
  ruvenmark-decode --summary day.log
  nc SERVER 14580 | ruvenmark-decode -

Exit status: 0; 1 where the output cannot be written; 2 for wrong use or a file that
cannot be read.
)";

enum class Mode { Packets, Events, Summary };

struct Options {
    Mode mode = Mode::Packets;
    std::string file = "-";
};

int Complain(const std::string& text)
{
    std::cerr << "ruvenmark-decode: " << TerminalText(text) << '\n';
    return kWrongUse;
}

int ComplainOfOutput()
{
    Complain("the output could not be written");
    return kWriteFailed;
}

int Print(std::string_view text)
{
    std::cout << text << std::flush;
    return std::cout ? 0 : ComplainOfOutput();
}

// Gives the exit status where there is nothing more to do.
std::optional<int> ReadArguments(int count, char** arguments, Options& options)
{
    bool bFile = false;
    bool bOptions = true;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (!bOptions || argument == "-" || !argument.starts_with('-')) {
            if (bFile)
                return Complain("more than one file; see --help");
            options.file = argument;
            bFile = true;
        } else if (argument == "--") {
            bOptions = false;
        } else if (argument == "-h" || argument == "--help") {
            return Print(kHelp);
        } else if (argument == "-V" || argument == "--version") {
            return Print("ruvenmark-decode " + std::string(ProgramVersion()) + '\n');
        } else if (argument == "-e" || argument == "--events") {
            options.mode = Mode::Events;
        } else if (argument == "-s" || argument == "--summary") {
            options.mode = Mode::Summary;
        } else {
            return Complain("unknown option " + std::string(argument) + "; see --help");
        }
    }
    return std::nullopt;
}

// Standard output, written in large pieces.
class Output {
public:
    void Line(const nlohmann::ordered_json& json)
    {
        m_text += TerminalJson(json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
        m_text += '\n';
        if (m_text.size() > kEnough)
            Flush();
    }
    void Text(std::string_view text) { m_text += text; }
    void Flush()
    {
        std::size_t done = 0;
        while (done < m_text.size() && !m_bFailed) {
            const ssize_t count = ::write(STDOUT_FILENO, m_text.data() + done, m_text.size() - done);
            if (count >= 0)
                done += static_cast<std::size_t>(count);
            else if (errno != EINTR)
                m_bFailed = true;
        }
        m_text.clear();
    }
    bool HasFailed() const { return m_bFailed; }

private:
    static constexpr std::size_t kEnough = 1U << 18U;

    std::string m_text;
    bool m_bFailed = false;
};

bool IsBlankLine(std::string_view line)
{
    return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

int Run(int descriptor, const Options& options)
{
    Output output;
    DecodeSummary summary;
    const bool bNeverStopped = false;
    EventJsonSink sink([&](const nlohmann::ordered_json& event) { output.Line(event); });
    bool bFirst = true;
    const auto onLine = [&](std::string_view line) {
        if (std::exchange(bFirst, false) && line.starts_with(kUtf8Mark))
            line.remove_prefix(kUtf8Mark.size());
        if (IsBlankLine(line) || output.HasFailed())
            return;
        const LogLine log(line);
        const aprs::Packet packet = aprs::Decode(log.Packet());
        switch (options.mode) {
        case Mode::Packets:
            output.Line(PacketJson(packet, log.Stamp()));
            break;
        case Mode::Events:
            RaisePacketEvents(packet, RawData::No, sink, bNeverStopped);
            break;
        case Mode::Summary:
            summary.Add(packet);
            break;
        }
    };
    if (!LineReader(descriptor).ReadAll(onLine, [&] { output.Flush(); }))
        return Complain("cannot read " + options.file + ": " + std::strerror(errno));
    if (options.mode == Mode::Summary)
        output.Text(summary.ToString());
    output.Flush();
    return output.HasFailed() ? ComplainOfOutput() : 0;
}

bool IsFolder(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

int main(int count, char** arguments)
{
    Options options;
    if (const auto status = ReadArguments(count, arguments, options))
        return *status;
    if (options.file == "-")
        return Run(STDIN_FILENO, options);
    const int descriptor = ::open(options.file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return Complain("cannot open " + options.file + ": " + std::strerror(errno));
    if (IsFolder(descriptor))
        return Complain("cannot read " + options.file + ": it is a folder");
    const int status = Run(descriptor, options);
    ::close(descriptor);
    return status;
}
