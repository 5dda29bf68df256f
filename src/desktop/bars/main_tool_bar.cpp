#include "desktop/bars/main_tool_bar.h"

#include "desktop/named_control.h"
#include "desktop/shown_text.h"
#include "ui/tool_bar.h"

#include <QLineEdit>
#include <QMouseEvent>

namespace ruvenmark {

MainToolBar::MainToolBar(MainWindow& main, const IconSet& icons, const Runner& run, QWidget* parent)
    : EntryToolBar(main, icons, run, QStringLiteral("Main tool bar"), parent), m_coordinates(new QLineEdit(this))
{
    setObjectName(QStringLiteral("tbToolBar"));
    for (const ToolButton& button : ToolBar())
        if (button.key.empty())
            addSeparator();
        else if (!button.dropDown.empty())
            AddDropDown(button);
        else
            AddEntry(button.entry, ForDisplay(button.text));
    addSeparator();
    NameControl(*m_coordinates, "txtTbCoordinates", QStringLiteral("Position under the pointer"));
    m_coordinates->setToolTip(
        QStringLiteral("The place under the pointer. A click changes the form: degrees, degrees and minutes, locator"));
    m_coordinates->setReadOnly(true);
    m_coordinates->setFocusPolicy(Qt::ClickFocus);
    m_coordinates->installEventFilter(this);
    m_coordinates->setFixedWidth(CoordinatesWidth(*this));
    addWidget(m_coordinates);
}

void MainToolBar::ShowCoordinates(const QString& text)
{
    if (text != m_coordinates->text())
        m_coordinates->setText(text);
}

// A text that was just selected is meant to be copied.
bool MainToolBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease && !m_coordinates->hasSelectedText() &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        emit CoordinatesClicked();
    return EntryToolBar::eventFilter(watched, event);
}

} // namespace ruvenmark
