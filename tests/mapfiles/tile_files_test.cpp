#include "mapfiles/archive_file.h"
#include "mapfiles/markup_text.h"
#include "mapfiles/tile_archive.h"
#include "mapfiles/tile_folder.h"
#include "mapfiles/tile_picture.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

class TileFolderTest : public testing::Test {
protected:
    TileFolderTest() { std::filesystem::create_directories(folder + "/3/1"); }
    ~TileFolderTest() override { std::filesystem::remove_all(folder); }

    const std::string folder = testing::TempDir() + "tiles-" + std::to_string(getpid());
};

TEST_F(TileFolderTest, AnyOfTheEndingsIsFoundAndTheRestIsNotThere)
{
    std::filesystem::create_directories(folder + "/11x");
    std::ofstream(folder + "/3/1/2.webp") << "webp";
    std::ofstream(folder + "/3/1/3.jpg") << "jpg";
    std::ofstream(folder + "/3/1/4.svg") << "svg";
    TileFolder tiles(folder);
    EXPECT_EQ(tiles.MaxZoom(), 3);
    EXPECT_EQ(tiles.Read({3, 1, 2}), "webp");
    EXPECT_EQ(tiles.Read({3, 1, 3}), "jpg");
    EXPECT_EQ(tiles.Read({3, 1, 4}), "");
    EXPECT_THROW(TileFolder(folder + "/3/1"), Failure);
}

