#include "desktop/bars/status_bar_view.h"

#include "core/main_window.h"
#include "desktop/bars/elided_label.h"
#include "desktop/bars/player_bar.h"
#include "desktop/shown_text.h"
#include "links/link_status_rules.h"

#include <QGuiApplication>
#include <QStackedWidget>

#include <chrono>

namespace ruvenmark {

namespace {

constexpr int kIntervalMs = 50;
constexpr std::chrono::seconds kTipInterval{1};

struct PanelName {
    const char* objectName;
    const char* accessibleName;
};
constexpr std::array<PanelName, 5> kPanelNames = {{{"panelTnc", "TNC"},
                                                   {"panelServer", "APRS server"},
                                                   {"panelGps", "GPS"},
                                                   {"panelNewMessage", "New messages"},
                                                   {"panelCall", "Call sign"}}};

} // namespace

StatusBarView::StatusBarView(MainWindow& main, const IconSet& icons, const std::function<void(MenuEntry)>& run,
                             QWidget* parent)
    : QStatusBar(parent), m_main(main), m_model(main.sbStatusBar), m_place(new QStackedWidget(this)),
      m_sent(new ElidedLabel(this)), m_packet(new ElidedLabel(this)), m_player(new PlayerBar(main, icons, run, this))
{
    setSizeGripEnabled(false);
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        m_panels[i] = new ElidedLabel(this);
        m_panels[i]->setObjectName(QString::fromLatin1(kPanelNames[i].objectName));
        m_panels[i]->setAccessibleName(QString::fromLatin1(kPanelNames[i].accessibleName));
        addWidget(m_panels[i]);
    }
    m_packet->setObjectName(QStringLiteral("txtPacket"));
    m_packet->setAccessibleName(QStringLiteral("Last packet"));
    m_packet->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_player->SetHeight(m_packet->sizeHint().height());
    m_place->addWidget(m_packet);
    m_place->addWidget(m_player);
    m_place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    addWidget(m_place, 1);
    m_sent->setObjectName(QStringLiteral("lblSent"));
    m_sent->setAccessibleName(QStringLiteral("Last sent"));
    m_sent->SetTip(QStringLiteral("What this station sent last, and over which links"));
    addPermanentWidget(m_sent);
    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(kIntervalMs);
    connect(&m_refreshTimer, &QTimer::timeout, this, &StatusBarView::Refresh);
    m_tipTimer.setInterval(kTipInterval);
    connect(&m_tipTimer, &QTimer::timeout, this, [this] {
        if (!window()->isMinimized())
            ShowLinkStatus(m_main);
    });
    m_subscription = m_model.Changed.Observe([this] { OnChanged(); });
    m_replaySubscription = main.replay.Changed.Observe([this] { OnChanged(); });
    Refresh();
}

StatusBarView::~StatusBarView()
{
    ShowPointer(false);
}

void StatusBarView::showEvent(QShowEvent* event)
{
    QStatusBar::showEvent(event);
    ShowLinkStatus(m_main);
    m_tipTimer.start();
}

void StatusBarView::hideEvent(QHideEvent* event)
{
    QStatusBar::hideEvent(event);
    m_tipTimer.stop();
}

void StatusBarView::OnChanged()
{
    ShowPointer(m_model.IsWaitPointer());
    if (!m_refreshTimer.isActive())
        m_refreshTimer.start();
    // What holds everything up under the wait pointer lets no timer in: the bar must tell of it at once.
    if (!m_model.IsWaitPointer() || !isVisible())
        return;
    if (!m_model.IsProgressVisible())
        return Refresh(); // A connect, for which the window is painted.
    if (m_sinceRepaint.isValid() && m_sinceRepaint.elapsed() < kIntervalMs)
        return;
    Refresh();
    m_player->PaintNow();
    m_sinceRepaint.start();
}

void StatusBarView::Refresh()
{
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        const auto panel = static_cast<Panel>(i);
        m_panels[i]->SetText(ForDisplay(m_model.PanelText(panel)));
        m_panels[i]->SetTip(ForDisplay(m_model.PanelTip(panel)));
        m_panels[i]->SetWarning(m_model.IsPanelWarning(panel));
    }
    m_sent->SetText(ForDisplay(m_model.Sent()));
    const std::string& line = m_model.Notice().empty() ? m_model.PacketLine() : m_model.Notice();
    m_packet->SetText(ForDisplay(m_model.Prompt().empty() ? line : m_model.Prompt()));
    m_player->Refresh();
    m_place->setCurrentWidget(m_model.IsProgressVisible() ? static_cast<QWidget*>(m_player) : m_packet);
}

void StatusBarView::ShowPointer(bool bWait)
{
    if (bWait == m_bWaitShown)
        return;
    m_bWaitShown = bWait;
    if (bWait)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

} // namespace ruvenmark
