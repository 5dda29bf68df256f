#include "desktop/map/base_map/base_map_style.h"
#include "desktop/map/tiles/map_tiles.h"
#include "desktop/map/tiles/tile_server.h"
#include "desktop/map/widget/map_fixture.h"
#include "mapfiles/archive_file.h"

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;
using Kind = TileChoice::Kind;

class MapTilesTest : public testing::Test {
protected:
    MapTiles::Options OptionsHere() { return {folder.filePath("cache"), cacheBytes, 1ms}; }
    int FilesKept() const
    {
        int count = 0;
        QDirIterator files(folder.filePath("cache"), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            files.next();
            ++count;
        }
        return count;
    }
    static bool IsOpen(const MapTiles& tiles)
    {
        return QTest::qWaitFor([&] { return !tiles.IsOpening(); });
    }
    std::string PathOf(const char* name) const { return folder.filePath(name).toStdString(); }
    bool Arrives(MapTiles& tiles, TileId tile)
    {
        return IsOpen(tiles) && (tiles.Want({tile}), QTest::qWaitFor([&] { return tiles.Find(tile) != nullptr; }));
    }
    void Write(const QString& name, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(folder.filePath(name)).path());
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder;
    qint64 cacheBytes = TileCache::kDefaultBytes;
    TileServer server;
    const TileChoice fromServer{Kind::Server, server.Template().toStdString()};
};

TEST_F(MapTilesTest, AsksNothingBeforeItIsSwitchedOnAndNothingAfterwards)
{
    MapTiles tiles(OptionsHere());
    tiles.Want({{1, 0, 0}});
    tiles.Choose(fromServer);
    ASSERT_TRUE(Arrives(tiles, {1, 1, 0}));
    EXPECT_EQ(server.paths, QStringList{"/1/1/0.png"});
    EXPECT_TRUE(server.lastRequest.contains("\r\nUser-Agent: Ruvenmark/1.0.0 (+desktop APRS client)\r\n"));
    tiles.Choose({});
    tiles.Want({{1, 0, 1}});
    QTest::qWait(20);
    EXPECT_EQ(server.paths.size(), 1);
    EXPECT_EQ(tiles.Find({1, 1, 0}), nullptr);
}

// A picture of the window is taken when nothing more comes: one too early would lack tiles.
TEST_F(MapTilesTest, IsBusyUntilEveryTileIsThereAndNotOverAServerThatFails)
{
    MapTiles tiles(OptionsHere());
    tiles.Choose({Kind::Server, server.Template().toStdString(), "Somebody", 5});
    EXPECT_EQ(tiles.Attribution(), QStringLiteral("Somebody"));
    EXPECT_EQ(tiles.MaxZoom(), 5);
    EXPECT_FALSE(tiles.IsBusy());
    const std::vector<TileId> wanted{{3, 0, 0}, {3, 1, 0}, {3, 2, 0}, {3, 3, 0}, {3, 4, 0}};
    tiles.Want(wanted);
    EXPECT_TRUE(tiles.IsBusy());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !tiles.IsBusy(); }));
    for (const TileId tile : wanted)
        EXPECT_NE(tiles.Find(tile), nullptr);
    server.answer = [](const QString&) { return TileServer::Answer{503, {}}; };
    tiles.Want({{3, 5, 0}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tiles.IsBusy(); }));
}

TEST_F(MapTilesTest, TwoRequestsAtOnceAndOnlyForWhatIsStillWanted)
{
    MapTiles tiles(OptionsHere());
    tiles.Choose(fromServer);
    server.bHold = true;
    tiles.Want({{3, 0, 0}, {3, 1, 0}, {3, 2, 0}, {3, 3, 0}});
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.Waiting() == 2; }));
    tiles.Want({{3, 7, 7}});
    QTest::qWait(20);
    EXPECT_EQ(server.Waiting(), 2);
    server.bHold = false;
    server.Release();
    ASSERT_TRUE(Arrives(tiles, {3, 7, 7}));
    EXPECT_EQ(server.mostAtOnce, 2);
    EXPECT_EQ(server.paths.size(), 3);
    EXPECT_EQ(server.paths.last(), "/3/7/7.png");
}

TEST_F(MapTilesTest, WhatWasFetchedIsKeptOnDiskUnlessTheServerForbidsIt)
{
    server.answer = [](const QString& path) {
        const bool bSecret = path.startsWith("/5/");
        return TileServer::Answer{200, PngTile("red"), "image/png",
                                  bSecret ? "Cache-Control: no-store\r\n" : "Cache-Control: max-age=86400\r\n"};
    };
    {
        MapTiles tiles(OptionsHere());
        tiles.Choose(fromServer);
        ASSERT_TRUE(Arrives(tiles, {4, 1, 2}));
        ASSERT_TRUE(Arrives(tiles, {5, 1, 2}));
    }
    EXPECT_EQ(FilesKept(), 1);
    MapTiles again(OptionsHere());
    again.Choose(fromServer);
    ASSERT_TRUE(Arrives(again, {4, 1, 2}));
    EXPECT_EQ(server.paths.size(), 2) << "taken from disk";
}

