#include "desktop/dialogs/frm_object_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/sending_parts.h"
#include "desktop/named_control.h"
#include "outgoing/object_report.h"
#include "outgoing/report_text.h"
#include "outgoing/symbol_lists.h"

#include <QFormLayout>

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
    AddRow(*rows, QStringLiteral("&State"), states);
    AddSymbols(*this, Bound(), *rows, ObjectSymbols(), form.shown.cboSymbol);
    for (std::size_t i = 0; i < kLabels.size(); ++i) {
        const ObjectBox& box = kObjectBoxes[i];
        QLineEdit* edit = AddEdit(*this, Bound(), *rows, std::string(box.name).c_str(), QString::fromUtf8(kLabels[i]),
                                  form.shown.*box.text);
        CheckWhenLeft(*this, *edit, buttons, form.shown.*box.text, box.rule, main.services.prompts);
    }
    QLineEdit* comment =
        AddEdit(*this, Bound(), *rows, "txtComment", QStringLiteral("Co&mment"), form.shown.txtComment);
    MakeWide(*comment, kLongestTail);
    m_showRoads = AddRoads(*this, Bound(), *rows, form.roads, buttons);
    AddFoot(*this, *rows, buttons, {[this] { frmObject_PinPoint(m_main); }, [this] { frmObject_Minimize(m_main); }});
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
