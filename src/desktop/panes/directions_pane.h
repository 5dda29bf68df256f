#pragma once

#include "platform/event.h"

#include <QFrame>

#include <array>
#include <cstddef>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace ruvenmark {

class IconSet;
struct MainWindow;

// Distance and bearings between two points, each typed (a place, a call, a marker's name, or "lat, lon") or clicked on
// the map.
class DirectionsPane final : public QFrame {
public:
    DirectionsPane(MainWindow& main, const IconSet& icons, QWidget* parent = nullptr);

    void RefreshIcons();

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct End {
        QLineEdit* text = nullptr;
        QPushButton* pick = nullptr;
        bool bUnknown = false; // What it holds stands for nothing.
    };

    void AddEnd(QGridLayout& layout, std::size_t end);
    void Enter(std::size_t end);
    QString ResultText() const;
    void Refresh();

    MainWindow& m_main;
    const IconSet& m_icons;
    std::array<End, 2> m_ends;
    QLabel* m_result;
    QPushButton* m_copy;
    Subscription m_subscription;
};

} // namespace ruvenmark
