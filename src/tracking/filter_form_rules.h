#pragma once

#include "core/channel.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace ruvenmark {

struct FilterForm;
struct MainWindow;

// What the tab of a channel says.
struct FilterTabTexts {
    Channel channel;
    std::string_view caption;
    std::string_view chkFilter, chkTracked, frame;
};
inline constexpr std::array<FilterTabTexts, 3> kFilterTabs = {{
    {Channel::RF, "RF", "Filter RF reports", "Accept stations in RF track list", "RF Range Filter"},
    {Channel::TCP, "TCP", "Filter TCP reports", "Accept stations in TCP track list", "TCP Range Filter"},
    {Channel::FL, "FL", "Filter FL reports", "Accept stations in FL track list", "FL Range Filter"},
}};
inline constexpr std::string_view kSubnetHint = "Enter subnet names separated by space, wild card characters allowed";
inline constexpr std::string_view kCallsHint = "Enter call signs separated by space, wild card characters allowed";

enum class FilterField : std::uint8_t { Lat, Lon, Range };

// The fields as the filters stand.
void frmFilter_Load(MainWindow& main);
// The field was left: the message for a value out of bounds, and the field is emptied then. Empty when the text may
// stay, as one does that is no number.
std::string frmFilter_LostFocus(FilterForm& form, Channel channel, FilterField field);
// The lists upper-cased into the filters, the rest as it stands; in force from the next report on.
void frmFilter_Save(MainWindow& main);
void frmFilter_PinPoint(MainWindow& main);

// Commands. A dialog that is visible already keeps what was typed.
void mnuToolsFilter_Click(MainWindow& main);
void ShowFilterOf(MainWindow& main, Channel channel); // With the tab of the channel in front.

} // namespace ruvenmark
