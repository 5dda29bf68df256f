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
    QFormLayout* fields = MakeSerialRows(*this, Bound(),
                                         {.ports = main.services.wires.SerialPorts(),
                                          .bauds = kWxBauds,
                                          .cboPort = main.frmWx.cboPort,
                                          .cboBaud = main.frmWx.cboBaud});
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("&Connect"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(buttons.row);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void FrmWxDialog::accept()
{
    if (frmWx_Accept(m_main))
        QDialog::accept();
}

} // namespace ruvenmark
