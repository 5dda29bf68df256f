#pragma once

#include "support/map_shapes.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ruvenmark {

// N0CALL is tracked on TCP.
class Tracks : public testing::Test {
protected:
    Tracks() { SetTrackList(Tcp(), "N0CALL"); }
    ChannelState& Tcp() { return p.main.Of(Channel::TCP); }
    void At(double lat, double lon = 11) { p.Position(Channel::TCP, "N0CALL", lat, lon); }
    void SelectStation() { p.Select("TCPPositionsN0CALL"); }
    // "name=balloon" of all markers, oldest first.
    std::vector<std::string> Markers()
    {
        std::vector<std::string> markers;
        for (const Pushpin& pin : p.TheMap().AllRecords())
            markers.push_back(pin.Name() + "=" + std::to_string(pin.BalloonState()));
        return markers;
    }
    std::vector<ShapeData> Lines() { return ShapesOf(p.TheMap()); }
    void Set(Setting setting, const char* value) { SetSetting(p.main.Settings, setting, value); }

    TestProgram p;
};

} // namespace ruvenmark
