#include "desktop/dialogs/sending_parts.h"

#include "core/number_rule.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/dialogs/form_dialog.h"
#include "desktop/named_control.h"
#include "outgoing/road_boxes.h"
#include "outgoing/symbol_lists.h"
#include "platform/prompts.h"

#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace ruvenmark {

namespace {

QPushButton* MakeSideButton(QDialog& dialog, const char* name, const QString& text, const QString& told)
{
    auto* button = new QPushButton(text, &dialog);
    NameControl(*button, name, told);
    button->setAutoDefault(false);
    return button;
}

} // namespace

QLineEdit* AddEdit(QDialog& dialog, Binder& binder, QFormLayout& rows, const char* name, const QString& label,
                   std::string& field)
{
    auto* edit = new QLineEdit(&dialog);
    NameControl(*edit, name, label);
    binder.Bind(*edit, field);
    rows.addRow(label, edit);
    return edit;
}

void AddCalls(QDialog& dialog, Binder& binder, QFormLayout& rows, CallBoxes& calls)
{
    AddEdit(dialog, binder, rows, "txtFrom", QStringLiteral("&From"), calls.txtFrom);
    AddEdit(dialog, binder, rows, "txtTo", QStringLiteral("&To"), calls.txtTo);
    AddEdit(dialog, binder, rows, "txtVia", QStringLiteral("&Via"), calls.txtVia);
}

void AddSymbols(QDialog& dialog, Binder& binder, QFormLayout& rows, std::span<const SymbolChoice> symbols,
                std::int32_t& choice)
{
    auto* list = new QComboBox(&dialog);
    NameControl(*list, "cboSymbol", QStringLiteral("Symbol"));
    for (const SymbolChoice& symbol : symbols)
        list->addItem(ForDisplay(symbol.text));
    binder.Bind(*list, choice);
    rows.addRow(QStringLiteral("S&ymbol"), list);
}

void CheckWhenLeft(FormDialog& dialog, QLineEdit& edit, const DialogButtons& buttons, std::string& field,
                   const NumberRule& rule, IPrompts& prompts)
{
    new FieldCheck(edit, *buttons.cancel, [&] {
        if (const auto message = CheckNumber(field, rule)) {
            dialog.Refresh();
            prompts.Message(*message);
        }
        return true;
    });
}

std::function<void()> AddRoads(QDialog& dialog, Binder& binder, QFormLayout& rows, RoadBoxes& roads,
                               const DialogButtons& buttons)
{
    auto* rf = new QCheckBox(QStringLiteral("&RF"), &dialog);
    auto* tcp = new QCheckBox(QStringLiteral("T&CP"), &dialog);
    NameControl(*rf, "chkRF", QStringLiteral("Send on RF"));
    NameControl(*tcp, "chkTCP", QStringLiteral("Send over TCP"));
    binder.Bind(*rf, roads.chkRF);
    binder.Bind(*tcp, roads.chkTCP);
    auto* row = new QHBoxLayout;
    row->addWidget(rf);
    row->addWidget(tcp);
    row->addStretch();
    rows.addRow(QStringLiteral("Send over"), row);
    const auto show = [rf, tcp, why, &roads, accept = buttons.accept] {
        rf->setEnabled(roads.bRfEnabled);
        tcp->setEnabled(roads.bTcpEnabled);
        accept->setEnabled(roads.CanSend());
    };
    QObject::connect(rf, &QCheckBox::toggled, &dialog, show);
    QObject::connect(tcp, &QCheckBox::toggled, &dialog, show);
    show();
    return show;
}

void AddFoot(QDialog& dialog, QFormLayout& rows, const DialogButtons& buttons, const FootActions& actions)
{
    QPushButton* place = MakeSideButton(dialog, "PinPoint", QStringLiteral("P&inPoint"),
                                        QStringLiteral("Take latitude and longitude from a click on the map"));
    QPushButton* minimize =
        MakeSideButton(dialog, "Minimize", QStringLiteral("Minimi&ze"), QStringLiteral("Minimize this window"));
    QObject::connect(place, &QPushButton::clicked, &dialog, actions.pinPoint);
    QObject::connect(minimize, &QPushButton::clicked, &dialog, actions.minimize);
    auto* foot = new QHBoxLayout;
    foot->addWidget(place);
    foot->addWidget(minimize);
    foot->addLayout(buttons.row);
    rows.addRow(foot);
}

} // namespace ruvenmark
    auto* why = new QLabel(QStringLiteral("Not connected: see Communication"), &dialog);
    why->setObjectName(QStringLiteral("lblNoRoad"));
    row->addWidget(why);
        why->setVisible(!roads.bRfEnabled && !roads.bTcpEnabled);
