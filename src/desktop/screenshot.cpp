#include "desktop/screenshot.h"

#include "desktop/main_window_view.h"
#include "desktop/map/widget/map_widget.h"
#include "platform/failure.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QThread>

namespace ruvenmark {

namespace {

constexpr int kLongestMs = 30000; // For a server that never answers.

} // namespace

// A painting asks for what it lacks: the picture is whole when one lacked nothing.
void SaveScreenshot(MainWindowView& window, QSize size, const QString& path)
{
    window.setFixedSize(size); // Whatever the screen is.
    QElapsedTimer watch;
    watch.start();
    QPixmap picture;
    do {
        while (!window.Map().IsReady() && watch.elapsed() < kLongestMs) {
            QCoreApplication::processEvents();
            QThread::msleep(2); // The work is done in other threads.
        }
        QCoreApplication::processEvents();
        window.RefreshStates();
        picture = window.grab();
    } while (!window.Map().IsReady() && watch.elapsed() < kLongestMs);
    if (!picture.save(path))
        throw Failure("the picture cannot be written to " + path.toStdString());
}

} // namespace ruvenmark
