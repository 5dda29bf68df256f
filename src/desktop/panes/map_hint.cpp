#include "desktop/panes/map_hint.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace ruvenmark {

namespace {

// Pixels.
constexpr int kFromTop = 12;
constexpr int kSides = 40; // The zoom buttons stand there.

} // namespace

MapHint::MapHint(QWidget& map)
    : QFrame(&map), m_text(new QLabel(this)), m_row(new QBoxLayout(QBoxLayout::LeftToRight, this))
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
    for (QWidget* button : std::exchange(m_buttons, {})) {
        m_row->removeWidget(button);
        button->hide();
        button->deleteLater();
    }
    for (const auto& [caption, act] : actions) {
        auto* button = new QToolButton(this);
        button->setText(caption);
        button->setAccessibleName(caption);
        button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed); // As wide as one below it.
        connect(button, &QToolButton::clicked, this, [this, work = act] {
            hide();
            work();
        });
        m_row->addWidget(button);
        button->show(); // The panel may show already.
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

// What is too wide stands below each other; a text that is too wide even then is left out.
void MapHint::PlaceIt()
{
    const QWidget& map = *parentWidget();
    const int room = map.width() - 2 * kSides;
    const auto fits = [&](QBoxLayout::Direction direction, bool bText) {
        m_row->setDirection(direction);
        m_text->setVisible(bText);
        m_row->invalidate();
        return m_row->sizeHint().width() <= room;
    };
    const bool bText = !m_text->text().isEmpty();
    if (!fits(QBoxLayout::LeftToRight, bText) && !fits(QBoxLayout::TopToBottom, bText))
        fits(QBoxLayout::TopToBottom, false);
    const QSize size = sizeHint().boundedTo(map.size());
    setGeometry({{std::max((map.width() - size.width()) / 2, 0), kFromTop}, size});
}

} // namespace ruvenmark
