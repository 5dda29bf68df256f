#pragma once

#include "platform/event.h"
#include "platform/status_bar.h"
#include "ui/menus.h"

#include <QElapsedTimer>
#include <QStatusBar>
#include <QTimer>

#include <array>
#include <functional>

class QStackedWidget;

namespace ruvenmark {

class ElidedLabel;
class IconSet;
class PlayerBar;
struct MainWindow;

// The status bar's five panels; the packet line and the progress bar take one place. It also shows the wait pointer.
class StatusBarView final : public QStatusBar {
public:
    StatusBarView(MainWindow& main, const IconSet& icons, const std::function<void(MenuEntry)>& run, QWidget* parent);
    ~StatusBarView() override;
    StatusBarView(const StatusBarView&) = delete;
    StatusBarView& operator=(const StatusBarView&) = delete;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void OnChanged();
    void Refresh();
    void ShowPointer(bool bWait);

    MainWindow& m_main;
    StatusBar& m_model;
    std::array<ElidedLabel*, 5> m_panels{};
    QStackedWidget* m_place;
    ElidedLabel* m_sent;
    ElidedLabel* m_packet;
    PlayerBar* m_player;
    QTimer m_refreshTimer, m_tipTimer; // Tips tell ages: they are worked out once a second while the bar is seen.
    QElapsedTimer m_sinceRepaint;
    bool m_bWaitShown = false;
    Subscription m_subscription, m_replaySubscription;
};

} // namespace ruvenmark
