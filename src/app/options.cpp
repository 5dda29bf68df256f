#include "app/options.h"

#include "app/link_options.h"
#include "core/settings.h"
#include "platform/map_model.h"
#include "platform/numbers.h"
#include "platform/program_name.h"
#include "platform/text.h"
#include "tracking/track_lists.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace ruvenmark {

namespace {

constexpr std::string_view kHelp =
    "Usage: ruvenmark [OPTION...] [FILE]\n"
    "Desktop station client for the Automatic Packet Reporting System (APRS).\n"
    "FILE, a saved packet file, is loaded at start.\n"
    "\n"
    "  --load FILE           load a saved packet file\n"
    "  --track CALL[,CALL]   put calls on the track list of loaded files\n"
    "  --settings FILE       use this settings file\n"
    "  --folder DIR          use this program folder\n"
    "  --set KEY=VALUE       a setting for this run\n"
    "  --region 1|2          map of North America or Europe, for this run\n"
    "\n"
    "Without a window:\n"
    "  --headless            start, load, print and stop\n"
    "  --print WHAT[,WHAT]   tree (default), markers, records, messages, counts\n"
    "  --json                print one JSON object\n"
    "  --connect LINK[,LINK] connect before the print, until a signal; a LINK is tnc, agw,\n"
    "                        server or gps as the settings say, or tnc=PORT:BAUD,\n"
    "                        agw=HOST:PORT, server=HOST:PORT, gps=PORT:BAUD, wx=PORT:BAUD\n"
    "                        for this run\n"
    "  --for SECONDS         stay connected so long\n"
    "  --follow              print each line that is heard\n"
    "  --send REPORT         send once over what is connected, then end unless --for is given;\n"
    "                        a REPORT is position, weather, status:TEXT, message:TO:TEXT or\n"
    "                        object:NAME:LAT,LON:TEXT; may be given several times\n"
    "\n"
    "A picture of the window:\n"
    "  --screenshot FILE.png draw the window into a file and end\n"
    "  --size WxH            its size in pixels (default 1280x800)\n"
    "  --view LAT,LON,ZOOM   what the map shows\n"
    "  --dark                dark colours\n"
    "  --scale FACTOR        device pixels a pixel, 1 to 4\n"
    "\n"
    "  --help, --version\n";

[[noreturn]] void Refuse(const std::string& option, std::string_view value, std::string_view wanted)
{
    throw UsageError(option + ": '" + std::string(value) + "' is not " + std::string(wanted));
}

void ReadPrint(ProgramOptions& options, const std::string& option, std::string_view value)
{
    constexpr std::array<std::pair<std::string_view, PrintPart>, 5> kParts = {{{"tree", PrintPart::Tree},
                                                                               {"markers", PrintPart::Markers},
                                                                               {"records", PrintPart::Records},
                                                                               {"messages", PrintPart::Messages},
                                                                               {"counts", PrintPart::Counts}}};
    for (const std::string_view word : Split(value, ',')) {
        bool bFound = false;
        for (const auto& [name, part] : kParts) {
            if (name == word) {
                options.print.push_back(part);
                bFound = true;
            }
        }
        if (!bFound)
            Refuse(option, word, "tree, markers, records, messages or counts");
    }
}

void ReadSetting(ProgramOptions& options, const std::string& option, std::string_view value)
{
    const auto sign = value.find('=');
    if (sign == std::string_view::npos || sign == 0)
        Refuse(option, value, "KEY=VALUE");
    const std::string_view key = value.substr(0, sign), text = value.substr(sign + 1);
    const auto setting = SettingOfKey(key);
    if (!setting)
        throw UsageError(option + ": there is no setting '" + std::string(key) + "'");
    if (!IsReadable(Info(*setting).kind, text))
        Refuse(option, text, "a value of " + std::string(key));
    options.settings.emplace_back(key, text);
}

void ReadRegion(ProgramOptions& options, const std::string& option, std::string_view value)
{
    if (value != "1" && value != "2")
        Refuse(option, value, "1 (North America) or 2 (Europe)");
    options.settings.emplace_back(Info(Setting::Region).key, value);
}

void ReadSize(ProgramOptions& options, const std::string& option, std::string_view value)
{
    const auto sides = Split(value, 'x');
    constexpr std::int32_t kLeast = 200, kMost = 10000;
    const auto width = ReadWhole(sides.front(), kLeast, kMost);
    const auto height = ReadWhole(sides.back(), kLeast, kMost);
    if (sides.size() != 2 || !width || !height)
        Refuse(option, value, "WIDTHxHEIGHT in whole numbers between 200x200 and 10000x10000");
    options.size = SizeOption{*width, *height};
}

void ReadView(ProgramOptions& options, const std::string& option, std::string_view value)
{
    const auto parts = Split(value, ',');
    std::array<double, 3> numbers{};
    bool bGood = parts.size() == numbers.size();
    for (std::size_t i = 0; bGood && i < numbers.size(); ++i) {
        const auto number = ReadNumber(parts[i]);
        bGood = number.has_value();
        numbers[i] = number.value_or(0);
    }
    if (!bGood || !(numbers[0] >= -90 && numbers[0] <= 90) || !(numbers[1] >= -180 && numbers[1] <= 180) ||
        !(numbers[2] >= kMinZoom && numbers[2] <= kMaxZoom))
        Refuse(option, value, "LAT,LON,ZOOM with a zoom from " + ShortText(kMinZoom) + " to " + ShortText(kMaxZoom));
    options.view = ViewOption{numbers[0], numbers[1], numbers[2]};
}

void ReadScale(ProgramOptions& options, const std::string& option, std::string_view value)
{
    const auto scale = ReadNumber(value);
    if (!scale || !(*scale >= 1 && *scale <= 4))
        Refuse(option, value, "a number from 1 to 4");
    options.scale = *scale;
}

void ReadTrack(ProgramOptions& options, const std::string& /*option*/, std::string_view value)
{
    for (const std::string_view call : Split(value, ',')) {
        AppendTrackCall(options.track, call);
    }
}

void ReadConnect(ProgramOptions& options, const std::string& option, std::string_view value)
{
    for (const std::string_view word : Split(value, ',')) {
        const auto link = ReadLink(word);
        if (!link)
            Refuse(option, word,
                   "tnc, agw, server, gps or wx with PORT:BAUD or HOST:PORT (whole numbers, a host's port 1 to 32767), "
                   "as --help tells");
        const auto isSame = [&](const LinkOption& other) {
            return (other.link == LinkName::Agw ? LinkName::Tnc : other.link) ==
                   (link->link == LinkName::Agw ? LinkName::Tnc : link->link);
        };
        if (std::any_of(options.connect.begin(), options.connect.end(), isSame))
            throw UsageError(option + ": one of each link, and tnc or agw");
        options.connect.push_back(*link);
    }
}

void ReadFor(ProgramOptions& options, const std::string& option, std::string_view value)
{
    constexpr std::int32_t kMost = 1'000'000;
    options.seconds = ReadWhole(value, 0, kMost);
    if (!options.seconds)
        Refuse(option, value, "a whole number of seconds up to " + std::to_string(kMost));
}

void ReadSend(ProgramOptions& options, const std::string& option, std::string_view value)
{
    const auto report = ReadReport(value);
    if (!report)
        Refuse(option, value, "position, weather, status:TEXT, message:TO:TEXT or object:NAME:LAT,LON:TEXT");
    options.send.push_back(*report);
}

struct Switch {
    std::string_view name;
    bool ProgramOptions::*flag;
};
struct TextOption {
    std::string_view name;
    std::optional<std::string> ProgramOptions::*text;
};
struct ValueOption {
    std::string_view name;
    void (*read)(ProgramOptions&, const std::string& option, std::string_view value);
};
constexpr std::array<Switch, 6> kSwitches = {{{"--help", &ProgramOptions::bHelp},
                                              {"--version", &ProgramOptions::bVersion},
                                              {"--headless", &ProgramOptions::bHeadless},
                                              {"--json", &ProgramOptions::bJson},
                                              {"--follow", &ProgramOptions::bFollow},
                                              {"--dark", &ProgramOptions::bDark}}};
constexpr std::array<TextOption, 4> kTexts = {{{"--load", &ProgramOptions::loadFile},
                                               {"--settings", &ProgramOptions::settingsFile},
                                               {"--folder", &ProgramOptions::folder},
                                               {"--screenshot", &ProgramOptions::screenshot}}};
constexpr std::array<ValueOption, 10> kValues = {{{"--print", ReadPrint},
                                                  {"--set", ReadSetting},
                                                  {"--region", ReadRegion},
                                                  {"--size", ReadSize},
                                                  {"--view", ReadView},
                                                  {"--scale", ReadScale},
                                                  {"--track", ReadTrack},
                                                  {"--connect", ReadConnect},
                                                  {"--for", ReadFor},
                                                  {"--send", ReadSend}}};

// Walks the words of the command line; a value stands behind its option, or in it behind "=".
class ArgumentWalk {
public:
    explicit ArgumentWalk(const std::vector<std::string>& words) : m_words(words) {}

