#pragma once

#include <QWidget>

class QToolBar;
class QStatusBar;

namespace ruvenmark {

class SplitterGrip;
struct MainWindow;

// Everything in the window below the menu bar, laid out as SizeControls says: tool bar, left pane, splitter, right pane
// and status bar.
class Panes final : public QWidget {
public:
    struct Controls {
        QToolBar* toolBar;
        QWidget* leftPane;
        QWidget* rightPane;
        QStatusBar* statusBar;
    };

    explicit Panes(MainWindow& main, QWidget* parent = nullptr);

    // They become children of this widget.
    void SetControls(const Controls& controls);
    void ApplyLayout();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void OnDragged(int left);
    void OnDropped(int left);

    MainWindow& m_main;
    Controls m_controls{};
    SplitterGrip* m_grip;
    QWidget* m_bar; // picSplitter: what is seen to move while the grip is dragged.
};

} // namespace ruvenmark
