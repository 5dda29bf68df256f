#include "desktop/map_widget/map_fixture.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QTest>
#include <QWheelEvent>

namespace ruvenmark {

MapFixture::MapFixture()
{
    control.NewMap(kRegionNorthAmerica);
    widget.resize(800, 600);
    widget.show();
    TheMap().SetView({40, -90}, 6);
    QCoreApplication::processEvents();
}

Pushpin MapFixture::AddPin(QPointF at, std::string_view name, std::string_view note, bool bNamed)
{
    Pushpin pin = TheMap().AddPushpin(TheMap().XYToLocation(at.x(), at.y()), name);
    pin.SetNote(note);
    pin.SetBalloonState(bNamed ? 1 : 0);
    return pin;
}

QPoint MapFixture::PixelOf(const Pushpin& pin)
{
    const PixelPoint pixel = ToPixel(TheMap().View(), pin.Location().Point());
    return QPointF(pixel.x, pixel.y).toPoint();
}

QImage MapFixture::Painted()
{
    QCoreApplication::processEvents();
    return widget.grab().toImage();
}

void MapFixture::Click(QPoint at, Qt::MouseButton button)
{
    QTest::mouseClick(&widget, button, Qt::NoModifier, at);
}

void MapFixture::Wheel(QPointF at, int eighths)
{
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&widget, &event);
}

void MapFixture::Rest(QPoint at)
{
    QHelpEvent event(QEvent::ToolTip, at, widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace ruvenmark
