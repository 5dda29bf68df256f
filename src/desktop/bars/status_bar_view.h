#pragma once

#include "platform/event.h"
#include "platform/status_bar.h"

#include <QElapsedTimer>
#include <QStatusBar>
#include <QTimer>

#include <array>
#include <functional>

class QProgressBar;
class QStackedWidget;

namespace ruvenmark {

class ElidedLabel;

// The status bar's five panels; the packet line and the progress bar take one place. It also shows the wait pointer.
class StatusBarView final : public QStatusBar {
public:
    // `workTipsOut` is called once a second while the bar is seen: tips tell ages.
    StatusBarView(StatusBar& model, std::function<void()> workTipsOut, QWidget* parent = nullptr);
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

    StatusBar& m_model;
    std::array<ElidedLabel*, 5> m_panels{};
    QStackedWidget* m_place;
    ElidedLabel* m_sent;
    ElidedLabel* m_packet;
    QProgressBar* m_progress;
    QTimer m_refreshTimer, m_tipTimer;
    std::function<void()> m_workTipsOut;
    QElapsedTimer m_sinceRepaint;
    bool m_bWaitShown = false;
    Subscription m_subscription;
};

} // namespace ruvenmark
