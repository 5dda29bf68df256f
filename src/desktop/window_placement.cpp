#include "desktop/window_placement.h"

#include "core/main_window.h"
#include "ui/layout.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace ruvenmark {

namespace {

// Nobody has placed the window yet.
bool IsAtFirstPlace(const WindowState& window)
{
    return window.left == kFirstLeft && window.top == kFirstTop && window.width == kFirstWidth &&
           window.height == kFirstHeight;
}

} // namespace

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
    WindowState& window = m_main.window;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size(PixelsOfTwips(AllowedWindowWidth(window.width)), PixelsOfTwips(window.height));
    const bool bFirstStart = IsAtFirstPlace(window);
    QRect place(QPoint(PixelsOfTwips(window.left), PixelsOfTwips(window.top)),
                (bFirstStart ? kFirstSize : size).boundedTo(screen.size()));
    if (bFirstStart && window.splitterLeft == kFirstSplitterLeft)
        window.splitterLeft = TwipsOfPixels(kFirstLeftPane);
    // A screen that is gone must not take the window with it.
    if (bFirstStart || !QGuiApplication::screenAt(place.center()))
        place.moveCenter(screen.center());
    m_bShown = true;
    m_window.move(place.topLeft());
    m_window.resize(place.size());
    m_window.show();
}

void WindowPlacement::Keep()
{
    if (!m_bShown)
        return;
    const bool bOrdinary = !m_window.isMaximized() && !m_window.isFullScreen() && !m_window.isMinimized();
    const QRect place = bOrdinary ? QRect(m_window.pos(), m_window.size()) : m_window.normalGeometry();
    if (place.isValid())
        KeepGeometry(m_main, TwipsOfPixels(place.left()), TwipsOfPixels(place.top()), TwipsOfPixels(place.width()),
                     TwipsOfPixels(place.height()), m_window.isMinimized());
}

} // namespace ruvenmark
