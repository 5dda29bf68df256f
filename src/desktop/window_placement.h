#pragma once

class QWidget;

namespace ruvenmark {

struct MainWindow;

// Where the program's window stands on the screen: as it was left the last time, and kept for the next.
class WindowPlacement {
public:
    WindowPlacement(MainWindow& main, QWidget& window) : m_main(main), m_window(window) {}

    // Shows the window once the logic wants it, then fills the screen or not, as the logic says.
    void Apply();
    // The window was moved, resized, minimised ...
    void Keep();

private:
    void ShowAtLastPlace();

    MainWindow& m_main;
    QWidget& m_window;
    bool m_bShown = false; // Before that its place means nothing.
};

} // namespace ruvenmark
