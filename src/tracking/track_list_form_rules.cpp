#include "tracking/track_list_form_rules.h"

#include "core/main_window.h"
#include "platform/numbers.h"
#include "tracking/track_lists.h"

#include <cstddef>
#include <string>

namespace ruvenmark {

namespace {

constexpr FileFilter kWaveFiles = {"Wave Files (*.wav)", "*.wav"};

// The setting as the index of a list of that length.
std::int32_t ChoiceOf(MainWindow& main, Setting setting, std::size_t length)
{
    std::int32_t choice = kNoChoice;
    Attempt(main.abandoned, "frmTrackList", [&] { choice = SettingInt32(main.Settings, setting); });
    return choice >= 0 && static_cast<std::size_t>(choice) < length ? choice : kNoChoice;
}

// A setting that names no entry stays until one is chosen.
void KeepChoice(MainWindow& main, Setting setting, std::int32_t choice)
{
    if (choice != kNoChoice)
        SetSetting(main.Settings, setting, ShortText(std::int64_t{choice}));
}

// What is on the map stays as it is.
void TakeTrackList(MainWindow& main)
{
    const TrackListForm& form = main.frmTrackList;
    for (std::size_t i = 0; i < kChannels.size(); ++i)
        SetTrackList(main.channels[i], form.txtTrackList[i]);
    main.tracking.bTrackStationPosition = form.chkTrackStation;
    main.tracking.bShowTrackLine = form.chkTrackLine;
    KeepChoice(main, Setting::TrackLineSize, form.cboTLSize);
    KeepChoice(main, Setting::TrackLineStyle, form.cboTLStyle);
    SetSetting(main.Settings, Setting::PlayTrack, BoolText(form.chkPlayWave));
    SetSetting(main.Settings, Setting::TrackWaveFile, form.txtTrackWaveFile);
}

} // namespace

void frmTrackList_Load(MainWindow& main)
{
    TrackListForm& form = main.frmTrackList;
    form.bCancelled = true;
    for (std::size_t i = 0; i < kChannels.size(); ++i)
        form.txtTrackList[i] = TrackListText(main.channels[i]);
    form.chkTrackStation = main.tracking.bTrackStationPosition;
    form.chkTrackLine = main.tracking.bShowTrackLine;
    form.cboTLSize = ChoiceOf(main, Setting::TrackLineSize, kTrackLineSizes.size());
    form.cboTLStyle = ChoiceOf(main, Setting::TrackLineStyle, kTrackLineStyles.size());
    Attempt(main.abandoned, "frmTrackList", [&] { form.chkPlayWave = SettingBool(main.Settings, Setting::PlayTrack); });
    form.txtTrackWaveFile = SettingText(main.Settings, Setting::TrackWaveFile);
}

void frmTrackList_Track(TrackListForm& form)
{
    form.bCancelled = false;
}

void frmTrackList_Browse(MainWindow& main)
{
    if (auto file = main.services.prompts.OpenFile("Open", kWaveFiles))
        main.frmTrackList.txtTrackWaveFile = std::move(*file);
}

void mnuTrackedStations_Click(MainWindow& main)
{
    frmTrackList_Load(main);
    main.services.dialogs.Run(Form::frmTrackList, main);
    if (!main.frmTrackList.bCancelled)
        TakeTrackList(main);
}

} // namespace ruvenmark
