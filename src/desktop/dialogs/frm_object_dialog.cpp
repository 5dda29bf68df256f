#include "desktop/dialogs/frm_object_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/dialogs/sending_parts.h"
#include "desktop/named_control.h"
#include "outgoing/object_report.h"
#include "outgoing/symbol_lists.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace ruvenmark {

FrmObjectDialog::FrmObjectDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    constexpr std::array<const char*, 3> kLabels = {"&Altitude (feet)", "&Latitude", "L&ongitude"};
    ObjectForm& form = main.frmObject;
    setWindowTitle(QStringLiteral("Send Object"));
    auto* rows = new QFormLayout(this);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("S&end"));
    AddEdit(*this, Bound(), *rows, "txtName", QStringLiteral("&Name"), form.shown.txtName);
    AddCalls(*this, Bound(), *rows, form.calls);
    auto* states = new QComboBox(this);
    NameControl(*states, "cboState", QStringLiteral("State"));
    for (const std::string_view state : kObjectStates)
        states->addItem(ForDisplay(state));
    Bound().Bind(*states, form.shown.cboState);
    rows->addRow(QStringLiteral("&State"), states);
    auto* symbols = new QComboBox(this);
    NameControl(*symbols, "cboSymbol", QStringLiteral("Symbol"));
    for (const SymbolChoice& symbol : ObjectSymbols())
        symbols->addItem(ForDisplay(symbol.text));
    Bound().Bind(*symbols, form.shown.cboSymbol);
    rows->addRow(QStringLiteral("S&ymbol"), symbols);
    for (std::size_t i = 0; i < kLabels.size(); ++i) {
        const ObjectBox& box = kObjectBoxes[i];
        QLineEdit* edit = AddEdit(*this, Bound(), *rows, std::string(box.name).c_str(), QString::fromUtf8(kLabels[i]),
                                  form.shown.*box.text);
        new FieldCheck(*edit, *buttons.cancel, [this, &box] {
            if (const auto message = CheckNumber(m_main.frmObject.shown.*box.text, box.rule)) {
                Refresh();
                m_main.services.prompts.Message(*message);
            }
            return true;
        });
    }
    AddEdit(*this, Bound(), *rows, "txtComment", QStringLiteral("Co&mment"), form.shown.txtComment);
    m_showRoads = AddRoads(*this, Bound(), *rows, form.roads, buttons);
    auto* pinPoint = new QPushButton(QStringLiteral("P&inPoint"), this);
    NameControl(*pinPoint, "PinPoint", QStringLiteral("Take latitude and longitude from a click on the map"));
    pinPoint->setAutoDefault(false);
    connect(pinPoint, &QPushButton::clicked, this, [this] { frmObject_PinPoint(m_main); });
    auto* foot = new QHBoxLayout;
    foot->addWidget(pinPoint);
    auto* minimize = new QPushButton(QStringLiteral("Minimi&ze"), this);
    NameControl(*minimize, "Minimize", QStringLiteral("Minimize this window"));
    minimize->setAutoDefault(false);
    connect(minimize, &QPushButton::clicked, this, &QWidget::showMinimized);
    foot->addWidget(minimize);
    foot->addLayout(buttons.row);
    rows->addRow(foot);
}

void FrmObjectDialog::accept()
{
    if (m_main.frmObject.roads.CanSend())
        frmObject_Send(m_main); // Closes the window.
}

void FrmObjectDialog::Refresh()
{
    FormDialog::Refresh();
    m_showRoads();
}

} // namespace ruvenmark
