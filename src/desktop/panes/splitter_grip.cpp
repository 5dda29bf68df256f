#include "desktop/panes/splitter_grip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace ruvenmark {

SplitterGrip::SplitterGrip(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("imgSplitter"));
    setAccessibleName(QStringLiteral("Splitter between the panes"));
    setAccessibleDescription(QStringLiteral("The left and right keys move it, Home and End move it to the edges."));
    setCursor(Qt::SplitHCursor);
    setFocusPolicy(Qt::TabFocus);
}

void SplitterGrip::keyPressEvent(QKeyEvent* event)
{
    constexpr int kStep = 16; // Pixels.
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        emit Dropped(x() - kStep);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        emit Dropped(x() + kStep);
        break;
    case Qt::Key_Home:
        emit Dropped(0);
        break;
    case Qt::Key_End:
        emit Dropped(parentWidget()->width());
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void SplitterGrip::paintEvent(QPaintEvent*)
{
    if (hasFocus())
        QPainter(this).fillRect(rect(), palette().highlight());
}

void SplitterGrip::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_bDragging = true;
    m_grabbedAt = event->position().toPoint().x();
    emit Dragged(LeftOf(*event));
}

void SplitterGrip::mouseMoveEvent(QMouseEvent* event)
{
    if (m_bDragging)
        emit Dragged(LeftOf(*event));
}

void SplitterGrip::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(m_bDragging, false))
        emit Dropped(LeftOf(*event));
}

int SplitterGrip::LeftOf(const QMouseEvent& event) const
{
    return mapToParent(event.position().toPoint()).x() - m_grabbedAt;
}

} // namespace ruvenmark
