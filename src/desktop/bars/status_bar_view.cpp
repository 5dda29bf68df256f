#include "desktop/bars/status_bar_view.h"

#include "desktop/bars/elided_label.h"
#include "desktop/shown_text.h"

#include <QGuiApplication>
#include <QProgressBar>
#include <QStackedWidget>

#include <utility>

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

StatusBarView::StatusBarView(StatusBar& model, std::function<void()> workTipsOut, QWidget* parent)
    : QStatusBar(parent), m_model(model), m_place(new QStackedWidget(this)), m_sent(new ElidedLabel(this)),
      m_packet(new ElidedLabel(this)), m_progress(new QProgressBar(this)), m_workTipsOut(std::move(workTipsOut))
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
    m_progress->setObjectName(QStringLiteral("pbProgress"));
    m_progress->setAccessibleName(QStringLiteral("Progress"));
    m_progress->setMaximumHeight(m_packet->sizeHint().height());
    m_place->addWidget(m_packet);
    m_place->addWidget(m_progress);
    m_place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    addWidget(m_place, 1);
    m_sent->setObjectName(QStringLiteral("lblSent"));
    m_sent->setAccessibleName(QStringLiteral("Last sent"));
    m_sent->setToolTip(QStringLiteral("What this station sent last, and over which links"));
    addPermanentWidget(m_sent);
    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(kIntervalMs);
    connect(&m_refreshTimer, &QTimer::timeout, this, &StatusBarView::Refresh);
    m_tipTimer.setInterval(kTipInterval);
    connect(&m_tipTimer, &QTimer::timeout, this, [this] {
        if (!window()->isMinimized())
            m_workTipsOut();
    });
    m_subscription = model.Changed.Observe([this] { OnChanged(); });
    Refresh();
}

StatusBarView::~StatusBarView()
{
    ShowPointer(false);
}

void StatusBarView::showEvent(QShowEvent* event)
{
    QStatusBar::showEvent(event);
    m_workTipsOut();
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
    // A walk under the wait pointer lets no events in: the bar must paint itself.
    if (!m_model.IsWaitPointer() || !m_model.IsProgressVisible() || !isVisible())
        return;
    if (m_sinceRepaint.isValid() && m_sinceRepaint.elapsed() < kIntervalMs)
        return;
    Refresh();
    m_progress->repaint();
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
    const std::string& notice = m_model.Notice();
    m_packet->SetText(ForDisplay(notice.empty() ? m_model.PacketLine() : notice));
    m_progress->setValue(m_model.Progress());
    m_place->setCurrentWidget(m_model.IsProgressVisible() ? static_cast<QWidget*>(m_progress) : m_packet);
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
