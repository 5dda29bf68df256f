#include "desktop/dialogs/frm_wx_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/dialogs/serial_boxes.h"
#include "links/weather_form_rules.h"

#include <QFormLayout>
#include <QVBoxLayout>

namespace ruvenmark {

FrmWxDialog::FrmWxDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    setWindowTitle(QStringLiteral("Connect Wx Station"));
    QComboBox* port = MakePortBox(*this, main.services.wires.SerialPorts());
    QComboBox* baud = MakeBaudBox(*this, kWxBauds);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("&Connect"));

    auto* fields = new QFormLayout;
    fields->addRow(QStringLiteral("&Port"), port);
    fields->addRow(QStringLiteral("&Baud rate"), baud);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(buttons.row);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    Bound().Bind(*port, main.frmWx.cboPort);
    Bound().Bind(*baud, main.frmWx.cboBaud);
}

void FrmWxDialog::accept()
{
    if (frmWx_Accept(m_main))
        QDialog::accept();
}

} // namespace ruvenmark
