#pragma once

#include <QMargins>
#include <QRect>

class QWidget;

namespace ruvenmark {

struct MainWindow;

// With Wayland a program is neither told the places of its windows nor gives them one.
bool HasNoPlaces();

// The place of a window without its frame, moved and made smaller as far as needed, so that with its frame it lies
// within the screen.
QRect FittedPlace(const QRect& place, const QRect& screen, const QMargins& frame);

// Where the program's window stands on the screen: as it was left the last time, and kept for the next. Its left top
// corner is that of its frame, its size is without it, as windows are moved and resized.
class WindowPlacement {
public:
    WindowPlacement(MainWindow& main, QWidget& window) : m_main(main), m_window(window) {}

    // Shows the window once the logic wants it, then fills the screen or not, as the logic says.
    void Apply();
    // The window was moved, resized, minimised ...
    void Keep();

private:
    void ShowAtLastPlace();
    void FitIn();
    bool IsOrdinary() const;

    MainWindow& m_main;
    QWidget& m_window;
    bool m_bShown = false; // Before that its place means nothing.
};

} // namespace ruvenmark
