#include "desktop/dialogs/frm_tcp_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/named_control.h"
#include "links/server_form_rules.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ruvenmark {

FrmTcpDialog::FrmTcpDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main), m_form(main.frmTcp)
{
    setWindowTitle(QStringLiteral("Connect APRS Server"));
    auto* layout = new QVBoxLayout(this);
    AddPrimary(*layout);
    AddReconnect(*layout);
    AddBackup(*layout);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("&Connect"));
    layout->addLayout(buttons.row);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    AddChecks(*buttons.cancel);
    EnableBackup();
}

void FrmTcpDialog::accept()
{
    if (frmTcp_Accept(m_main))
        QDialog::accept();
}

void FrmTcpDialog::AddPrimary(QVBoxLayout& layout)
{
    const ServerLists& lists = m_main.serverLists;
    auto* fields = new QFormLayout;
    const QString server = QStringLiteral("&Server");
    const QString port = QStringLiteral("&Port");
    const QString filter = QStringLiteral("&Filter");
    fields->addRow(server, MakeList("cboServer", server, lists.ServerList, m_form.cboServer));
    m_port = MakeList("cboPort", port, lists.PortList, m_form.cboPort);
    fields->addRow(port, m_port);
    fields->addRow(filter, MakeList("cboFilter", filter, lists.ServerFilterList, m_form.cboFilter));
    layout.addLayout(fields);
    layout.addWidget(
        MakeBox("chkServerBeacon", QStringLiteral("Send p&osition when connected"), m_form.chkServerBeacon));
    layout.addWidget(MakeBox("chkAdd", QStringLiteral("Create &map symbol for each report"), m_form.chkAdd));
    layout.addWidget(MakeBox("chkAuto", QStringLiteral("Connect &upon startup"), m_form.chkAuto));
}

void FrmTcpDialog::AddReconnect(QVBoxLayout& layout)
{
    auto* row = new QHBoxLayout;
    QCheckBox* reconnect = MakeBox("chkReconnect", QStringLiteral("Reco&nnect"), m_form.chkReconnect);
    const QString times = QStringLiteral("&times before attempting backup server");
    m_number = new QLineEdit(this);
    m_number->setMaximumWidth(fontMetrics().averageCharWidth() * 8);
    NameControl(*m_number, "txtNumber", times);
    Bound().Bind(*m_number, m_form.txtNumber);
    auto* label = new QLabel(times, this);
    label->setBuddy(m_number);
    row->addWidget(reconnect);
    row->addWidget(m_number);
    row->addWidget(label);
    row->addStretch();
    layout.addLayout(row);
    connect(reconnect, &QCheckBox::clicked, this, &FrmTcpDialog::OnReconnect);
}

void FrmTcpDialog::AddBackup(QVBoxLayout& layout)
{
    const ServerLists& lists = m_main.serverLists;
    m_backup = new QGroupBox(QStringLiteral("Backup Server"), this);
    auto* fields = new QFormLayout(m_backup);
    const QString server = QStringLiteral("S&erver");
    const QString port = QStringLiteral("Po&rt");
    const QString filter = QStringLiteral("Fi&lter");
    fields->addRow(server, MakeList("cboBackupServer", server, lists.ServerList, m_form.cboBackupServer));
    m_backupPort = MakeList("cboBackupPort", port, lists.PortList, m_form.cboBackupPort);
    fields->addRow(port, m_backupPort);
    fields->addRow(filter, MakeList("cboBackupFilter", filter, lists.ServerFilterList, m_form.cboBackupFilter));
    fields->addRow(MakeBox("chkBackupBeacon", QStringLiteral("Send position &when connected"), m_form.chkBackupBeacon));
    layout.addWidget(m_backup);
}

void FrmTcpDialog::AddChecks(QAbstractButton& cancel)
{
    Check(*m_port, cancel, frmTcp_cboPort_LostFocus);
    Check(*m_backupPort, cancel, frmTcp_cboBackupPort_LostFocus);
    Check(*m_number, cancel, frmTcp_txtNumber_LostFocus);
}

void FrmTcpDialog::OnReconnect()
{
    frmTcp_chkReconnect_Click(m_form);
    Refresh();
    EnableBackup();
}

void FrmTcpDialog::EnableBackup()
{
    m_number->setEnabled(m_form.chkReconnect);
    m_backup->setEnabled(m_form.chkReconnect);
}

QComboBox* FrmTcpDialog::MakeList(const char* name, const QString& label, const Dictionary<std::string>& items,
                                  std::string& field)
{
    constexpr int kCharacters = 28;
    auto* list = new QComboBox(this);
    list->setEditable(true);
    list->setMinimumContentsLength(kCharacters);
    for (const auto& [key, value] : items)
        list->addItem(ForDisplay(key));
    NameControl(*list, name, label);
    Bound().Bind(*list, field);
    return list;
}

void FrmTcpDialog::Check(QWidget& field, QAbstractButton& cancel, std::string (*rule)(const ServerForm&))
{
    new FieldCheck(field, cancel, [this, rule] {
        const std::string message = rule(m_form);
        if (!message.empty())
            m_main.services.prompts.Message(message);
        return message.empty();
    });
}

} // namespace ruvenmark
