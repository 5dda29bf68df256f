#include "map/tile_form_rules.h"
#include "map/tile_settings.h"
#include "map/tile_url.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

TEST(TileSettings, AreSwitchedAndChosenByTheMenu)
{
    TestProgram program;
    const TileSettings& tiles = program.main.map.tiles;
    int changes = 0;
    const auto subscription = program.main.map.TilesChanged.Observe([&] { ++changes; });
    mnuOnlineTiles_Click(program.main);
    EXPECT_TRUE(tiles.bOnline);
    program.prompts.files = {"/maps/alps.mbtiles"};
    for (const char* source : {"/maps/alps.mbtiles", ""}) { // Puts it away without asking.
        mnuTileFile_Click(program.main);
        EXPECT_EQ(tiles.source, source);
    }
    EXPECT_EQ(program.prompts.fileTitles.size(), 1U);
    EXPECT_EQ(changes, 3);
}

TEST(TileSettings, UnusableOnesInTheStoreAreTheDefaults)
{
    TestProgram program(false);
    const std::string usable = "http://localhost:8080/{z}/{y}/{x}.png?k=1";
    for (const std::string& url : {std::string(), std::string("file:///etc/{z}/{x}/{y}"), usable}) {
        program.store.Set("TileURL", url);
        LoadTileSettings(program.main);
        EXPECT_EQ(program.main.map.tiles.urlTemplate, url == usable ? url : DefaultOf(Setting::TileURL));
    }
}

TEST(TileForm, AServerOfTheListBringsItsCreditAndIsSavedOnlyWhereAccepted)
{
    TestProgram program;
    TileForm& form = program.main.frmTiles;
    for (const std::size_t accepted : {0U, 1U}) {
        program.dialogs.onRun[Form::frmTiles] = [&](MainWindow&) {
            EXPECT_EQ(form.cboServer, 0);
            EXPECT_EQ(form.txtCredit, kTileServers[0].credit); // The settings name none.
            form.cboServer = 1;
            frmTiles_cboServer_Click(form);
            form.chkOnline = true;
            EXPECT_TRUE(accepted == 0 || frmTiles_Accept(form));
        };
        mnuTileServer_Click(program.main);
        EXPECT_EQ(program.main.map.tiles.urlTemplate, kTileServers[accepted].url);
        EXPECT_EQ(program.main.map.tiles.bOnline, accepted == 1);
    }
    EXPECT_EQ(program.main.map.tiles.credit, kTileServers[1].credit);
    EXPECT_EQ(MaxZoomOfTiles(kTileServers[1].url), 17); // Nothing deeper is asked for.
}

TEST(TileForm, TheTestAsksForTheTileInViewAndTellsWhatCame)
{
    TestProgram program;
    TileForm& form = program.main.frmTiles;
    form.txtUrl = "http://localhost/{z}/{x}";
    EXPECT_FALSE(frmTiles_Accept(form));
    frmTiles_Test(program.main);
    EXPECT_EQ(program.desktop.pictureAsked, "");
    EXPECT_NE(form.lblResult.find("{z}, {x} and {y}"), std::string::npos);

    program.TheMap().SetView({47.0, 8.0}, 6);
    form.txtUrl = " http://localhost/{z}/{x}/{y}.png?zoom={z}";
    frmTiles_Test(program.main);
    EXPECT_EQ(program.desktop.pictureAsked, "http://localhost/6/33/22.png?zoom=6");
    const std::pair<FetchedPicture, const char*> kPictures[] = {
        {{200, "", 1234, 256, 256}, "A tile of 256 x 256 pixels came, 1234 bytes."},
        {{403, "Forbidden", 9, 0, 0}, "The server answered 403: Forbidden"},
        {{200, "", 9, 0, 0}, "What came is no PNG, JPEG or WebP picture that can be shown."}};
    for (const auto& [picture, result] : kPictures) {
        program.desktop.takePicture(picture);
        EXPECT_EQ(form.lblResult, result);
    }
    form.txtUrl += "x"; // What comes for another address says nothing about this one.
    form.lblResult.clear();
    program.desktop.takePicture({0, "Connection refused", 0, 0, 0});
    EXPECT_EQ(form.lblResult, "");
}

TEST(TileUrl, OnlyWebServersWithEveryPartOfTheNumberAreAsked)
{
    for (const char* url : {"http://127.0.0.1:8080/{z}/{y}/{x}.png?k=1", "https://a.b/?x={x}&y={y}&z={z}"})
        EXPECT_TRUE(IsTileUrl(url)) << url;
    for (const char* url :
         {"", "https:///{z}/{x}/{y}", "https://{z}{x}{y}", "file:///etc/{z}/{x}/{y}", "//a.b/{z}/{x}/{y}",
          "xhttps://a.b/{z}/{x}/{y}", "https://a.b/{z}/{x}", "https://a.b/{x}/{y}", "https://a.b/{z}/{y}",
          "https://a.b/{z}/{x}/{y} x", "https://a.b/{z}/{x}/{y}\r\nHost: c"})
        EXPECT_FALSE(IsTileUrl(url)) << url;
}

TEST(TileSettings, ATileStandsForTheFolderOfAll)
{
    for (const auto& [file, source] : {std::pair("/maps/osm/12/654/1583.png", "/maps/osm"),
                                       {"/12/654/1583.png", "/"},
                                       {"/2026/11/22/photo.png", "/2026/11/22/photo.png"},
                                       {"3.png", "3.png"}})
        EXPECT_EQ(TileSourceOfFile(file), source);
}

} // namespace
} // namespace ruvenmark
