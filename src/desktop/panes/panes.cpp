#include "desktop/panes/panes.h"

#include "core/main_window.h"
#include "desktop/panes/splitter_grip.h"
#include "ui/layout.h"

#include <QEvent>
#include <QStatusBar>
#include <QToolBar>

#include <utility>

namespace ruvenmark {

namespace {

void Place(QWidget& widget, const LayoutRect& rect)
{
    const int left = PixelsOfTwips(rect.left);
    const int top = PixelsOfTwips(rect.top);
    widget.setGeometry(left, top, PixelsOfTwips(rect.left + rect.width) - left,
                       PixelsOfTwips(rect.top + rect.height) - top);
    widget.setVisible(rect.bVisible);
}

} // namespace

Panes::Panes(MainWindow& main, QWidget* parent)
    : QWidget(parent), m_main(main), m_grip(new SplitterGrip(this)), m_bar(new QWidget(this))
{
    m_bar->setObjectName(QStringLiteral("picSplitter"));
    m_bar->setAutoFillBackground(true);
    m_bar->setBackgroundRole(QPalette::Highlight);
    m_bar->hide();
    connect(m_grip, &SplitterGrip::Dragged, this, &Panes::OnDragged);
    connect(m_grip, &SplitterGrip::Dropped, this, &Panes::OnDropped);
}

void Panes::SetControls(const Controls& controls)
{
    m_controls = controls;
    for (QWidget* widget : {static_cast<QWidget*>(controls.toolBar), controls.leftPane, controls.rightPane,
                            static_cast<QWidget*>(controls.statusBar)})
        widget->setParent(this);
    QWidget* before = controls.leftPane;
    for (QWidget* page : controls.leftPane->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        setTabOrder(std::exchange(before, page), page);
    setTabOrder(before, m_grip);
    setTabOrder(m_grip, controls.rightPane);
    m_grip->raise();
    m_bar->raise();
    ApplyLayout();
}

void Panes::ApplyLayout()
{
    if (!m_controls.toolBar)
        return;
    const WindowState& window = m_main.window;
    LayoutInput input;
    input.scaleWidth = TwipsOfPixels(width());
    input.scaleHeight = TwipsOfPixels(height());
    input.toolBarHeight = TwipsOfPixels(m_controls.toolBar->sizeHint().height());
    input.statusBarHeight = TwipsOfPixels(m_controls.statusBar->sizeHint().height());
    input.bToolBar = window.bToolBar;
    input.bStatusBar = window.bStatusBar;
    input.bLeftPane = window.bLeftPane;
    const WindowLayout layout = SizeControls(input, window.splitterLeft);
    Place(*m_controls.toolBar, layout.toolBar);
    Place(*m_controls.statusBar, layout.statusBar);
    Place(*m_controls.leftPane, layout.tree);
    Place(*m_controls.rightPane, layout.rightPane);
    Place(*m_grip, layout.imgSplitter);
}

void Panes::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    ApplyLayout();
}

bool Panes::event(QEvent* event)
{
    // The bars' heights may be others now.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange)
        ApplyLayout();
    return QWidget::event(event);
}

void Panes::OnDragged(int left)
{
    const int kept = PixelsOfTwips(ClampSplitter(TwipsOfPixels(left), TwipsOfPixels(width())));
    m_bar->setGeometry(kept, m_grip->y(), m_grip->width(), m_grip->height());
    m_bar->show();
}

void Panes::OnDropped(int left)
{
    m_bar->hide();
    DropSplitter(m_main, TwipsOfPixels(left), TwipsOfPixels(width()));
    ApplyLayout();
}

} // namespace ruvenmark
