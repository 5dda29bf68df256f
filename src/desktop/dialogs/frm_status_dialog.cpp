#include "desktop/dialogs/frm_status_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/sending_parts.h"
#include "outgoing/status_report.h"

#include <QFormLayout>

namespace ruvenmark {

FrmStatusDialog::FrmStatusDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    setWindowTitle(QStringLiteral("Send Status"));
    auto* rows = new QFormLayout(this);
    AddCalls(*this, Bound(), *rows, main.frmStatus.calls);
    MakeWide(*AddEdit(*this, Bound(), *rows, "txtStatus", QStringLiteral("&Status"), main.frmStatus.txtStatus),
             kLongestStatus);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("S&end"));
    AddRoads(*this, Bound(), *rows, main.frmStatus.roads, buttons);
    rows->addRow(buttons.row);
}

void FrmStatusDialog::accept()
{
    if (const std::string_view wrong = frmStatus_Accept(m_main); !wrong.empty())
        return m_main.services.prompts.Message(wrong);
    QDialog::accept();
}

} // namespace ruvenmark
