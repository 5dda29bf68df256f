#include "desktop/window_placement.h"

#include "core/main_window.h"
#include "ui/layout.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace ruvenmark {

namespace {

// Nobody has placed the window yet.
bool IsAtFirstPlace(const WindowState& window)
{
    return window.left == kFirstLeft && window.top == kFirstTop && window.width == kFirstWidth &&
           window.height == kFirstHeight;
}

// Where nothing is told of frames and of the screen's own bars, room is left for them.
QSize RoomOn(const QRect& screen)
{
    constexpr qreal kWithoutBars = 0.9;
    return HasNoPlaces() ? screen.size() * kWithoutBars : screen.size();
}

QMargins FrameOf(const QWidget& window)
{
    const QRect inner = window.geometry(), outer = window.frameGeometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

} // namespace

bool HasNoPlaces()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QRect FittedPlace(const QRect& place, const QRect& screen, const QMargins& frame)
{
    const QRect room = screen.marginsRemoved(frame);
    QRect fitted(place.topLeft(), place.size().boundedTo(room.size()));
    fitted.moveLeft(std::max(room.left(), std::min(fitted.left(), room.right() + 1 - fitted.width())));
    fitted.moveTop(std::max(room.top(), std::min(fitted.top(), room.bottom() + 1 - fitted.height())));
    return fitted;
}

void WindowPlacement::Apply()
{
    if (!m_bShown && m_main.window.bShown)
        ShowAtLastPlace();
    if (m_bShown && m_main.window.bFullScreen != m_window.isFullScreen())
        m_window.setWindowState(m_window.windowState().setFlag(Qt::WindowFullScreen, m_main.window.bFullScreen));
}

// At first in the middle of the screen, at a comfortable size.
void WindowPlacement::ShowAtLastPlace()
{
    constexpr QSize kFirstSize(1200, 800);
    constexpr int kFirstLeftPane = 240;
    constexpr int kFrameSettles = 200; // Milliseconds until the window manager has put its frame around.
    WindowState& window = m_main.window;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size(PixelsOfTwips(AllowedWindowWidth(window.width)), PixelsOfTwips(window.height));
    const bool bFirstStart = IsAtFirstPlace(window);
    QRect place(QPoint(PixelsOfTwips(window.left), PixelsOfTwips(window.top)),
                (bFirstStart ? kFirstSize : size).boundedTo(RoomOn(screen)));
    if (bFirstStart && window.splitterLeft == kFirstSplitterLeft)
        window.splitterLeft = TwipsOfPixels(kFirstLeftPane);
    // A screen that is gone must not take the window with it.
    if (bFirstStart || !QGuiApplication::screenAt(place.center()))
        place.moveCenter(screen.center());
    m_bShown = true;
    m_window.resize(place.size());
    if (!HasNoPlaces())
        m_window.move(place.topLeft());
    if (window.bMaximized)
        m_window.showMaximized();
    else
        m_window.show();
    QTimer::singleShot(kFrameSettles, &m_window, [this] { FitIn(); });
}

// With its frame the window may be larger than the screen, and its lowest part beyond the edge.
void WindowPlacement::FitIn()
{
    if (!IsOrdinary() || HasNoPlaces())
        return;
    const QRect place = m_window.geometry();
    const QRect fitted = FittedPlace(place, m_window.screen()->availableGeometry(), FrameOf(m_window));
    if (fitted != place)
        m_window.setGeometry(fitted);
}

bool WindowPlacement::IsOrdinary() const
{
    return !m_window.isMaximized() && !m_window.isFullScreen() && !m_window.isMinimized();
}

void WindowPlacement::Keep()
{
    if (!m_bShown)
        return;
    WindowState& window = m_main.window;
    if (!m_window.isMinimized() && !m_window.isFullScreen())
        window.bMaximized = m_window.isMaximized();
    if (!IsOrdinary()) {
        window.bMinimised = m_window.isMinimized();
        return; // As it stood before.
    }
    const QPoint corner = m_window.pos();
    const bool bNoPlaces = HasNoPlaces();
    KeepGeometry(m_main, bNoPlaces ? window.left : TwipsOfPixels(corner.x()),
                 bNoPlaces ? window.top : TwipsOfPixels(corner.y()), TwipsOfPixels(m_window.width()),
                 TwipsOfPixels(m_window.height()));
}

} // namespace ruvenmark
