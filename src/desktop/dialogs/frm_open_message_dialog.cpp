#include "desktop/dialogs/frm_open_message_dialog.h"

#include "desktop/dialogs/sending_parts.h"
#include "messaging/open_message_form.h"

#include <QFormLayout>

namespace ruvenmark {

FrmOpenMessageDialog::FrmOpenMessageDialog(OpenMessageForm& form, QWidget* parent) : FormDialog(parent), m_form(form)
{
    setWindowTitle(ForDisplay(form.caption));
    auto* rows = new QFormLayout(this);
    for (QLineEdit* field : {AddEdit(*this, Bound(), *rows, "txtFrom", QStringLiteral("&From"), form.txtFrom),
                             AddEdit(*this, Bound(), *rows, "txtTo", QStringLiteral("&To"), form.txtTo),
                             AddEdit(*this, Bound(), *rows, "txtDate", QStringLiteral("&Received"), form.txtDate),
                             AddEdit(*this, Bound(), *rows, "txtMessage", QStringLiteral("&Message"), form.txtMessage)})
        field->setReadOnly(true);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("Re&ply"));
    rows->addRow(buttons.row);
    resize(480, sizeHint().height());
}

void FrmOpenMessageDialog::accept()
{
    m_form.bReply = true;
    QDialog::accept();
}

} // namespace ruvenmark
