#include "support/test_program.h"
#include "tracking/filter_form_rules.h"
#include "tracking/track_list_form_rules.h"
#include "tracking/track_lists.h"

#include <gtest/gtest.h>

#include <tuple>

namespace ruvenmark {
namespace {

using Texts = std::vector<std::string>;

ReportFilter& Fields(TestProgram& program, Channel channel)
{
    return program.main.frmFilter.fields[static_cast<std::size_t>(channel)];
}

TEST(FilterForm, ChecksWhatAFieldHoldsWhenItIsLeft)
{
    using Row = std::tuple<FilterField, std::string ReportFilter::*, const char*, const char*>;
    constexpr Row kRows[] = {
        {FilterField::Lat, &ReportFilter::Lat, "", ""},
        {FilterField::Lat, &ReportFilter::Lat, "-90", ""},
        {FilterField::Lat, &ReportFilter::Lat, "90.0001", "Enter a value between -90 and 90 for latitude!"},
        {FilterField::Lat, &ReportFilter::Lat, "north", ""},
        {FilterField::Lon, &ReportFilter::Lon, "-180.5", "Enter a value between -180 and 180 for longitude!"},
        {FilterField::Range, &ReportFilter::Range, "0", ""},
        {FilterField::Range, &ReportFilter::Range, "-1", "Enter a positive number for range!"}};
    for (const auto& [field, member, typed, message] : kRows) {
        FilterForm form;
        std::string& text = form.fields[static_cast<std::size_t>(Channel::TCP)].*member;
        text = typed;
        EXPECT_EQ(frmFilter_LostFocus(form, Channel::TCP, field), message) << typed;
        EXPECT_EQ(text, *message != '\0' ? "" : typed);
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
    program.Position(Channel::TCP, "N0CALL", 40, -80);
    frmFilter_Save(program.main);
    for (const char* call : {"N0CALL", "N1CALL", "N2CALL"})
        program.Position(Channel::TCP, call, 41, -80);
    EXPECT_EQ(program.ChildTexts("TCPPositions"), (Texts{"N0CALL", "N1CALL"}));
    EXPECT_EQ(program.RecordText(Channel::TCP, "N0CALL", Field::Lat), "40");
}

TEST(FilterForm, OpensWithTheFiltersAsTheyStandButNeverOverWhatIsTyped)
{
    TestProgram program;
    program.main.Of(Channel::FL).Filter.Call = "N0CALL";
    ShowFilterOf(program.main, Channel::FL);
    EXPECT_EQ(Fields(program, Channel::FL).Call, "N0CALL");
    EXPECT_EQ(program.main.frmFilter.SSTab1, 2);
    EXPECT_EQ(program.main.frmFilter.unitLabels[0], "miles");

    Fields(program, Channel::FL).Call = "half typ";
    ShowFilterOf(program.main, Channel::RF); // Visible already: only brought to the front.
    EXPECT_EQ(Fields(program, Channel::FL).Call, "half typ");
    EXPECT_EQ(program.main.frmFilter.SSTab1, 0);
}

TEST(TrackListForm, TakesListsAndChoices)
{
    TestProgram program;
    TrackListForm& form = program.main.frmTrackList;
    const auto setting = [&](Setting which) { return SettingText(program.main.Settings, which); };
    program.dialogs.onRun[Form::frmTrackList] = [&](MainWindow&) {
        form.txtTrackList = {"n1call  N0CALL n1call N2CALL", "", " "};
        form.chkTrackLine = form.chkTrackStation = form.chkPlayWave = false;
        form.cboTLSize = 8;
        frmTrackList_Track(form);
    };
    mnuTrackedStations_Click(program.main);
    EXPECT_EQ(TrackListText(program.main.Of(Channel::RF)), "N1CALL N0CALL N2CALL");
    EXPECT_TRUE(program.main.Of(Channel::TCP).Tracked.IsEmpty());
    EXPECT_FALSE(program.main.tracking.bShowTrackLine || program.main.tracking.bTrackStationPosition);
    EXPECT_EQ(setting(Setting::TrackLineSize) + setting(Setting::PlayTrack), "8False");

    program.dialogs.onRun[Form::frmTrackList] = [&](MainWindow&) { // Cancelled: nothing typed is taken.
        EXPECT_EQ(form.txtTrackList[0], "N1CALL N0CALL N2CALL");
        EXPECT_EQ(form.cboTLSize, 8);
        EXPECT_FALSE(form.chkPlayWave);
        form.txtTrackList[0] = "N3CALL";
    };
    mnuTrackedStations_Click(program.main);
    EXPECT_EQ(TrackListText(program.main.Of(Channel::RF)), "N1CALL N0CALL N2CALL");
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
