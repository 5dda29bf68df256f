#include "desktop/map/tiles/tile_choice.h"
#include "map/tile_settings.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

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