    bool Next()
    {
        if (m_next >= m_words.size())
            return false;
        m_option = m_words[m_next++];
        m_value.reset();
        const auto sign = m_option.find('=');
        if (m_option.starts_with("--") && sign != std::string::npos) {
            m_value = m_option.substr(sign + 1);
            m_option.resize(sign);
        }
        return true;
    }
    const std::string& Option() const { return m_option; }
    bool HasValue() const { return m_value.has_value(); }
    std::string Value()
    {
        if (!m_value && m_next < m_words.size())
            m_value = m_words[m_next++];
        if (!m_value || m_value->empty())
            throw UsageError(m_option + " needs a value");
        return *m_value;
    }

private:
    const std::vector<std::string>& m_words;
    std::size_t m_next = 0;
    std::string m_option;
    std::optional<std::string> m_value;
};

bool ReadSwitch(ProgramOptions& options, const ArgumentWalk& words)
{
    for (const auto& [name, flag] : kSwitches) {
        if (name != words.Option())
            continue;
        if (words.HasValue())
            throw UsageError(words.Option() + " takes no value");
        options.*flag = true;
        return true;
    }
    return false;
}

bool ReadValue(ProgramOptions& options, ArgumentWalk& words)
{
    for (const auto& [name, text] : kTexts) {
        if (name == words.Option()) {
            options.*text = words.Value();
            return true;
        }
    }
    for (const auto& [name, read] : kValues) {
        if (name == words.Option()) {
            read(options, words.Option(), words.Value());
            return true;
        }
    }
    return false;
}

void CheckTogether(ProgramOptions& options)
{
    if ((options.bJson || !options.print.empty()) && !options.bHeadless)
        throw UsageError("--print and --json go with --headless");
    if (!options.connect.empty() && !options.bHeadless)
        throw UsageError("--connect goes with --headless");
    if ((options.bFollow || options.seconds || !options.send.empty()) && options.connect.empty())
        throw UsageError("--for, --follow and --send go with --connect");
    if (options.bHeadless && options.screenshot)
        throw UsageError("--screenshot and --headless do not go together");
    if (options.print.empty())
        options.print.push_back(PrintPart::Tree);
}

} // namespace

std::optional<std::int32_t> ReadWhole(std::string_view text, std::int32_t least, std::int32_t most)
{
    const auto number = ReadNumber(text);
    if (!number || !(*number >= least && *number <= most) || *number != std::trunc(*number))
        return std::nullopt;
    return static_cast<std::int32_t>(*number);
}

ProgramOptions ReadOptions(const std::vector<std::string>& arguments)
{
    ProgramOptions options;
    ArgumentWalk words(arguments);
    while (words.Next()) {
        if (ReadSwitch(options, words) || ReadValue(options, words))
            continue;
        if (words.Option().starts_with('-') && words.Option().size() > 1)
            throw UsageError("unknown option '" + words.Option() + "'; see --help");
        if (options.loadFile)
            throw UsageError("one file at a time: '" + words.Option() + "' is one too many");
        options.loadFile = words.Option();
    }
    for (const LinkOption& link : options.connect) // Behind --set: an option of its own is the nearer word.
        AddLinkSettings(options.settings, link);
    if (!options.bHelp && !options.bVersion)
        CheckTogether(options);
    return options;
}

std::string_view HelpText()
{
    return kHelp;
}

std::string VersionText()
{
    return "ruvenmark " + std::string(ProgramVersion());
}

} // namespace ruvenmark
