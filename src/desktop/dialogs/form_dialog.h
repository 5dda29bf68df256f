#pragma once

#include "desktop/dialogs/binder.h"

#include <QDialog>

namespace ruvenmark {

// The window of a form: it lays out, binds and calls the form's rules. Closed in any way but by accept(), it changes
// nothing but the fields.
class FormDialog : public QDialog {
public:
    using QDialog::QDialog;

    // Shows the fields as they are now.
    virtual void Refresh() { m_binder.Refresh(); }

protected:
    Binder& Bound() { return m_binder; }

private:
    Binder m_binder;
};

} // namespace ruvenmark
