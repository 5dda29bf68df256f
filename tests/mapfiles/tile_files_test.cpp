#include "mapfiles/markup_text.h"
#include "mapfiles/tile_folder.h"
#include "mapfiles/tile_picture.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace ruvenmark {
namespace {

using namespace std::string_literals;

class TileFolderTest : public testing::Test {
protected:
    TileFolderTest() : folder(testing::TempDir() + "tiles-" + std::to_string(getpid()))
    {
        std::filesystem::create_directories(folder + "/3/1");
    }
    ~TileFolderTest() override { std::filesystem::remove_all(folder); }

    std::string folder;
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

} // namespace
} // namespace ruvenmark
