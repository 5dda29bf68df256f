#include "desktop/dialogs/frm_gps_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/dialogs/serial_boxes.h"
#include "desktop/named_control.h"
#include "links/gps_form_rules.h"

#include <QFormLayout>
#include <QVBoxLayout>

namespace ruvenmark {

FrmGpsDialog::FrmGpsDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    setWindowTitle(QStringLiteral("Connect GPS"));
    QFormLayout* fields = MakeSerialRows(*this, Bound(),
                                         {.ports = main.services.wires.SerialPorts(),
                                          .bauds = kGpsBauds,
                                          .cboPort = main.frmGps.cboPort,
                                          .cboBaud = main.frmGps.cboBaud});
    auto* tracking = new QCheckBox(QStringLiteral("&Track GPS"), this);
    auto* autoGps = new QCheckBox(QStringLiteral("Connect upon &startup"), this);
    NameControl(*tracking, "chkTracking", tracking->text());
    NameControl(*autoGps, "chkAutoGPS", autoGps->text());
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("&Connect"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(tracking);
    layout->addWidget(autoGps);
    layout->addLayout(buttons.row);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    Bound().Bind(*tracking, main.frmGps.chkTracking);
    Bound().Bind(*autoGps, main.frmGps.chkAutoGPS);
}

void FrmGpsDialog::accept()
{
    if (frmGps_Accept(m_main))
        QDialog::accept();
}

} // namespace ruvenmark
