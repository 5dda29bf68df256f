#include "support/test_program.h"
#include "tracking/filter_form_rules.h"
#include "tracking/track_list_form_rules.h"
#include "tracking/track_lists.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace ruvenmark {
namespace {

using Texts = std::vector<std::string>;

ReportFilter& Fields(TestProgram& program, Channel channel)
{
    return program.main.frmFilter.fields[static_cast<std::size_t>(channel)];
}

TEST(FilterForm, ChecksWhatAFieldHoldsWhenItIsLeft)
{
    constexpr const char* kLat = "Enter a value between -90 and 90 for latitude!";
    constexpr const char* kLon = "Enter a value between -180 and 180 for longitude!";
    for (const Channel channel : kChannels) {
        for (const auto& [field, member, typed, message] :
             {std::tuple(FilterField::Lat, &ReportFilter::Lat, "", ""),
              std::tuple(FilterField::Lat, &ReportFilter::Lat, "-90", ""),
              std::tuple(FilterField::Lat, &ReportFilter::Lat, "90.0001", kLat),
              std::tuple(FilterField::Lat, &ReportFilter::Lat, "north", ""),
              std::tuple(FilterField::Lon, &ReportFilter::Lon, "180", ""),
              std::tuple(FilterField::Lon, &ReportFilter::Lon, "-180.5", kLon),
              std::tuple(FilterField::Range, &ReportFilter::Range, "0", ""),
              std::tuple(FilterField::Range, &ReportFilter::Range, "-1", "Enter a positive number for range!")}) {
            FilterForm form;
            std::string& text = form.fields[static_cast<std::size_t>(channel)].*member;
            text = typed;
            EXPECT_EQ(frmFilter_LostFocus(form, channel, field), message) << typed;
            EXPECT_EQ(text, *message != '\0' ? "" : typed);
        }
    }
}

TEST(FilterForm, SavesUpperCaseListsThatCountFromTheNextReportOn)
{
    TestProgram program;
    mnuToolsFilter_Click(program.main);
    ReportFilter& fields = Fields(program, Channel::TCP);
    fields.bOn = true;
    fields.Dest = "aprs*";
    fields.Call = "n1*";
    fields.Reject = "n0call";
    fields.Range = "1e2";
    program.Hear(Channel::TCP, "N0CALL>APRS:!4000.00N/08000.00W>");
    frmFilter_Save(program.main);
    program.Hear(Channel::TCP, "N0CALL>APRS:!4100.00N/08000.00W>");
    program.Hear(Channel::TCP, "N1CALL>APRS:!4000.00N/08000.00W>");
    program.Hear(Channel::TCP, "N2CALL>APRS:!4000.00N/08000.00W>");
    EXPECT_EQ(program.ChildTexts("TCPPositions"), (Texts{"N0CALL", "N1CALL"}));
    EXPECT_EQ(program.RecordText(Channel::TCP, "N0CALL", Field::Lat), "40");
}

TEST(FilterForm, OpensWithTheFiltersAsTheyStandButNeverOverWhatIsTyped)
{
    TestProgram program;
    program.main.Of(Channel::FL).Filter.Call = "N0CALL";
    program.main.Of(Channel::FL).Filter.bTracked = false;
    program.main.frmFilter.unitLabels[2] = "miles";
    ShowFilterOf(program.main, Channel::FL);
    EXPECT_EQ(Fields(program, Channel::FL).Call, "N0CALL");
    EXPECT_FALSE(Fields(program, Channel::FL).bTracked);
    EXPECT_EQ(program.main.frmFilter.SSTab1, 2);
    EXPECT_EQ(program.main.frmFilter.unitLabels[0], "miles");

    Fields(program, Channel::FL).Call = "half typ";
    ShowFilterOf(program.main, Channel::RF); // Visible already: only brought to the front.
    EXPECT_EQ(Fields(program, Channel::FL).Call, "half typ");
    EXPECT_EQ(program.main.frmFilter.SSTab1, 0);
    EXPECT_EQ(program.main.Of(Channel::FL).Filter.Call, "N0CALL");
}

TEST(TrackListForm, TakesListsAndChoices)
{
    TestProgram program;
    program.dialogs.onRun[Form::frmTrackList] = [](MainWindow& main) {
        TrackListForm& form = main.frmTrackList;
        form.txtTrackList = {"n1call  N0CALL n1call N2CALL", "", " "};
        form.chkTrackLine = form.chkTrackStation = form.chkPlayWave = false;
        form.cboTLSize = 8;
        form.cboTLStyle = 3;
        form.txtTrackWaveFile = "/ding.wav";
        frmTrackList_Track(form);
    };
    mnuTrackedStations_Click(program.main);
    EXPECT_EQ(TrackListText(program.main.Of(Channel::RF)), "N1CALL N0CALL N2CALL");
    EXPECT_TRUE(program.main.Of(Channel::TCP).Tracked.IsEmpty());
    EXPECT_FALSE(program.main.tracking.bShowTrackLine);
    EXPECT_FALSE(program.main.tracking.bTrackStationPosition);
    EXPECT_EQ(SettingText(program.main.Settings, Setting::TrackLineSize), "8");
    EXPECT_EQ(SettingText(program.main.Settings, Setting::TrackLineStyle), "3");
    EXPECT_EQ(SettingText(program.main.Settings, Setting::PlayTrack), "False");

    program.dialogs.onRun[Form::frmTrackList] = [](MainWindow& main) { // Cancelled: nothing typed is taken.
        EXPECT_EQ(main.frmTrackList.txtTrackList[0], "N1CALL N0CALL N2CALL");
        main.frmTrackList.txtTrackList[0] = "N3CALL";
    };
    mnuTrackedStations_Click(program.main);
    EXPECT_EQ(TrackListText(program.main.Of(Channel::RF)), "N1CALL N0CALL N2CALL");
    EXPECT_EQ(program.main.frmTrackList.cboTLSize, 8);
    EXPECT_FALSE(program.main.frmTrackList.chkPlayWave);
    EXPECT_EQ(program.main.frmTrackList.txtTrackWaveFile, "/ding.wav");
}

TEST(TrackListForm, AnUnusableSettingIsNoChoiceAndStays)
{
    TestProgram program;
    program.dialogs.onRun[Form::frmTrackList] = [](MainWindow& main) { frmTrackList_Track(main.frmTrackList); };
    for (const char* value : {"9", "-3", "thick"}) {
        SetSetting(program.main.Settings, Setting::TrackLineSize, value);
        mnuTrackedStations_Click(program.main);
        EXPECT_EQ(program.main.frmTrackList.cboTLSize, kNoChoice);
        EXPECT_EQ(SettingText(program.main.Settings, Setting::TrackLineSize), value);
    }
}

// A name of an object with a blank became two calls with each start and stop.
TEST(TrackLists, AreReadAsTheyAreWritten)
{
    for (const Texts& calls : {Texts{"N0CALL", "LEADER 1", "A  B"}, Texts{"\"", "\"X", "Y\"", "A \"B\" C"}, Texts{}}) {
        ChannelState state(Channel::FL);
        for (const std::string& call : calls)
            state.Tracked.Add(call, call);
        ChannelState read(Channel::FL);
        SetTrackList(read, TrackListText(state));
        Texts keys;
        for (const auto& [key, call] : read.Tracked)
            keys.push_back(key);
        EXPECT_EQ(keys, calls) << TrackListText(state);
    }
    ChannelState typed(Channel::FL);
    SetTrackList(typed, "  n0call \"leader 1\"  \" \" n0call \"never closed ");
    EXPECT_EQ(TrackListText(typed), "N0CALL \"LEADER 1\" \"\"\"NEVER\" CLOSED");
}

} // namespace
} // namespace ruvenmark