TEST_F(MapTilesTest, StaleTilesAreShownAndFetchedAnew)
{
    const TileId tile{4, 1, 2};
    TileCache(folder.filePath("cache"))
        .Store(server.Template(), tile, PngTile("blue"), QDateTime::currentDateTime().addDays(-1));
    MapTiles tiles(OptionsHere());
    tiles.Choose(fromServer);
    server.bHold = true;
    ASSERT_TRUE(Arrives(tiles, tile));
    EXPECT_EQ(tiles.Find(tile)->pixelColor(0, 0), QColor("blue"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.Waiting() == 1; }));
    server.Release();
    EXPECT_TRUE(QTest::qWaitFor([&] { return tiles.Find(tile)->pixelColor(0, 0) == QColor("red"); }));
}

TEST_F(MapTilesTest, ErrorsAndWhatIsNoPictureAreNeitherShownNorKept)
{
    Write("here.png", PngTile("red"));
    const std::vector<TileServer::Answer> answers{
        {404, PngTile("red")},
        {429, PngTile("red"), "image/png", "Retry-After: 0\r\n"},
        {200, PngTile("red"), "text/html"},
        {200, "no picture at all"},
        {200, PngTile("red", 4000)},
        {200, "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", "image/svg+xml"},
        {302, {}, "image/png", "Location: file://" + folder.filePath("here.png").toUtf8() + "\r\n"},
        {200, {}},
    };
    for (std::size_t i = 0; i < answers.size(); ++i) {
        MapTiles tiles(OptionsHere());
        tiles.Choose(fromServer);
        server.paths.clear();
        server.answer = [&](const QString& path) {
            return path == "/6/0/0.png"
                       ? answers[i]
                       : TileServer::Answer{200, PngTile("green"), "image/png", "Cache-Control: no-store\r\n"};
        };
        tiles.Want({{6, 0, 0}});
        ASSERT_TRUE(QTest::qWaitFor([&] { return server.paths.contains("/6/0/0.png"); }));
        ASSERT_TRUE(Arrives(tiles, {6, 0, 2})) << i << ": no way on after it";
        EXPECT_EQ(tiles.Find({6, 0, 0}), nullptr) << i;
        EXPECT_EQ(FilesKept(), 0) << i;
    }
}

TEST_F(MapTilesTest, AFailingServerIsAskedLessAndLessAndThenUsedAgain)
{
    MapTiles::Options options = OptionsHere();
    options.firstPause = 15ms;
    MapTiles tiles(options);
    tiles.Choose(fromServer);
    server.answer = [](const QString&) { return TileServer::Answer{503, {}}; };
    const QSignalSpy told(&tiles, &MapTiles::ProblemFound);
    tiles.Want({{6, 0, 0}});
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.paths.size() == 3; })) << "asked again by itself";
    EXPECT_EQ(told.count(), 1); // The operator learns why there are no tiles, and not with each try.
    EXPECT_TRUE(tiles.Problem().contains(QStringLiteral("status 503"))) << tiles.Problem().toStdString();
    server.answer = [](const QString&) { return TileServer::Answer{200, PngTile("red")}; };
    EXPECT_TRUE(QTest::qWaitFor([&] { return tiles.Find({6, 0, 0}) != nullptr; }));
    EXPECT_EQ(server.paths.size(), 4);
    EXPECT_TRUE(tiles.Problem().isEmpty());
}

TEST_F(MapTilesTest, TheDiskCacheStaysBelowItsLimit)
{
    const QByteArray bytes(1000, 'x');
    TileCache cache(folder.filePath("cache"), 5000);
    const QDateTime now = QDateTime::currentDateTime();
    for (int i = 0; i < 20; ++i)
        cache.Store("source", {9, i, 0}, bytes, now.addSecs(1000 + i));
    EXPECT_LE(FilesKept(), 5);
    EXPECT_TRUE(cache.Load("source", {9, 19, 0}));
    EXPECT_FALSE(cache.Load("source", {9, 0, 0})) << "what goes stale first goes first";
    EXPECT_FALSE(cache.Load("other", {9, 19, 0}));
}

TEST(TileFreshness, FollowsTheServerWithinReason)
{
    EXPECT_EQ(FreshSeconds(""), 7 * 86400);
    EXPECT_EQ(FreshSeconds("public, max-age=90000"), 90000);
    EXPECT_EQ(FreshSeconds("max-age=0"), 3600);
    EXPECT_EQ(FreshSeconds("max-age=99999999999"), 30 * 86400);
    EXPECT_EQ(FreshSeconds("max-age=x"), 7 * 86400);
    EXPECT_EQ(FreshSeconds("Max-Age=90000, No-Store"), std::nullopt);
}

