#include "desktop/dialogs/field_check.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>

#include <utility>

namespace ruvenmark {

namespace {

void SelectAll(QWidget& field)
{
    const auto* list = qobject_cast<QComboBox*>(&field);
    if (auto* line = list ? list->lineEdit() : qobject_cast<QLineEdit*>(&field))
        line->selectAll();
}

} // namespace

FieldCheck::FieldCheck(QWidget& field, QAbstractButton& cancel, std::function<bool()> mayLeave)
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
        SelectAll(m_field);
    }
}

} // namespace ruvenmark
