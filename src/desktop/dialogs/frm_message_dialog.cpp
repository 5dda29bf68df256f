#include "desktop/dialogs/frm_message_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/sending_parts.h"
#include "desktop/named_control.h"
#include "messaging/message_form_rules.h"

#include <QFormLayout>

namespace ruvenmark {

FrmMessageDialog::FrmMessageDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    setWindowTitle(QStringLiteral("Send Message"));
    MessageForm& form = main.frmMessage;
    auto* rows = new QFormLayout(this);
    auto* types = new QComboBox(this);
    const QString typeLabel = QStringLiteral("T&ype");
    NameControl(*types, "cboMessageType", typeLabel);
    for (const std::string_view type : kMessageTypes)
        types->addItem(ForDisplay(type));
    Bound().Bind(*types, form.cboMessageType);
    connect(types, &QComboBox::activated, this, [this] {
        frmMessage_cboMessageType_Click(m_main.frmMessage);
        Refresh();
    });
    AddRow(*rows, typeLabel, types);
    AddEdit(*this, Bound(), *rows, "txtFrom", QStringLiteral("&From"), form.txtFrom);
    QLineEdit* to = AddEdit(*this, Bound(), *rows, "txtTo", QStringLiteral("&To"), form.txtTo);
    AddEdit(*this, Bound(), *rows, "txtVia", QStringLiteral("&Via"), form.txtVia);
    QLineEdit* text = AddEdit(*this, Bound(), *rows, "txtMessage", QStringLiteral("&Message"), form.txtMessage);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("S&end"));
    AddRoads(*this, Bound(), *rows, form.roads, buttons);
    rows->addRow(buttons.row);
    (form.txtTo.empty() ? to : text)->setFocus();
    resize(480, sizeHint().height());
}

void FrmMessageDialog::accept()
{
    if (const std::string wrong = frmMessage_Send(m_main.frmMessage); !wrong.empty())
        return m_main.services.prompts.Message(wrong);
    QDialog::accept();
}

} // namespace ruvenmark
