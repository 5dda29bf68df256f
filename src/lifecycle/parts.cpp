#include "lifecycle/parts.h"

#include "core/main_window.h"
#include "core/notices.h"
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

namespace ruvenmark {

namespace {

void LoadGeometry(MainWindow& main)
{
    StoredSettings& stored = main.stored;
    WindowState& window = main.window;
    window.splitterLeft = stored.Int32(Setting::WindowSplit);
    window.bLeftPane = stored.Flag(Setting::ShowTreeView);
    window.left = stored.Int32(Setting::MainLeft);
    window.top = stored.Int32(Setting::MainTop);
    window.width = stored.Int32(Setting::MainWidth);
    window.height = stored.Int32(Setting::MainHeight);
    window.bMaximized = stored.Flag(Setting::MainMaximized);
}

// Nothing of a minimised window but its panes.
void SaveGeometry(MainWindow& main)
{
    const WindowState& window = main.window;
    StoredSettings& stored = main.stored;
    if (!window.bMinimised) {
        stored.SetWhole(Setting::MainLeft, window.left);
        stored.SetWhole(Setting::MainTop, window.top);
        stored.SetWhole(Setting::MainWidth, window.width);
        stored.SetWhole(Setting::MainHeight, window.height);
        stored.SetFlag(Setting::MainMaximized, window.bMaximized);
    }
    stored.SetFlag(Setting::ShowTreeView, window.bLeftPane);
    stored.SetWhole(Setting::WindowSplit, window.splitterLeft);
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
