#include "desktop/dialogs/serial_boxes.h"

#include "desktop/dialogs/binder.h"
#include "desktop/named_control.h"
#include "desktop/shown_text.h"

#include <QDialog>
#include <QFormLayout>

namespace ruvenmark {

namespace {

QComboBox* MakePortBox(QWidget& parent, const std::vector<std::string>& ports)
{
    auto* box = new QComboBox(&parent);
    NameControl(*box, "cboPort", QStringLiteral("Port"));
    box->setEditable(true);
    box->setMinimumContentsLength(20);
    for (const std::string& port : ports)
        box->addItem(ForDisplay(port));
    box->setCurrentIndex(-1); // None is chosen, be there only one.
    box->lineEdit()->setAccessibleName(box->accessibleName());
    return box;
}

QComboBox* MakeBaudBox(QWidget& parent, std::span<const std::int32_t> bauds)
{
    auto* box = new QComboBox(&parent);
    NameControl(*box, "cboBaud", QStringLiteral("Baud rate"));
    for (const std::int32_t baud : bauds)
        box->addItem(QString::number(baud));
    return box;
}

} // namespace

QFormLayout* MakeSerialRows(QDialog& dialog, Binder& binder, const SerialFields& fields)
{
    QComboBox* port = MakePortBox(dialog, fields.ports);
    QComboBox* baud = MakeBaudBox(dialog, fields.bauds);
    auto* rows = new QFormLayout;
    rows->addRow(QStringLiteral("&Port"), port);
    rows->addRow(QStringLiteral("&Baud rate"), baud);
    binder.Bind(*port, fields.cboPort);
    binder.Bind(*baud, fields.cboBaud);
    return rows;
}

} // namespace ruvenmark
