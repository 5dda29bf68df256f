#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ruvenmark {

enum class PrintPart : std::uint8_t { Tree, Markers, Records, Messages, Counts };

struct ViewOption {
    double lat, lon, zoom;
};
enum class LinkName : std::uint8_t { Tnc, Agw, Server, Gps, Wx };

// A link to connect. Without an address it is connected as the settings say.
struct LinkOption {
    LinkName link;
    std::string address;     // A serial port or a host.
    std::int32_t number = 0; // The port's baud, or the host's port.
};

// A report to send, in the order of the command line. What is missing in it the report's own rules tell.
struct SendOption {
    enum class Kind : std::uint8_t { Position, Weather, Status, Message, Object };
    Kind kind;
    std::string to;       // Of a message its recipient, of an object its name.
    std::string lat, lon; // Of an object.
    std::string text;
};
struct SizeOption {
    int width = 1280, height = 800; // Pixels at scale 1.
};

// What the command line of `ruvenmark` asks for.
struct ProgramOptions {
    bool bHelp = false;
    bool bVersion = false;
    bool bHeadless = false;
    bool bJson = false;
    std::optional<std::string> loadFile;
    std::optional<std::string> settingsFile;
    std::optional<std::string> folder;
    std::vector<PrintPart> print;                              // In the order asked for.
    std::string track;                                         // Calls, blanks between.
    std::vector<std::pair<std::string, std::string>> settings; // For this run.

    std::vector<LinkOption> connect;     // Without a window.
    std::optional<std::int32_t> seconds; // How long they are used; else until a signal.
    bool bFollow = false;
    std::vector<SendOption> send;

    std::optional<std::string> screenshot; // A file name.
    std::optional<SizeOption> size;
    std::optional<ViewOption> view;
    bool bDark = false;
    double scale = 1;
};

// A command line that cannot be followed; the text is one line for the person who typed it.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Nothing for what is no whole number between the two.
std::optional<std::int32_t> ReadWhole(std::string_view text, std::int32_t least, std::int32_t most);

ProgramOptions ReadOptions(const std::vector<std::string>& arguments);
std::string_view HelpText();
std::string VersionText();

} // namespace ruvenmark
