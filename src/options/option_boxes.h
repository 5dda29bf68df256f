#pragma once

#include "core/number_rule.h"
#include "core/settings.h"
#include "options/options_form.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace ruvenmark {

enum class OptionPage : std::uint8_t { General, Position, Weather, Message, Misc };
inline constexpr std::array<std::string_view, 5> kOptionPages = {"General", "Position", "Weather", "Message", "Misc"};

// The frames of the pages, from top to bottom. The boxes of one stand in the order of their table.
enum class OptionFrame : std::uint8_t {
    Station,
    Names,
    Intervals,
    Place,
    Antenna,
    Comment,
    Wind,
    Rain,
    Air,
    Senders,
    Reception,
    Sound,
    Files,
    StationTree,
    Tactical
};
struct OptionFrameInfo {
    OptionFrame frame;
    OptionPage page;
    std::string_view title;
};
inline constexpr std::array<OptionFrameInfo, 15> kOptionFrames = {{
    {OptionFrame::Station, OptionPage::General, "Station"},
    {OptionFrame::Names, OptionPage::General, "Names on the Map"},
    {OptionFrame::Intervals, OptionPage::General, "Reporting Intervals"},
    {OptionFrame::Place, OptionPage::Position, "Place"},
    {OptionFrame::Antenna, OptionPage::Position, "Antenna"},
    {OptionFrame::Comment, OptionPage::Position, "Text"},
    {OptionFrame::Wind, OptionPage::Weather, "Wind"},
    {OptionFrame::Rain, OptionPage::Weather, "Rain"},
    {OptionFrame::Air, OptionPage::Weather, "Air"},
    {OptionFrame::Senders, OptionPage::Message, "Receive"},
    {OptionFrame::Reception, OptionPage::Message, "Reception"},
    {OptionFrame::Sound, OptionPage::Message, "Sound"},
    {OptionFrame::Files, OptionPage::Misc, "Files"},
    {OptionFrame::StationTree, OptionPage::Misc, "Colour in the Station Tree"},
    {OptionFrame::Tactical, OptionPage::Misc, "Tactical Call"},
}};
static_assert(
    [] {
        for (std::size_t i = 0; i < kOptionFrames.size(); ++i)
            if (static_cast<std::size_t>(kOptionFrames[i].frame) != i)
                return false;
        return true;
    }(),
    "a frame is looked up by its place in the table");

enum class OptionKind : std::uint8_t {
    Text,
    Number,
    Tick,
    DigitTick, // Stored as 1 or 0.
    Radio,     // The first of two; the other one is optMe.
    List,      // Stored as the index.
    Wave,      // The path of a file, each with what its browse button asks for.
    Map,
    Log
};

struct OptionBox {
    OptionFrame frame;
    OptionKind kind;
    Setting setting;
    std::string_view control;
    std::string_view caption; // "&" stands before the mnemonic.
    std::string_view unit;    // Behind the box.
    std::optional<NumberRule> rule = std::nullopt;
};
// The settings dialog, in the order in which Save stores it.
extern const std::array<OptionBox, kOptionCount> kOptionBoxes;

inline constexpr std::string_view kOptMeCaption = "Messages addressed &to me";

OptionPage PageOf(const OptionBox& box);
const OptionBox& BoxOf(Setting setting); // One of the dialog's.
OptionField& FieldOf(OptionsForm& form, const OptionBox& box);
OptionField& FieldOf(OptionsForm& form, Setting setting);
// Whether it shows something else than when the dialog opened.
bool IsTouched(const OptionsForm& form, const OptionBox& box);
std::vector<std::string_view> ChoicesOf(const OptionBox& box); // Of a list.

} // namespace ruvenmark
