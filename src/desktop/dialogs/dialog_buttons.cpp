#include "desktop/dialogs/dialog_buttons.h"

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

} // namespace ruvenmark
