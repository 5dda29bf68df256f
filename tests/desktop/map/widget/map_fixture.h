#pragma once

#include "desktop/icons/icon_set.h"
#include "desktop/map/widget/map_widget.h"
#include "platform/files.h"
#include "platform/map_control.h"

#include <QHelpEvent>
#include <QWheelEvent>
#include <QtTest>

#include <gtest/gtest.h>

#include <string_view>

namespace ruvenmark {

// A map without a built-in map beneath where none is given, shown.
class MapFixture : public testing::Test {
protected:
    explicit MapFixture(const BaseMap* base = nullptr, QSize size = {800, 600})
        : widget(control, icons, base, selection)
    {
        control.NewMap(kRegionNorthAmerica);
        QObject::connect(&widget, &MapWidget::SelectionWanted,
                         [this](const MapSelection& wanted) { selection = wanted; });
        widget.resize(size);
        widget.show();
        TheMap().SetView({40, -90}, 6);
        QCoreApplication::processEvents();
    }

    Map& TheMap() { return control.RequireMap(); }
    Pushpin AddPin(QPointF at, std::string_view name, std::string_view note = {}, bool bNamed = true)
    {
        Pushpin pin = TheMap().AddPushpin(TheMap().XYToLocation(at.x(), at.y()), name);
        pin.SetNote(note);
        pin.SetBalloonState(bNamed ? 1 : 0);
        return pin;
    }
    QImage Painted() // After all events that wait.
    {
        QCoreApplication::processEvents();
        return widget.grab().toImage();
    }
    void Click(QPoint at) { QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at); }
    void Wheel(QPointF at, int eighths)
    {
        QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&widget, &event);
    }
    void Rest(QPoint at) // As the pointer does when a tip is due.
    {
        QHelpEvent event(QEvent::ToolTip, at, widget.mapToGlobal(at));
        QCoreApplication::sendEvent(&widget, &event);
    }

    PosixFiles files;
    MapControl control{files};
    IconSet icons;
    MapSelection selection;
    MapWidget widget;
};

} // namespace ruvenmark
