#include "map/tile_form_rules.h"

#include "core/main_window.h"
#include "map/tile_settings.h"
#include "map/tile_url.h"
#include "platform/text.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr std::string_view kNoAddress = "The address needs http or https, a host, and {z}, {x} and {y} behind it.";

void ShowServer(TileForm& form)
{
    form.cboServer = TileServerOf(form.txtUrl);
    form.lblPolicy =
        form.cboServer < 0 ? "" : std::string(kTileServers[static_cast<std::size_t>(form.cboServer)].policy);
}

void Replace(std::string& text, std::string_view part, int number)
{
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at))
        text.replace(at, part.size(), std::to_string(number));
}

// Of the tile in the middle of the map: a server of one country has none elsewhere.
std::string AddressInView(const MainWindow& main, std::string url)
{
    const Map* map = main.mpCtrl.ActiveMap();
    const MapView view = map ? map->View() : MapView();
    const int zoom = std::clamp(static_cast<int>(std::lround(view.zoom)), 0, MaxZoomOfTiles(url));
    const MercatorPoint centre = ToMercator(view.centre);
    const int across = 1 << zoom;
    const auto number = [across](double part) { return std::clamp(static_cast<int>(part * across), 0, across - 1); };
    Replace(url, "{z}", zoom);
    Replace(url, "{x}", number(centre.x));
    Replace(url, "{y}", number(centre.y));
    return url;
}

} // namespace

void frmTiles_Load(TileForm& form, const TileSettings& tiles)
{
    form = {};
    form.txtUrl = tiles.urlTemplate;
    form.txtCredit = tiles.credit;
    form.chkOnline = tiles.bOnline;
    ShowServer(form);
    if (form.txtCredit.empty() && form.cboServer >= 0)
        form.txtCredit = kTileServers[static_cast<std::size_t>(form.cboServer)].credit;
}

void frmTiles_cboServer_Click(TileForm& form)
{
    if (form.cboServer < 0 || static_cast<std::size_t>(form.cboServer) >= kTileServers.size())
        return;
    const KnownTileServer& server = kTileServers[static_cast<std::size_t>(form.cboServer)];
    form.txtUrl = server.url;
    form.txtCredit = server.credit;
    form.lblPolicy = server.policy;
    form.lblResult.clear();
}

void frmTiles_txtUrl_Change(TileForm& form)
{
    ShowServer(form);
    form.lblResult.clear();
}

void frmTiles_Test(MainWindow& main)
{
    TileForm& form = main.frmTiles;
    const std::string url(Trim(form.txtUrl));
    if (!IsTileUrl(url)) {
        form.lblResult = kNoAddress;
        return;
    }
    form.lblResult = "Asking for a tile...";
    main.services.desktop.FetchPicture(AddressInView(main, url), [&main, url](const FetchedPicture& picture) {
        if (Trim(main.frmTiles.txtUrl) != url)
            return; // Another address by now.
        main.frmTiles.lblResult = TextOfFetched(picture);
        main.services.dialogs.Refresh(Form::frmTiles);
    });
}

bool frmTiles_Accept(TileForm& form)
{
    form.txtUrl = Trim(form.txtUrl);
    form.bAccepted = IsTileUrl(form.txtUrl);
    if (!form.bAccepted)
        form.lblResult = kNoAddress;
    return form.bAccepted;
}

std::string TextOfFetched(const FetchedPicture& picture)
{
    if (picture.status == 0)
        return "No server answered: " + picture.problem;
    if (picture.status != 200)
        return "The server answered " + std::to_string(picture.status) +
               (picture.problem.empty() ? "." : ": " + picture.problem);
    if (picture.width <= 0 || picture.height <= 0)
        return "What came is no PNG, JPEG or WebP picture that can be shown.";
    return "A tile of " + std::to_string(picture.width) + " x " + std::to_string(picture.height) + " pixels came, " +
           std::to_string(picture.bytes) + " bytes.";
}

void mnuTileServer_Click(MainWindow& main)
{
    TileForm& form = main.frmTiles;
    TileSettings& tiles = main.map.tiles;
    frmTiles_Load(form, tiles);
    main.services.dialogs.Run(Form::frmTiles, main);
    if (!form.bAccepted)
        return;
    tiles.urlTemplate = form.txtUrl;
    tiles.credit = Trim(form.txtCredit);
    tiles.bOnline = form.chkOnline;
    main.map.TilesChanged.Raise();
}

} // namespace ruvenmark
