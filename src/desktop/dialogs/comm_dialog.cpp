#include "desktop/dialogs/comm_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/named_control.h"
#include "links/tnc_form_rules.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace ruvenmark {

namespace {

template <class Texts>
void AddTexts(QComboBox& list, const Texts& texts)
{
    for (const auto& text : texts)
        list.addItem(ForDisplay(text));
}

} // namespace

CommDialog::CommDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main), m_form(main.commDialog)
{
    setWindowTitle(QStringLiteral("Connect TNC"));
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("C&onnect"));
    m_fields = new QFormLayout;
    AddLinkFields(*m_fields);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(m_fields);
    layout->addWidget(MakeBox("chkAdd", QStringLiteral("Create &map symbol for each report"), m_form.chkAdd));
    QCheckBox* automatic = MakeBox("chkAuto", QStringLiteral("Connect &upon startup"), m_form.chkAuto);
    // By the operator's click alone: what cboConnect shows changes the tick, too.
    connect(automatic, &QCheckBox::clicked, this, [this] { commDialog_chkAuto_Click(m_form); });
    layout->addWidget(automatic);
    layout->addWidget(MakeGpsFrame());
    layout->addLayout(buttons.row);
    ShowState();
}

void CommDialog::accept()
{
    if (commDialog_Accept(m_main))
        QDialog::accept();
}

void CommDialog::reject()
{
    commDialog_Cancel(m_form);
    QDialog::reject();
}

void CommDialog::AddLinkFields(QFormLayout& fields)
{
    auto* link = new QComboBox(this);
    AddTexts(*link, kTncConnects);
    auto* port = new QComboBox(this);
    AddTexts(*port, m_main.services.wires.SerialPorts());
    auto* baud = new QComboBox(this);
    AddTexts(*baud, kTncBauds);
    port->setEditable(true);
    baud->setEditable(true);
    auto* address = new QLineEdit(this);
    auto* socketPort = new QLineEdit(this);
    m_serial = {port, baud};
    m_socket = {address, socketPort};
    const auto add = [&](QWidget& control, const char* name, const QString& label) {
        NameControl(control, name, label);
        fields.addRow(label, &control);
    };
    add(*link, "cboConnect", QStringLiteral("Connect &to"));
    add(*port, "cboSerialPort", QStringLiteral("&Serial port"));
    add(*baud, "cboSerialBaud", QStringLiteral("&Baud rate"));
    add(*address, "txtSocketAddress", QStringLiteral("&Address"));
    add(*socketPort, "txtSocketPort", QStringLiteral("&Port"));
    Bound().Bind(*link, m_form.cboConnect);
    Bound().Bind(*port, m_form.cboSerialPort);
    Bound().Bind(*baud, m_form.cboSerialBaud);
    Bound().Bind(*address, m_form.txtSocketAddress);
    Bound().Bind(*socketPort, m_form.txtSocketPort);
    connect(link, &QComboBox::activated, this, [this] {
        commDialog_cboConnect_Click(m_form);
        Refresh();
        ShowState();
    });
}

QWidget* CommDialog::MakeGpsFrame()
{
    auto* frame = new QGroupBox(QStringLiteral("GPS pass through TNC"), this);
    m_gps = MakeBox("chkTncGps", QStringLiteral("&GPS connected"), m_form.chkTncGps);
    connect(m_gps, &QCheckBox::toggled, this, [this] { ShowState(); });
    m_sentence = new QComboBox(this);
    AddTexts(*m_sentence, kGpsSentences);
    m_rate = new QComboBox(this);
    for (int i = 0; i < kUpdateRates; ++i)
        m_rate->addItem(ForDisplay(UpdateRateText(i)));
    const QString sentence = QStringLiteral("S&entence");
    const QString rate = QStringLiteral("Update &rate");
    NameControl(*m_sentence, "cboSentence", sentence);
    NameControl(*m_rate, "cboUpdateRate", rate);
    Bound().Bind(*m_sentence, m_form.cboSentence);
    Bound().Bind(*m_rate, m_form.cboUpdateRate);
    auto* fields = new QFormLayout(frame);
    fields->addRow(m_gps);
    fields->addRow(sentence, m_sentence);
    fields->addRow(rate, m_rate);
    return frame;
}

void CommDialog::ShowState()
{
    const auto show = [this](QWidget* control, bool bShow) {
        control->setVisible(bShow);
        m_fields->labelForField(control)->setVisible(bShow);
    };
    for (QWidget* control : m_serial)
        show(control, IsSerialShown(m_form));
    for (QWidget* control : m_socket)
        show(control, !IsSerialShown(m_form));
    m_gps->setEnabled(IsSerialShown(m_form));
    m_sentence->setEnabled(AreGpsListsEnabled(m_form));
    m_rate->setEnabled(AreGpsListsEnabled(m_form));
}

} // namespace ruvenmark
