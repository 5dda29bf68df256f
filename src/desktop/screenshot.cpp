#include "desktop/screenshot.h"

#include "desktop/main_window_view.h"
#include "desktop/map/widget/map_widget.h"
#include "platform/failure.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPixmap>

namespace ruvenmark {

namespace {

constexpr int kQuietMs = 400;
constexpr int kLongestMs = 15000;

// The ground comes in pieces: the picture is whole when the map has not been painted for a while.
void WaitForMap(const MapWidget& map)
{
    QElapsedTimer whole;
    QElapsedTimer quiet;
    whole.start();
    quiet.start();
    int paints = map.Paints();
    while (quiet.elapsed() < kQuietMs && whole.elapsed() < kLongestMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        if (map.Paints() != paints) {
            paints = map.Paints();
            quiet.start();
        }
    }
}

} // namespace

void SaveScreenshot(MainWindowView& window, QSize size, const QString& path)
{
    window.resize(size);
    WaitForMap(window.Map());
    if (!window.grab().save(path))
        throw Failure("the picture cannot be written to " + path.toStdString());
}

} // namespace ruvenmark
