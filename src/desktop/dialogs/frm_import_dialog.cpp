#include "desktop/dialogs/frm_import_dialog.h"

#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/named_control.h"
#include "links/import_form.h"
#include "links/import_form_rules.h"
#include "links/replay.h"
#include "platform/prompts.h"

#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ruvenmark {

FrmImportDialog::FrmImportDialog(ImportForm& form, IPrompts& prompts, QWidget* parent)
    : FormDialog(parent), m_form(form), m_prompts(prompts), m_delay(new QLineEdit(this))
{
    setWindowTitle(QStringLiteral("Load"));
    auto* add = new QCheckBox(QStringLiteral("Create &map symbol for each report"), this);
    auto* show = new QCheckBox(QStringLiteral("&Show map symbol names"), this);
    auto* speed = new QComboBox(this);
    for (const ReplaySpeed& each : kReplaySpeeds)
        speed->addItem(ForDisplay(each.caption));
    speed->setToolTip(QStringLiteral("By the times that stand before the lines of the file, if there are any"));
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("&Load"));
    const QString delayLabel = QStringLiteral("&Delay in milliseconds");
    NameControl(*m_delay, "txtDelay", delayLabel);
    const QString speedLabel = QStringLiteral("S&peed");
    NameControl(*speed, "cboSpeed", speedLabel);
    NameControl(*add, "chkAdd", add->text());
    NameControl(*show, "chkShow", show->text());

    auto* fields = new QFormLayout;
    fields->addRow(delayLabel, m_delay);
    fields->addRow(speedLabel, speed);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(add);
    layout->addWidget(show);
    layout->addLayout(buttons.row);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    Bound().Bind(*m_delay, form.txtDelay);
    Bound().Bind(*speed, form.cboSpeed);
    Bound().Bind(*add, form.chkAdd);
    Bound().Bind(*show, form.chkShow);
    m_delay->selectAll();
    new FieldCheck(*m_delay, *buttons.cancel, [this] { return MayLeaveDelay(); });
}

void FrmImportDialog::accept()
{
    if (!MayLeaveDelay()) {
        m_delay->setFocus();
        m_delay->selectAll();
        return;
    }
    frmImport_Accept(m_form);
    QDialog::accept();
}

bool FrmImportDialog::MayLeaveDelay()
{
    const std::string message = frmImport_txtDelay_LostFocus(m_form);
    if (!message.empty())
        m_prompts.Message(message);
    return message.empty();
}

} // namespace ruvenmark
