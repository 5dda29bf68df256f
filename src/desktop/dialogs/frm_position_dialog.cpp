#include "desktop/dialogs/frm_position_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/dialogs/sending_parts.h"
#include "desktop/named_control.h"
#include "outgoing/position_form_rules.h"
#include "outgoing/symbol_lists.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace ruvenmark {

FrmPositionDialog::FrmPositionDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    constexpr std::array<const char*, 7> kLabels = {"&Altitude (feet)", "&Power (watts)",         "&Height (feet)",
                                                    "&Gain (dB)",       "&Directivity (degrees)", "&Latitude",
                                                    "L&ongitude"};
    PositionForm& form = main.frmPosition;
    setWindowTitle(QStringLiteral("Send Position"));
    auto* rows = new QFormLayout(this);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("S&end"));
    AddCalls(*this, Bound(), *rows, form.calls);
    auto* symbols = new QComboBox(this);
    NameControl(*symbols, "cboSymbol", QStringLiteral("Symbol"));
    for (const SymbolChoice& symbol : PositionSymbols())
        symbols->addItem(ForDisplay(symbol.text));
    Bound().Bind(*symbols, form.cboSymbol);
    rows->addRow(QStringLiteral("S&ymbol"), symbols);
    for (std::size_t i = 0; i < kLabels.size(); ++i) {
        const PositionBox& box = kPositionBoxes[i];
        QLineEdit* edit = AddEdit(*this, Bound(), *rows, std::string(box.name).c_str(), QString::fromUtf8(kLabels[i]),
                                  form.*box.text);
        new FieldCheck(*edit, *buttons.cancel, [this, &box] {
            if (const auto message = CheckNumber(m_main.frmPosition.*box.text, box.rule)) {
                Refresh();
                m_main.services.prompts.Message(*message);
            }
            return true;
        });
    }
    AddEdit(*this, Bound(), *rows, "txtComment", QStringLiteral("Co&mment"), form.txtComment);
    m_showRoads = AddRoads(*this, Bound(), *rows, form.roads, buttons);
    auto* pinPoint = new QPushButton(QStringLiteral("P&inPoint"), this);
    NameControl(*pinPoint, "PinPoint", QStringLiteral("Take latitude and longitude from a click on the map"));
    pinPoint->setAutoDefault(false);
    connect(pinPoint, &QPushButton::clicked, this, [this] { frmPosition_PinPoint(m_main); });
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

void FrmPositionDialog::accept()
{
    if (m_main.frmPosition.roads.CanSend())
        frmPosition_Send(m_main); // Closes the window.
}

void FrmPositionDialog::Refresh()
{
    FormDialog::Refresh();
    m_showRoads();
}

} // namespace ruvenmark
