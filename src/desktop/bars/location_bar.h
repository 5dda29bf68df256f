#pragma once

#include <QToolBar>

class QDoubleSpinBox;
class QLabel;
class QLineEdit;

namespace ruvenmark {

struct MainWindow;

// Map tool bar 4: the middle of the map, the zoom level and the scale; the first two can be typed.
class LocationBar final : public QToolBar {
public:
    explicit LocationBar(MainWindow& main, QWidget* parent = nullptr);

    void Refresh();

private:
    void GoToTyped();
    void Zoom(double zoom) const;

    MainWindow& m_main;
    QLineEdit* m_centre;
    QDoubleSpinBox* m_zoom;
    QLabel* m_scale;
};

} // namespace ruvenmark
