#include "desktop/map/widget/zoom_buttons.h"

#include "desktop/icons/icon_set.h"

#include <QEvent>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace ruvenmark {

namespace {

QToolButton* Button(QWidget* parent, const QString& name, const QString& tip)
{
    auto* button = new QToolButton(parent);
    button->setAccessibleName(name);
    button->setToolTip(tip);
    button->setAutoRaise(true);
    button->setAutoRepeat(true);
    button->setIconSize({20, 20});
    button->setFixedSize(30, 30);
    button->setFocusPolicy(Qt::NoFocus); // The keys + and - do the same.
    button->setCursor(Qt::ArrowCursor);
    return button;
}

} // namespace

ZoomButtons::ZoomButtons(const IconSet& icons, QWidget* parent)
    : QWidget(parent), m_icons(icons), m_in(Button(this, QStringLiteral("Zoom in"), QStringLiteral("Zoom in (+)"))),
      m_out(Button(this, QStringLiteral("Zoom out"), QStringLiteral("Zoom out (-)")))
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(1, 1, 1, 1);
    rows->setSpacing(1);
    rows->addWidget(m_in);
    rows->addWidget(m_out);
    connect(m_in, &QToolButton::clicked, this, &ZoomButtons::ZoomIn);
    connect(m_out, &QToolButton::clicked, this, &ZoomButtons::ZoomOut);
    SetIcons();
    resize(sizeHint());
}

void ZoomButtons::SetEnabled(bool bIn, bool bOut)
{
    m_in->setEnabled(bIn);
    m_out->setEnabled(bOut);
}

void ZoomButtons::SetIcons()
{
    m_in->setIcon(m_icons.Action(QStringLiteral("zoom-in"), palette()));
    m_out->setIcon(m_icons.Action(QStringLiteral("zoom-out"), palette()));
}

void ZoomButtons::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        SetIcons();
    QWidget::changeEvent(event);
}

void ZoomButtons::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor plate = palette().color(QPalette::Button), edge = palette().color(QPalette::WindowText);
    plate.setAlpha(235);
    edge.setAlpha(70);
    painter.setPen(edge);
    painter.setBrush(plate);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
    painter.drawLine(QPointF(5, height() / 2.0), QPointF(width() - 5, height() / 2.0));
}

} // namespace ruvenmark
