#include "desktop/dialogs/field_check.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>

#include <utility>

namespace ruvenmark {

FieldCheck::FieldCheck(QLineEdit& field, QAbstractButton& cancel, std::function<bool()> mayLeave)
    : QObject(&field), m_field(field), m_cancel(cancel), m_mayLeave(std::move(mayLeave))
{
    field.installEventFilter(this);
}

bool FieldCheck::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        const bool bLeft = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                           reason == Qt::MouseFocusReason || reason == Qt::ShortcutFocusReason;
        // A message box must not open while the focus is on its way.
        if (bLeft)
            QMetaObject::invokeMethod(this, &FieldCheck::Check, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void FieldCheck::Check()
{
    const QWidget* focus = QApplication::focusWidget();
    const bool bElsewhere = !m_field.isVisible() || !focus || focus->window() != m_field.window();
    if (bElsewhere || focus == &m_field || focus == &m_cancel)
        return;
    if (!m_mayLeave()) {
        m_field.setFocus();
        m_field.selectAll();
    }
}

} // namespace ruvenmark
