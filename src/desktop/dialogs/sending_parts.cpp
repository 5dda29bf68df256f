#include "desktop/dialogs/sending_parts.h"

#include "core/number_rule.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/dialogs/form_dialog.h"
#include "desktop/named_control.h"
#include "outgoing/road_boxes.h"
#include "outgoing/symbol_lists.h"
#include "platform/prompts.h"

#include <QDialog>
#include <QFontMetrics>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

namespace ruvenmark {

namespace {

QPushButton* MakeSideButton(QDialog& dialog, const char* name, const QString& text, const QString& told)
{
    auto* button = new QPushButton(text, &dialog);
    NameControl(*button, name, told);
    button->setAutoDefault(false);
    return button;
}

// As wide as it is painted: around the underlined letter no pair of letters is moved together, though a label is
// measured so.
int PaintedWidth(const QLabel& label)
{
    const QString text = label.text();
    const auto mark = text.indexOf(QLatin1Char('&'));
    if (mark < 0 || mark + 1 >= text.size())
        return 0;
    const QFontMetrics metrics = label.fontMetrics();
    return metrics.horizontalAdvance(text.left(mark)) + metrics.horizontalAdvance(text.at(mark + 1)) +
           metrics.horizontalAdvance(text.mid(mark + 2));
}

} // namespace

void AddRow(QFormLayout& rows, const QString& label, QWidget* field)
{
    rows.addRow(label, field);
    auto* shown = qobject_cast<QLabel*>(rows.labelForField(field));
    shown->setMinimumWidth(PaintedWidth(*shown) + 1);
}

void MakeWide(QLineEdit& edit, std::size_t characters)
{
    const QFontMetrics metrics = edit.fontMetrics();
    constexpr int kCharactersOfHint = 17; // Of any edit.
    const int frame = edit.sizeHint().width() - kCharactersOfHint * metrics.horizontalAdvance(QLatin1Char('x'));
    edit.setMinimumWidth(metrics.averageCharWidth() * static_cast<int>(characters) + std::max(frame, 0));
}

QLineEdit* AddEdit(QDialog& dialog, Binder& binder, QFormLayout& rows, const char* name, const QString& label,
                   std::string& field)
{
    auto* edit = new QLineEdit(&dialog);
    NameControl(*edit, name, label);
    binder.Bind(*edit, field);
    AddRow(rows, label, edit);
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
    AddRow(rows, QStringLiteral("S&ymbol"), list);
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
    auto* why = new QLabel(QStringLiteral("Not connected: see Communication"), &dialog);
    why->setObjectName(QStringLiteral("lblNoRoad"));
    row->addWidget(why);
    row->addStretch();
    rows.addRow(QStringLiteral("Send over"), row);
    const auto show = [rf, tcp, why, &roads, accept = buttons.accept] {
        rf->setEnabled(roads.bRfEnabled);
        tcp->setEnabled(roads.bTcpEnabled);
        why->setVisible(!roads.bRfEnabled && !roads.bTcpEnabled);
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
