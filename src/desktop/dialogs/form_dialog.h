#pragma once

#include "desktop/dialogs/binder.h"
#include "desktop/dialogs/tab_order.h"
#include "desktop/named_control.h"

#include <QDialog>
#include <QHideEvent>
#include <QPoint>
#include <QShowEvent>

#include <optional>

namespace ruvenmark {

// The window of a form: it lays out, binds and calls the form's rules. Closed in any way but by accept(), it changes
// nothing but the fields.
class FormDialog : public QDialog {
public:
    using QDialog::QDialog;

    // Shows the fields as they are now.
    virtual void Refresh() { m_binder.Refresh(); }

    // Shown again where it stood when it was hidden; else the dialog's own first place would be taken anew.
    void ComeBack()
    {
        if (isHidden() && m_place)
            move(*m_place);
        show();
    }

protected:
    Binder& Bound() { return m_binder; }
    QCheckBox* MakeBox(const char* name, const QString& text, bool& field)
    {
        auto* box = new QCheckBox(text, this);
        NameControl(*box, name, text);
        m_binder.Bind(*box, field);
        return box;
    }
    void showEvent(QShowEvent* event) override
    {
        if (!event->spontaneous())
            OrderTabs(*this);
        QDialog::showEvent(event);
    }
    void hideEvent(QHideEvent* event) override
    {
        if (!event->spontaneous())
            m_place = pos();
        QDialog::hideEvent(event);
    }

private:
    Binder m_binder;
    std::optional<QPoint> m_place;
};

} // namespace ruvenmark