TEST_F(MapTilesTest, FoldersAndArchivesWorkOffline)
{
    Write("tiles/3/1/2.png", PngTile("yellow"));
    Write("tiles/3/1/3.png", "<svg/>");
    WriteArchive(PathOf("map.mbtiles"),
                 std::string(kTileTables) + InsertTile(3, 1, 5, PngTile("yellow").toStdString()) + // From the south.
                     "INSERT INTO metadata VALUES ('attribution', '<a href=\"x\">Some &amp; people</a>');");
    MapTiles tiles(OptionsHere());
    for (const char* place : {"map.mbtiles", "tiles"}) {
        tiles.Choose({Kind::Local, PathOf(place)});
        EXPECT_FALSE(tiles.IsOn()) << "looked at in a thread";
        ASSERT_TRUE(Arrives(tiles, {3, 1, 2})) << place;
        EXPECT_EQ(tiles.MaxZoom(), 3);
        EXPECT_EQ(tiles.Find({3, 1, 2})->pixelColor(9, 9), QColor("yellow"));
        EXPECT_EQ(tiles.Attribution(), *place == 'm' ? "Some & people" : "");
        EXPECT_EQ(tiles.Problem(), "");
    }
    tiles.Want({{3, 1, 3}, {3, 5, 5}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tiles.Problem().isEmpty(); }));
    EXPECT_EQ(tiles.Find({3, 1, 3}), nullptr);
    EXPECT_TRUE(server.paths.isEmpty());
}

// Opening and reading this takes as long as it is let: neither the window nor the end of the program waits for it.
TEST_F(MapTilesTest, ASlowArchiveHoldsUpNothing)
{
    WriteArchive(PathOf("slow.mbtiles"), SlowArchive());
    QElapsedTimer time;
    {
        MapTiles tiles(OptionsHere());
        tiles.Choose({Kind::Local, PathOf("slow.mbtiles")});
        ASSERT_TRUE(IsOpen(tiles));
        time.start();
        tiles.Want({{1, 0, 0}, {1, 1, 0}, {1, 0, 1}, {1, 1, 1}});
        EXPECT_LT(time.elapsed(), 500);
        QTest::qWait(50); // So that it is read when the tiles go.
        time.restart();
    }
    EXPECT_LT(time.elapsed(), 1500);
}

TEST_F(MapTilesTest, WhatCannotBeUsedShowsNoTilesAndIsTold)
{
    Write("no.mbtiles", "this is no database");
    Write("empty/readme.txt", "no tiles");
    MapTiles tiles(OptionsHere());
    QStringList told;
    QObject::connect(&tiles, &MapTiles::ProblemFound, [&](const QString& problem) { told.append(problem); });
    const std::vector<TileChoice> choices{
        {Kind::Server, "http://127.0.0.1/{z}/{x}.png"},
        {Kind::Local, PathOf("empty")},
        {Kind::Local, PathOf("missing")},
        {Kind::Local, PathOf("no.mbtiles")},
    };
    for (const TileChoice& choice : choices) {
        tiles.Choose(fromServer);
        EXPECT_EQ(tiles.Problem(), "");
        EXPECT_TRUE(tiles.IsOn());
        tiles.Choose(choice);
        ASSERT_TRUE(IsOpen(tiles));
        EXPECT_FALSE(tiles.IsOn()) << choice.where;
        EXPECT_NE(tiles.Problem(), "") << choice.where;
    }
    EXPECT_EQ(told.size(), static_cast<qsizetype>(choices.size()));
}

using TilesOnMapTest = MapFixture;

TEST_F(TilesOnMapTest, TilesCoverTheRoadStylesAndNoOthers)
{
    const QTemporaryDir folder;
    for (int tile = 0; tile < 64; ++tile) {
        QDir().mkpath(folder.filePath(QStringLiteral("3/%1").arg(tile % 8)));
        QFile file(folder.filePath(QStringLiteral("3/%1/%2.png").arg(tile % 8).arg(tile / 8)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(PngTile("magenta"));
    }
    TheMap().SetView({40, -90}, 4.3); // Beyond the folder's zoom, and between two.
    widget.Tiles().Choose({Kind::Local, folder.path().toStdString()});
    QPoint seam;
    const auto covered = [&] {
        const QImage image = Painted();
        for (seam.ry() = 0; seam.y() < 500; ++seam.ry())
            for (seam.rx() = 0; seam.x() < 740; ++seam.rx())
                if (image.pixelColor(seam) != QColor("magenta"))
                    return false;
        return true;
    };
    ASSERT_TRUE(QTest::qWaitFor(covered, 20000)) << "a seam at " << seam.x() << ", " << seam.y();
    TheMap().SetMapStyle(NumberOf(MapStyle::Data));
    EXPECT_EQ(Painted().pixelColor(400, 200), PaletteFor(MapStyle::Data, false).water);
    TheMap().SetMapStyle(NumberOf(MapStyle::RoadAndData));
    const QColor pale = Painted().pixelColor(400, 200); // Half of it white.
    EXPECT_NEAR(pale.green(), 128, 2);
    EXPECT_EQ(pale.red(), 255);
}

} // namespace
} // namespace ruvenmark
