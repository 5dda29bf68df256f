#include "desktop/dialogs/dialog_parts.h"

#include "desktop/dialogs/bind.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace ruvenmark {

DialogButtons MakeDialogButtons(QDialog& dialog, const QString& acceptText)
{
    auto* accept = new QPushButton(acceptText, &dialog);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), &dialog);
    accept->setObjectName(QStringLiteral("OK"));
    cancel->setObjectName(QStringLiteral("Cancel"));
    accept->setDefault(true);
    cancel->setAutoDefault(false);
    QObject::connect(accept, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(accept);
    row->addWidget(cancel);
    return {accept, cancel, row};
}

void NameControl(QWidget& control, const char* objectName, const QString& label)
{
    control.setObjectName(QString::fromLatin1(objectName));
    control.setAccessibleName(QString(label).remove(QLatin1Char('&')));
}

QCheckBox* MakeBoundBox(QWidget* parent, const char* name, const QString& text, bool& field)
{
    auto* box = new QCheckBox(text, parent);
    NameControl(*box, name, text);
    Bind(*box, field);
    return box;
}

int CoordinatesWidth(const QWidget& field)
{
    return field.fontMetrics().horizontalAdvance(QStringLiteral("-88.88888, -188.88888")) + 24;
}

} // namespace ruvenmark