// Each would wait for ever, or take the memory that there is.
TEST_F(TileFolderTest, PipesDevicesAndHugeFilesAreRefused)
{
    ASSERT_EQ(mkfifo((folder + "/3/1/1.png").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", folder + "/3/1/2.png");
    std::filesystem::create_directories(folder + "/3/1/3.png");
    std::ofstream(folder + "/3/1/4.png") << "x";
    std::filesystem::resize_file(folder + "/3/1/4.png", std::uintmax_t{1} << 33U);
    TileFolder tiles(folder);
    for (int y = 1; y <= 4; ++y)
        EXPECT_THROW(tiles.Read({3, 1, y}), Failure) << y;
}

TEST(TilePicture, OnlyThreeFormatsAreKnownByTheirFirstBytes)
{
    EXPECT_EQ(FormatOfTile("\x89PNG\r\n\x1a\nrest"), TileFormat::Png);
    EXPECT_EQ(FormatOfTile("\xff\xd8\xff\xe0rest"), TileFormat::Jpeg);
    EXPECT_EQ(FormatOfTile("RIFF\x10\0\0\0WEBPVP8 "s), TileFormat::WebP);
    for (const std::string& bytes : {""s, "\x89PNG"s, "RIFF"s, "RIFF\x10\0\0\0WAVEfmt "s, "GIF89a"s, "<?xml?><svg/>"s})
        EXPECT_EQ(FormatOfTile(bytes), std::nullopt) << bytes;
    EXPECT_EQ(FormatOfTile("\x89PNG\r\n\x1a\n" + std::string(kMostTileBytes, 'x')), std::nullopt);
}

TEST(TilePicture, AJpegOfThousandsOfPassesIsRefused)
{
    std::string jpeg = "\xff\xd8\xff";
    for (int pass = 0; pass < 100; ++pass)
        jpeg += "\xff\xda";
    EXPECT_EQ(FormatOfTile(jpeg), TileFormat::Jpeg);
    EXPECT_EQ(FormatOfTile(jpeg + "\xff\xda"), std::nullopt);
}

TEST(MarkupText, TagsGoAndCharactersStay)
{
    const std::pair<std::string, std::string> kTexts[] = {
        {"&copy; <a href='x'>A &amp;amp; B</a> &#8212;&#x20AC;", "© A &amp; B —€"},
        {"cut <a href=", "cut "},
        {"cut &am", "cut &am"}};
    for (const auto& [markup, text] : kTexts)
        EXPECT_EQ(TextOfMarkup(markup), text);
    const std::string unknown = "a & b &nosuch; &#0; &#xD800; &#x110000; &#99999999999; &;";
    EXPECT_EQ(TextOfMarkup(unknown), unknown);
}

const std::string kTables(kTileTables);

class TileArchiveTest : public TileFolderTest {
protected:
    // What opening and reading a tile fails with; empty when it does not.
    std::string FailureOf(const std::string& statements)
    {
        WriteArchive(path, statements);
        return FailureOfFile();
    }
    std::string FailureOfFile()
    {
        const auto begin = std::chrono::steady_clock::now();
        std::string what;
        try {
            TileArchive(path, 100ms).Read({1, 0, 0});
        } catch (const Failure& failure) {
            what = failure.what();
        }
        EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
        return what;
    }

    const std::string path = folder + "/a#b?c%20d 'x'.mbtiles"; // Letters that a URI gives a meaning.
};

TEST_F(TileArchiveTest, RowsCountFromTheSouthAndTheRestIsNotThere)
{
    WriteArchive(path,
                 kTables + InsertTile(4, 3, 14, "picture") +
                     "INSERT INTO metadata VALUES ('attribution', '&copy; <a href=\"x\">Some &amp; people</a>');");
    TileArchive archive(path);
    EXPECT_EQ(archive.MaxZoom(), 4);
    EXPECT_EQ(archive.Attribution(), "© Some & people");
    for (const auto& [row, bytes] : {std::pair(1, "picture"), {14, ""}, {1, "picture"}}) // Asked anew each time.
        EXPECT_EQ(archive.Read({4, 3, row}), bytes);
}

TEST_F(TileArchiveTest, EqualPicturesMayBeKeptOnceBehindAView)
{
    WriteArchive(path, "CREATE TABLE map (zoom_level, tile_column, tile_row, tile_id);"
                       "CREATE TABLE images (tile_data blob, tile_id text);"
                       "CREATE VIEW tiles AS SELECT map.zoom_level AS zoom_level, map.tile_column AS tile_column, "
                       "map.tile_row AS tile_row, images.tile_data AS tile_data FROM map "
                       "JOIN images ON images.tile_id = map.tile_id;"
                       "INSERT INTO map VALUES (1, 0, 1, 'sea'); INSERT INTO images VALUES (X'736561', 'sea');");
    EXPECT_EQ(TileArchive(path).Read({1, 0, 0}), "sea");
}

TEST_F(TileArchiveTest, TheDeepestZoomIsTakenFromTheMetadataAndKeptWithinReason)
{
    for (const auto& [told, zoom] : {std::pair("7", 7), {"-3", 2}, {"1e300", 22}, {"deep", 2}}) {
        WriteArchive(path,
                     kTables + InsertTile(2, 0, 0, "x") + "INSERT INTO metadata VALUES ('maxzoom', '" + told + "');");
        EXPECT_EQ(TileArchive(path).MaxZoom(), zoom) << told;
    }
}

TEST_F(TileArchiveTest, WhatRunsForEverIsRefusedOrEnds)
{
    EXPECT_EQ(FailureOf(SlowArchive()), "The tile archive takes too long to answer.");
    for (const char* statement :
         {"CREATE VIEW tiles AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
          "SELECT i AS zoom_level, 0 AS tile_column, 0 AS tile_row, 'x' AS tile_data FROM n WHERE i < 0;",
          // One call of such a function would not be interrupted.
          "CREATE VIEW tiles AS SELECT 1 AS zoom_level, 0 AS tile_column, 1 AS tile_row, "
          "instr(replace(hex(zeroblob(1000000)), '0', 'a'), replace(hex(zeroblob(500000)), '0', 'a') || "
          "'x') AS tile_data;",
          "CREATE VIRTUAL TABLE tiles USING fts4(zoom_level, tile_column, tile_row, tile_data);"})
        EXPECT_NE(FailureOf(statement), "") << statement;
}

TEST_F(TileArchiveTest, StopEndsWhatIsBeingRead)
{
    WriteArchive(path, SlowArchive());
    TileArchive archive(path, 60s);
    std::thread stopper([&] {
        std::this_thread::sleep_for(50ms);
        archive.Stop();
    });
    EXPECT_THROW(archive.Read({1, 0, 0}), Failure);
    stopper.join();
}

TEST_F(TileArchiveTest, WhatIsTooLargeForATileIsNeverTakenIn)
{
    const std::string blob = kTables + "INSERT INTO tiles VALUES (1, 0, 1, zeroblob(5000000));";
    EXPECT_EQ(FailureOf(blob), "The tile archive holds something too large for a tile.");
    EXPECT_EQ(FailureOf(kTables + "INSERT INTO tiles VALUES (1, 0, 1, zeroblob(4000000));"), "");
}

TEST_F(TileArchiveTest, OtherFilesAreFailures)
{
    EXPECT_NE(FailureOfFile(), "") << "missing";
    EXPECT_FALSE(std::filesystem::exists(path));
    std::ofstream(path) << "this is no database";
    EXPECT_NE(FailureOfFile(), "");
    EXPECT_EQ(FailureOf(kTables), "The file holds no tiles.");
    EXPECT_NE(FailureOf("CREATE TABLE other (x);"), "");
    EXPECT_EQ(FailureOf(kTables + "INSERT INTO metadata VALUES ('format', 'pbf');" + InsertTile(0, 0, 0, "x")),
              "The file holds vector tiles, not pictures.");
    std::filesystem::remove(path);
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_NE(FailureOfFile(), "") << "a pipe that nobody writes to";
}

} // namespace
} // namespace ruvenmark
