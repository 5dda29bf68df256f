#pragma once

#include "core/main_window.h"
#include "intake/station_store.h"
#include "lifecycle/start.h"
#include "lifecycle/stop.h"
#include "platform/text.h"
#include "support/recording_store.h"
#include "support/test_machine.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

// The whole program with a machine and an operator of the test's making. Set up settings and files before Start.
class TestProgram : public TestMachine<RecordingStore, ScriptedYield> {
public:
    RecordingDialogs dialogs;
    MainWindow main{Lend(dialogs)};

    explicit TestProgram(bool bStart = true)
    {
        if (bStart)
            StartMainWindow(main);
    }

    // Kept settings by their keys: "Call=N0CALL Lat=37.5".
    void Set(std::string_view settings)
    {
        for (const std::string_view word : Words(settings)) {
            const auto end = word.find('=');
            SetSetting(main.Settings, SettingOfKey(word.substr(0, end)).value(), word.substr(end + 1));
        }
    }
    // A packet line as a saved file's line on any channel: the three differ only behind the source.
    void Hear(Channel channel, std::string_view line)
    {
        if (channel == Channel::FL && !main.tvStationList.Find("FL"))
            AddChannelTree(main.tvStationList, Channel::FL);
        sources.CreateFile(Sink(channel))->ParseLine(line);
    }
    void Hear(std::string_view line) { Hear(Channel::FL, line); }
    IReportSink& Sink(Channel channel) { return *main.links.sinks[static_cast<std::size_t>(channel)]; }

    // A position report by event.
    void Position(Channel channel, std::string_view call, double lat, double lon, std::string_view symbol = "Car",
                  std::string_view comment = "")
    {
        Sink(channel).ReportPos({call, "APRS", "WIDE1-1,WIDE2-1", lat, lon, symbol, comment});
    }

    KeyedTree& Tree() { return main.tvStationList; }
    TreeNode* Node(std::string_view key) const { return main.tvStationList.Find(key); }
    // "(no node)" where there is none.
    std::string Text(std::string_view key) const
    {
        const TreeNode* node = Node(key);
        return std::string(node ? node->Text() : "(no node)");
    }
    std::string Image(std::string_view key) const
    {
        const TreeNode* node = Node(key);
        return node ? main.tvStationList.Image(*node) : "(no node)";
    }
    std::vector<std::string> ChildTexts(std::string_view key) const
    {
        std::vector<std::string> texts;
        if (const TreeNode* node = Node(key))
            for (const auto& child : node->Children())
                texts.emplace_back(child->Text());
        return texts;
    }
    void Select(std::string_view key) { main.tvStationList.Select(Node(key)); }

    Map& TheMap() const { return main.mpCtrl.RequireMap(); }
    std::optional<Pushpin> Marker(std::string_view name) const { return TheMap().FindPushpin(name); }
    std::string Note(std::string_view name) const
    {
        const auto pin = Marker(name);
        return pin ? pin->Note() : "(no marker)";
    }
    // All marker names, oldest first.
    std::vector<std::string> MarkerNames() const
    {
        std::vector<std::string> names;
        for (const Pushpin& pin : TheMap().AllRecords())
            names.push_back(pin.Name());
        return names;
    }
    // "(no record)" or "(not set)" where there is nothing.
    std::string RecordText(Channel channel, std::string_view call, Field field) const
    {
        const Record* record = main.Of(channel).Stations.Find(call);
        if (!record)
            return "(no record)";
        return record->Has(field) ? std::string(record->Get(field)) : "(not set)";
    }
};

} // namespace ruvenmark
