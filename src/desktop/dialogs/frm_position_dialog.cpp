#include "desktop/dialogs/frm_position_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/sending_parts.h"
#include "outgoing/position_form_rules.h"
#include "outgoing/report_text.h"
#include "outgoing/symbol_lists.h"

#include <QFormLayout>

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
    AddSymbols(*this, Bound(), *rows, PositionSymbols(), form.cboSymbol);
    for (std::size_t i = 0; i < kLabels.size(); ++i) {
        const PositionBox& box = kPositionBoxes[i];
        QLineEdit* edit = AddEdit(*this, Bound(), *rows, std::string(box.name).c_str(), QString::fromUtf8(kLabels[i]),
                                  form.*box.text);
        CheckWhenLeft(*this, *edit, buttons, form.*box.text, box.rule, main.services.prompts);
    }
    QLineEdit* comment = AddEdit(*this, Bound(), *rows, "txtComment", QStringLiteral("Co&mment"), form.txtComment);
    MakeWide(*comment, kLongestTail);
    m_showRoads = AddRoads(*this, Bound(), *rows, form.roads, buttons);
    AddFoot(*this, *rows, buttons,
            {[this] { frmPosition_PinPoint(m_main); }, [this] { frmPosition_Minimize(m_main); }});
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
