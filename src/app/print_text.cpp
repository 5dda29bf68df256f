#include "app/print_state.h"
#include "core/main_window.h"
#include "devices/line_counts.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <ostream>

namespace ruvenmark {

namespace {

void PrintNode(std::ostream& out, const TreeNode& node, std::size_t depth)
{
    out << std::string(2 * depth, ' ') << TerminalText(node.Text()) << '\n';
    for (const auto& child : node.Children())
        PrintNode(out, *child, depth + 1);
}

void PrintTree(std::ostream& out, const RunState& state)
{
    for (const auto& root : state.main.tvStationList.Roots())
        PrintNode(out, *root, 0);
}

void PrintMarkers(std::ostream& out, const RunState& state)
{
    Map* map = state.main.mpCtrl.ActiveMap();
    if (!map)
        return;
    for (const Pushpin& pin : map->AllRecords()) {
        const GeoPoint at = pin.Location().Point();
        out << TerminalText(pin.Name()) << "  " << ShortText(at.lat) << ' ' << ShortText(at.lon) << "  symbol "
            << pin.Symbol() << (pin.BalloonState() != 0 ? "  named" : "") << '\n';
        const std::string note = pin.Note();
        for (const std::string_view line : Lines(note))
            out << "  " << TerminalText(line) << '\n';
    }
}

void PrintRecords(std::ostream& out, const RunState& state)
{
    for (const ChannelState& channel : state.main.channels) {
        for (const auto& [call, record] : channel.Stations) {
            out << Traits(channel.channel).word << ' ' << TerminalText(call) << '\n';
            for (const auto& [field, value] : record)
                out << "  " << FieldName(field) << ": " << TerminalText(value) << '\n';
        }
    }
}

void PrintMessages(std::ostream& out, const RunState& state)
{
    for (const std::string& message : state.messages)
        out << TerminalText(message) << '\n';
}

void PrintCounts(std::ostream& out, const RunState& state)
{
    out << "decoded: " << state.lines.decoded << '\n';
    out << "undecoded: " << state.lines.Undecoded() << '\n';
    for (std::size_t i = 0; i < state.lines.undecoded.size(); ++i)
        if (state.lines.undecoded[i] > 0)
            out << "  " << RefusalText(static_cast<aprs::Refusal>(i)) << ": " << state.lines.undecoded[i] << '\n';
    std::size_t abandoned = 0;
    for (const auto& [reason, count] : state.main.abandoned)
        abandoned += count;
    out << "abandoned: " << abandoned << '\n';
    for (const auto& [reason, count] : state.main.abandoned)
        out << "  " << TerminalText(reason) << ": " << count << '\n';
}

} // namespace

void PrintText(std::ostream& out, const RunState& state, const std::vector<PrintPart>& parts)
{
    for (const PrintPart part : parts) {
        switch (part) {
        case PrintPart::Tree:
            PrintTree(out, state);
            break;
        case PrintPart::Markers:
            PrintMarkers(out, state);
            break;
        case PrintPart::Records:
            PrintRecords(out, state);
            break;
        case PrintPart::Messages:
            PrintMessages(out, state);
            break;
        case PrintPart::Counts:
            PrintCounts(out, state);
            break;
        }
    }
}

} // namespace ruvenmark
