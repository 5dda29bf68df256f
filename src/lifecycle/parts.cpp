#include "lifecycle/parts.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "core/stored_fields.h"
#include "links/gps_form_rules.h"
#include "links/import_form_rules.h"
#include "links/server_lists.h"
#include "links/tnc_form_rules.h"
#include "map/map_settings.h"
#include "map/map_start.h"
#include "map/tile_settings.h"
#include "messaging/message_files.h"
#include "tracking/filters.h"
#include "tracking/track_lists.h"
#include "ui/view_settings.h"

#include <array>
#include <string>
#include <utility>

namespace ruvenmark {

namespace {

template <class Window, class Field>
void EachPaneField(Window& window, const Field& field)
{
    field(Setting::ShowTreeView, window.bLeftPane);
    field(Setting::WindowSplit, window.splitterLeft);
}

template <class Window, class Field>
void EachPlaceField(Window& window, const Field& field)
{
    field(Setting::MainLeft, window.left);
    field(Setting::MainTop, window.top);
    field(Setting::MainWidth, window.width);
    field(Setting::MainHeight, window.height);
    field(Setting::MainMaximized, window.bMaximized);
}

void LoadGeometry(MainWindow& main)
{
    EachPaneField(main.window, LoadField{main.stored});
    EachPlaceField(main.window, LoadField{main.stored});
}

// Nothing of a minimised window but its panes.
void SaveGeometry(MainWindow& main)
{
    if (!main.window.bMinimised)
        EachPlaceField(std::as_const(main.window), SaveField{main.stored});
    EachPaneField(std::as_const(main.window), SaveField{main.stored});
}

void SaveRegion(MainWindow& main)
{
    if (IsMapRegion(main.map.Region))
        main.stored.SetWhole(Setting::Region, main.map.Region);
}

void LoadKeptSettings(MainWindow& main)
{
    LoadSettings(main.Settings, main.stored);
}

void SaveKeptSettings(MainWindow& main)
{
    SaveSettings(main.Settings, main.stored);
}

void LoadFollow(MainWindow& main)
{
    main.tracking.bTrackStationPosition = main.stored.Flag(Setting::TrackStationPosition);
}

void SaveFollow(MainWindow& main)
{
    main.stored.SetFlag(Setting::TrackStationPosition, main.tracking.bTrackStationPosition);
}

void LoadUnknownFolders(MainWindow& main)
{
    for (ChannelState& state : main.channels)
        state.bShowUnknown = main.stored.Flag(Traits(state.channel).unknownSetting);
}

void SaveUnknownFolders(MainWindow& main)
{
    for (const ChannelState& state : main.channels)
        main.stored.SetFlag(Traits(state.channel).unknownSetting, state.bShowUnknown);
}

struct PartInfo {
    Part part;
    std::string_view name; // As a complaint begins: "The filters could not be saved".
    void (*load)(MainWindow&);
    void (*save)(MainWindow&);
};
// In the order of Part.
constexpr std::array kParts = {
    PartInfo{Part::Geometry, "The window's place", LoadGeometry, SaveGeometry},
    PartInfo{Part::Region, "The region", ChooseRegion, SaveRegion},
    PartInfo{Part::Settings, "The settings", LoadKeptSettings, SaveKeptSettings},
    PartInfo{Part::Follow, "The settings of tracking", LoadFollow, SaveFollow},
    PartInfo{Part::ServerLists, "The lists of servers", LoadServerLists, SaveServerLists},
    PartInfo{Part::Filters, "The filters", LoadFilters, SaveFilters},
    PartInfo{Part::Comm, "The settings of the TNC", LoadCommSettings, SaveCommSettings},
    PartInfo{Part::Gps, "The settings of the GPS receiver", LoadGpsSettings, SaveGpsSettings},
    PartInfo{Part::UnknownFolders, "The settings of the folders", LoadUnknownFolders, SaveUnknownFolders},
    PartInfo{Part::TrackLists, "The track lists", LoadTrackLists, SaveTrackLists},
    PartInfo{Part::MessageBoxes, "The messages", LoadMessageBoxes, SaveMessageBoxes},
    PartInfo{Part::FileLoad, "The settings of file loads", LoadImportSettings, SaveImportSettings},
    PartInfo{Part::MapLook, "The settings of the map", LoadMapSettings, SaveMapSettings},
    PartInfo{Part::Tiles, "The settings of tiles", LoadTileSettings, SaveTileSettings},
    PartInfo{Part::View, "The settings of the window", LoadViewSettings, SaveViewSettings},
};

constexpr bool StandInOrder()
{
    for (std::size_t i = 0; i < kParts.size(); ++i)
        if (static_cast<std::size_t>(kParts[i].part) != i)
            return false;
    return true;
}
static_assert(StandInOrder() && kParts.size() == static_cast<std::size_t>(Part::View) + 1);

} // namespace

void LoadPart(MainWindow& main, Part part)
{
    kParts[static_cast<std::size_t>(part)].load(main);
    main.loaded.Add(part);
}

bool SavePart(MainWindow& main, Part part)
{
    if (!main.loaded.Has(part))
        return true;
    const PartInfo& info = kParts[static_cast<std::size_t>(part)];
    return AttemptAloud(main, std::string(info.name) + " could not be saved", [&] { info.save(main); });
}

} // namespace ruvenmark
