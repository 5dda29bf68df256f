#include "desktop/map/tiles/tile_choice.h"
#include "desktop/map/tiles/tile_image.h"
#include "map/tile_settings.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

QByteArray Saved(const char* format, QSize size = {64, 64})
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&bytes, format)) << format;
    return bytes.data();
}

TEST(TileImage, PngJpegAndWebPAreRead)
{
    for (const char* format : {"png", "jpeg", "webp"}) {
        const QImage image = TileImage(Saved(format));
        ASSERT_EQ(image.size(), QSize(64, 64)) << format;
        EXPECT_GT(image.pixelColor(5, 5).red(), 245) << format;
    }
    EXPECT_FALSE(TileImage(Saved("png", {1024, 1024})).isNull());
    EXPECT_TRUE(TileImage(Saved("png", {1025, 8})).isNull());
}

// Qt would read each of these, and more: some take other files in, some wait for a pipe.
TEST(TileImage, NothingElseIsReadWhateverItIsCalled)
{
    const QTemporaryDir folder;
    const QString secret = folder.filePath("secret.png");
    QFile file(secret);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(Saved("png"));
    file.close();
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
                           "width='64' height='64'><image width='64' height='64' xlink:href='" +
                           secret.toUtf8() + "'/></svg>";
    EXPECT_TRUE(TileImage(svg).isNull());
    EXPECT_TRUE(TileImage(Saved("bmp")).isNull());
    // The right first bytes and then something that another reader would take.
    EXPECT_TRUE(TileImage(QByteArray("\x89PNG\r\n\x1a\n", 8) + svg).isNull());
    EXPECT_TRUE(TileImage(Saved("png").first(100)).isNull());
}

TEST(TileChoice, WhatLiesHereGoesBeforeTheServerAndTheNetworkIsOnlyUsedWhenSwitchedOn)
{
    using Kind = TileChoice::Kind;
    TileSettings settings;
    EXPECT_EQ(TileChoiceOf(settings).kind, Kind::Off);
    settings.bOnline = true;
    EXPECT_EQ(TileChoiceOf(settings).kind, Kind::Server);
    EXPECT_EQ(TileChoiceOf(settings).where, settings.urlTemplate);
    settings.source = "/maps/a\xff.mbtiles"; // Bytes stay bytes.
    EXPECT_EQ(TileChoiceOf(settings).kind, Kind::Local);
    EXPECT_EQ(TileChoiceOf(settings).where, settings.source);
    settings.bOnline = false;
    EXPECT_EQ(TileChoiceOf(settings).kind, Kind::Local);
}

} // namespace
} // namespace ruvenmark
