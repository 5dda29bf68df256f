#include "outgoing/my_station.h"

#include "core/main_window.h"
#include "intake/station_store.h"
#include "map/range_circles.h"
#include "outgoing/beacons.h"
#include "outgoing/position_report.h"
#include "outgoing/weather_report.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <string>

namespace ruvenmark {

namespace {

// A row under a branch: its text is the key, a blank, the value and the unit.
struct RowInfo {
    Setting setting;
    std::string_view key, unit, image;
};
constexpr std::array<RowInfo, 8> kPositionRows = {{{Setting::Lat, "Lat:", "°", "Parallel"},
                                                   {Setting::Lon, "Lon:", "°", "Parallel"},
                                                   {Setting::Alt, "Altitude:", " feet", "Balloon"},
                                                   {Setting::Power, "Power:", " watts", "Volumn"},
                                                   {Setting::Height, "Height:", " feet", "Up"},
                                                   {Setting::Gain, "Gain:", " db", "Gain"},
                                                   {Setting::Directivity, "Directivity:", "°", "Arrow"},
                                                   {Setting::Path, "Path:", "", "Path"}}};
constexpr std::array<RowInfo, 9> kWeatherRows = {{{Setting::WindDir, "Wind Direction:", "°", "WindDir"},
                                                  {Setting::WindSpeed, "Wind Speed:", " mph", "Speed"},
                                                  {Setting::Gust, "Gust:", " mph", "Speed"},
                                                  {Setting::Temperature, "Temperature:", "°F", "Temperature"},
                                                  {Setting::Rain1, "Rain (last hour):", " inches", "Rain"},
                                                  {Setting::Rain24, "Rain (last 24hr):", " inches", "Rain"},
                                                  {Setting::Rain12, "Rain (since midnight):", " inches", "Rain"},
                                                  {Setting::Humidity, "Humidity:", "%", "Water"},
                                                  {Setting::Pressure, "Pressure:", " mBar", "Pressure"}}};
constexpr std::string_view kCommentImage = "Info"; // Of no other row.

bool AreSet(const MainWindow& main, std::initializer_list<Setting> settings)
{
    return std::none_of(settings.begin(), settings.end(),
                        [&](Setting setting) { return SettingText(main.Settings, setting).empty(); });
}

std::string RowText(const RowInfo& row, const std::string& value)
{
    const std::string start = std::string(row.key) + ' ';
    if (row.setting == Setting::Directivity && value == "0")
        return start + "Omni";
    return start + value + std::string(row.unit);
}

void UpdateRow(MainWindow& main, TreeNode& branch, const RowInfo& row)
{
    KeyedTree& tree = main.tvStationList;
    const std::string& value = SettingText(main.Settings, row.setting);
    TreeNode* node = tree.Find(branch, row.key);
    if (node && tree.Image(*node) == kCommentImage) { // A comment that looks like this row; it comes again behind it.
        tree.Remove(*node);
        node = nullptr;
    }
    if (value.empty()) {
        if (node)
            tree.Remove(*node);
    } else if (node) {
        tree.SetText(*node, RowText(row, value));
    } else {
        tree.Add(branch, row.key, RowText(row, value), row.image);
    }
}

// The comment is its own key, so that a changed one is a new node.
void UpdateComment(MainWindow& main, TreeNode& branch)
{
    KeyedTree& tree = main.tvStationList;
    const std::string& comment = SettingText(main.Settings, Setting::Comment);
    const auto children = branch.Children();
    const auto old = std::find_if(children.begin(), children.end(),
                                  [&](const auto& child) { return tree.Image(*child) == kCommentImage; });
    if (old != children.end()) {
        if ((*old)->Text() == comment)
            return;
        tree.Remove(**old);
    }
    if (!comment.empty()) // One that looks like a row's key takes a key that no row has.
        tree.Add(branch, tree.Find(branch, comment) ? "Comment: " + comment : comment, comment, kCommentImage);
}

TreeNode& BranchOf(MainWindow& main, std::string_view key)
{
    KeyedTree& tree = main.tvStationList;
    if (!tree.Find("My"))
        AddMyStationTree(tree);
    TreeNode* branch = tree.Find(key);
    if (!branch)
        throw Failure("the station tree has no " + std::string(key));
    return *branch;
}

void RemoveRows(KeyedTree& tree, TreeNode& branch)
{
    while (!branch.Children().empty())
        tree.Remove(*branch.Children().back());
}

void UpdatePosition(MainWindow& main)
{
    TreeNode& branch = BranchOf(main, kMyPosition);
    const bool bDefined = main.beacons.PositionDefined;
    main.tvStationList.SetImage(branch, bDefined ? "Station" : "Position");
    if (!bDefined)
        return RemoveRows(main.tvStationList, branch);
    for (const RowInfo& row : kPositionRows)
        UpdateRow(main, branch, row);
    UpdateComment(main, branch);
}

void UpdateWeather(MainWindow& main)
{
    TreeNode& branch = BranchOf(main, kMyWeather);
    const bool bDefined = main.beacons.WeatherDefined;
    main.tvStationList.SetImage(branch, bDefined ? "Weather" : "Letterw");
    if (!bDefined)
        return RemoveRows(main.tvStationList, branch);
    for (const RowInfo& row : kWeatherRows)
        UpdateRow(main, branch, row);
}

} // namespace

bool IsPositionDefined(const MainWindow& main)
{
    return AreSet(main, {Setting::Call, Setting::Lat, Setting::Lon});
}

bool IsWeatherDefined(const MainWindow& main)
{
    return AreSet(main, {Setting::Call, Setting::WindDir, Setting::WindSpeed, Setting::Gust, Setting::Temperature});
}

void WorkOutDefined(MainWindow& main)
{
    main.beacons.PositionDefined = IsPositionDefined(main);
    main.beacons.WeatherDefined = IsWeatherDefined(main);
}

void AddMyStationNode(MainWindow& main)
{
    WorkOutDefined(main);
    WorkOutIntervals(main);
    Attempt(main.abandoned, "AddMyStationNode, tree", [&] {
        RemoveRows(main.tvStationList, BranchOf(main, kMyPosition));
        RemoveRows(main.tvStationList, BranchOf(main, kMyWeather));
        UpdatePosition(main);
        UpdateWeather(main);
    });
    Attempt(main.abandoned, "AddMyStationNode, range", [&] { UpdateMyRange(main); });
}

void UpdateMyPositionNode(MainWindow& main)
{
    WorkOutDefined(main);
    Attempt(main.abandoned, "UpdateMyPositionNode", [&] { UpdatePosition(main); });
}

void UpdateMyWeatherNode(MainWindow& main)
{
    WorkOutDefined(main);
    Attempt(main.abandoned, "UpdateMyWeatherNode", [&] { UpdateWeather(main); });
}

void mnuMyStationSend_Click(MainWindow& main)
{
    const TreeNode* node = main.tvStationList.Selected();
    const std::string key = node ? node->Key() : std::string();
    if (key == kMyPosition)
        SendPositionReport(main, true);
    else if (key == kMyWeather)
        SendWeatherReport(main);
}

void ShowOwnCall(MainWindow& main)
{
    const std::string& call = SettingText(main.Settings, Setting::Call);
    main.sbStatusBar.SetPanel(Panel::Call, call.empty() ? "No Call Sign" : call);
}

void SayHowToBegin(MainWindow& main)
{
    if (SettingText(main.Settings, Setting::Call).empty() && main.sbStatusBar.Notice().empty())
        main.sbStatusBar.SetNotice("To send, enter your call sign: View, Settings...");
}

} // namespace ruvenmark
