#include "desktop/map/heap/heap_list.h"

#include "desktop/map/heap/heap_model.h"
#include "platform/map_model.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace ruvenmark {

namespace {

constexpr int kMargin = 12;   // From the map's edges.
constexpr int kTopRight = 92; // Below the zoom buttons.
constexpr int kBottom = 48;   // Above the scale bar and the credits.
constexpr int kMostWidth = 270;

QTreeView* MakeRows(QWidget* parent)
{
    auto* rows = new QTreeView(parent);
    rows->setObjectName(QStringLiteral("heapRows"));
    rows->setAccessibleName(QStringLiteral("Markers here"));
    rows->setHeaderHidden(true);
    rows->setRootIsDecorated(false);
    rows->setUniformRowHeights(true);
    rows->setAllColumnsShowFocus(true);
    rows->setFrameShape(QFrame::NoFrame);
    rows->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows->setTextElideMode(Qt::ElideRight);
    return rows;
}

} // namespace

HeapList::HeapList(MapControl& control, IconSet& icons, Clock clock, QWidget* map)
    : QFrame(map), m_model(new HeapModel(control, icons, std::move(clock), this)), m_title(new QLabel(this)),
      m_rows(MakeRows(this))
{
    setObjectName(QStringLiteral("heapList"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("×"));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    close->setToolTip(QStringLiteral("Close (Esc)"));
    m_title->setTextFormat(Qt::PlainText);
    auto* head = new QHBoxLayout;
    head->setContentsMargins(8, 2, 2, 0);
    head->addWidget(m_title, 1);
    head->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(2);
    layout->addLayout(head);
    layout->addWidget(m_rows);
    m_rows->setModel(m_model);
    m_rows->header()->setStretchLastSection(false);
    m_rows->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_rows->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    m_rows->header()->resizeSection(1, fontMetrics().horizontalAdvance(QStringLiteral("23 h 59 min ago")) + 12);
    connect(close, &QToolButton::clicked, this, &HeapList::Close);
    connect(m_rows, &QTreeView::clicked, this, [this](const QModelIndex& index) { Choose(index.row()); });
    hide();
}

void HeapList::Open(std::vector<SlotRef> members, QPointF at)
{
    m_model->SetMembers(std::move(members));
    m_title->setText(QLocale(QLocale::English).toString(m_model->rowCount()) + QStringLiteral(" markers here"));
    m_bLeft = at.x() > parentWidget()->width() / 2.0;
    KeepInside();
    show();
    raise();
    m_rows->scrollToTop();
    m_rows->setCurrentIndex(m_model->index(0, 0));
    m_rows->setFocus();
}

void HeapList::Close()
{
    if (isHidden())
        return;
    const bool bHadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    m_model->SetMembers({});
    if (bHadFocus)
        parentWidget()->setFocus();
}

void HeapList::Refresh()
{
    if (isVisible())
        m_model->Refresh();
}

void HeapList::KeepInside()
{
    const QSize map = parentWidget()->size();
    const int top = m_bLeft ? kMargin : kTopRight;
    const int row = std::max(m_rows->sizeHintForRow(0), fontMetrics().height() + 6);
    const int head = layout()->itemAt(0)->sizeHint().height() + 8;
    const int width = std::min(kMostWidth, map.width() - 2 * kMargin);
    const int height = std::min(head + row * m_model->rowCount() + 4, map.height() - top - kBottom);
    setGeometry(m_bLeft ? kMargin : map.width() - width - kMargin, top, width, std::max(height, head + row));
}

void HeapList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Close();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Choose(m_rows->currentIndex().row());
    else
        QFrame::keyPressEvent(event);
    event->accept(); // The map has keys of its own.
}

// A click beside the rows is not for the map.
void HeapList::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void HeapList::wheelEvent(QWheelEvent* event)
{
    event->accept();
}

void HeapList::Choose(int row)
{
    if (row >= 0 && m_model->PinAt(row))
        emit Chosen(m_model->RefAt(row));
}

} // namespace ruvenmark
