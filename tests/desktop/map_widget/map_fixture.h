#pragma once

#include "desktop/icons/icon_set.h"
#include "desktop/map/map_widget.h"
#include "platform/files.h"
#include "platform/map_control.h"

#include <gtest/gtest.h>

#include <string_view>

namespace ruvenmark {

// A map of 800 x 600 pixels without a built-in map beneath, shown.
class MapFixture : public testing::Test {
protected:
    MapFixture();

    Map& TheMap() { return control.RequireMap(); }
    Pushpin AddPin(QPointF at, std::string_view name, std::string_view note = {}, bool bNamed = true);
    // In the middle of the map window's pixel that it falls on.
    QPoint PixelOf(const Pushpin& pin);
    QImage Painted(); // After all events that wait.
    void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void Wheel(QPointF at, int eighths);
    void Rest(QPoint at); // As the pointer does when a tip is due.

    PosixFiles files;
    MapControl control{files};
    IconSet icons;
    MapWidget widget{control, icons, nullptr};
};

} // namespace ruvenmark
