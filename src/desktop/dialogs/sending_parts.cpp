#include "desktop/dialogs/sending_parts.h"

#include "desktop/named_control.h"
#include "outgoing/road_boxes.h"

#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace ruvenmark {

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
    const auto show = [rf, tcp, &roads, accept = buttons.accept] {
        rf->setEnabled(roads.bRfEnabled);
        tcp->setEnabled(roads.bTcpEnabled);
        accept->setEnabled(roads.CanSend());
    };
    QObject::connect(rf, &QCheckBox::toggled, &dialog, show);
    QObject::connect(tcp, &QCheckBox::toggled, &dialog, show);
    show();
    return show;
}

} // namespace ruvenmark
