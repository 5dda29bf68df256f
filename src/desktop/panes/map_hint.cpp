#include "desktop/panes/map_hint.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace ruvenmark {

namespace {

constexpr int kFromTop = 6; // The map's height by this.

} // namespace

MapHint::MapHint(QWidget& map) : QFrame(&map), m_text(new QLabel(this)), m_row(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("mapHint"));
    setAccessibleName(QStringLiteral("What to do next"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    m_text->setTextFormat(Qt::PlainText);
    m_row->setContentsMargins(8, 4, 8, 4);
    m_row->addWidget(m_text);
    m_hideTimer.setSingleShot(true);
    connect(&m_hideTimer, &QTimer::timeout, this, &QWidget::hide);
    map.installEventFilter(this);
    hide();
}

void MapHint::Show(const QString& text, const Actions& actions)
{
    m_hideTimer.stop();
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
    for (QWidget* button : std::exchange(m_buttons, {})) {
        m_row->removeWidget(button);
        button->hide();
        button->deleteLater();
    }
    for (const auto& [caption, act] : actions) {
        auto* button = new QToolButton(this);
        button->setText(caption);
        button->setAccessibleName(caption);
        connect(button, &QToolButton::clicked, this, [this, work = act] {
            hide();
            work();
        });
        m_row->addWidget(button);
        m_buttons.push_back(button);
    }
    show();
    raise();
    PlaceIt();
}

void MapHint::HideAfter(int milliseconds)
{
    m_hideTimer.start(milliseconds);
}

bool MapHint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && !isHidden())
        PlaceIt();
    return QFrame::eventFilter(watched, event);
}

void MapHint::PlaceIt()
{
    const QWidget& map = *parentWidget();
    const QSize size = sizeHint().boundedTo(map.size());
    setGeometry({{std::max((map.width() - size.width()) / 2, 0), map.height() / kFromTop}, size});
}

} // namespace ruvenmark
