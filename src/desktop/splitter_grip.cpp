#include "desktop/splitter_grip.h"

#include <QMouseEvent>

#include <utility>

namespace ruvenmark {

SplitterGrip::SplitterGrip(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("imgSplitter"));
    setAccessibleName(QStringLiteral("Splitter between the panes"));
    setCursor(Qt::SplitHCursor);
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
